#!/usr/bin/env python3
"""Changes the libraries in one small place at a time and looks whether a test notices.

usage: sweep.py COUNT SEED, in the root of the project, with build/coverage/profiles made

Works in a copy of the tree, build/mutation/. What came of a mutant is kept in its results.tsv, so
that a sweep that was interrupted goes on; what survived is tried again, since there may be new
tests. A mutant that no test notices has to stand in tools/mutation/equivalent.txt, below a comment
that says why nobody can.
"""
import csv
import hashlib
import pathlib
import re
import shutil
import subprocess
import sys
from collections import Counter, defaultdict

from mutants import mutants_of

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROFILES = ROOT / "build/coverage/profiles"
TREE = ROOT / "build/mutation"
NUMERIC = re.compile(r"kestrane/(axes|plots|surfaces|colors|library/detail)/(?!Registry)"
                     r"|ombrel/(RoundedNumber|ValueFormatter|MinMax)")
# The quickest first.
PROGRAMS = ["library", "colors", "ombrel", "axes", "surfaces", "laws", "plots", "logarithm", "accuracy",
            "faults"]
FILTERS = ["-*Differential*", "*Differential*"]
SECONDS_TO_HANG = 90


def covered_lines():
    """For each file, for each line, the programs that run it."""
    result = defaultdict(lambda: defaultdict(list))
    libraries = [ROOT / "build/coverage/lib/libkestrane.so", "-object", ROOT / "build/coverage/lib/libombrel.so"]
    for program in PROGRAMS:
        profile = TREE / f"{program}.profdata"
        raw = PROFILES.glob(f"kestrane_{program}_tests-*.profraw")
        subprocess.run(["llvm-profdata", "merge", "-sparse", *raw, "-o", profile], check=True)
        lcov = subprocess.run(["llvm-cov", "export", "-format=lcov", *libraries, "-instr-profile", profile],
                              check=True, capture_output=True, text=True).stdout
        path = None
        for line in lcov.splitlines():
            if line.startswith("SF:"):
                match = re.search(r"(?:^|/)((?:kestrane|ombrel)/.*)", line)
                path = match.group(1) if match and (ROOT / match.group(1)).is_file() else None
            elif path and line.startswith("DA:") and not line.endswith(",0"):
                result[path][int(line[3:].split(",")[0])].append(program)
    return result


def run(command, **options):
    return subprocess.run(command, cwd=TREE / "tree", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)


def build(*targets):
    return run(["cmake", "--build", "build", "--target", *targets]).returncode == 0


def prepare():
    """A copy of the tree that is built the quick way."""
    tree = TREE / "tree"
    tree.mkdir(parents=True, exist_ok=True)
    for name in subprocess.run(["git", "ls-files"], cwd=ROOT, check=True, capture_output=True, text=True).stdout.split():
        source, copy = ROOT / name, tree / name
        if not source.is_file() or (copy.is_file() and source.read_bytes() == copy.read_bytes()):
            continue
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, copy)
    run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O1",
         f"-DCMAKE_PROJECT_INCLUDE={ROOT}/tools/mutation/Precompile.cmake", "-DKESTRANE_BUILD_HOSTS=OFF"], check=True)
    if not build(*(f"kestrane_{program}_tests" for program in PROGRAMS)):
        sys.exit("mutate: the tree does not build")
    for program in PROGRAMS:
        if not passes(program):
            sys.exit(f"mutate: the tests of {program} fail without a mutant")


def passes(program, tests="*"):
    command = (f"ulimit -v 8000000; exec build/bin/kestrane_{program}_tests --gtest_brief=1 --gtest_fail_fast"
               f" '--gtest_filter={tests}'")
    try:
        return run(["bash", "-c", command], timeout=SECONDS_TO_HANG).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def outcome(mutant, programs):
    path = TREE / "tree" / mutant.path
    original = path.read_text()
    lines = original.splitlines(keepends=True)
    count = mutant.before.count("\n") + 1
    lines[mutant.line - 1:mutant.line - 1 + count] = [mutant.after + "\n"]
    try:
        path.write_text("".join(lines))
        if not build("kestrane"):
            return "no program"
        return next((f"caught by {program}" for tests in FILTERS for program in programs
                     if not passes(program, tests)), "survived")
    finally:
        path.write_text(original)


def main():
    if len(sys.argv) != 3 or not all(argument.isdigit() for argument in sys.argv[1:]):
        sys.exit("mutate: COUNT and SEED have to be whole numbers")
    count, seed = int(sys.argv[1]), sys.argv[2]
    TREE.mkdir(parents=True, exist_ok=True)
    covered = covered_lines()
    equivalent = {line for line in (ROOT / "tools/mutation/equivalent.txt").read_text().splitlines()
                  if not line.startswith("#")}
    candidates = [mutant for path in sorted(covered) if NUMERIC.match(path)
                  for mutant in mutants_of(path, (ROOT / path).read_text(), covered[path])]
    # An order that stays when sources change elsewhere.
    candidates.sort(key=lambda mutant: hashlib.sha1((seed + mutant.text()).encode()).digest())
    prepare()
    results = TREE / "results.tsv"
    known = dict(csv.reader(results.open(), delimiter="\t")) if results.exists() else {}
    counts = Counter()
    for mutant in candidates:
        if sum(counts.values()) == count:
            break
        text = mutant.text()
        if text in equivalent:
            counts["equivalent"] += 1
            continue
        if known.get(text, "survived") == "survived":
            known[text] = outcome(mutant, covered[mutant.path][mutant.line])
            with results.open("a") as file:
                csv.writer(file, delimiter="\t", lineterminator="\n").writerow([text, known[text]])
        if known[text] == "no program":
            continue
        counts["survived" if known[text] == "survived" else "caught"] += 1
        if known[text] == "survived":
            print(f"survived: {text}    (line {mutant.line})", flush=True)
    print(f"mutate: of {len(candidates)} mutants {sum(counts.values())} tried: {counts['caught']} caught, "
          f"{counts['survived']} survived, {counts['equivalent']} equivalent")
    sys.exit(1 if counts["survived"] else 0)


if __name__ == "__main__":
    main()
