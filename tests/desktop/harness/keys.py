"""Where a typist finds a character on the keyboard, for the texts that the tests type. The places
are the X server's numbers; they are the same whatever the desktop's input language is."""

ESCAPE, BACKSPACE, TAB, RETURN, SPACE, DELETE = 9, 22, 23, 36, 65, 119
LEFT_CTRL, LEFT_SHIFT, RIGHT_SHIFT, LEFT_ALT, CAPS_LOCK = 37, 50, 62, 64, 66
F10 = 76
LEFT, RIGHT, HOME, END = 113, 114, 110, 115
A, C, V = 38, 54, 55

LINE_END = "\u0691"  # shown in a text where Enter is to be pressed

# The rows of places, from the left.
_NUMBERS = range(10, 22)
_TOP = range(24, 36)
_HOME = range(38, 49)
_BOTTOM = range(52, 62)


def _table(*rows):
    table = {" ": (SPACE, False), LINE_END: (RETURN, False)}
    for places, shift, characters in rows:
        for place, character in zip(places, characters, strict=True):
            if character != " ":
                table[character] = (place, shift)
    return table


ENGLISH = _table(
    (_NUMBERS, False, "1234567890-="),
    (_TOP, False, "qwertyuiop  "),
    (_HOME, False, "asdfghjkl;'"),
    (_BOTTOM, False, "zxcvbnm,./"),
    (_NUMBERS, True, "!       ()_+"),
    (_TOP, True, "QWERTYUIOP  "),
    (_HOME, True, 'ASDFGHJKL:"'),
    (_BOTTOM, True, "ZXCVBNM  ?"),
)

# A blank stands at the key of lam-alif, which is typed as its two letters.
ARABIC = _table(
    (_NUMBERS, False, "1234567890-="),
    (_TOP, False, "ضصثقفغعهخحجد"),
    (_HOME, False, "شسيبلاتنمكط"),
    (_BOTTOM, False, "ئءؤر ىةوزظ"),
    ((43, 42, 29, 57), True, "أ إآ"),
    ((55, 45, 60, 61, 33), True, "{،.؟؛"),
    ((49,), False, "ذ"),
    ((10, 47), True, "!:"),
)

ARABIC_MACINTOSH = _table(
    (_NUMBERS, False, "1234567890-="),
    (_TOP, False, "ضصثقفغعهخحجة"),
    (_HOME, False, "شسيبلاتنمك؛"),
    (_BOTTOM, False, "ظطذدزرو،./"),
    ((40, 43, 54, 55, 56, 57, 58), True, "ىآئءأإؤ"),
    ((10, 47, 61), True, "!:؟"),
)
