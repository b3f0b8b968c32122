"""What a mutant is: one operator, one constant or one cell of a table of the core, changed."""

import dataclasses
import pathlib
import random
import re

ROOMS = ("context", "course", "keyboard", "progress", "session")
# The rows to type and the notes are prose: their words are judged by tests/course, not flipped here.
PROSE = ("course/texts/", "course/notes/")

OPERATOR, CONSTANT, CELL = "operator", "constant", "cell"

# A comparison, a sum or a connective stands between blanks in this source; a template's bracket, a
# reference and a pointer do not.
OPERATORS = {
    "==": ("!=",), "!=": ("==",),
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
    "&&": ("||",), "||": ("&&",),
    "+": ("-",), "-": ("+",), "*": ("+",), "/": ("*",), "%": ("/",),
    "&": ("|",), "|": ("&",), "<<": (">>",), ">>": ("<<",),
    "+=": ("-=",), "-=": ("+=",), "*=": ("+=",), "/=": ("*=",), "|=": ("&=",), "&=": ("|=",),
}
TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#[^\n]*)
  | (?P<assert>\bstatic_assert\s*\((?:\[.*?\}\(\)|.*?)\);)
  | (?P<string>(?:u8|u|U|L)?"(?:\\.|[^"\\\n])*")
  | (?P<character>(?:u8|u|U|L)?'(?:\\u[0-9A-Fa-f]{4}|\\x[0-9A-Fa-f]+|\\.|[^'\\\n])')
  | (?P<number>\b(?:0x[0-9A-Fa-f]+|[0-9][0-9']*(?:\.[0-9]*)?(?:e[+-]?[0-9]+)?)(?:[fFuUlL]*)\b)
  | (?P<truth>\b(?:true|false)\b)
  | (?P<step>\+\+|--)
  | (?P<operator>(?<=[ ])(?:==|!=|<=|>=|&&|\|\||\+=|-=|\*=|/=|\|=|&=|<<|>>|[<>+\-*/%&|])(?=[ \n]))
  | (?P<not>!(?=[A-Za-z_(]))
  | (?P<word>[A-Za-z_][A-Za-z_0-9]*)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)
UNIT = re.compile(r"\\u[0-9A-Fa-f]{4}|\\x[0-9A-Fa-f]+|\\.|.")


@dataclasses.dataclass(frozen=True)
class Mutant:
    path: str  # from the root of the tree
    kind: str
    start: int
    end: int
    old: str
    new: str
    line: int
    before: str  # the line as it stands, and as the mutant has it
    after: str

    def applied(self, source):
        return source[:self.start] + self.new + source[self.end:]

    def key(self):
        return self.path, self.before, self.after

    def __str__(self):
        return f"{self.path}:{self.line} ({self.kind})\n- {self.before}\n+ {self.after}"


def sources(root):
    """Paths of the core's sources, from the root, in order."""
    found = []
    for room in ROOMS:
        for pattern in ("*.cpp", "*.h"):
            found += (root / room).rglob(pattern)
    names = sorted(path.relative_to(root).as_posix() for path in found)
    return [name for name in names if not name.startswith("course/texts/")]


def line_around(source, start, end):
    first = source.rfind("\n", 0, start) + 1
    last = source.find("\n", end)
    return first, last if last >= 0 else len(source)


def made(path, kind, source, start, end, new):
    first, last = line_around(source, start, end)
    return Mutant(path, kind, start, end, source[start:end], new,
                  source.count("\n", 0, start) + 1, source[first:last].strip(),
                  (source[first:start] + new + source[end:last]).strip())


def other_unit(unit, rng):
    """Another character, of the same kind where that is told by its looks."""
    if unit.startswith("\\u"):
        return f"\\u{int(unit[2:], 16) + 1:04X}"
    if unit.startswith("\\"):
        return "x"
    if unit.isdigit():
        return str((int(unit) + 1) % 10)
    choices = "بتسنم" if "\u0600" <= unit <= "\u06FF" else "aeqx"
    return rng.choice([choice for choice in choices if choice != unit])


def other_string(text, rng):
    opening = text.index('"')
    units = UNIT.findall(text[opening + 1:-1])
    if not units:
        return text[:-1] + 'x"'
    at = rng.randrange(len(units))
    if rng.random() < 0.3:
        del units[at]
    else:
        units[at] = other_unit(units[at], rng)
    return text[:opening + 1] + "".join(units) + '"'


def other_number(text, rng):
    digits = re.match(r"0x[0-9A-Fa-f]+|[0-9'.]+", text)[0]
    suffix = text[len(digits):]
    if digits.startswith("0x"):
        value = int(digits, 16)
        return f"0x{value + rng.choice((1, -1) if value else (1,)):X}{suffix}"
    plain = digits.replace("'", "")
    if "." in plain:
        return f"{float(plain) + rng.choice((1, -1))}{suffix}"
    value = int(plain)
    others = {value + 1, max(value - 1, 0), 0 if value else 1} - {value}
    return f"{rng.choice(sorted(others))}{suffix}"


def other_character(text, rng):
    opening = text.index("'")
    return text[:opening + 1] + other_unit(text[opening + 1:-1], rng) + "'"


def flips(path, source, rng):
    """One mutant for each operator and each constant of a source."""
    prose = path.startswith(PROSE)
    for token in TOKEN.finditer(source):
        kind, text = token.lastgroup, token[0]
        start, end = token.span()
        if kind == "operator":
            yield made(path, OPERATOR, source, start, end, rng.choice(OPERATORS[text]))
        elif kind == "step":
            yield made(path, OPERATOR, source, start, end, "--" if text == "++" else "++")
        elif kind == "not":
            yield made(path, OPERATOR, source, start, end, "")
        elif kind == "truth":
            yield made(path, CONSTANT, source, start, end, "false" if text == "true" else "true")
        elif kind == "number":
            yield made(path, CONSTANT, source, start, end, other_number(text, rng))
        elif kind == "character":
            yield made(path, CONSTANT, source, start, end, other_character(text, rng))
        elif kind == "string" and not prose:
            yield made(path, CONSTANT, source, start, end, other_string(text, rng))


def cells_of(source, start, end):
    """Spans of the cells of the row `{a, b, c}` at start to end."""
    spans = []
    depth = 0
    first = start + 1
    position = first
    while position < end:
        token = TOKEN.match(source, position)
        if token and token.lastgroup in ("string", "character"):
            position = token.end()
            continue
        if source[position] in "({":
            depth += 1
        elif source[position] in ")}":
            if depth == 0:
                break
            depth -= 1
        elif source[position] == "," and depth == 0:
            spans.append((first, position))
            first = position + 1
        position += 1
    spans.append((first, position))
    trimmed = []
    for first, last in spans:
        text = source[first:last]
        trimmed.append((first + len(text) - len(text.lstrip()), last - len(text) + len(text.rstrip())))
    return trimmed


def tables(source):
    """Runs of at least three rows with the same number of cells, each row on a line of its own."""
    run = []
    offset = 0
    for line in source.split("\n"):
        bare = line.strip()
        if bare.startswith("{") and re.search(r"\}\}*[,;]?\s*(//.*)?$", bare) and "," in bare:
            cells = cells_of(source, offset + line.index("{"), offset + len(line))
            if run and len(run[-1]) != len(cells):
                if len(run) > 2:
                    yield run
                run = []
            run.append(cells)
        elif bare and not bare.startswith("//"):
            if len(run) > 2:
                yield run
            run = []
        offset += len(line) + 1
    if len(run) > 2:
        yield run


def swaps(path, source, rng):
    """One mutant for each cell of each table: the cell of another row of the same column."""
    if path.startswith(PROSE):
        return
    for table in tables(source):
        for row in table:
            for column, (start, end) in enumerate(row):
                texts = {source[slice(*other[column])] for other in table} - {source[start:end]}
                if texts:
                    yield made(path, CELL, source, start, end, rng.choice(sorted(texts)))


def all_mutants(root, seed):
    """The mutants of a source depend on that source and the seed alone."""
    found = []
    for path in sources(root):
        rng = random.Random(f"{seed}/{path}")
        source = (root / path).read_text(encoding="utf-8")
        found += flips(path, source, rng)
        found += swaps(path, source, rng)
    return found


def drawn(root, seed, kinds=(OPERATOR, CONSTANT, CELL)):
    """All mutants in the order of their draw: a third of each kind, as far as they go."""
    rng = random.Random(seed)
    mutants = all_mutants(pathlib.Path(root), seed)
    piles = []
    for kind in kinds:
        pile = [mutant for mutant in mutants if mutant.kind == kind]
        rng.shuffle(pile)
        piles.append(pile)
    while any(piles):
        for pile in piles:
            if pile:
                yield pile.pop()
