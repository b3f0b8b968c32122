"""The console: reads a line, does what it says, and tells what must be answered."""

import calendar
import json
import re
from decimal import Decimal

import course_model as course
import progress_model as progress
from context_model import BOOLEAN, FIELDS, START_FOLDER, STRING, Context, Disk, Machine
from course_tables import AIDS, SPECIAL_FLAGS, SPECIAL_PLACES
from keyboard_model import CAP_PLACES, cap_of, is_right_code
from keyboard_tables import CAP_COUNT, DIRECTED_CAPS
from session_model import LABELS, PUSH_PICTURES, ROWS, TIMERS, Lesson
from values import Fatal, Mistake, OneOf, Open, Verbatim, quoted, record, shown, to_units

BUTTONS = ("imgNext", "imgBack", "imgDuplicate")
WORD_CODES = (0, 65535)
NUMBER = re.compile(r"-?[0-9]+\Z")
DECIMAL = re.compile(r"-?[0-9]+(\.[0-9]+)?\Z")
ODD_NUMBER = re.compile(r"[-+0-9.eE]+\Z")


class Text(str):
    """An argument that was written as a JSON string."""


def split(line):
    """The word and the arguments of a line."""
    parts = []
    position = 0
    while True:
        while position < len(line) and line[position] == " ":
            position += 1
        if position == len(line):
            return parts
        if line[position] == '"':
            end = position + 1
            while end < len(line) and line[end] != '"':
                end += 2 if line[end] == "\\" else 1
            if end >= len(line):
                raise Mistake("unfinished string")
            try:
                parts.append(Text(to_units(json.loads(line[position:end + 1]))))
            except ValueError:
                raise Mistake("broken string") from None
            position = end + 1
            if position < len(line) and line[position] != " ":
                raise Mistake("no blank behind a string")
        else:
            end = line.find(" ", position)
            end = len(line) if end < 0 else end
            parts.append(line[position:end])
            position = end


def number_in(word, low, high):
    """A whole number within bounds."""
    if isinstance(word, Text):
        raise Mistake("a number is wanted")
    if not NUMBER.match(word):
        if ODD_NUMBER.match(word) and word.startswith("+"):
            raise Open("a number with a plus sign")
        raise Mistake("no whole number")
    value = int(word)
    if not low <= value <= high:
        raise Mistake("out of range")
    return value


def decimal_in(word):
    if isinstance(word, Text):
        raise Mistake("a number is wanted")
    if not DECIMAL.match(word):
        if ODD_NUMBER.match(word) and any(char.isdigit() for char in word):
            raise Open("an uncommon form of a number")
        raise Mistake("no number")
    return Decimal(word)


def one_of(word, values):
    """The value of one of some fixed words."""
    if isinstance(word, Text) or word not in values:
        raise Mistake("unknown word")
    return values[word]


def text_of(word):
    if not isinstance(word, Text):
        raise Mistake("a string is wanted")
    return str(word)


def language(word):
    return one_of(word, {"ar": True, "en": False})


def boolean(word):
    return one_of(word, {"true": True, "false": False})


class Console:
    """One process. wording: texts, notes, places; entries: what its folder holds at the start."""

    def __init__(self, wording, entries=()):
        self.wording = wording
        self.context = Context()
        self.machine = Machine()
        self.disk = Disk()
        self.disk.entries.update(entries)
        self.lesson = None
        self.buttons = dict.fromkeys(BUTTONS, False)
        self.buttons_at_load = dict(self.buttons)
        self.free_aids = dict.fromkeys(AIDS, False)
        self.kept_rows = [""] * (ROWS + 1)
        self.kept_count = 0
        self.may_fail = False

    def run(self, line):
        """Does a line and returns its answers. self.may_fail tells that an error is as right."""
        self.may_fail = False
        if not line.strip(" ") or line.startswith("#"):
            return []
        word, *arguments = split(line)
        if isinstance(word, Text):
            raise Mistake("a word is wanted")
        entry = COMMANDS.get(word)
        if entry is None:
            raise Mistake("unknown word")
        method, count, needs_lesson = entry
        if needs_lesson and self.lesson is None:
            raise Mistake("no lesson is open")
        if count is not None and len(arguments) != count:
            raise Mistake("wrong number of arguments")
        answers = method(self, *arguments)
        return [] if answers is None else answers if isinstance(answers, list) else [answers]

    # What several commands share

    def byte(self, word):
        """A number that the core holds in a byte; another may be refused or found nowhere."""
        value = number_in(word, -(2**31), 2**31 - 1)
        if not 0 <= value <= 255:
            self.may_fail = True
        return value

    def place(self, lesson, exercise, lang):
        return self.byte(lesson), self.byte(exercise), language(lang)

    def rows_of(self, arabic, lesson, exercise):
        return self.wording.rows.get((arabic, lesson, exercise))

    def exercise_rows(self, special):
        """Rows and row count of a lesson that loads. A special place is one of the English list."""
        context = self.context
        arabic = context.arabicExercise and not special
        rows = self.rows_of(arabic, context.lessonNo, context.exerciseNo)
        count = len(rows) if rows is not None else 0
        filled = [""] + (rows or [])
        return filled + [""] * (ROWS + 1 - len(filled)), count

    # Virtual machine

    def now(self, seconds):
        value = decimal_in(seconds)
        if not 0 <= value < 86400:
            raise Mistake("out of range")
        thousandths = value * 1000
        whole = int(thousandths)
        if thousandths - whole == Decimal("0.5") or value > Decimal("86399.999"):
            raise Open("a time between two milliseconds")
        self.machine.time_of_day = int(thousandths.to_integral_value())

    def wait(self, milliseconds):
        end = self.machine.clock + number_in(milliseconds, 0, 2**31 - 1)
        if self.lesson is not None:
            self.lesson.pass_time(end)
        self.machine.advance(end)

    def date(self, date):
        if isinstance(date, Text):
            raise Mistake("a date is wanted")
        match = re.match(r"([0-9]{2})-([0-9]{2})-([0-9]{4})\Z", date)
        if not match:
            raise Mistake("no date")
        month, day, year = map(int, match.groups())
        if not (1 <= month <= 12 and 1 <= day <= 31):
            raise Mistake("no date")
        if year == 0 or day > calendar.monthrange(year, month)[1]:
            self.may_fail = True
        self.machine.date = date

    def random(self, *numbers):
        if not numbers:
            self.may_fail = True
        values = [decimal_in(number) for number in numbers]
        if not all(0 <= value < 1 for value in values):
            raise Mistake("out of range")
        self.machine.queue.extend(float(value) for value in values)

    def capslock(self, state):
        self.machine.caps_lock = one_of(state, {"on": True, "off": False})

    def events(self):
        told, self.machine.events = self.machine.events, []
        return told + ["end"]

    # Context

    def set_field(self, name, value):
        kind = FIELDS.get(None if isinstance(name, Text) else name)
        if kind is None:
            raise Mistake("unknown field")
        if kind is STRING:
            value = text_of(value)
            if name == "blankText" and value:
                # Nothing assigns it, so whether a text would take it up is open.
                raise Open("a blank text that is none")
        elif kind is BOOLEAN:
            value = boolean(value)
        else:
            value = number_in(value, *kind)
        setattr(self.context, name, value)

    def get_field(self, name):
        if isinstance(name, Text) or name not in FIELDS:
            raise Mistake("unknown field")
        value = getattr(self.context, name)
        if value == START_FOLDER:
            return OneOf(quoted(START_FOLDER), quoted("."))
        return shown(value)

    def record(self, number):
        fields = self.context.record(number_in(number, 1, 31))
        return " ".join(str(field) for field in fields)

    def set_record(self, number, *values):
        self.context.studentTable[number_in(number, 1, 31)] = [
            number_in(value, -32768, 32767) for value in values]

    # Course

    def rows(self, keyboard, lesson, exercise):
        kind = number_in(keyboard, -(2**31), 2**31 - 1)
        lesson, exercise = self.byte(lesson), self.byte(exercise)
        self.kept_rows = [""] * (ROWS + 1)
        found = self.rows_of(self.context.arabicExercise, lesson, exercise) if kind == 192 else None
        if found is not None:
            self.kept_count = len(found)
            self.kept_rows[1:1 + len(found)] = found
        used = self.kept_rows[1:1 + self.kept_count]
        return [str(self.kept_count)] + [quoted(row) for row in used] + ["end"]

    def lesson_name(self, lesson):
        return quoted(course.lesson_name(self.byte(lesson), self.context.arabicInterface))

    def lesson_note(self, lesson):
        return quoted(self.wording.lesson_notes.get(self.byte(lesson), ""))

    def exercise_note(self, lesson, exercise, lang):
        lesson, exercise, arabic = self.place(lesson, exercise, lang)
        return quoted(self.wording.notes.get((arabic, lesson, exercise), ""))

    def help_text(self, page):
        return quoted(self.wording.help_pages.get(self.byte(page), ""))

    def recommendation(self, page):
        return quoted(self.wording.recommendations.get(self.byte(page), ""))

    def stop_note(self, number):
        return quoted(course.stop_note(self.byte(number)))

    def special(self, lesson, exercise, lang):
        lesson, exercise, arabic = self.place(lesson, exercise, lang)
        return shown(not arabic and (lesson, exercise) in SPECIAL_PLACES)

    def free(self, text):
        text = text_of(text)
        context = self.context
        context.freeTextChars = ""
        context.anagramLanguage = True
        if not text.strip(" "):
            return "beep"
        context.freeTextChars = text[-10:] if context.arabicInterface else text[:10]
        return "taken"

    def options(self):
        looks = course.aids(self.context)
        for aid, look in zip(AIDS, looks):
            setattr(self.context, aid, look == "+")
            self.free_aids[aid] = look == "?"
        words = {"+": "on", "-": "off", "?": "free"}
        return " ".join(f"{aid}={words[look]}" for aid, look in zip(AIDS, looks))

    def turn(self, aid):
        aid = one_of(aid, {name: name for name in AIDS})
        if self.free_aids[aid]:
            setattr(self.context, aid, not getattr(self.context, aid))

    # Marks and files

    def checks_late(self, lesson, exercise, lang):
        place = self.place(lesson, exercise, lang)
        try:
            return shown(course.checks_late(*place))
        except Open:
            return OneOf("true", "false")

    def speed_bonus(self, lesson, exercise, lang):
        return shown(progress.has_speed_bonus(*self.place(lesson, exercise, lang)))

    def standard_mark(self, lesson, exercise, lang):
        return shown(progress.standard_mark(*self.place(lesson, exercise, lang)))

    def passing_mark(self, lesson):
        return shown(progress.passing_mark(self.byte(lesson)))

    def record_base(self):
        return shown(progress.record_base(self.context))

    def lesson_sum(self, base):
        base = number_in(base, -(2**31), 2**31 - 1)
        if base not in (1, 16):
            # Taken as it is or refused.
            self.may_fail = True
        return shown(progress.lesson_sum(self.context, base))

    def arabic_total(self, number):
        return shown(progress.arabic_total(self.context, number_in(number, 1, 31)))

    def english_total(self, number):
        return shown(progress.english_total(self.context, number_in(number, 1, 31)))

    def passed(self):
        return shown(progress.lesson_passed(self.context))

    def result(self):
        title, accuracy, bonus, mark, note, seen = progress.result(self.context, self.machine.date)
        return record(("lblTitle", title), ("lblRes", accuracy), ("lblBonus", bonus),
                      ("lblResult", mark), ("lblNote", note), ("lblNoteVisible", seen))

    def is_new_student(self, name):
        self.context.studentName = text_of(name)
        return shown(progress.is_new_student(self.context, self.disk))

    def load_student(self):
        progress.load_student(self.context, self.disk)

    def save_student(self):
        progress.save_student(self.context, self.disk)

    def load_preferences(self):
        progress.load_preferences(self.context, self.disk)

    def open_preferences(self):
        return record(*progress.open_preferences(self.context, self.disk).items())

    def save_preferences(self, arabic, kind, size, true_colour, error_colour, hands):
        arabic, hands, size = boolean(arabic), boolean(hands), text_of(size)
        kind, true_colour, error_colour = (
            number_in(value, -(2**31), 2**31 - 1) for value in (kind, true_colour, error_colour))
        if kind not in (0, 192):
            raise Open("a kind of keyboard that the window does not offer")
        progress.save_preferences(self.context, self.disk, arabic, kind, size, true_colour,
                                  error_colour, hands)

    def suggest(self):
        exercise, percent, arabic = progress.suggest(self.context)
        return f"{exercise} {percent} {shown(arabic)}"

    def welcome(self):
        texts = [quoted(text) for text in progress.welcome(self.context, self.machine)]
        return texts[0] if len(texts) == 1 else OneOf(*texts)

    def bye(self):
        lines = [f"{quoted(caption)} {quoted(message)}"
                 for caption, message in progress.bye(self.context, self.machine)]
        return lines[0] if len(lines) == 1 else OneOf(*lines)

    def diploma(self):
        context = self.context
        lines = [record(("lblName", context.studentName), ("lblDate", date),
                        ("lblCourse", progress.diploma_courses(context)))
                 for date in progress.diploma_date(context)]
        return lines[0] if len(lines) == 1 else OneOf(*lines)

    # The student's place

    def name(self, text):
        text = text_of(text)
        self.context.studentName = self.context.studentNameCopy = text.strip(" ")
        return shown(len(text) >= 57)

    def hide_buttons(self):
        self.buttons.update(dict.fromkeys(BUTTONS, False))

    def choose_lesson(self, number):
        number = number_in(number, 1, 15)
        context = self.context
        if context.lessonNo != number:
            self.hide_buttons()
        context.lessonNo = number
        context.lessonNoteText = self.wording.lesson_notes[number]
        if context.keyboardKind != 192:
            context.lastLessonMac = number
        else:
            context.lastLessonWin = number
        return quoted(course.lesson_note_title(number, context.arabicInterface))

    def synchronise(self, windows=None):
        context = self.context
        if windows is None:
            windows = context.keyboardKind != 0
        if windows:
            context.lastLessonMac = context.lessonNo
            context.keyboardKind = 192
            context.lessonNo = min(context.lastLessonWin, context.reachedLessonWin)
        else:
            context.lastLessonWin = context.lessonNo
            context.keyboardKind = 0
            context.lessonNo = min(context.lastLessonMac, context.reachedLessonMac)

    def keyboard(self, kind):
        windows = one_of(kind, {"win": True, "mac": False})
        self.hide_buttons()
        self.synchronise(windows)

    def next(self):
        if self.context.exerciseNo < 5:
            self.context.exerciseNo += 1
            return "true"
        return "false"

    def back(self):
        if self.context.exerciseNo > 1:
            self.context.exerciseNo -= 1
            return "true"
        return "false"

    def menu(self):
        context = self.context
        reached = (context.reachedLessonMac if context.keyboardKind != 192
                   else context.reachedLessonWin)

        def line(checked, run):
            return record(
                ("enabledLessons", min(reached, 15)),
                ("checkedLesson", checked),
                ("checkedKeyboard", "mac" if context.keyboardKind == 0 else "win"),
                ("viewDiploma", context.record(1)[1] == 100),
                *((name, self.buttons[name] and run) for name in BUTTONS))

        # No item is that of a lesson beside the fifteen; and a window that decides again by
        # sessionRun differs only where a hand has cleared it.
        checked = {context.lessonNo, context.lessonNo if 1 <= context.lessonNo <= 15 else 0}
        lines = {line(number, run) for number in checked for run in {True, context.sessionRun}}
        return lines.pop() if len(lines) == 1 else OneOf(*sorted(lines))

    def choose(self, lesson, exercise, lang):
        lesson, arabic = self.byte(lesson), language(lang)
        exercise = number_in(exercise, 1, 5)
        if not 1 <= lesson <= 15:
            raise Open("the chooser of a lesson that is none")
        context = self.context
        context.lessonNo = lesson
        try:
            progress.chooser(context)
        except Fatal:
            # Whether the sum is worked out before the button is pressed can't be seen otherwise.
            self.may_fail = True
        context.exerciseNo = exercise
        context.arabicExercise = arabic
        flag = None if arabic else course.special_flag(lesson, exercise)
        for name in SPECIAL_FLAGS:
            setattr(context, name, name == flag)

    def chooser(self):
        return record(*progress.chooser(self.context))

    def leave(self, answer):
        answer = one_of(answer, {word: word for word in ("yes", "no", "cancel")})
        context = self.context
        if answer == "cancel":
            context.leaveNoSave = context.leaveConfirmed = False
            return
        context.leaveConfirmed = True
        if answer == "yes":
            progress.save_student(context, self.disk)
        else:
            context.leaveNoSave = True
        if not context.quitting:
            context.studentName = ""

    # Keyboard

    def valid_key(self, key, code, shift, caps):
        key = number_in(key, *WORD_CODES)
        code = number_in(code, -(2**31), 2**31 - 1)
        if not 0 <= code <= 255:
            self.may_fail = True
        shift = one_of(shift, {"shift": True, "noshift": False})
        caps = one_of(caps, {"caps": True, "nocaps": False})
        return shown(is_right_code(key, code, shift, caps, self.context.keyboardKind,
                                   self.context.arabicExercise))

    def cap_of_key(self, key):
        cap = cap_of(number_in(key, *WORD_CODES))
        return str(cap) if cap >= 0 else "none"

    # A lesson

    def open(self):
        if self.lesson is not None:
            raise Mistake("a lesson is open")
        self.lesson = Lesson(self)
        self.buttons_at_load = dict(self.buttons)
        self.lesson.activate()

    def is_open(self, word):
        one_of(word, {"open": True})
        return shown(self.lesson is not None)

    def activate(self):
        self.lesson.activate()

    def key(self, code):
        return str(self.lesson.key_down(number_in(code, *WORD_CODES)))

    def up(self, code):
        self.lesson.key_up(number_in(code, *WORD_CODES))

    def mouse(self, name):
        self.lesson.mouse(one_of(name, {n: n for n in ("txtOrigin", "txtTest", "imgStop")}))

    def click(self, name):
        self.lesson.click(one_of(name, {n: n for n in ("txtOrigin", "imgRest", "imgResume")}))

    def move(self, name):
        self.lesson.move(one_of(name, {n: n for n in (*PUSH_PICTURES, "form")}))

    def lost_focus(self):
        self.lesson.lost_focus()

    def edit(self, text, caret):
        text = text_of(text)
        caret = number_in(caret, -(2**31), 2**31 - 1)
        field = self.lesson.editable()
        if field is None:
            raise Mistake("nothing to edit")
        if caret < 0:
            # Taken to the beginning of the text, or refused.
            self.may_fail = True
        self.lesson.edit(field, text, caret)

    def enter(self):
        if self.lesson.reviewMode != self.lesson.in_review():
            raise Open("a review after a change by hand")
        if not self.lesson.in_review():
            raise Mistake("no review")
        self.lesson.press_enter()

    def row(self, number):
        return quoted(self.lesson.rows[number_in(number, 1, ROWS)])

    def state(self):
        lesson = self.lesson
        pairs = [(name, getattr(lesson, name)) for name in (
            "rowCount", "currentRow", "caretPos", "correctCount", "errorCount", "totalCount",
            "accuracyPercent", "speedRate")]
        pairs.append(("startTime", Verbatim(f"{lesson.startTime:.3f}")))
        pairs += [(name, getattr(lesson, name)) for name in (
            "awaitingFirstKey", "errorPending", "shiftDown", "capsOn", "pressedKey", "litChar",
            "savedTestText", "clockMinutes", "clockSeconds", "paused", "resumeArmed", "reviewMode",
            "buttonLit")]
        return record(*pairs)

    def field(self, name):
        field = one_of(name, {"txtOrigin": self.lesson.origin, "txtTest": self.lesson.test})
        return record(
            ("text", field.text), ("selStart", field.start), ("selLength", field.length),
            ("rightToLeft", field.right_to_left), ("readOnly", field.read_only),
            ("visible", field.visible), ("left", field.left), ("top", field.top),
            ("width", field.width), ("height", field.height), ("fontSize", field.font_size),
            ("cursor", field.cursor))

    def label(self, name):
        label = one_of(name, {n: self.lesson.labels[n] for n in LABELS})
        return record(("caption", label.caption), ("visible", label.visible),
                      ("rightToLeft", label.right_to_left), ("rightAligned", label.right_aligned),
                      ("left", label.left))

    def gauge(self, name):
        gauge = one_of(name, self.lesson.gauges)
        return record(("maximum", gauge.maximum), ("value", gauge.value),
                      ("visible", gauge.visible))

    def cap(self, number):
        cap = number_in(number, 0, CAP_COUNT - 1)
        lesson = self.lesson
        left, _, width, height = CAP_PLACES[cap]
        fore, back = lesson.look(cap)
        return record(("text", lesson.texts[cap]), ("foreColour", fore), ("backColour", back),
                      ("left", left), ("top", lesson.tops[cap]), ("width", width),
                      ("height", height),
                      ("rightToLeft", cap in DIRECTED_CAPS and lesson.arabic_at_load))

    def caps(self):
        looks = self.lesson.looks
        return [f"{cap} {looks[cap][0]} {looks[cap][1]}" for cap in sorted(looks)] + ["end"]

    def image(self, name):
        picture = one_of(name, self.lesson.pictures)
        return record(("bitmap", picture.bitmap), ("visible", picture.visible),
                      ("enabled", picture.enabled), ("left", picture.left), ("top", picture.top))

    def button(self, name):
        name = one_of(name, {n: n for n in BUTTONS})
        if self.buttons[name] != self.buttons_at_load[name]:
            # The menu has hidden it since: shown then, or as the loading left it.
            return OneOf("true", "false")
        return shown(self.buttons[name])

    def timer(self, name):
        timer = one_of(name, {n: self.lesson.timers[n] for n, _ in TIMERS})
        return record(("interval", timer.interval), ("enabled", timer.enabled))


# Method, number of arguments, whether a lesson must be open.
COMMANDS = {
    "now": (Console.now, 1, False),
    "wait": (Console.wait, 1, False),
    "date": (Console.date, 1, False),
    "random": (Console.random, None, False),
    "capslock": (Console.capslock, 1, False),
    "events": (Console.events, 0, False),
    "set": (Console.set_field, 2, False),
    "get": (Console.get_field, 1, False),
    "record": (Console.record, 1, False),
    "setrecord": (Console.set_record, 11, False),
    "rows": (Console.rows, 3, False),
    "lessonname": (Console.lesson_name, 1, False),
    "lessonnote": (Console.lesson_note, 1, False),
    "exercisenote": (Console.exercise_note, 3, False),
    "helptext": (Console.help_text, 1, False),
    "recommendation": (Console.recommendation, 1, False),
    "stopnote": (Console.stop_note, 1, False),
    "special": (Console.special, 3, False),
    "free": (Console.free, 1, False),
    "options": (Console.options, 0, False),
    "turn": (Console.turn, 1, False),
    "checkslate": (Console.checks_late, 3, False),
    "speedbonus": (Console.speed_bonus, 3, False),
    "standardmark": (Console.standard_mark, 3, False),
    "passingmark": (Console.passing_mark, 1, False),
    "recordbase": (Console.record_base, 0, False),
    "lessonsum": (Console.lesson_sum, 1, False),
    "arabictotal": (Console.arabic_total, 1, False),
    "englishtotal": (Console.english_total, 1, False),
    "passed": (Console.passed, 0, False),
    "result": (Console.result, 0, False),
    "isnewstudent": (Console.is_new_student, 1, False),
    "loadstudent": (Console.load_student, 0, False),
    "savestudent": (Console.save_student, 0, False),
    "loadprefs": (Console.load_preferences, 0, False),
    "openprefs": (Console.open_preferences, 0, False),
    "saveprefs": (Console.save_preferences, 6, False),
    "suggest": (Console.suggest, 0, False),
    "welcome": (Console.welcome, 0, False),
    "bye": (Console.bye, 0, False),
    "diploma": (Console.diploma, 0, False),
    "name": (Console.name, 1, False),
    "lesson": (Console.choose_lesson, 1, False),
    "keyboard": (Console.keyboard, 1, False),
    "synchronise": (Console.synchronise, 0, False),
    "next": (Console.next, 0, False),
    "back": (Console.back, 0, False),
    "menu": (Console.menu, 0, False),
    "choose": (Console.choose, 3, False),
    "chooser": (Console.chooser, 0, False),
    "leave": (Console.leave, 1, False),
    "validkey": (Console.valid_key, 4, False),
    "capof": (Console.cap_of_key, 1, False),
    "open": (Console.open, 0, False),
    "is": (Console.is_open, 1, False),
    "button": (Console.button, 1, False),
    "activate": (Console.activate, 0, True),
    "key": (Console.key, 1, True),
    "up": (Console.up, 1, True),
    "mouse": (Console.mouse, 1, True),
    "click": (Console.click, 1, True),
    "move": (Console.move, 1, True),
    "lostfocus": (Console.lost_focus, 0, True),
    "edit": (Console.edit, 2, True),
    "enter": (Console.enter, 0, True),
    "row": (Console.row, 1, True),
    "state": (Console.state, 0, True),
    "field": (Console.field, 1, True),
    "label": (Console.label, 1, True),
    "gauge": (Console.gauge, 1, True),
    "cap": (Console.cap, 1, True),
    "caps": (Console.caps, 0, True),
    "image": (Console.image, 1, True),
    "timer": (Console.timer, 1, True),
}