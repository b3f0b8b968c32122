"""Any command with any arguments, and lines that the console must refuse or end at."""

from console_model import BUTTONS, COMMANDS
from context_model import BOOLEAN, BYTE, FIELDS, LONG, STRING, WORD
from course_tables import AIDS, SPECIAL_FLAGS
from progress_tables import PREFERENCES_FILE
from session_model import LABELS, TIMERS
from typists import Typist
from values import Open, quoted
from writer import BEYOND, COLOURS, GOOD_NAMES, KEYS, NAMES, NUMBERS, ODD_KEYS, WAITS


class Noise(Typist):
    def any_command(self, mistakes):
        rng = self.rng
        if self.chance(mistakes):
            self.broken_line()
            return
        word = rng.choice([word for word, (_, _, needs) in COMMANDS.items()
                           if self.lesson is not None or not needs])
        if self.lesson is None and self.chance(0.1):
            word = "open"
        if word == "open":
            if self.lesson is not None:
                return
            if not self.context.freeTextChars:
                self.letters()
            self.queue(60)
        elif word == "enter" and not (self.lesson and self.lesson.in_review()):
            return
        elif word == "edit":
            try:
                if self.lesson.editable() is None:
                    return
            except Open:
                return
        if word == "is":
            self.say("is open")
        else:
            self.say(word, *self.arguments(word))

    def blind(self):
        """Goes on where the model no longer follows: whatever comes, the end must be orderly."""
        words = [word for word in COMMANDS if word not in ("enter", "edit")]
        lines = self.run.lines
        for _ in range(self.rng.randint(0, 60)):
            word = self.rng.choice(words)
            if self.lesson is None and COMMANDS[word][2] and self.chance(0.9):
                continue
            arguments = ("open",) if word == "is" else self.arguments(word)
            lines.append(" ".join(str(part) for part in (word, *arguments)))

    def arguments(self, word):
        rng = self.rng
        byte = lambda: rng.choice(NUMBERS[BYTE]) if self.chance(0.1) else rng.randint(1, 5)
        lesson = lambda: rng.choice(NUMBERS[BYTE]) if self.chance(0.1) else rng.randint(1, 15)
        side = lambda: self.pick("ar", "en")
        code = lambda: rng.choice(KEYS if self.chance(0.8) else ODD_KEYS)
        if word == "set":
            name = rng.choice([n for n in FIELDS if n not in ("blankText", "appFolder")])
            return name, self.value(name)
        if word == "get":
            return (rng.choice(sorted(FIELDS)),)
        if word == "record":
            return (rng.randint(1, 31),)
        if word == "setrecord":
            return (rng.randint(1, 31), *(rng.choice(NUMBERS[WORD]) if self.chance(0.05)
                                          else rng.randint(0, 300) for _ in range(10)))
        if word == "rows":
            return self.pick(192, 192, 0), lesson(), byte()
        if word in ("exercisenote", "special", "checkslate", "speedbonus", "standardmark"):
            return lesson(), byte(), side()
        if word == "choose":
            return rng.randint(1, 15), rng.randint(1, 5), side()
        return {
            "now": lambda: (self.time(),),
            "wait": lambda: (rng.choice(WAITS),),
            "date": lambda: (self.day(),),
            "random": lambda: [self.draw() for _ in range(rng.randint(1, 5))],
            "capslock": lambda: (self.pick("on", "off"),),
            "lessonname": lambda: (lesson(),),
            "lessonnote": lambda: (lesson(),),
            "helptext": lambda: (lesson(),),
            "recommendation": lambda: (lesson(),),
            "stopnote": lambda: (lesson(),),
            "passingmark": lambda: (lesson(),),
            "free": lambda: (quoted(self.text(rng.randint(0, 13))),),
            "turn": lambda: (rng.choice(AIDS),),
            "lessonsum": lambda: (self.pick(1, 16),),
            "arabictotal": lambda: (rng.randint(1, 31),),
            "englishtotal": lambda: (rng.randint(1, 31),),
            "isnewstudent": lambda: (quoted(rng.choice(GOOD_NAMES)),),
            "name": lambda: (quoted(rng.choice(GOOD_NAMES)),),
            "saveprefs": lambda: (self.pick("true", "false"), self.pick(0, 192),
                                  quoted(str(rng.randint(0, 30))), rng.choice(COLOURS),
                                  rng.choice(COLOURS), self.pick("true", "false")),
            "lesson": lambda: (rng.randint(1, 15),),
            "keyboard": lambda: (self.pick("win", "mac"),),
            "leave": lambda: (self.pick("yes", "no", "cancel"),),
            "validkey": lambda: (code(), rng.randrange(256), self.pick("shift", "noshift"),
                                 self.pick("caps", "nocaps")),
            "capof": lambda: (code(),),
            "button": lambda: (rng.choice(BUTTONS),),
            "key": lambda: (code(),),
            "up": lambda: (code(),),
            "mouse": lambda: (self.pick("txtOrigin", "txtTest", "imgStop"),),
            "click": lambda: (self.pick("txtOrigin", "imgRest", "imgResume"),),
            "move": lambda: (self.pick("imgRest", "imgResume", "imgStop", "form"),),
            "edit": lambda: (quoted(self.text(rng.randint(0, 20))), rng.randint(0, 22)),
            "row": lambda: (rng.randint(1, 200),),
            "field": lambda: (self.pick("txtOrigin", "txtTest"),),
            "label": lambda: (rng.choice(LABELS),),
            "gauge": lambda: (self.pick("pbMark", "pbSpeed"),),
            "cap": lambda: (rng.randrange(105),),
            "image": lambda: (self.pick("imgLeftHand", "imgRightHand", "imgRest", "imgResume",
                                        "imgStop"),),
            "timer": lambda: (rng.choice(TIMERS)[0],),
        }.get(word, tuple)()

    def value(self, name):
        rng = self.rng
        kind = FIELDS[name]
        if kind is STRING:
            return quoted(self.text(rng.randint(0, 12)) if self.chance(0.3) else rng.choice(
                NAMES if name != "studentName" else GOOD_NAMES))
        if kind is BOOLEAN:
            share = 0.1 if name in SPECIAL_FLAGS else 0.5
            if name in SPECIAL_FLAGS and any(getattr(self.context, flag) for flag in SPECIAL_FLAGS):
                share = 0
            return "true" if self.chance(share) else "false"
        if name == "lessonNo" and self.chance(0.98):
            return rng.randint(1, 15)
        if name == "exerciseNo" and self.chance(0.98):
            return rng.randint(1, 5)
        if name == "keyboardKind" and self.chance(0.7):
            return self.pick(0, 192)
        if name.startswith(("reached", "last")) and self.chance(0.8):
            return rng.randint(1, 15)
        return rng.choice(NUMBERS[kind])

    def broken_line(self):
        """A line that the console must refuse, or that ends the program."""
        rng = self.rng
        kind = rng.randrange(9)
        fields = {low: [n for n, k in FIELDS.items() if k is low] for low in (BYTE, WORD, LONG)}
        if kind == 0:
            self.say(self.pick("nonsense", "Open", "KEY 65", "\"open\"", "state.", "get", "-",
                               "ö", "0"))
        elif kind == 1:
            word = rng.choice(sorted(COMMANDS))
            if word != "random":
                count = COMMANDS[word][1]
                self.say(word, *["1"] * self.pick(count + 1, max(count - 1, 0) if count else 1))
        elif kind == 2:
            low = self.pick(BYTE, WORD, LONG)
            self.say("set", rng.choice(fields[low]), rng.choice(BEYOND[low]))
        elif kind == 3:
            self.say(self.pick(
                "set optSound 1", "set optSound \"true\"", "set optSound TRUE",
                "set lessonNo \"1\"",
                "set lessonNo true", "set lessonNo 1.5", "set studentName Ali", "set studentName 5",
                "set studentTable 1", "get studentTable", "set nothing 1", "get \"lessonNo\"",
                "set studentName \"Ali", "set studentName \"\\x\""))
        elif kind == 4:
            self.say(self.pick(
                "now 86400", "now -1", "now x", "now \"5\"", "wait -1", "wait 1.5", "wait x",
                "date 2026-01-31", "date 13-01-2026", "date x", "date 00-10-2026", "date 1-1-2026",
                "random 1", "random -0.1", "random x", "random 0.5 1.0", "capslock", "capslock 1",
                "capslock ON"))
        elif kind == 5:
            self.say(self.pick(
                "record 0", "record 32", "record x", "setrecord 0 1 2 3 4 5 6 7 8 9 10",
                "setrecord 32 1 2 3 4 5 6 7 8 9 10", "setrecord 1 1 2 3 4 5 6 7 8 9",
                "setrecord 1 1 2 3 4 5 6 7 8 9 32768", "setrecord 1 1 2 3 4 5 6 7 8 9 -32769",
                "arabictotal 0", "arabictotal 32", "englishtotal 0", "englishtotal 32",
                "stopnote x", "checkslate 1 1 fr", "checkslate 1 1", "special 1 1 AR",
                "lessonname x", "rows 192 1", "rows x 1 1", "exercisenote 1 1 \"ar\""))
        elif kind == 6:
            self.say(self.pick(
                "choose 1 0 ar", "choose 1 6 en", "choose 1 1 fr", "lesson 0", "lesson 16",
                "lesson x",
                "keyboard linux", "leave maybe", "turn optNothing", "turn lblKeys", "free abc",
                "name abc", "isnewstudent Ali", "saveprefs 1 192 \"12\" 0 0 true",
                "saveprefs true 192 12 0 0 true", "saveprefs true 192 \"12\" 0 2147483648 true",
                "validkey 65 97 Shift caps", "validkey 65 97 shift nocapslock",
                "validkey 65536 1 shift caps",
                "validkey -1 1 shift caps", "capof 65536", "capof -1", "capof A", "button imgStop",
                "is closed", "is \"open\""))
        elif kind == 7:
            if self.lesson is None and self.chance(0.7):
                self.letters()
                self.queue(60)
                self.say("open")
            self.say(self.pick(
                "open", "key 65536", "key -1", "key A", "up 65536", "mouse imgRest", "mouse form",
                "click imgStop", "click txtTest", "move txtOrigin", "edit \"a\"", "edit a 1",
                "row 0",
                "row 201", "field Text1", "label Label8", "label lbltitle", "gauge pbTime",
                "cap 105",
                "cap -1", "image imgNext", "timer btnTimer", "enter", "activate now"))
        else:
            self.fatal_case()

    def fatal_case(self):
        """Something that ends the desktop program with the platform's report."""
        rng = self.rng
        kind = rng.randrange(5)
        if kind == 0:
            self.set("studentName", rng.choice(NAMES))
            self.say(self.pick("loadstudent", "savestudent", "leave yes"))
        elif kind == 1:
            self.set("lessonNo", rng.randint(1, 15))
            base = 1 if self.context.keyboardKind == 0 else 16
            values = [self.pick(32767, 20000, 1, -32768, 0) for _ in range(10)]
            self.say("setrecord", self.context.lessonNo + base, *values)
            self.say(self.pick("passed", "result", "chooser", f"lessonsum {base}",
                               f"arabictotal {self.context.lessonNo + base}"))
        elif kind == 2:
            self.say("isnewstudent \"broken\"")
            self.say("setrecord 1 0 0 0 0 0 0 0 0 0 0")
            self.set("appFolder", self.pick("missing", PREFERENCES_FILE))
            self.say(self.pick("loadprefs", "openprefs", "savestudent", "loadstudent",
                               "isnewstudent \"x\"",
                               "saveprefs true 192 \"12\" 0 0 true"))
        elif kind == 3 and self.lesson is None:
            # A starred exercise that is over within half a second.
            self.set("lessonNo", 12)
            self.set("exerciseNo", 1)
            self.set("arabicExercise", self.chance(0.5))
            for flag in SPECIAL_FLAGS:
                self.set(flag, False)
            self.open()
            self.type(30, 1.0, 0)
        else:
            self.say("date 02-30-2026" if self.chance(0.3) else "record 5")
