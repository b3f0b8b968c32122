"""Writes a script line by line against a running model: chance, setting up, looking.

A typist so sees the expected character and the state of the window, as a person would.
"""

from console_model import BUTTONS
from context_model import BYTE, LONG, WORD
from course_model import special_flag
from course_tables import AIDS, ARABIC_ANAGRAM, ENGLISH_ANAGRAM, SPECIAL_FLAGS
from keyboard_model import CAP_OF_KEY
from model import Run
from session_model import LABELS, TIMERS
from values import quoted

KEYS = sorted(CAP_OF_KEY)
ODD_KEYS = (0, 1, 8, 9, 16, 17, 18, 20, 27, 33, 37, 40, 45, 46, 91, 93, 96, 105, 107, 109, 111, 112,
            123, 124, 144, 223, 227, 255, 256, 300, 65535)
CHARACTERS = ("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 "
              "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~ابتثجحخدذرزسشصضطظعغفقكلمنهويءآأؤإئةى،؛؟×÷‘’ڑ"
              "\u0640\u064b\u064c\u064d\u064e\u064f\u0650\u0651\u0652")
GOOD_NAMES = ("Ali", "ali", "سارة", "Anna Lena", "", " x ", "a*b", "n" * 60, "\U0001f600 f")
NAMES = ("Ali", "ali", "سارة", "Anna Lena", "", " ", " x ", "a*b", "a/b", "../x", "/", "..", ".",
         "x.W", "\u0000", "a\u0000b", "tab\there", "line\nend", "é\u00a0", "{name}", "%s",
         "\\", "\"q\"", "\U0001f600", "n" * 56, "n" * 57, "n" * 60, "س" * 60, "\U0001f600" * 30,
         "n" * 253, "n" * 254,
         "س" * 126, "س" * 127, "n" * 5000)
COLOURS = (0, 255, 65280, 16711680, 16777215, 1, -1, 2147483647, -2147483648, 12632256)
NUMBERS = {
    BYTE: (0, 1, 2, 3, 5, 8, 12, 14, 15, 16, 17, 30, 31, 32, 99, 100, 128, 254, 255),
    WORD: (0, 1, -1, 50, 81, 100, 250, 300, 350, 351, 500, 1000, 3276, 16384, 32767, -32768),
    LONG: (0, 1, -1, 5, 6, 12, 13, 20, 191, 192, 193, 255, 65536, 2147483647, -2147483648),
}
BEYOND = {BYTE: (-1, 256), WORD: (-32769, 32768), LONG: (-2147483649, 2147483648)}
WAITS = (0, 1, 5, 19, 20, 21, 40, 59, 60, 61, 80, 89, 90, 91, 100, 120, 150, 180, 200, 250, 269,
         270, 300, 360, 419, 420, 421, 440, 500, 900, 999, 1000, 1001, 1500, 2000, 5000)
DRAWS = ("0", "0.0", "0.1", "0.124999", "0.125", "0.2", "0.25", "0.333333333333", "0.375", "0.4",
         "0.5", "0.6", "0.625", "0.75", "0.8", "0.875", "0.9", "0.999999", "0.99999999999999")


class Finished(Exception):
    """The script has ended itself."""


class Writer:
    """Writes one script. rng: where all chance comes from."""

    def __init__(self, rng, wording, entries=()):
        self.rng = rng
        self.run = Run(wording, entries)
        self.console = self.run.console
        self.context = self.console.context

    @property
    def lesson(self):
        return self.console.lesson

    def say(self, *words):
        line = " ".join(str(word) for word in words)
        if self.rng.random() < 0.004:
            self.run.add(self.pick("", "   ", "#", "# a remark \u0691", "#open"))
            if not line.endswith('"') and '"' not in line:
                line = self.pick(line + " ", " " + line, line.replace(" ", "   "))
        if not self.run.add(line):
            raise Finished

    def chance(self, share):
        return self.rng.random() < share

    def pick(self, *values):
        return self.rng.choice(values)

    def set(self, name, value):
        if value is True or value is False:
            value = "true" if value else "false"
        elif isinstance(value, str):
            value = quoted(value)
        self.say("set", name, value)

    def queue(self, count):
        """Queues draws until at least so many are there."""
        missing = count - len(self.console.machine.queue)
        if missing > 0:
            self.say("random", *(self.draw() for _ in range(missing)))

    def draw(self):
        if self.chance(0.2):
            return self.rng.choice(DRAWS)
        digits = self.rng.choice((1, 2, 3, 6, 12, 16))
        return f"{self.rng.random():.{digits}f}".replace("1.0", "0.9")

    def day(self):
        month, day, year = (self.rng.randint(1, last) for last in (12, 28, 9999))
        return f"{month:02d}-{day:02d}-{year:04d}"

    def machine(self):
        """A person's machine: keyboard, language, colours, time."""
        if self.chance(0.5):
            kind = self.pick(192, 192, 0, 0, 0, 5, -1) if self.chance(0.3) else self.pick(192, 0)
            self.set("keyboardKind", kind)
        if self.chance(0.5):
            self.set("arabicInterface", self.chance(0.5))
        if self.chance(0.4):
            self.set("trueKeyColour", self.rng.choice(COLOURS))
            self.set("errKeyColour", self.rng.choice(COLOURS))
        if self.chance(0.3):
            self.set("fontSize", self.pick(-5, 0, 1, 8, 12, 13, 14, 20, 72, 2147483647))
        if self.chance(0.3):
            self.set("colouredHands", self.chance(0.5))
        if self.chance(0.3):
            self.say("now", self.time())
        if self.chance(0.1):
            self.say("capslock on")

    def time(self):
        if self.chance(0.3):
            return self.pick("0", "0.001", "0.5", "59.999", "86399", "86399.9", "86395.25", "43200")
        return f"{self.rng.randrange(86399)}.{self.rng.randrange(1000):03d}"

    def choose_place(self):
        rng = self.rng
        lesson, exercise = rng.randint(1, 15), rng.randint(1, 5)
        if self.chance(0.25):
            lesson = self.pick(11, 12, 13, 14, 15)
        arabic = self.chance(0.5)
        if self.chance(0.6):
            self.say("choose", lesson, exercise, "ar" if arabic else "en")
        else:
            self.set("lessonNo", lesson)
            self.set("exerciseNo", exercise)
            self.set("arabicExercise", arabic)
            if not arabic and self.chance(0.7):
                flag = special_flag(lesson, exercise)
                for name in SPECIAL_FLAGS:
                    if getattr(self.context, name) != (name == flag):
                        self.set(name, name == flag)
        if self.chance(0.05):
            self.say(self.pick("next", "back"))

    def settle_aids(self):
        if self.chance(0.6):
            self.say("options")
            for aid in AIDS:
                if self.chance(0.4):
                    self.say("turn", aid)
        else:
            for aid in AIDS:
                self.set(aid, self.chance(0.6))

    def open(self):
        """Opens the lesson; queues the letters of a drill, and the letters themselves."""
        context = self.context
        flags = [flag for flag in SPECIAL_FLAGS if getattr(context, flag)]
        for flag in flags[1:]:
            self.set(flag, False)
        if flags and flags[0] in (ARABIC_ANAGRAM, ENGLISH_ANAGRAM):
            if not context.freeTextChars or self.chance(0.5):
                self.letters()
            length = len(context.freeTextChars)
            self.queue(max(45, round(30 / length) * length) if self.chance(0.98) else 3)
        self.say("open")
        if self.chance(0.5):
            self.say("events")

    def letters(self):
        text = self.text(self.rng.randint(1, 12))
        if not text.strip(" "):
            text = "ab"
        self.say("free", quoted(text))
        if self.context.freeTextChars == "":
            self.set("freeTextChars", "asdf")
        if self.chance(0.6):
            self.set("anagramLanguage", self.chance(0.5))

    def text(self, length, characters=CHARACTERS):
        if self.chance(0.5):
            characters = self.pick("abcdefgh", "asdfjkl;", "شسيبلاتنمك", "0123456789", "aA;? ")
        return "".join(self.rng.choice(characters) for _ in range(length))

    def look(self):
        rng = self.rng
        if self.lesson is None:
            self.say(self.pick("menu", "is open", "events", f"button {rng.choice(BUTTONS)}"))
            return
        kind = rng.randrange(13)
        if kind <= 2:
            self.say("state")
        elif kind <= 5:
            self.say("field", self.pick("txtOrigin", "txtTest"))
        elif kind == 6:
            self.say("caps")
        elif kind == 7:
            self.say("events")
        elif kind == 8:
            self.say("label", rng.choice(LABELS))
        elif kind == 9:
            self.say("gauge", self.pick("pbMark", "pbSpeed"))
        elif kind == 10:
            telling = (0, 38, 47, 59, 60, 65, 71, 75, 86)
            cap = rng.randrange(105) if self.chance(0.5) else rng.choice(telling)
            self.say("cap", cap)
        elif kind == 11:
            self.say("image", self.pick("imgLeftHand", "imgRightHand", "imgRest", "imgResume",
                                        "imgStop"))
        else:
            self.say(self.pick(f"timer {rng.choice(TIMERS)[0]}", f"row {rng.randint(1, 8)}", "menu",
                               f"button {rng.choice(BUTTONS)}", "is open"))

    def look_at_all(self):
        """Everything that a window shows."""
        for name in LABELS:
            self.say("label", name)
        for name in ("imgLeftHand", "imgRightHand", "imgRest", "imgResume", "imgStop"):
            self.say("image", name)
        for name, _ in TIMERS:
            self.say("timer", name)
        for command in ("field txtOrigin", "field txtTest", "gauge pbMark", "gauge pbSpeed", "caps",
                        "state", "menu"):
            self.say(command)
        for cap in range(105):
            self.say("cap", cap)

    def write_record(self):
        rng = self.rng
        number = self.pick(1, 16, 31, rng.randint(1, 31))
        if self.chance(0.5):
            base = 1 if self.context.keyboardKind == 0 else 16
            lesson = self.pick(self.context.lessonNo, self.context.reachedLessonWin)
            number = min(max(lesson + base, 1), 31)
        kind = rng.randrange(6)
        if kind == 0:
            values = [rng.choice(NUMBERS[WORD]) for _ in range(10)]
        elif kind == 1:
            values = [100 if self.chance(0.7) else 0 for _ in range(10)]
        elif kind == 2:
            values = [rng.randint(40, 60) for _ in range(10)]
        elif kind == 3:
            values = [rng.randint(-10, 400) for _ in range(10)]
        elif kind == 4:
            values = [self.pick(50, 70, 100, 125, 200) for _ in range(10)]
        else:
            values = [rng.randint(80, 300) for _ in range(10)]
        if number == 1 and self.chance(0.8):
            values[0], values[5] = rng.randint(0, 16), rng.randint(0, 16)
        self.say("setrecord", number, *values)
