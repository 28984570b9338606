#!/usr/bin/env python3
"""Holds what `llvm-cov export` tells of the libraries against a list of the misses that are known.

usage: check.py EXPORT LIST

An entry of the list is a line `FILE: SOURCE`, the text of the source line, below a comment that
says why nothing runs it, or one of its branches. A miss without an entry fails, and so does an
entry without a miss.
"""
import collections
import json
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def source_file(name):
    match = re.search(r"(?:^|/)((?:kestrane|ombrel)/.*)", name)
    return match.group(1) if match and (ROOT / match.group(1)).is_file() else None


def count_all(export):
    """Lines, functions and branches by their place; each instance of a template adds to them."""
    functions, lines, branches = (collections.Counter() for _ in range(3))
    for data in export["data"]:
        for function in data["functions"]:
            path = source_file(function["filenames"][0])
            if path:
                functions[path, function["regions"][0][0]] += function["count"]
                for line, column, _, _, taken, passed, file, *_ in function["branches"]:
                    if file == 0:
                        branches[path, line, column, "true"] += taken
                        branches[path, line, column, "false"] += passed
        for file in data["files"]:
            path = source_file(file["filename"])
            if path:
                count_lines(path, file["segments"], lines)
    return functions, lines, branches


def count_lines(path, segments, lines):
    """A line counts as often as the region that it begins in, or one that begins in it."""
    for here, behind in zip(segments, segments[1:] + segments[-1:]):
        line, _, count, has_count, is_entry, is_gap = here
        if not has_count or is_gap:
            continue
        for k in range(line if is_entry else line + 1, behind[0] + 1):
            lines[path, k] = max(lines[path, k], count)


def read_list(path):
    lines = path.read_text().splitlines()
    return {line for line in lines if line and not line.startswith("#")}


def main():
    export = json.load(open(sys.argv[1]))
    known = read_list(pathlib.Path(sys.argv[2]))
    misses = collections.defaultdict(set)
    for what, counts in zip(("functions", "lines", "branches"), count_all(export)):
        missed = [place for place, count in counts.items() if count == 0]
        share = 100.0 * (len(counts) - len(missed)) / len(counts)
        print(f"coverage: {share:6.2f} % of {len(counts)} {what}")
        for path, line, *rest in missed:
            text = (ROOT / path).read_text().splitlines()[line - 1].strip()
            kind = " ".join(map(str, rest[1:])) or what[:-1]
            misses[f"{path}: {text}"].add(f"{line} {kind}")
    new, gone = sorted(misses.keys() - known), sorted(known - misses.keys())
    for entry in new:
        print(f"not covered: {entry}    ({', '.join(sorted(misses[entry]))})")
    for entry in gone:
        print(f"covered, but on the list: {entry}")
    sys.exit(1 if new or gone else 0)


if __name__ == "__main__":
    main()
