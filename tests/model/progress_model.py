"""The student's progress: files, marks, passing, grades, recommendation and their wording."""

import struct

import course_tables
import progress_tables as table
from course_model import lesson_name
from values import Fatal, Open, nearest, single, sum16

RECORDS, RECORD_BYTES, FILE_BYTES = 31, 20, 620
PREFERENCES_BYTES = 532
_RECORD = struct.Struct("<10h")
_PREFERENCES = struct.Struct("<hiiiih")
PREFERENCE_FIELDS = ("arabicInterface", "keyboardKind", "fontSize", "trueKeyColour",
                     "errKeyColour", "colouredHands")
DEFAULT_PREFERENCES = (-1, 192, 14, 0, 255, -1)


def fill(pair, arabic, **words):
    """The text of a pair in the interface's language, with its words."""
    return pair[1 if arabic else 0].format(**words)


# Marks


def _mark(lesson, exercise, arabic):
    if 1 <= lesson <= 15 and 1 <= exercise <= 5:
        return table.STANDARD_MARKS[lesson - 1][0 if arabic else 1].split()[exercise - 1]
    return "0"


def standard_mark(lesson, exercise, arabic):
    return int(_mark(lesson, exercise, arabic).rstrip("*"))


def has_speed_bonus(lesson, exercise, arabic):
    return _mark(lesson, exercise, arabic).endswith("*")


def passing_mark(lesson):
    return table.PASSING_MARKS.get(lesson, table.PASSING_MARK_ELSEWHERE)


def record_base(context):
    return 1 if context.keyboardKind == 0 else 16


def lesson_record(context, base):
    """The record that a lesson and a base name; beside the table there are no marks."""
    return context.record(context.lessonNo + base) or [0] * 10


def lesson_sum(context, base):
    record = lesson_record(context, base)
    return sum16(record[:7] if context.lessonNo == 15 else record)


def lesson_passed(context):
    return lesson_sum(context, record_base(context)) >= passing_mark(context.lessonNo)


def arabic_total(context, number):
    return sum16(context.record(number)[:5])


def english_total(context, number):
    return sum16(context.record(number)[5:7])


def grade_of(total, grades, former):
    """The grade of a total; beside all ranges the former one stays."""
    for grade, low, high in grades:
        if low <= total <= high:
            return grade
    return former


def evaluate(context, value, start, now):
    """The end of an exercise: its marks, and the best mark kept."""
    lesson, exercise, arabic = context.lessonNo, context.exerciseNo, context.arabicExercise
    mark = nearest(value)
    bonus = 0
    if has_speed_bonus(lesson, exercise, arabic):
        seconds = nearest(single(now - start))
        if seconds == 0:
            raise Fatal("division by zero")
        bonus = nearest(mark / seconds * 100) - mark
    bonus = min(max(bonus, -mark), mark)
    context.speedBonus = bonus
    context.accuracyMark = mark
    context.exerciseMark = mark + bonus
    if not (1 <= lesson <= 15 and 1 <= exercise <= 5):
        raise Open("mark of a place that is none")
    kept = context.exerciseMark
    if not arabic and (lesson, exercise) in table.NEVER_SCORING:
        kept = 0
    record = context.record(lesson + record_base(context))
    index = exercise - 1 if arabic else 4 + exercise
    if kept > record[index]:
        record[index] = kept


def _diploma(context, date):
    header, last = context.record(1), context.record(31)
    if header[1] != 100:
        header[1] = 100
        last[7], last[8], last[9] = int(date[3:5]), int(date[0:2]), int(date[-4:])
    return fill(table.RESULT_DIPLOMA, context.arabicInterface)


def result(context, date):
    """The load of the result's window; returns title, three lines, note and whether it is seen."""
    arabic = context.arabicInterface
    title, *lines = table.RESULT_TEXTS[1 if arabic else 0]
    numbers = (context.accuracyMark, context.speedBonus, context.exerciseMark)
    texts = [title] + [line + str(number) for line, number in zip(lines, numbers)]
    note, seen = "", False
    reached = context.reachedLessonWin if context.keyboardKind == 192 else context.reachedLessonMac
    passed = lesson_passed(context)
    if passed and context.lessonNo == reached:
        seen = True
        if context.lessonNo != 15:
            note = fill(table.RESULT_NEXT_LESSON, arabic)
    if passed:
        field = "reachedLessonWin" if context.keyboardKind != 0 else "reachedLessonMac"
        if getattr(context, field) < 15 and context.lessonNo == getattr(context, field):
            setattr(context, field, context.lessonNo + 1)
    if context.lessonNo == 15:
        windows = context.keyboardKind != 0
        number, name = (31, "Win") if windows else (16, "Mac")
        record, header = context.record(number), context.record(1)
        courses = (
            ("Arabic", arabic_total, 250, record[:5], 7 if windows else 2, table.GRADES_ARABIC),
            ("English", english_total, 351, record[5:7], 8 if windows else 3, table.GRADES_ENGLISH),
        )
        for language, total_of, least, marks, flag, grades in courses:
            total = total_of(context, number)
            if total >= least and all(marks) and header[flag] != 100:
                note, seen = _diploma(context, date), True
                header[flag] = 100
                setattr(context, f"courseDone{language}{name}", True)
                grade = f"grade{language}{name}"
                setattr(context, grade, grade_of(total, grades, getattr(context, grade)))
    return (*texts, note if seen else "", seen)


def diploma_date(context):
    """The diploma's date; a number below zero may be filled up in front of or behind its sign."""
    def padded(number, width):
        if number < 0:
            return [f"-{-number:0{width}d}", f"{number:0{width}d}"]
        return [f"{number:0{width}d}"]

    day, month, year = context.record(31)[7:10]
    return [f"{table.DIPLOMA_DATE}{d}/{m}/{y}"
            for d in padded(day, 2) for m in padded(month, 2) for y in padded(year, 4)]


def diploma_courses(context):
    text = ""
    for number, (flag, grade, words) in enumerate(table.DIPLOMA_COURSES):
        if not getattr(context, flag):
            continue
        if number == 3 and text:
            words = table.DIPLOMA_LAST_BEHIND_OTHERS
        text += words + table.GRADE_LETTERS.get(getattr(context, grade), "")
    return text


# Recommendation, welcome, farewell


def _percentages(context, lesson, arabic):
    percentages = []
    for exercise in range(1, 6):
        standard = standard_mark(lesson, exercise, arabic)
        if standard == 0:
            percentages.append(0)
            continue
        record = context.record(lesson + record_base(context))
        best = record[exercise - 1 if arabic else 4 + exercise]
        percentages.append(nearest(100 * best / standard))
    return percentages


def current_reached(context):
    return context.reachedLessonWin if context.keyboardKind != 0 else context.reachedLessonMac


def suggest(context):
    """The exercise to repeat, its percentage, whether it is Arabic; 0, 0, False for none."""
    lesson = current_reached(context)
    first = {}
    for arabic in (True, False):
        # Five passes over the neighbours put equal percentages in their own order.
        ordered = sorted(enumerate(_percentages(context, lesson, arabic), 1), key=lambda p: p[1])
        first[arabic] = ordered[0]
    a, e = first[True][1], first[False][1]
    if a > 0 and (e <= 0 or a < e):
        return first[True][0], a, True
    if e > 0 and (a <= 0 or a > e):
        return first[False][0], e, False
    return 0, 0, False


def _praise(context):
    lesson = current_reached(context)
    full = [sum(p > 80 for p in _percentages(context, lesson, arabic)) == 5
            for arabic in (True, False)]
    if full == [True, True]:
        return table.PRAISE_BOTH
    if full[0]:
        return table.PRAISE_ARABIC
    return table.PRAISE_ENGLISH if full[1] else None


def _welcome_case(context, number):
    """The message of one draw, None where it fails."""
    arabic = context.arabicInterface
    lesson = current_reached(context)
    words = {"name": context.studentName, "lesson": lesson, "title": lesson_name(lesson, arabic)}
    if number == 1:
        exercise, _, in_arabic = suggest(context)
        if exercise == 0:
            return None
        words.update(exercise=exercise, language=table.LANGUAGE_NAMES[1 if in_arabic else 0])
        return fill(table.WELCOME_SUGGESTION, arabic, **words)
    if number == 2:
        return fill(table.WELCOME_NOTHING, arabic)
    if number in (3, 6, 7):
        return fill(table.WELCOME_WISHES, arabic, **words)
    if number in (4, 8):
        menu = fill(table.MENU_RECOMMENDATION if number == 4 else table.MENU_HELP, arabic)
        return fill(table.WELCOME_READ_MENU, arabic, menu=menu, **words)
    praise = _praise(context)
    return praise and fill(praise, arabic)


def welcome(context, machine):
    """The messages that the next draws may give: one where the draws are queued."""
    while True:
        number = machine.draw()
        if number is None:
            texts = [_welcome_case(context, case) for case in range(1, 9)]
            return [text for text in texts if text is not None]
        text = _welcome_case(context, int(number * 8) + 1)
        if text is not None:
            return [text]


def bye(context, machine):
    """Caption and message of the farewell, all that the next draw may give."""
    arabic = context.arabicInterface
    if context.studentName == "":
        context.studentName = fill(table.DEFAULT_NAMES, arabic)
    english_lesson = (context.reachedLessonWin if context.keyboardKind == 192
                      else context.reachedLessonMac)
    lesson = context.reachedLessonWin if arabic else english_lesson
    words = {"name": context.studentName, "lesson": lesson, "title": lesson_name(lesson, arabic)}
    if context.leaveNoSave:
        pairs = [table.PLAIN_FAREWELL]
    else:
        number = machine.draw()
        pairs = table.FAREWELLS if number is None else [table.FAREWELLS[int(number * 5)]]
    chosen = [pair[1 if arabic else 0] for pair in pairs]
    return [(caption, message.format(**words)) for caption, message in chosen]


# Files


def _student_path(context, disk):
    name = context.studentName + table.STUDENT_ENDING
    return disk.find(context.appFolder, table.STUDENTS_FOLDER, name)


def is_new_student(context, disk):
    key, state = _student_path(context, disk)
    if state == "no folder":
        folder, trouble = disk.find(context.appFolder, table.STUDENTS_FOLDER)
        if trouble != "missing":
            return False
        disk.entries[folder] = None
        key, state = _student_path(context, disk)
    if state != "missing":
        return False
    for field in ("lessonNo", "reachedLessonMac", "reachedLessonWin", "lastLessonMac",
                  "lastLessonWin"):
        setattr(context, field, 1)
    for number in range(1, 32):
        context.studentTable[number] = [0] * 10
    context.record(1)[0] = context.record(1)[5] = 1
    return True


def _opened(disk, place, what):
    """The key of a file that is read and written; made empty if it is missing."""
    key, state = place
    if state not in ("file", "missing"):
        raise Fatal(f"cannot open the {what}")
    if state == "missing":
        disk.entries[key] = b""
    return key


def _overwritten(disk, key, data):
    disk.entries[key] = data + disk.entries[key][len(data):]


def load_student(context, disk):
    key = _opened(disk, _student_path(context, disk), "student file")
    data = disk.entries[key][:FILE_BYTES].ljust(FILE_BYTES, b"\0")
    rows = [list(fields) for fields in _RECORD.iter_unpack(data)]
    if not (0 <= rows[0][0] <= 255 and 0 <= rows[0][5] <= 255):
        raise Fatal("reached lesson does not fit")
    for number in range(1, 32):
        context.studentTable[number] = rows[number - 1]
    header = context.record(1)
    context.reachedLessonMac = context.lastLessonMac = header[0]
    context.reachedLessonWin = context.lastLessonWin = header[5]
    courses = (
        ("Mac", context.reachedLessonMac, 2, 3, 16),
        ("Win", context.reachedLessonWin, 7, 8, 31),
    )
    for name, *_ in courses:
        setattr(context, f"courseDoneArabic{name}", False)
        setattr(context, f"courseDoneEnglish{name}", False)
    for name, reached, arabic, english, number in courses:
        if reached != 15 or header[1] != 100:
            continue
        for language, flag, total_of, grades in (
            ("Arabic", arabic, arabic_total, table.GRADES_ARABIC),
            ("English", english, english_total, table.GRADES_ENGLISH),
        ):
            if header[flag] == 100:
                setattr(context, f"courseDone{language}{name}", True)
                grade = f"grade{language}{name}"
                total = total_of(context, number)
                setattr(context, grade, grade_of(total, grades, getattr(context, grade)))


def save_student(context, disk):
    key = _opened(disk, _student_path(context, disk), "student file")
    header = context.record(1)
    header[0], header[5] = context.reachedLessonMac, context.reachedLessonWin
    data = b"".join(_RECORD.pack(*context.record(number)) for number in range(1, 32))
    _overwritten(disk, key, data)


def _preferences_path(context, disk):
    place = disk.find(context.appFolder, table.PREFERENCES_FILE)
    return _opened(disk, place, "preferences file")


def _unpacked(data):
    fields = _PREFERENCES.unpack(data[:20].ljust(20, b"\0"))
    values = dict(zip(("arabicInterface", "keyboardKind", "fontSize", "trueKeyColour",
                       "errKeyColour", "colouredHands"), fields))
    for name in ("arabicInterface", "colouredHands"):
        values[name] = values[name] != 0
    return values


def load_preferences(context, disk):
    values = _unpacked(disk.entries[_preferences_path(context, disk)])
    for name in PREFERENCE_FIELDS:
        setattr(context, name, values[name])


def open_preferences(context, disk):
    """The record that the preferences' window shows; it writes the default record first."""
    key = _preferences_path(context, disk)
    if nearest(len(disk.entries[key]) / PREFERENCES_BYTES) == 0:
        record = _PREFERENCES.pack(*DEFAULT_PREFERENCES) + struct.pack("<h", -1) + b" " * 510
        _overwritten(disk, key, record)
    return _unpacked(disk.entries[key])


def font_size_of(text):
    """The number of the size field, held within 1 and 20."""
    digits = ""
    for char in text:
        if char not in "0123456789":
            break
        digits += char
    return min(max(int(digits or "0"), 1), 20)


def save_preferences(context, disk, arabic, kind, size, true_colour, error_colour, hands):
    key = _preferences_path(context, disk)
    size = font_size_of(size)
    fields = (-1 if arabic else 0, kind, size, true_colour, error_colour, -1 if hands else 0)
    _overwritten(disk, key, _PREFERENCES.pack(*fields).ljust(PREFERENCES_BYTES, b"\0"))
    values = (arabic, kind, size, true_colour, error_colour, hands)
    for name, value in zip(PREFERENCE_FIELDS, values):
        setattr(context, name, value)


# The chooser


def chooser(context):
    """The load of the chooser; the flags of the special exercises fall."""
    arabic = context.arabicInterface
    lesson = context.lessonNo
    words = {"lesson": lesson, "title": lesson_name(lesson, arabic)}
    record = lesson_record(context, record_base(context))
    marks = {}
    for in_arabic in (True, False):
        marks[in_arabic] = [
            str(standard_mark(lesson, exercise, in_arabic))
            + (" *" if has_speed_bonus(lesson, exercise, in_arabic) else "")
            for exercise in range(1, 6)
        ]
    best = [str(value) for value in record[5:]]
    best = ["0" if mark == "0" else value for mark, value in zip(marks[False], best)]
    buttons = [fill(table.CHOOSER_BUTTON, arabic, lesson=lesson, exercise=exercise)
               for exercise in range(1, 6)]
    english_buttons = list(buttons)
    for (special_lesson, exercise), flag in course_tables.SPECIAL_PLACES.items():
        if special_lesson == lesson:
            english_buttons[exercise - 1] = course_tables.SPECIAL_CAPTIONS[flag]
    total = lesson_sum(context, record_base(context))
    for flag in course_tables.SPECIAL_FLAGS:
        setattr(context, flag, False)
    return (
        ("lblLessonTitle", fill(table.CHOOSER_TITLE, arabic, **words)),
        ("lblAMM", marks[True]),
        ("lblEMM", marks[False]),
        ("lblACM", [str(value) for value in record[:5]]),
        ("lblECM", best),
        ("lblAExercise", buttons),
        ("lblEExercise", english_buttons),
        ("lblPMark", fill(table.CHOOSER_PASSING_MARK, arabic) + str(passing_mark(lesson))),
        ("lblYourSum", fill(table.CHOOSER_SUM, arabic) + str(total)),
    )
