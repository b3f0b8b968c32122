"""The window of one exercise: its controls, its timers, and what keys, clicks and time do."""

import keyboard_tables as keys
from course_model import checks_late, lesson_name
from course_tables import ARABIC_ANAGRAM, ENGLISH_ANAGRAM, FREE_TEXT, SPECIAL_FLAGS
from keyboard_model import (CAP_PLACES, cap_of, designed_texts, fingers, is_right_code, lit_cap,
                            written_texts)
from progress_model import evaluate, standard_mark
from values import (BLACK, CR, LF, RETURN_MARK, WHITE, Like, OneOf, Open, code_of, nearest,
                    quoted, single)

FORM_WIDTH = 12000
LONGEST_FREE_TEXT = 30000
ROWS = 200
DRAWN = 9060
LINE_END = RETURN_MARK + CR + LF
PLAIN = (BLACK, WHITE)
HELD = (WHITE, BLACK)

BACKSPACE, ENTER, SHIFT, CTRL, CAPS_KEY, SPACE = 8, 13, 16, 17, 20, 32

# Name and interval in milliseconds, in the order in which timers due at one moment fire.
TIMERS = (("tmrClock", 1000), ("tmrAuto", 20), ("EraseChar", 20), ("tmrErrKey", 60),
          ("tmrHilite", 90), ("tmrSelection", 500))
PLAYERS = (("mmcEnter", "/enter.wav"), ("mmcChar", "/char.wav"), ("mmcSpace", "/space.wav"),
           ("mmcCaps", "/caps.wav"), ("mmcBack", "/Back.wav"))

# Pictures that light up: plain look, lit look.
PUSH_PICTURES = {"imgRest": (201, 200), "imgResume": (203, 202), "imgStop": (107, 106)}

NO_DIFFERENCE = ("There is no any error in the text.", "لا يوجد أية أخطاء.")
DIFFERENCES = (
    ("No of Errors: ", ". ", "Please correct the text."),
    ("عدد الأخطاء : ", ". ", "الرجاء تصليح الأخطاء"),
)
TITLE = (
    "Lesson No: ({lesson} ) {title} - Exercise No : ({exercise} )",
    "الدرس رقم : ({lesson} ) {title} - التمرين رقم : ({exercise} )",
)
SPEED_CAPTION = (" Chars pm. :", "  حرف بالدقيقة:")
ACCURACY_CAPTION = (" Resulotion:", "  علامة الدقة:")
SPEED_LEFT, ACCURACY_LEFT = (9900, 8715), (2760, 1725)

LABELS = ("Label1", "Label2", "Label3", "Label4", "Label5", "Label6", "Label7", "lblTitle",
          "lblMark", "lblSpeed", "lblTimer", "lblChar", "lblResulotion", "Shape1")
COUNTER_LABELS = ("Label1", "Label2", "Label3", "Label4", "Label5", "Label6", "lblSpeed", "lblChar",
                  "lblMark", "lblResulotion")
# Labels whose place is told; the others stand where the window has them.
LABEL_LEFTS = {"Label7": 3915, "lblTitle": 3098, "lblTimer": 5490, "Shape1": 1350}


class Timer:
    def __init__(self, interval):
        self.interval = interval
        self.enabled = False
        self.due = 0


class TextField:
    def __init__(self, left, top, width, height):
        self.text = ""
        self.start = self.length = 0
        self.left, self.top, self.width, self.height = left, top, width, height
        self.visible = True
        self.read_only = True
        self.right_to_left = False
        self.cursor = 101
        self.font_size = 12

    def put(self, text):
        """A text that the program sets: the selection goes to its beginning."""
        self.text = text
        self.start = self.length = 0

    def place(self, caret):
        self.start = min(max(caret, 0), len(self.text))
        self.length = 0

    def select(self, start, length):
        self.start = min(max(start, 0), len(self.text))
        self.length = min(length, len(self.text) - self.start)

    @property
    def selected(self):
        return self.text[self.start:self.start + self.length]


class Label:
    def __init__(self, left):
        self.caption = ""
        self.visible = True
        self.right_to_left = self.right_aligned = False
        self.left = left


class Picture:
    def __init__(self, bitmap, left, top):
        self.bitmap = bitmap
        self.visible = self.enabled = True
        self.left, self.top = left, top


class Gauge:
    def __init__(self, maximum):
        self.maximum = maximum
        self.value = 0
        self.visible = True


class Lesson:
    """One run of the window. The owner holds context, machine, wording and the open lesson."""

    def __init__(self, owner):
        self.owner = owner
        self.context = owner.context
        self.machine = owner.machine
        self.timers = {name: Timer(interval) for name, interval in TIMERS}
        self.running = []
        self.start("tmrSelection")
        self.load()

    # Loading

    def load(self):
        context = self.context
        context.inExercise = False
        special = any(getattr(context, flag) for flag in SPECIAL_FLAGS)
        self.rows, self.rowCount = self.owner.exercise_rows(special)
        if special:
            context.arabicExercise = context.anagramLanguage
        self.arabic_at_load = context.arabicExercise
        self.origin = TextField(1305, 795, 9405, 465)
        self.test = TextField(1305, 1245, 9405, 465)
        self.texts = designed_texts()
        self.looks = {}
        self.no_cap_look = PLAIN
        self.shiftDown = False
        self.show_key_caps(False, True)
        context.sessionRun = True
        self.paused = self.resumeArmed = self.reviewMode = False
        self.pauseStart = self.pauseLength = 0.0
        for field in (self.origin, self.test):
            field.right_to_left = context.arabicExercise
        self.origin.put(self.rows[1])
        self.currentRow = 1
        self.caretPos = self.correctCount = self.errorCount = 0
        self.totalCount = self.accuracyPercent = self.speedRate = 0
        self.startTime = 0.0
        self.errorPending = False
        self.awaitingFirstKey = True
        self.capsOn = False
        self.pressedKey = -2
        self.litChar = ""
        self.savedTestText = ""
        self.clockMinutes = self.clockSeconds = 0
        self.buttonLit = False
        self.load_pictures()
        self.load_gauges()
        self.load_aids()
        self.load_layout()
        self.load_special()
        self.load_captions()
        for player, name in PLAYERS:
            self.machine.tell(f"{player} open {quoted(name)}")
        self.blinkCount = DRAWN
        buttons = self.owner.buttons
        buttons["imgNext"] = context.exerciseNo < 5
        buttons["imgBack"] = context.exerciseNo >= 2
        buttons["imgDuplicate"] = True

    def load_pictures(self):
        self.hand_offset = 1000 if self.context.colouredHands else 0
        places = self.owner.wording.places
        self.pictures = {}
        for name, bitmap in (
            ("imgLeftHand", keys.LEFT_REST + self.hand_offset),
            ("imgRightHand", keys.RIGHT_REST + self.hand_offset),
            *((name, plain) for name, (plain, _) in PUSH_PICTURES.items()),
        ):
            self.pictures[name] = Picture(bitmap, *places.get(
                (name, self.context.colouredHands), (Like.ANY, Like.ANY)))
        self.pictures["imgResume"].visible = False

    def load_gauges(self):
        context = self.context
        mark = standard_mark(context.lessonNo, context.exerciseNo, context.arabicExercise)
        self.gauges = {"pbMark": Gauge(mark or 100), "pbSpeed": Gauge(300)}
        self.labels = {name: Label(LABEL_LEFTS.get(name, Like.ANY)) for name in LABELS}
        self.labels["Label7"].visible = False
        for name, caption in (("Label3", "0"), ("Label4", "0"), ("Label6", "50"), ("Label5", "300"),
                              ("lblTimer", "00:00")):
            self.labels[name].caption = caption
        maximum = self.gauges["pbMark"].maximum
        self.labels["Label1"].caption = str(maximum // 2)
        self.labels["Label2"].caption = str(maximum)

    def load_aids(self):
        context = self.context
        for name in ("imgLeftHand", "imgRightHand"):
            self.pictures[name].visible = context.optHands
        self.labels["lblTimer"].visible = context.optClock
        for name in COUNTER_LABELS:
            self.labels[name].visible = context.optCounter
        for gauge in self.gauges.values():
            gauge.visible = context.optCounter
        self.labels["Shape1"].visible = context.optCounter or context.optClock

    def load_layout(self):
        context = self.context
        down = 0 if context.optKeyCaps else 10000
        wide = context.fontSize >= 13
        tops = [top + down + (180 if wide else 0) for _, top, _, _ in CAP_PLACES]
        for field in (self.origin, self.test):
            field.font_size = context.fontSize if context.fontSize >= 1 else 12
        if wide:
            for field in (self.origin, self.test):
                field.left, field.width = 150, FORM_WIDTH - 300
            self.origin.height += 20
            self.origin.top -= 345
            self.test.height += 75
            self.test.top = self.origin.top + self.origin.height + 1
            for cap in range(16):
                tops[cap] += 75
            tops[86] = tops[0]
            left, right = self.pictures["imgLeftHand"], self.pictures["imgRightHand"]
            if left.top is not Like.ANY:
                left.top += 135
                right.top = left.top
        self.tops = tops
        special = any(getattr(context, flag) for flag in SPECIAL_FLAGS)
        mouse_only = not context.arabicExercise and context.exerciseNo in (3, 4, 5)
        if context.lessonNo == 15 and not special and not mouse_only:
            self.origin.height = 3 * self.origin.height + 960
            self.test.height = self.origin.height
            self.test.top = self.origin.top + self.origin.height + 15

    def load_special(self):
        context = self.context
        flags = [flag for flag in SPECIAL_FLAGS if getattr(context, flag)]
        if len(flags) > 1:
            raise Open("several special flags")
        if flags in ([ARABIC_ANAGRAM], [ENGLISH_ANAGRAM]):
            text = self.drill(flags[0])
            self.origin.put(text)
            self.rows[1] = text
        elif flags == [FREE_TEXT]:
            self.test.visible = False
            self.origin.height = 5 * self.origin.height - 60
            self.origin.read_only = False

    def drill(self, flag):
        letters = self.context.freeTextChars
        if not letters:
            # The letters' window lets nothing empty through.
            raise Open("drill without letters")
        if flag == ARABIC_ANAGRAM:
            count = nearest(30 / len(letters)) * len(letters)
            return "".join(self.letter(letters) + " " for _ in range(count))
        groups = ("".join(self.letter(letters) for _ in range(5)) for _ in range(9))
        return letters + " " + "".join(group + " " for group in groups)

    def letter(self, letters):
        number = self.machine.draw()
        if number is None:
            raise Open("drill of the generator's own letters")
        return letters[int(number * len(letters))]

    def load_captions(self):
        context = self.context
        arabic = context.arabicInterface
        side = 1 if arabic else 0
        title = self.labels["lblTitle"]
        title.caption = TITLE[side].format(
            lesson=context.lessonNo, exercise=context.exerciseNo,
            title=lesson_name(context.lessonNo, arabic))
        title.right_to_left = arabic
        for name, captions in (("lblChar", SPEED_CAPTION), ("lblResulotion", ACCURACY_CAPTION)):
            label = self.labels[name]
            label.caption = captions[side]
            label.right_to_left = label.right_aligned = arabic
        self.labels["lblSpeed"].left = SPEED_LEFT[side]
        self.labels["lblMark"].left = ACCURACY_LEFT[side]
        for name in LABELS:
            if self.labels[name].left is Like.ANY:
                self.labels[name].left = self.owner.wording.places.get((name, arabic), Like.ANY)

    # Timers

    def start(self, name):
        timer = self.timers[name]
        if not timer.enabled:
            timer.enabled = True
            timer.due = self.machine.clock + timer.interval
            self.set_running()

    def stop(self, name):
        self.timers[name].enabled = False
        self.set_running()

    def set_running(self):
        # The idle timer does nothing at its ticks.
        self.running = [(name, self.timers[name]) for name, _ in TIMERS
                        if self.timers[name].enabled and name != "tmrSelection"]

    def pass_time(self, end):
        """Fires every timer that falls due up to a moment, each at its own."""
        while self.running:
            name, timer = min(self.running, key=lambda pair: pair[1].due)
            if timer.due > end:
                break
            self.machine.advance(timer.due)
            timer.due += timer.interval
            self.TICKS[name](self)
            if self.owner.lesson is not self:
                break

    def tick_clock(self):
        context = self.context
        if not context.freeText:
            self.machine.tell("HideCaret txtOrigin")
        if context.optClock:
            self.clockSeconds += 1
            if self.clockSeconds == 60:
                self.clockSeconds = 0
                self.clockMinutes += 1
                if self.clockMinutes > 99:
                    self.clockMinutes = 0
            self.labels["lblTimer"].caption = f"{self.clockMinutes:02d}:{self.clockSeconds:02d}"

    def tick_hilite(self):
        context = self.context
        if not context.optKeyCaps:
            return
        fore, _ = self.pressed_look()
        true_colour = context.trueKeyColour
        self.set_pressed_look((true_colour, WHITE) if fore == WHITE else (WHITE, true_colour))
        self.blinkCount += 1
        if self.blinkCount < 3:
            return
        self.clear_caps()
        self.blinkCount = 0
        self.show_hands(self.origin.selected)
        self.select_current_char()
        self.stop("tmrHilite")

    def tick_error(self):
        fore, back = self.pressed_look()
        error_colour = self.context.errKeyColour
        self.set_pressed_look((fore, WHITE if back == error_colour else error_colour))
        self.blinkCount += 1
        if self.blinkCount < 7:
            return
        self.blinkCount = 0
        self.set_pressed_look(PLAIN)
        self.test.put(self.savedTestText)
        self.compute_marks()
        self.show_marks()
        self.highlight_key(self.litChar)
        self.errorPending = False
        self.stop("tmrErrKey")

    def tick_erase(self):
        if not self.test.text:
            self.caretPos = 0
            self.stop("EraseChar")
        else:
            self.test.put(self.test.text[:-1])

    def tick_auto(self):
        if not self.in_review():
            return
        self.tell_differences()
        if self.test.text == self.origin.text:
            self.unload()
            if self.ordinary():
                self.machine.tell("show frmResult")

    TICKS = {"tmrClock": tick_clock, "tmrAuto": tick_auto, "EraseChar": tick_erase,
             "tmrErrKey": tick_error, "tmrHilite": tick_hilite}

    # Caps and hands

    def look(self, cap):
        return self.looks.get(cap, PLAIN)

    def set_look(self, cap, look):
        if look == PLAIN:
            self.looks.pop(cap, None)
        else:
            self.looks[cap] = look

    def pressed_look(self):
        return self.look(self.pressedKey) if self.pressedKey >= 0 else self.no_cap_look

    def set_pressed_look(self, look):
        if self.pressedKey >= 0:
            self.set_look(self.pressedKey, look)
        else:
            self.no_cap_look = look

    def clear_caps(self):
        self.looks = {cap: look for cap, look in self.looks.items() if cap in keys.STATE_CAPS}

    def set_modifier(self, caps, down):
        for cap in caps:
            self.set_look(cap, HELD if down else PLAIN)

    def show_key_caps(self, shifted, clear_texts):
        context = self.context
        if shifted and self.shiftDown:
            return
        if clear_texts:
            self.origin.put("")
            self.test.put("")
        texts = written_texts(context.keyboardKind, context.arabicExercise, shifted)
        for cap, text in texts.items():
            self.texts[cap] = text

    def highlight_key(self, char):
        context = self.context
        self.clear_caps()
        self.litChar = char
        cap = lit_cap(char, context.keyboardKind, context.arabicExercise)
        if cap is not None:
            self.set_look(cap, (WHITE, context.trueKeyColour))

    def late(self):
        context = self.context
        return checks_late(context.lessonNo, context.exerciseNo, context.arabicExercise)

    def select_pressed_key(self, code):
        context = self.context
        self.pressedKey = cap_of(code)
        if code == ENTER or code == SPACE:
            if context.lessonNo == 15 or self.late():
                if code == ENTER:
                    self.texts[keys.ENTER_CAP] = RETURN_MARK
                else:
                    self.texts[keys.SPACE_CAP] = " "
        elif code == 27:
            self.texts[keys.ESCAPE_CAP] = "?"
        elif code == 66:
            if context.arabicExercise and context.keyboardKind != 0 and self.late():
                self.texts[keys.LAM_ALIF_CAP] = "ل"

    def pressed_text(self):
        return self.texts[self.pressedKey] if self.pressedKey >= 0 else ""

    def sync_caps_lock(self):
        self.capsOn = self.machine.caps_lock
        self.set_modifier((keys.CAPS_LOCK,), self.capsOn)

    def show_hands(self, char):
        context = self.context
        left, right, shift = fingers(char, context.keyboardKind, context.arabicExercise)
        self.pictures["imgLeftHand"].bitmap = left + self.hand_offset
        self.pictures["imgRightHand"].bitmap = right + self.hand_offset
        if shift is not None:
            self.set_modifier((shift,), True)

    # Text fields

    def in_review(self):
        return self.context.lessonNo == 15 and self.reviewMode

    def ordinary(self):
        return not any(getattr(self.context, flag) for flag in SPECIAL_FLAGS)

    def select_current_char(self):
        if self.in_review():
            return
        self.machine.tell("focus txtOrigin")
        if self.context.freeText:
            return
        self.origin.select(self.caretPos, 1)
        self.highlight_key(self.origin.selected)

    def show_next_row(self):
        self.test.put("")
        self.origin.put(self.rows[self.currentRow])
        self.select_current_char()

    def differences(self):
        origin, test = self.origin.text, self.test.text
        return sum(index >= len(test) or char != test[index] for index, char in enumerate(origin))

    def tell_differences(self):
        number = self.differences()
        arabic = self.context.arabicInterface
        side = 1 if arabic else 0
        label = self.labels["Label7"]
        if number < 1:
            label.caption = NO_DIFFERENCE[side]
        else:
            before, behind, request = DIFFERENCES[side]
            label.caption = before + str(number) + behind + request
        label.right_to_left = arabic

    def unload(self):
        self.machine.tell("unload frmLesson")
        self.owner.lesson = None

    # Marks

    def compute_marks(self):
        correct, errors = self.correctCount, self.errorCount
        total = self.totalCount = correct + errors
        self.accuracyPercent = nearest(correct * 100 / total) if total > 0 else 0
        self.accuracyPercent = min(max(self.accuracyPercent, 0), 100)
        elapsed = abs(single(self.machine.now() - self.startTime))
        if elapsed < 1.0:
            elapsed = 1.0
        rate = single(single(correct / elapsed) * 60)
        rate = single(rate - errors * 100 / total) if total else 0.0
        speed = nearest(rate)
        if correct == 1 and total == 1:
            speed = 300
        self.speedRate = min(max(speed, 0), 300)

    def show_marks(self):
        gauge = self.gauges["pbMark"]
        gauge.value = nearest(self.accuracyPercent * (gauge.maximum / 100))
        self.labels["lblMark"].caption = str(gauge.value)
        self.gauges["pbSpeed"].value = self.speedRate
        self.labels["lblSpeed"].caption = str(self.speedRate)

    def evaluate(self):
        evaluate(self.context, self.gauges["pbMark"].value, self.startTime, self.machine.now())

    # Events

    def activate(self):
        self.machine.tell("paint frmLesson")
        self.blinkCount = DRAWN
        self.select_current_char()
        self.show_hands(self.origin.selected)
        if not self.context.freeText:
            self.machine.tell("HideCaret txtOrigin")
        self.sync_caps_lock()

    def key_down(self, code):
        """Handles a key; returns the code that is left, 0 for a swallowed key."""
        if self.in_review():
            self.review_check()
            return code
        if self.paused and self.resumeArmed:
            self.pauseLength = single(self.machine.now() - self.pauseStart)
            self.startTime = single(self.startTime + self.pauseLength)
            self.paused = False
            self.start("tmrClock")
        if self.paused:
            return 0
        if self.timers["EraseChar"].enabled or self.timers["tmrErrKey"].enabled:
            return 0
        if code == CAPS_KEY:
            self.sync_caps_lock()
            self.machine.play("mmcCaps", "Play", "Prev")
        elif code == CTRL:
            self.set_modifier(keys.CTRL_CAPS, True)
        else:
            self.ordinary_key(code)
        return code

    def ordinary_key(self, code):
        context = self.context
        if code == SHIFT and not self.shiftDown:
            self.show_key_caps(True, False)
            self.shiftDown = True
            self.set_modifier(keys.SHIFT_CAPS, True)
        if self.awaitingFirstKey:
            self.startTime = self.machine.now()
            self.awaitingFirstKey = False
            self.start("tmrClock")
        if code == BACKSPACE:
            self.machine.play("mmcBack", "Prev", "Play")
        late = self.late()
        if not late:
            if code != SHIFT and self.errorPending:
                return
        elif code == BACKSPACE and self.caretPos > 0:
            self.backspace()
            return
        if not context.freeText:
            self.select_current_char()
        self.select_pressed_key(code)
        if self.pressed_text() == "":
            return
        expected = self.origin.selected
        if context.optSound:
            player = {ENTER: "mmcEnter", SPACE: "mmcSpace"}.get(code, "mmcChar")
            self.machine.play(player, "Prev", "Play")
        if context.freeText:
            self.free_key()
            return
        if is_right_code(code, code_of(expected), self.shiftDown, self.capsOn,
                         context.keyboardKind, context.arabicExercise):
            self.right_key(code, expected)
        elif late:
            self.wrong_key_late(code, expected)
        else:
            self.wrong_key_at_once(code)
        self.compute_marks()
        self.show_marks()
        selected = self.origin.selected
        self.show_hands(selected)
        if self.end_of_row_late() if late else self.end_of_row_at_once():
            return
        self.highlight_key(selected)
        self.select_current_char()

    def free_key(self):
        self.correctCount += 1
        self.errorCount = 0
        self.compute_marks()
        if len(self.origin.text) > LONGEST_FREE_TEXT:
            self.context.inExercise = True
            self.unload()
        else:
            self.show_marks()

    def right_key(self, code, expected):
        self.select_pressed_key(code)
        self.start("tmrHilite")
        if self.context.lessonNo != 15:
            self.test.put(self.test.text + expected)
            self.caretPos += 1
        elif code == ENTER:
            if expected == RETURN_MARK:
                self.test.put(self.test.text + LINE_END)
                self.caretPos += 3
            self.test.place(self.caretPos)
        else:
            self.test.put(self.test.text + self.pressed_text())
            self.caretPos += 1
            self.test.place(self.caretPos)
        self.select_current_char()
        self.correctCount += 1

    def wrong_key_at_once(self, code):
        if not self.context.optSound:
            self.machine.tell("beep")
        self.errorCount += 1
        self.errorPending = True
        self.select_pressed_key(code)
        self.savedTestText = self.test.text
        self.test.put(self.test.text + self.pressed_text())
        self.start("tmrErrKey")

    def wrong_key_late(self, code, expected):
        self.select_pressed_key(code)
        self.errorCount += 1
        if self.context.lessonNo != 15:
            self.test.put(self.test.text + self.pressed_text())
            self.caretPos += 1
        else:
            if code == ENTER:
                self.test.put(self.test.text + LINE_END)
                self.caretPos += 1
            else:
                self.caretPos += 3 if expected == RETURN_MARK else 1
                self.test.put(self.test.text + self.pressed_text())
            self.test.place(len(self.test.text) - 1)
        self.select_current_char()

    def backspace(self):
        text = self.test.text
        if len(text) == 1:
            self.test.put("")
            self.caretPos = 0
        elif self.context.lessonNo != 15:
            self.caretPos -= 1
            self.test.put(text[:-1])
        else:
            if text.endswith(LF):
                text = text[:-3]
            else:
                text = text[:-1]
                if text.endswith(LF):
                    text = text[:-2]
            self.test.put(text)
            if self.origin.selected != LF:
                self.caretPos -= 1
                self.select_current_char()
                if self.origin.selected == LF:
                    self.caretPos -= 2
            else:
                self.caretPos -= 2
            self.test.place(self.caretPos)
        self.errorCount += 5
        self.compute_marks()
        self.show_marks()
        self.select_current_char()

    def end_of_row_at_once(self):
        """True when the window has gone."""
        if self.caretPos != len(self.row_text()):
            return False
        self.currentRow += 1
        if self.currentRow <= self.rowCount:
            self.caretPos = 0
            self.show_next_row()
            return False
        if self.ordinary():
            self.evaluate()
            self.context.inExercise = True
            self.unload()
            self.machine.tell("show frmResult")
        else:
            self.unload()
        return True

    def row_text(self):
        if self.currentRow > ROWS:
            raise Open("a row beyond the last")
        return self.rows[self.currentRow]

    def end_of_row_late(self):
        """True when the window has gone."""
        if len(self.test.text) != len(self.origin.text):
            return False
        if self.test.text == self.origin.text:
            self.currentRow += 1
            if self.currentRow <= self.rowCount:
                self.caretPos = 0
                self.show_next_row()
                return False
            self.evaluate()
            self.machine.tell("HideCaret txtTest")
            self.context.inExercise = True
            self.unload()
            if self.ordinary():
                self.machine.tell("show frmResult")
            return True
        if self.context.lessonNo != 15:
            self.start("EraseChar")
            self.caretPos = 0
            self.select_current_char()
        else:
            self.begin_review()
        return False

    def begin_review(self):
        for name in ("imgRest", "imgResume"):
            self.pictures[name].enabled = False
        self.machine.tell("ShowCaret txtTest")
        self.test.read_only = False
        self.reviewMode = True
        self.test.cursor = 0
        self.labels["Label7"].visible = True
        self.compute_marks()
        self.evaluate()
        self.tell_differences()

    def review_check(self):
        if self.test.text == self.origin.text:
            self.unload()
            return
        self.start("tmrAuto")
        self.tell_differences()

    def key_up(self, code):
        if code == SHIFT:
            self.set_modifier(keys.SHIFT_CAPS, False)
            self.show_key_caps(False, False)
            self.shiftDown = False
            self.show_hands(self.origin.selected)
        elif code == CTRL:
            self.set_modifier(keys.CTRL_CAPS, False)

    def mouse(self, name):
        if name == "imgStop":
            self.stop_exercise()
            return
        field = self.origin if name == "txtOrigin" else self.test
        if not field.visible:
            return
        if self.context.lessonNo == 15 and self.labels["Label7"].visible:
            return
        self.machine.tell("beep", "show frmNotAllowed")
        self.select_current_char()

    def stop_exercise(self):
        context = self.context
        if context.stopCount == 2**31 - 1:
            raise Open("more stops than can be counted")
        context.stopCount += 1
        self.unload()
        context.arabicInterface = True
        numbers = self.machine.between(1, 9 if context.stopCount < 6 else 10)
        notes = [f"show frmStopNote {number}" for number in numbers]
        self.machine.tell(notes[0] if len(notes) == 1 else OneOf(*notes))

    def reachable(self, name):
        picture = self.pictures[name]
        return picture.visible and picture.enabled

    def click(self, name):
        if name == "txtOrigin":
            self.select_current_char()
            return
        if not self.reachable(name):
            return
        resting = name == "imgRest"
        self.pictures["imgRest"].visible = not resting
        self.pictures["imgResume"].visible = resting
        self.resumeArmed = not resting
        if resting:
            self.paused = True
            self.pauseStart = self.machine.now()
            self.stop("tmrClock")

    def move(self, name):
        if name == "form":
            if self.buttonLit:
                for picture, (plain, _) in PUSH_PICTURES.items():
                    self.pictures[picture].bitmap = plain
                self.buttonLit = False
        elif self.reachable(name) and not self.buttonLit:
            self.pictures[name].bitmap = PUSH_PICTURES[name][1]
            self.buttonLit = True

    def lost_focus(self):
        self.select_current_char()
        if not self.context.freeText:
            self.machine.tell("HideCaret txtOrigin")

    def editable(self):
        """The field that the student may edit now, None for neither."""
        free = not self.origin.read_only
        if free != self.context.freeText or self.reviewMode != self.in_review():
            # Only a hand at the context can set these apart.
            raise Open("an edit after a change by hand")
        if self.in_review():
            return self.test
        return self.origin if free else None

    def edit(self, field, text, caret):
        field.put(text)
        field.place(caret)

    def press_enter(self):
        position = self.test.start
        text = self.test.text
        self.test.put(text[:position] + LINE_END + text[position:])
        self.test.place(position + 3)
