"""Scripts that go through whole tables, cell by cell, where chance would leave gaps."""

import progress_tables
from context_model import FIELDS, STRING
from course_tables import AIDS, SPECIAL_FLAGS, TEXT_BEGINNINGS
from keyboard_model import CAP_OF_KEY
from session_model import LABELS, PUSH_PICTURES, TIMERS
from values import char_of, quoted

KINDS = (192, 0, 5)
SIDES = (("ar", "true"), ("en", "false"))
OTHER_KEYS = (0, 8, 9, 16, 17, 18, 20, 46, 96, 97, 107, 124, 223, 65535)
# Characters beyond the code page: none has a code, a cap, a finger or a key.
UNKNOWN = "\u06cc\u0671\u0660\u0669\ufefb\u4e00\u00e9\u2026"
IMAGES = ("imgLeftHand", "imgRightHand", *PUSH_PICTURES)


def keyboards():
    for kind in KINDS:
        for side, arabic in SIDES:
            yield f"{kind} {side}", [f"set keyboardKind {kind}", f"set arabicExercise {arabic}"]


def judging():
    """Every key, every character, every state."""
    for name, start in keyboards():
        lines = list(start)
        for key in sorted(CAP_OF_KEY) + list(OTHER_KEYS):
            lines += [f"capof {key}"]
            lines += [f"validkey {key} {code} {shift} {caps}" for code in range(256)
                      for shift in ("shift", "noshift") for caps in ("caps", "nocaps")]
        yield f"judging {name}", lines


def characters():
    letters = "".join(char_of(code) for code in range(32, 256)) + UNKNOWN
    for start in range(0, len(letters), 10):
        yield letters[start:start + 10]


def lights():
    """The cap and the fingers of every character: a drill that any key goes on in."""
    for name, start in keyboards():
        arabic = "true" if name.endswith("ar") else "false"
        lines = start + ["choose 12 1 en", "set englishAnagram true", "set optKeyCaps true",
                         f"set anagramLanguage {arabic}", "set trueKeyColour 65280"]
        for letters in characters():
            lines += [f"set freeTextChars {quoted(letters)}", "random " + "0 " * 45, "open"]
            for _ in letters:
                lines += ["caps", "image imgLeftHand", "image imgRightHand", "cap 60", "cap 71",
                          "field txtOrigin", "up 16", "key 65", "wait 300"]
            lines += ["random 0.5", "mouse imgStop", "events"]
        yield f"lights {name}", lines


def cap_texts():
    """All caps, both states of Shift, all layouts of the window."""
    for name, start in keyboards():
        for size in (0, 12, 13):
            for shown in ("true", "false"):
                lines = start + [f"set fontSize {size}", f"set optKeyCaps {shown}", "open"]
                for shift in ("up 16", "key 16", "key 16", "up 16"):
                    lines += [shift] + [f"cap {cap}" for cap in range(105)]
                lines += ["field txtOrigin", "field txtTest"]
                lines += [f"image {image}" for image in IMAGES]
                yield f"caps {name} {size} {shown}", lines


def key_codes():
    """What each key does in each regime."""
    regimes = ("set lessonNo 1", "set lessonNo 14", "set lessonNo 15",
               "set lessonNo 12\nset freeText true")
    for name, start in keyboards():
        for regime in regimes:
            for sound in ("true", "false"):
                lines = start + regime.split("\n")
                lines += [f"set optSound {sound}", "set optKeyCaps true"]
                for code in list(range(0, 256)) + [300, 65535]:
                    for shift in ("", "key 16"):
                        # The first blink of a window ends at its first tick; the second is whole.
                        lines += ["open", "key 90", "wait 300", "key 8", "events"]
                        lines += ([shift] if shift else []) + [
                            f"key {code}", "state", "field txtTest", "events", "caps", "wait 60",
                            "caps", "wait 60", "caps", "key 90", "wait 600", "state",
                            f"up {code}", "caps",
                            "random 0.1", "mouse imgStop"]
                yield f"keys {name} {regime[-8:]} {sound}", lines


def places():
    """Every place of the course as its windows show it."""
    for interface in ("true", "false"):
        for kind in (192, 0):
            lines = [f"set keyboardKind {kind}"]
            for lesson in range(1, 16):
                for exercise in range(1, 6):
                    for side, _ in SIDES:
                        lines += place(lesson, exercise, side, interface)
            yield f"places {interface} {kind}", lines


def place(lesson, exercise, side, interface):
    lines = [f"set arabicInterface {interface}", f"choose {lesson} {exercise} {side}"]
    lines += [f"get {flag}" for flag in SPECIAL_FLAGS]
    lines += ["options", f"exercisenote {lesson} {exercise} {side}",
              f"rows 192 {lesson} {exercise}"]
    lines += [f"turn {aid}" for aid in AIDS if (lesson + exercise) % 2]
    lines += ['free "abc"', f"set anagramLanguage {'true' if lesson % 2 else 'false'}",
              "random " + " ".join(["0.4"] * 45), "events", "open", "events", "state"]
    lines += [f"field {name}" for name in ("txtOrigin", "txtTest")]
    lines += [f"gauge {name}" for name in ("pbMark", "pbSpeed")]
    lines += [f"label {name}" for name in LABELS]
    lines += [f"timer {name}" for name, _ in TIMERS]
    lines += [f"image {name}" for name in IMAGES]
    lines += ["row 1", "row 2", "row 200", "caps", "button imgNext", "button imgBack", "menu",
              "mouse imgStop", "get arabicInterface"]
    # What the drill has left of the queue goes the way of the stop note and of farewells.
    return lines + ["events"] + ["bye"] * 2


def course():
    """The tables of the course and of the marks, beyond their edges too."""
    lines = []
    for interface in ("true", "false"):
        lines += [f"set arabicInterface {interface}"]
        for lesson in range(0, 18):
            lines += [f"{word} {lesson}" for word in ("lessonname", "lessonnote", "passingmark",
                                                      "helptext", "recommendation", "stopnote")]
            for exercise in range(0, 7):
                for side, _ in SIDES:
                    lines += [f"{word} {lesson} {exercise} {side}" for word in (
                        "checkslate", "speedbonus", "standardmark", "special", "exercisenote")]
        for kind in (192, 0):
            lines += [f"set keyboardKind {kind}"]
            for lesson in range(1, 16):
                lines += [f"lesson {lesson}", "get lessonNoteText", "chooser", "menu", "passed"]
    yield "course", lines


def pictures():
    """The pointer over the three pictures, in a rest and out of it."""
    for coloured in ("true", "false"):
        lines = [f"set colouredHands {coloured}", "set optHands true", "open"]
        for click in ("click imgRest", "click imgResume", "click imgResume", "click imgRest"):
            for name in PUSH_PICTURES:
                for event in (f"move {name}", "move imgStop", "move form"):
                    lines += [event, "state"] + [f"image {image}" for image in IMAGES]
            lines += ["move imgRest", "move imgResume", click, "move form", "timer tmrClock",
                      "key 65"]
        yield f"pictures {coloured}", lines


def options():
    """The aids of every place under every flag, also beside the course."""
    lines = []
    for side, arabic in SIDES:
        for flag in (None, *SPECIAL_FLAGS):
            for lesson in range(0, 17):
                for exercise in range(0, 7):
                    lines += [f"set {name} {'true' if name == flag else 'false'}"
                              for name in SPECIAL_FLAGS]
                    lines += [f"set arabicExercise {arabic}", f"set lessonNo {lesson}",
                              f"set exerciseNo {exercise}", "options"]
                    lines += [f"get {name}" for name in SPECIAL_FLAGS]
                    lines += [f"turn {aid}" for aid in AIDS] + [f"get {aid}" for aid in AIDS]
    yield "options", lines


def diplomas():
    """Totals on both sides of every edge of the grades, at completion and at the next sign-in."""
    edges = sorted({number + step for grades in (progress_tables.GRADES_ARABIC,
                                                 progress_tables.GRADES_ENGLISH)
                    for _, low, high in grades for number in (low, high) for step in (-1, 0, 1)})
    for kind, number in ((192, 31), (0, 16), (5, 31)):
        for interface in ("true", "false"):
            lines = ['isnewstudent "Ali"', f"set keyboardKind {kind}",
                     f"set arabicInterface {interface}", "set lessonNo 15", "date 02-29-2024"]
            for total in edges:
                lines += [
                    "setrecord 1 15 0 0 0 0 15 0 0 0 0", "set reachedLessonMac 15",
                    "set reachedLessonWin 15",
                    f"setrecord {number} 1 1 1 1 {total - 4} 1 {total - 1} 0 0 0", "result",
                    "diploma",
                    "record 1", "record 31", "get gradeArabicMac", "get gradeEnglishWin", "result",
                    f"setrecord {number} 1 1 1 1 {total - 3} 2 {total - 1} 1 2 3", "savestudent",
                    "loadstudent", "diploma", "record 1", "record 31"]
            yield f"diplomas {kind} {interface}", lines


def messages():
    """Every draw of the welcome, the farewell and the stop note."""
    draws = [f"{(2 * number + 1) / 16}" for number in range(8)]
    for kind in KINDS:
        for interface in ("true", "false"):
            lines = [f"set keyboardKind {kind}", f"set arabicInterface {interface}",
                     'set studentName "Zen {name} \\\\"', "set reachedLessonMac 3",
                     "set reachedLessonWin 7"]
            for marks in ("0 0 0 0 0 0 0 0 0 0", "90 50 90 90 190 90 50 90 90 190",
                          "90 50 90 90 190 9 50 90 90 190", "9 50 90 90 190 90 90 90 50 190",
                          "80 40 80 80 160 80 40 80 80 160", "81 41 81 81 161 81 81 81 41 161"):
                lines += [f"setrecord 4 {marks}", f"setrecord 23 {marks}", "suggest"]
                for draw in draws:
                    lines += [f"random {draw} {draw} 0.2", "welcome", "bye", "bye"]
            for leave in ("true", "false"):
                lines += [f"set leaveNoSave {leave}", 'set studentName ""', "bye",
                          "get studentName"]
                for number in range(5):
                    lines += [f"random {(2 * number + 1) / 10}", "bye"]
            for count in (0, 4, 5, 6, -2147483648):
                for number in range(10):
                    lines += [f"set stopCount {count}", "open", f"random {(2 * number + 1) / 20}",
                              "mouse imgStop", "events", "get stopCount"]
            yield f"messages {kind} {interface}", lines


def places_with_text():
    """Lesson and exercise, language and keyboard of every text."""
    for place_, sides in TEXT_BEGINNINGS.items():
        for arabic, side in zip((False, True), sides):
            if side is not None:
                for kind in (192, 0):
                    yield place_, arabic, kind


def fields():
    """Every field of the context, set and read."""
    lines = []
    for name, kind in FIELDS.items():
        if name in ("appFolder", "blankText"):
            continue
        values = ['""', '"a \\"b\\"\\r\\n\\u0001\\u001f\\u007f\\/\\b\\f"',
                  '"\\u0691ڑ\\ud83d\\ude00"']
        if kind is not STRING:
            values = ["true", "false"] if kind == "boolean" else [str(number) for number in kind]
        for value in values:
            lines += [f"get {name}", f"set {name} {value}", f"get {name}"]
    yield "fields", lines


ALL = (fields, course, options, pictures, places, cap_texts, lights, diplomas, messages, key_codes,
       judging)


def scripts():
    for sweep in ALL:
        yield from sweep()
