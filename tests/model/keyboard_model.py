"""The keyboard: caps of keys, texts of caps, lit caps, fingers, and which key is right."""

import keyboard_tables as table
from values import RETURN_MARK, char_of


def _caps():
    places = {}
    for first, last, left, top, width in table.CAP_RUNS:
        for cap in range(first, last + 1):
            height = table.CAP_HEIGHTS.get(cap, table.CAP_HEIGHT)
            places[cap] = (left + table.CAP_PITCH * (cap - first), top, width, height)
    return tuple(places[cap] for cap in range(table.CAP_COUNT))


CAP_PLACES = _caps()

CAP_OF_KEY = {code: cap for cap, code, *_ in table.CHARACTER_KEYS}
CAP_OF_KEY.update(table.SECOND_KEYS)
CAP_OF_KEY.update(table.OTHER_KEYS)

CHARACTER_CAPS = frozenset(cap for cap, *_ in table.CHARACTER_KEYS)


def cap_of(code):
    """The cap of a key code, or NO_CAP."""
    return CAP_OF_KEY.get(code, table.NO_CAP)


def designed_texts():
    """What the caps read before anything is written on them."""
    texts = [""] * table.CAP_COUNT
    for cap in CHARACTER_CAPS:
        texts[cap] = table.DESIGNED_LETTER
    for cap, text in table.DESIGNED_TEXTS.items():
        texts[cap] = text
    return texts


def _written(arabic, windows, shifted, letters):
    column = (2 if windows else 4) if arabic else 0
    texts = {}
    if letters:
        for cap, _, *states in table.CHARACTER_KEYS:
            texts[cap] = states[column + shifted]
    for cap, names in table.NAMED_TEXTS.items():
        texts[cap] = names[(2 if arabic else 0) + (0 if windows else 1)]
    texts.update(table.FIXED_TEXTS)
    return texts


def written_texts(kind, arabic, shifted, _kept={}):
    """What a change of Shift writes on the caps: cap and text of each that is written.

    An unknown kind of keyboard has no Arabic letters, and the caps keep what they read.
    """
    key = (kind != 0, arabic, shifted, not arabic or kind in (0, 192))
    if key not in _kept:
        _kept[key] = _written(arabic, *[key[index] for index in (0, 2, 3)])
    return _kept[key]


_LIT = {True: {}, False: {}}
for _cap, _windows, _macintosh in table.LIT_CAPS:
    for _char in _windows:
        _LIT[True][_char] = _cap
    for _char in _macintosh:
        _LIT[False][_char] = _cap
_LIT_ARABIC = {
    True: {**_LIT[True], **table.LIT_CAPS_ARABIC_WIN},
    False: {**_LIT[False], **table.LIT_CAPS_ARABIC_MAC},
}


def lit_cap(char, kind, arabic):
    """The cap that shows where a character is, or None."""
    return (_LIT_ARABIC if arabic else _LIT)[kind != 0].get(char)


_FINGERS = {True: {}, False: {}}
for _left, _right, _shift, _windows, _macintosh in table.FINGERS:
    for _char in _windows:
        _FINGERS[True][_char] = (_left, _right, _shift)
    for _char in _macintosh:
        _FINGERS[False][_char] = (_left, _right, _shift)
_FINGERS_ENGLISH = {
    True: {**_FINGERS[True], **table.FINGERS_ENGLISH_WIN},
    False: _FINGERS[False],
}


def fingers(char, kind, arabic):
    """Bitmap of the left hand and of the right, both plain, and the Shift cap to hold or None."""
    row = (_FINGERS if arabic else _FINGERS_ENGLISH)[kind != 0].get(char)
    if row is None:
        return table.LEFT_REST, table.RIGHT_REST, None
    left, right, shift = row
    return (
        table.LEFT_FINGERS[left] if left else table.LEFT_REST,
        table.RIGHT_FINGERS[right] if right else table.RIGHT_REST,
        shift,
    )


def is_right(key, char, shift, caps_lock, kind, arabic):
    """Whether a key with this state of Shift and Caps Lock types a character."""
    if not char:
        return False
    if char == RETURN_MARK:
        return key == 13
    if char == " ":
        return key == 32
    if "a" <= char <= "z":
        return key == ord(char.upper()) and (not shift or caps_lock)
    if "A" <= char <= "Z":
        return key == ord(char) and (shift or caps_lock)
    if not arabic:
        place = table.RIGHT_KEYS_ENGLISH.get(char)
        if place is None and kind != 0:
            place = table.RIGHT_KEYS_ENGLISH_WIN.get(char)
        if place is not None:
            return (key, shift) == place
    row = table.RIGHT_KEYS.get(key)
    return row is not None and char in row[(0 if kind != 0 else 2) + shift]


def is_right_code(key, code, shift, caps_lock, kind, arabic):
    """The same for a character given by its 8-bit code."""
    if not 0 < code < 256:
        return False
    return is_right(key, char_of(code), shift, caps_lock, kind, arabic)
