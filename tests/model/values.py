"""Numbers and strings as the program counts them: 16-bit units, 32-bit floats, half to even."""

import re
import struct

WHITE = 16777215
BLACK = 0
RETURN_MARK = "\u0691"
CR = "\r"
LF = "\n"


class Mistake(Exception):
    """A line that the console refuses: exit status 2."""


class Fatal(Exception):
    """A failure that ends the program: exit status 3."""


class Open(Exception):
    """From here on more than one behaviour is right, and the model does not follow them all."""


class OneOf:
    """An answer that may be any of several."""

    def __init__(self, *answers):
        self.answers = answers

    def __repr__(self):
        return "one of " + " | ".join(repr(answer) for answer in self.answers)


class Like:
    """An answer in which some numbers are the window's own: ANY stands for such a number."""

    ANY = "<any number>"

    def __init__(self, text):
        self.text = text
        parts = [re.escape(part) for part in text.split(self.ANY)]
        self.pattern = re.compile("-?[0-9]+".join(parts))

    def __repr__(self):
        return repr(self.text)


_SINGLE = struct.Struct("<f")


def single(number):
    """The 32-bit float next to a number."""
    return _SINGLE.unpack(_SINGLE.pack(number))[0]


def nearest(number):
    """To the nearest whole number, halves to the even one."""
    return round(number)


def sum16(values):
    """A sum in 16 bits, added from the first value on."""
    total = 0
    for value in values:
        total += value
        if not -32768 <= total <= 32767:
            raise Fatal("sum does not fit into 16 bits")
    return total


def to_units(text):
    """A Python string as a string of 16-bit units: pairs stand for what lies beyond the plane."""
    if all(ord(char) < 0x10000 for char in text):
        return text
    data = text.encode("utf-16-le", "surrogatepass")
    return "".join(chr(unit) for (unit,) in struct.iter_unpack("<H", data))


def from_units(text):
    """The Python string of 16-bit units. A half pair has no form of its own outside the program."""
    try:
        return text.encode("utf-16-le", "surrogatepass").decode("utf-16-le")
    except UnicodeDecodeError:
        raise Open("half a pair of units") from None


_ESCAPED = re.compile('["\\\\\x00-\x1f]')
_SHORT = {'"': '\\"', "\\": "\\\\", "\r": "\\r", "\n": "\\n", "\t": "\\t"}


def quoted(text):
    """A string in an answer."""
    return '"' + _ESCAPED.sub(lambda m: _SHORT.get(m[0], f"\\u{ord(m[0]):04x}"), text) + '"'


def shown(value):
    """A value in an answer: a boolean, a number or a string; ANY stays as it is."""
    if value is True:
        return "true"
    if value is False:
        return "false"
    if isinstance(value, int):
        return str(value)
    if isinstance(value, (list, tuple)):
        return "[" + ", ".join(shown(part) for part in value) + "]"
    if value is Like.ANY:
        return value
    if isinstance(value, Verbatim):
        return value.text
    return quoted(value)


class Verbatim:
    """A number that is already written out."""

    def __init__(self, text):
        self.text = text


def record(*pairs):
    """An object on one line, its keys in the order given."""
    text = "{" + ", ".join(f'"{key}": {shown(value)}' for key, value in pairs) + "}"
    return Like(text) if Like.ANY in text else text


def code_of(char):
    """The 8-bit code of a character in code page 1256; 0 for none and for the empty string."""
    if not char:
        return 0
    try:
        return char.encode("cp1256")[0]
    except UnicodeEncodeError:
        return 0


def char_of(code):
    """The character of an 8-bit code."""
    return bytes([code]).decode("cp1256")
