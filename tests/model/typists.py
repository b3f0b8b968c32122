"""Typists of all kinds: what they strike, how they rest, stop, mend and go on."""

from keyboard_model import CAP_OF_KEY, is_right, written_texts
from session_model import LINE_END
from values import RETURN_MARK, quoted
from writer import KEYS, ODD_KEYS, WAITS, Writer


class Typist(Writer):
    def right_keys(self, expected):
        """The keys that type a character now, each with its state of Shift."""
        context, lesson = self.context, self.lesson
        found = []
        for shift in (False, True):
            texts = written_texts(context.keyboardKind, context.arabicExercise, shift)
            for code, cap in CAP_OF_KEY.items():
                if texts.get(cap, lesson.texts[cap]) and is_right(
                        code, expected, shift, lesson.capsOn, context.keyboardKind,
                        context.arabicExercise):
                    found.append((code, shift))
        return found

    def strike(self, code, shift):
        """A key with Shift as wanted, as hands do it."""
        if self.lesson.shiftDown != shift:
            self.say("key 16" if shift else "up 16")
        if self.lesson is not None:
            self.say("key", code)

    def type_right(self):
        """The expected key; false where no key types it."""
        found = self.right_keys(self.lesson.origin.selected)
        if not found:
            return False
        same = [place for place in found if place[1] == self.lesson.shiftDown]
        self.strike(*self.rng.choice(same or found))
        return True

    def type_wrong(self):
        right = self.right_keys(self.lesson.origin.selected) if self.chance(0.15) else []
        if right:
            # The lit key with the wrong state of Shift.
            code, shift = self.rng.choice(right)
            self.strike(code, not shift)
            return
        code = self.rng.choice(KEYS if self.chance(0.9) else ODD_KEYS)
        if self.chance(0.9) and code not in (16, 17, 20):
            self.strike(code, self.lesson.shiftDown if self.chance(0.7) else self.chance(0.3))
        else:
            self.say("key", code)

    def fix_row(self):
        """Backspaces as a person takes a mistake back."""
        for _ in range(self.rng.randint(1, 4)):
            if self.lesson is not None:
                self.say("key 8")

    def pause(self):
        """A rest, with or without its end."""
        self.say("click imgRest")
        if self.chance(0.5):
            self.say("wait", self.rng.choice(WAITS))
        if self.chance(0.3):
            self.say("key", self.rng.choice(KEYS))
        if self.chance(0.2):
            self.say("now", self.time())
        if self.chance(0.9):
            self.say("click imgResume")
        if self.chance(0.3):
            self.say("wait", self.rng.choice(WAITS))

    def window_event(self):
        """Something that is no key of the text."""
        rng = self.rng
        kind = rng.randrange(12)
        if kind == 0:
            self.say("activate")
        elif kind == 1:
            self.say("lostfocus")
        elif kind == 2:
            self.say("click txtOrigin")
        elif kind == 3:
            self.say("mouse", self.pick("txtOrigin", "txtTest"))
        elif kind in (4, 5):
            self.say("move", self.pick("imgRest", "imgResume", "imgStop", "form"))
        elif kind == 6:
            if self.chance(0.7):
                self.say("capslock", self.pick("on", "off"))
            self.say("key 20")
        elif kind == 7:
            self.say(self.pick("key 17", "up 17", "key 17"))
        elif kind == 8:
            self.say(self.pick("key 16", "up 16", "up 16"))
        elif kind == 9:
            self.pause()
        elif kind == 10:
            self.say("up", rng.choice(KEYS))
        else:
            self.say("now", self.time())

    def wait(self):
        if self.chance(0.005):
            self.say("wait", self.pick(60000, 100000, 3600000, 6000000))
        else:
            usual = self.chance(0.7)
            self.say("wait", self.rng.choice(WAITS) if usual else self.rng.randrange(3000))

    def stop(self):
        if self.chance(0.8):
            self.queue(1)
        self.say("mouse imgStop")
        self.say("events")

    def review(self):
        """Mends a passage with the mouse and the keys, or does not."""
        lesson, rng = self.lesson, self.rng
        origin, test = lesson.origin.text, lesson.test.text
        kind = rng.randrange(8)
        if kind == 0:
            # Whole, or with something behind it, which counts as no difference.
            text = origin if self.chance(0.6) else origin + self.text(rng.randint(1, 3))
            self.say("edit", quoted(text), rng.randint(0, len(text)))
        elif kind == 1:
            place = rng.randint(0, len(test))
            text = test[:place] + self.text(rng.randint(0, 3)) + test[place + rng.randint(0, 2):]
            self.say("edit", quoted(text), rng.randint(0, len(text) + 3))
        elif kind == 2:
            wrong = [index for index, char in enumerate(test) if origin[index:index + 1] != char]
            if wrong:
                index = wrong[0]
                text = test[:index] + origin[index:index + 1] + test[index + 1:]
                self.say("edit", quoted(text), index + 1)
        elif kind == 3:
            marks = [index for index in range(len(origin)) if origin.startswith(LINE_END, index)]
            if marks and self.chance(0.6):
                index = rng.choice(marks)
                self.say("edit", quoted(origin[:index] + origin[index + 3:]), index)
            self.say("enter")
        elif kind == 4:
            self.say("key", rng.choice(KEYS + [13, 16, 17, 20, 8]))
        elif kind == 5:
            self.say("wait", rng.choice(WAITS))
        elif kind == 6:
            self.window_event()
        else:
            self.look()
        if self.lesson is not None and self.chance(0.3):
            self.say("label Label7")

    def free_typing(self):
        rng = self.rng
        kind = rng.randrange(10)
        text = self.lesson.origin.text
        if kind < 4:
            self.say("key", rng.choice(KEYS if self.chance(0.7) else ODD_KEYS))
        elif kind < 6:
            text = text + self.text(rng.randint(0, 20))
            if self.chance(0.3):
                text += LINE_END.replace(RETURN_MARK, "")
            if self.chance(0.02):
                text = "a" * rng.choice((29999, 30000, 30001, 40000))
            caret = len(text) if self.chance(0.7) else rng.randint(0, len(text))
            self.say("edit", quoted(text), caret)
        elif kind == 6:
            self.wait()
        elif kind == 7:
            self.window_event()
        else:
            self.look()

    def type(self, count, right, looks):
        """Types for so many strokes, or to the end. right: share of right keys."""
        for _ in range(count):
            lesson = self.lesson
            if lesson is None:
                return
            if lesson.in_review():
                self.review()
            elif self.context.freeText and not lesson.origin.read_only:
                self.free_typing()
            elif lesson.paused and not lesson.resumeArmed and self.chance(0.5):
                self.say("click imgResume")
            elif self.blinking() and self.chance(0.8):
                self.say("wait", self.pick(60, 120, 420, 420, 420, 1000))
            elif self.chance(right):
                if not self.type_right():
                    if self.chance(0.3):
                        self.stop()
                    else:
                        self.fix_row() if self.chance(0.5) else self.type_wrong()
            elif self.chance(0.5):
                self.type_wrong()
                if self.lesson is not None and self.chance(0.4):
                    self.fix_row()
            elif self.chance(0.85):
                self.window_event()
            elif self.chance(0.15):
                self.stop()
            if self.chance(0.25):
                self.wait()
            if self.lesson is not None and self.chance(looks):
                self.look()

    def type_all(self):
        """Right keys only, until the window has gone or no key is right."""
        while self.lesson is not None and not self.context.freeText:
            if self.lesson.in_review():
                self.review()
                continue
            if not self.type_right():
                return
            if self.lesson is not None and self.blinking():
                self.say("wait 420")
            if self.chance(0.2):
                self.say("wait", self.rng.randint(1, 900))
            if self.lesson is not None and self.chance(0.03):
                self.look()

    def blinking(self):
        timers = self.lesson.timers
        return timers["tmrErrKey"].enabled or timers["EraseChar"].enabled

    def afterwards(self):
        """What follows an exercise: its result, and the student's place."""
        self.say("events")
        for command in ("result", "get exerciseMark", "get speedBonus", "get accuracyMark", "menu",
                        "chooser", "passed", "get inExercise", "suggest", "get arabicInterface"):
            if self.chance(0.5):
                self.say(command)
        if 1 <= self.context.lessonNo <= 15:
            base = 1 if self.context.keyboardKind == 0 else 16
            self.say("record", self.context.lessonNo + base)
        if self.chance(0.3):
            self.say("record 1")
            self.say("record 31")
