"""Words as outlines; lettering/shape.py tells where they come from."""

import json
from pathlib import Path

from _style import number

_WORDS = {}


def _load():
    source = Path(__file__).resolve().parent.parent / "lettering" / "words.json"
    for line in source.read_text(encoding="utf-8").splitlines():
        name, *rest = json.loads(line)
        _WORDS[name] = rest


def ink(name, size):
    """Left, top, right and bottom of a word's ink at a size in pixels per em, from its origin."""
    if not _WORDS:
        _load()
    return tuple(value * size / 1000 for value in _WORDS[name][1:5])


def word(name, cx, base, size, attributes):
    """A word whose ink is centred at cx and stands on the base line."""
    left, _, right, _ = ink(name, size)
    return ('<path transform="translate(%s %s) scale(%.5f)" d="%s" %s/>'
            % (number(cx - (left + right) / 2), number(base), size / 1000, _WORDS[name][5],
               attributes))
