"""The two kinds of files, byte for byte, stated here once more: no test of the program may rest on
the program's own word for what it writes."""
import struct

STUDENT_LENGTH = 620
PREFERENCES = "KeyFluent Preference.prf"
PREFERENCES_LENGTH = 532
MACINTOSH, WINDOWS = 0, 192


class StudentFile:
    """31 records of ten numbers of 16 bits, low byte first. Record 1 is the header, 2 to 16 are the
    lessons on the Macintosh keyboard, 17 to 31 those on the Windows keyboard; in a lesson the five
    Arabic exercises stand before the five English ones."""

    def __init__(self, reached_windows=1, reached_macintosh=1):
        self.numbers = [0] * 310
        self.numbers[0] = reached_macintosh
        self.numbers[5] = reached_windows

    def set_mark(self, lesson, exercise, arabic, mark, keyboard=WINDOWS):
        self.numbers[self._index(lesson, exercise, arabic, keyboard)] = mark
        return self

    def mark(self, lesson, exercise, arabic, keyboard=WINDOWS):
        return self.numbers[self._index(lesson, exercise, arabic, keyboard)]

    def take_diploma(self, day_month_year, *keyboards):
        """The diploma's mark and date, and those of both courses on each of the keyboards."""
        self.numbers[1] = 100
        self.numbers[307:310] = day_month_year
        for keyboard in keyboards:
            first = 7 if keyboard == WINDOWS else 2
            self.numbers[first:first + 2] = 100, 100

    def bytes(self):
        return struct.pack("<310h", *self.numbers)

    @classmethod
    def of(cls, data):
        if len(data) != STUDENT_LENGTH:
            raise AssertionError(f"a student file of {len(data)} bytes")
        made = cls()
        made.numbers = list(struct.unpack("<310h", data))
        return made

    @staticmethod
    def _index(lesson, exercise, arabic, keyboard):
        record = lesson + (16 if keyboard == WINDOWS else 1)
        return (record - 1) * 10 + (0 if arabic else 5) + exercise - 1


def preferences(arabic=False, keyboard=WINDOWS, font_size=14, right_colour=0, wrong_colour=255,
                coloured_hands=True):
    return struct.pack("<hiiiihh255s255s", -arabic, keyboard, font_size, right_colour, wrong_colour,
                       -coloured_hands, 0, b"", b"")


def cut(data, length):
    """The first bytes, and others behind them where there are not enough."""
    return data[:length] + b"\x5a" * max(length - len(data), 0)
