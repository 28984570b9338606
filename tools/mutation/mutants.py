"""The mutants of a source: single small changes that a test should notice."""
import re
from dataclasses import dataclass

# Blanks around operators tell them from brackets of templates, and from signs.
EXCHANGES = [
    (" < ", " <= "), (" <= ", " < "), (" > ", " >= "), (" >= ", " > "), (" == ", " != "), (" != ", " == "),
    (" + ", " - "), (" - ", " + "), (" * ", " / "), (" / ", " * "), (" += ", " -= "), (" -= ", " += "),
    (" && ", " || "), (" || ", " && "), ("std::min(", "std::max("), ("std::max(", "std::min("),
    ("std::floor(", "std::ceil("), ("std::ceil(", "std::floor("), ("return true;", "return false;"),
    ("return false;", "return true;"), ("(!", "("), (" !", " "), ("++", "--"),
]
NUMBER = re.compile(r"(?<![\w.])(\d+)(\.\d+)?(?![\w.]|\s*bit)")
PASSED_OVER = re.compile(
    r"\s*(//|/?\*|#|static_assert|template|using|typedef|namespace|friend|enum|throw|public|private|case )"
    r"|.*(qFatal|__attribute__|KESTRANE_ALWAYS_INLINE)")
STATEMENT = re.compile(
    r"\s+(Q_EMIT )?(?!return|break|continue|throw|delete|else|case|default|using|const|auto|static)"
    r"([\w:]+(\.|->|\(|\[)|[\w.\[\]>-]+ ([-+*/|&]|<<|>>)?= ).*;$")
DECLARATION = re.compile(r"\s+(const |static |constexpr )*[\w:<>*&]+ [*&]?\w+( =|\(|\{|;|\[)")


@dataclass(frozen=True)
class Mutant:
    path: str
    line: int  # From 1.
    before: str
    after: str  # Empty where the statement goes.

    def text(self):
        return f"{self.path}: {self.before.strip()} => {self.after.strip() or '(nothing)'}"


def changes(line):
    code = line.split("//")[0]
    for old, new in EXCHANGES:
        start = code.find(old)
        while start >= 0:
            yield line[:start] + new + line[start + len(old):]
            start = code.find(old, start + 1)
    for number in NUMBER.finditer(code):
        whole, fraction = number.group(1), number.group(2) or ""
        for other in {int(whole) + 1, max(int(whole) - 1, 0)} - {int(whole)}:
            yield line[:number.start()] + str(other) + fraction + line[number.end():]
    if STATEMENT.fullmatch(code.rstrip()) and not DECLARATION.match(code):
        yield ""


def mutants_of(path, text, covered):
    lines = text.splitlines()
    for number, line in enumerate(lines, 1):
        if number not in covered or PASSED_OVER.match(line):
            continue
        for changed in changes(line):
            yield Mutant(path, number, line, changed)
        behind = lines[number] if number < len(lines) else ""
        if "mit" in line and "mit" in behind and STATEMENT.fullmatch(line) and STATEMENT.fullmatch(behind):
            yield Mutant(path, number, line + "\n" + behind, behind + "\n" + line)
