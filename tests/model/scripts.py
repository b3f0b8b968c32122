"""Random scripts for the console, each from a seed: typists, files, tables, noise, mistakes."""

import struct

from context_model import BOOLEAN, BYTE, FIELDS
from course_tables import AIDS, SPECIAL_FLAGS
from keyboard_model import is_right
from model import OPEN
from noise import Noise
from progress_tables import PREFERENCES_FILE
from values import quoted
from writer import (CHARACTERS, COLOURS, GOOD_NAMES, KEYS, NAMES, NUMBERS, ODD_KEYS, Finished)


class Script(Noise):
    """One script of each kind."""

    def typist(self, right, looks, limit):
        self.machine()
        for _ in range(self.rng.randint(1, 3)):
            self.choose_place()
            self.settle_aids()
            if self.lesson is None:
                self.open()
            if self.chance(0.03):
                self.look_at_all()
            self.type(self.rng.randint(20, limit), right, looks)
            if self.lesson is not None:
                if self.chance(0.5):
                    return
                self.stop()
            self.afterwards()

    def perfect_typist(self):
        """To the end of a whole exercise, whatever its length."""
        self.machine()
        self.choose_place()
        self.settle_aids()
        self.open()
        self.type_all()
        if self.lesson is None:
            self.afterwards()

    def passage(self):
        """Lesson 15 from its first key into the review and out of it."""
        self.machine()
        if self.chance(0.6):
            self.say("choose 15", self.rng.randint(1, 5), "ar")
        else:
            self.say("choose 15", self.pick(1, 2), "en")
        if self.chance(0.3):
            self.say("choose 15", self.pick(3, 5), "en")
            self.say("free", quoted(self.text(self.rng.randint(1, 9)) + "a"))
        self.settle_aids()
        self.open()
        errors = self.pick(0.002, 0.01, 0.05)
        for _ in range(1200):
            if self.lesson is None or self.lesson.in_review():
                break
            if self.chance(errors):
                self.type_wrong() if self.chance(0.7) else self.fix_row()
            elif self.blinking():
                self.say("wait 420")
            elif not self.type_right():
                self.type_wrong() if self.chance(0.6) else self.fix_row()
            if self.chance(0.03):
                self.say("wait", self.rng.randint(1, 2000))
            if self.lesson is not None and self.chance(0.05):
                self.look()
        for _ in range(40):
            if self.lesson is not None and self.lesson.in_review():
                self.review()
        if self.lesson is None:
            self.afterwards()

    def hand_set(self):
        """A lesson with fields of the context set by hand under it."""
        self.machine()
        self.choose_place()
        self.settle_aids()
        self.open()
        for _ in range(self.rng.randint(3, 25)):
            if self.lesson is None:
                break
            self.type(self.rng.randint(1, 8), 0.7, 0.4)
            if self.lesson is not None:
                name = self.pick("keyboardKind", "arabicExercise", "arabicInterface",
                                 "trueKeyColour", "errKeyColour", "optKeyCaps", "optClock",
                                 "optSound", "optCounter",
                                 "colouredHands", "fontSize", "lessonNo", "exerciseNo",
                                 "freeText", "englishAnagram", "arabicAnagram", "optHands",
                                 "reachedLessonWin", "sessionRun")
                if name == "lessonNo":
                    if self.lesson.reviewMode:
                        continue
                    self.set(name, self.rng.randint(1, 15))
                elif name == "exerciseNo":
                    self.set(name, self.rng.randint(1, 5))
                elif FIELDS[name] is BOOLEAN:
                    self.set(name, self.chance(0.2 if name in SPECIAL_FLAGS else 0.5))
                elif FIELDS[name] is BYTE:
                    self.set(name, self.rng.choice(NUMBERS[BYTE]))
                elif name == "keyboardKind":
                    self.set(name, self.pick(0, 192, 192, 0, 5, -1))
                else:
                    self.set(name, self.rng.choice(COLOURS))
        if self.lesson is None:
            self.afterwards()

    def edges(self):
        """Places beside the course, empty rows, several openings."""
        for _ in range(self.rng.randint(1, 6)):
            self.machine()
            self.set("lessonNo", self.pick(8, 9, 10, 11, 12, 13, 14, 15, self.rng.randint(1, 15)))
            self.set("exerciseNo", self.rng.randint(1, 5))
            self.set("arabicExercise", self.chance(0.2))
            if self.chance(0.4):
                self.say(self.pick("next", "back"))
            if self.chance(0.5):
                self.say("options")
                self.say("get", self.rng.choice(SPECIAL_FLAGS))
            if self.chance(0.1):
                self.set(self.rng.choice(SPECIAL_FLAGS), True)
            if self.lesson is None:
                self.open()
            self.type(self.rng.randint(1, 12), 0.6, 0.4)
            if self.lesson is not None:
                self.stop()
            self.afterwards()

    def marks(self):
        """Records, passing, diplomas, recommendation, welcome and farewell."""
        rng = self.rng
        for _ in range(rng.randint(3, 40)):
            kind = rng.randrange(16)
            if kind == 0:
                self.set("lessonNo", 15 if self.chance(0.4) else rng.randint(1, 15))
            elif kind == 1:
                self.set("keyboardKind", self.pick(0, 192, 192, 7))
            elif kind in (2, 3):
                self.write_record()
            elif kind == 4:
                for side in ("Mac", "Win"):
                    self.set("reachedLesson" + side,
                             self.pick(15, self.context.lessonNo, rng.randint(0, 16), 255))
            elif kind == 5:
                self.set("arabicInterface", self.chance(0.5))
                self.set("studentName", rng.choice(NAMES))
            elif kind == 6:
                self.say("date", self.day())
            elif kind == 7:
                self.say("result")
                self.say("record", self.pick(1, 31))
                self.say("diploma")
            elif kind == 8:
                self.queue(rng.randint(0, 3))
                self.say("welcome")
            elif kind == 9:
                self.queue(rng.randint(0, 2))
                if self.chance(0.2):
                    self.set("studentName", "")
                self.say("bye")
            elif kind == 10:
                self.set("leaveNoSave", self.chance(0.5))
            elif kind == 11:
                self.say("diploma")
            elif kind == 12:
                for mark in ("exerciseMark", "accuracyMark", "speedBonus"):
                    self.set(mark, rng.choice(NUMBERS[FIELDS[mark]]))
            else:
                self.say(self.pick("suggest", "passed", "chooser", "recordbase", "lessonsum 1",
                                   "lessonsum 16", f"arabictotal {rng.randint(1, 31)}",
                                   f"englishtotal {rng.randint(1, 31)}", "menu", "diploma"))

    def files(self):
        """Students and preferences, read, written and left."""
        rng = self.rng
        names = [rng.choice(NAMES if self.chance(0.3) else GOOD_NAMES) for _ in range(2)] + ["Ali"]
        if self.chance(0.8):
            self.say("isnewstudent", quoted(rng.choice(names)))
        for _ in range(rng.randint(4, 30)):
            kind = rng.randrange(16)
            if kind in (0, 1):
                self.say("isnewstudent", quoted(rng.choice(names)))
            elif kind == 2:
                name = rng.choice(names) if self.chance(0.8) else " " * rng.randint(50, 60)
                self.say("name", quoted(name))
            elif kind == 3 and self.chance(0.6):
                self.say("loadstudent")
            elif kind == 4 and self.chance(0.6):
                self.say("savestudent")
            elif kind == 5:
                self.say("loadprefs")
            elif kind == 6:
                self.say("openprefs")
            elif kind == 7:
                size = self.pick("", "0", "1", "12", "14", "20", "21", "007", "14pt", "abc",
                                 "12.7", " 12", "-5", "+12", "1e1", "20.5", "&HF",
                                 "99999999999",
                                 "000000000000000000013", "٥", "12x9")
                self.say("saveprefs", self.pick("true", "false"), self.pick(0, 192), quoted(size),
                         rng.choice(COLOURS), rng.choice(COLOURS), self.pick("true", "false"))
            elif kind == 8 and self.chance(0.5):
                self.say("leave", self.pick("yes", "no", "cancel"))
            elif kind == 9:
                self.write_record()
            elif kind == 10:
                side = self.pick("Mac", "Win")
                self.set("reachedLesson" + side, self.pick(15, rng.randint(0, 255)))
            elif kind == 11:
                self.set("quitting", self.chance(0.5))
            elif kind == 12 and self.chance(0.2):
                places = (".", "sub", "sub/deep", "missing", PREFERENCES_FILE)
                self.set("appFolder", rng.choice(places))
            elif kind == 13:
                for number in (1, 16, 31):
                    self.say("record", number)
                self.say("diploma")
            else:
                field = rng.choice(sorted(FIELDS))
                self.say("get", field)

    def tables(self):
        """Every table, asked at random."""
        rng = self.rng
        for _ in range(rng.randint(20, 150)):
            kind = rng.randrange(20)
            lesson = rng.randint(1, 15) if self.chance(0.9) else rng.choice(NUMBERS[BYTE])
            exercise = rng.randint(1, 5) if self.chance(0.9) else rng.choice(NUMBERS[BYTE])
            side = self.pick("ar", "en")
            if kind < 7:
                self.judge()
            elif kind == 7:
                self.set("keyboardKind", self.pick(0, 192, 192, 0, 1))
                self.set("arabicExercise", self.chance(0.5))
            elif kind == 8:
                self.say("capof", rng.choice(KEYS + list(ODD_KEYS)))
            elif kind == 9:
                self.say(self.pick("checkslate", "speedbonus", "standardmark", "special"), lesson,
                         exercise, side)
            elif kind == 10:
                self.say("exercisenote", lesson, exercise, side)
            elif kind == 11:
                self.say(self.pick("lessonname", "lessonnote", "passingmark", "helptext",
                                   "recommendation", "stopnote"), lesson)
            elif kind == 12:
                self.say("rows", self.pick(192, 192, 192, 0, 5), lesson, exercise)
            elif kind == 13:
                self.set("lessonNo", lesson)
                self.set("exerciseNo", exercise)
                self.say("options")
                self.say("turn", rng.choice(AIDS))
                self.say("get", rng.choice(AIDS))
            elif kind == 14:
                self.say("choose", rng.randint(1, 15), rng.randint(1, 5), side)
                self.say("get", rng.choice(SPECIAL_FLAGS))
            elif kind == 15:
                self.set("lessonNo", rng.randint(1, 15))
                self.say("chooser")
            elif kind == 16:
                self.say("set arabicInterface", self.pick("true", "false"))
            elif kind == 17:
                self.say("lesson", rng.randint(1, 15))
                self.say("menu")
            elif kind == 18:
                self.say(self.pick("keyboard win", "keyboard mac", "synchronise", "synchronise"))
                self.say("menu")
                self.say("get", self.pick("lastLessonMac", "lastLessonWin", "lessonNo",
                                          "keyboardKind"))
            else:
                self.say("free", quoted(self.text(rng.randint(0, 14))))
                self.say("get freeTextChars")

    def judge(self):
        """One question to the judge of keys, mostly near a right answer."""
        rng = self.rng
        char = rng.choice(CHARACTERS)
        code = char.encode("cp1256")[0] if self.chance(0.95) else rng.randrange(256)
        key = rng.choice(KEYS)
        shift = self.chance(0.5)
        if self.chance(0.7):
            context = self.context
            found = [k for k in KEYS if is_right(k, char, shift, False, context.keyboardKind,
                                                 context.arabicExercise)]
            key = rng.choice(found or KEYS)
        self.say("validkey", key, code, "shift" if shift else "noshift",
                 self.pick("caps", "nocaps"))

    def noise(self):
        """Any command with any arguments, now and then one that is a mistake."""
        if self.chance(0.8):
            self.say("isnewstudent \"Ali\"")
        for _ in range(self.rng.randint(5, 200)):
            self.any_command(0.002)

    def mistakes(self):
        for _ in range(self.rng.randint(0, 4)):
            self.any_command(0)
        self.broken_line()

    def beyond(self):
        """Fields by hand at values that no window gives, and any commands over them."""
        for _ in range(self.rng.randint(1, 4)):
            name = self.pick("lessonNo", "exerciseNo", "keyboardKind", "fontSize", "stopCount",
                             *SPECIAL_FLAGS)
            kind = FIELDS[name]
            self.set(name, True if kind is BOOLEAN else self.rng.choice(NUMBERS[kind]))
        for _ in range(self.rng.randint(3, 30)):
            self.any_command(0)
        self.type(20, 0.5, 0.3)


def whole_text(rng, wording, place, arabic, kind):
    """A text typed from its first key to its last; its lines and what they must answer."""
    writer = Script(rng, wording)
    try:
        writer.set("keyboardKind", kind)
        writer.say("choose", *place, "ar" if arabic else "en")
        writer.say("options")
        writer.open()
        writer.say("wait 1000")
        writer.type_all()
        writer.look()
        writer.afterwards()
    except Finished:
        pass
    return writer.run.lines, writer.run.finish()


def student_bytes(rng):
    """A student file as it may be found: whole, cut, long, with wild or with sound fields."""
    kind = rng.randrange(4)
    if kind == 0:
        fields = [rng.randint(-32768, 32767) for _ in range(310)]
    elif kind == 1:
        fields = [rng.choice((0, 1, 15, 50, 70, 100, 200)) for _ in range(310)]
    else:
        fields = [rng.randint(0, 120) for _ in range(310)]
    if kind != 0 or rng.random() < 0.8:
        fields[0], fields[5] = rng.choices((0, 1, 7, 15, 15, 255), k=2)
        for index in (1, 2, 3, 7, 8):
            fields[index] = rng.choice((100, 100, 0, 99))
    data = struct.pack("<310h", *fields) + bytes(rng.randrange(256) for _ in range(30))
    length = 620 if rng.random() < 0.5 else rng.randint(0, 650)
    return data[:length]


def preferences_bytes(rng):
    if rng.random() < 0.5:
        data = bytes(rng.randrange(256) for _ in range(560))
    else:
        data = struct.pack("<hiiiih", rng.choice((-1, 0, 1, 256)), rng.choice((0, 192, 5)),
                           rng.choice((0, 12, 14, -1)), rng.choice(COLOURS), rng.choice(COLOURS),
                           rng.choice((-1, 0, 2))) + b"\x7f" * 540
    length = rng.choice((0, 1, 20, 265, 266, 267, 268, 531, 532, 533, 560, rng.randint(0, 560)))
    return data[:length]


def folder(rng):
    """What a folder may hold when the program starts."""
    entries = {}
    if rng.random() < 0.3:
        return entries
    if rng.random() < 0.8:
        entries["Students"] = None
        for name in ("Ali", "سارة", ""):
            if rng.random() < 0.4:
                entries[f"Students/{name}.W"] = student_bytes(rng)
        if rng.random() < 0.05:
            entries["Students/ali.W"] = None
    elif rng.random() < 0.2:
        entries["Students"] = b"no folder"
    if rng.random() < 0.6:
        entries[PREFERENCES_FILE] = preferences_bytes(rng)
    elif rng.random() < 0.05:
        entries[PREFERENCES_FILE] = None
    if rng.random() < 0.3:
        entries["sub"] = None
    return entries


# Kind and share of the scripts.
KINDS = (
    ("careful typist", 14, lambda w: w.typist(0.93, 0.25, 150)),
    ("clumsy typist", 20, lambda w: w.typist(0.65, 0.3, 150)),
    ("wild typist", 8, lambda w: w.typist(0.25, 0.3, 100)),
    ("perfect typist", 8, Script.perfect_typist),
    ("passage", 6, Script.passage),
    ("hand set", 6, Script.hand_set),
    ("edges", 6, Script.edges),
    ("marks", 8, Script.marks),
    ("files", 8, Script.files),
    ("tables", 6, Script.tables),
    ("noise", 8, Script.noise),
    ("mistakes", 6, Script.mistakes),
    ("beyond", 4, Script.beyond),
)


def make(rng, wording, only=None):
    """A script and what it must answer: its kind, its lines, the expectation."""
    names = [kind for kind in KINDS if only is None or kind[0] == only]
    name, _, write = rng.choices(names, weights=[share for _, share, _ in names])[0]
    entries = folder(rng) if name in ("files", "noise", "mistakes") else {}
    writer = Script(rng, wording, entries)
    try:
        write(writer)
    except Finished:
        pass
    if writer.run.expectation.outcome == OPEN:
        writer.blind()
    return name, writer.run.lines, writer.run.finish()
