"""The course: names, texts, notes, special places, regimes and the decision of the aids."""

import course_tables as table
from values import Open


class Wording:
    """The texts and notes of the program, as the console gives them.

    rows: by (arabic, lesson, exercise), notes likewise; lesson_notes, help_pages and
    recommendations by number; places: the window's own positions of controls, by name.
    """

    def __init__(self):
        self.rows = {}
        self.notes = {}
        self.lesson_notes = {}
        self.help_pages = {}
        self.recommendations = {}


def lesson_name(lesson, arabic_interface):
    if not 1 <= lesson <= 15:
        return ""
    return table.LESSON_NAMES[lesson - 1][1 if arabic_interface else 0]


def special_flag(lesson, exercise):
    """The flag of a place of the English list, None for a place with a text."""
    return table.SPECIAL_PLACES.get((lesson, exercise))


def checks_late(lesson, exercise, arabic):
    """Whether an exercise lets wrong keys through; open beside the five exercises of a lesson."""
    row = table.CHECKED_LATE.get(lesson)
    if row is None:
        return False
    exercises = row[0 if arabic else 1]
    if exercises is table.ALL and exercise not in table.ALL:
        # "All" may be read as any number at all.
        raise Open("regime of an exercise that is none")
    return exercise in exercises


def stop_note(number):
    return table.STOP_NOTES[number - 1] if 1 <= number <= 10 else ""


def lesson_note_title(lesson, arabic_interface):
    before, behind = table.LESSON_NOTE_TITLE
    return before + str(lesson) + behind + lesson_name(lesson, arabic_interface)


def aids(context):
    """Runs the decision of the options dialog; returns the five looks as a string of + - ?.

    In lesson 15 of the English course the dialog raises the flag of the place by itself.
    """
    lesson, exercise = context.lessonNo, context.exerciseNo
    if lesson == 15 and not context.arabicExercise and (lesson, exercise) in table.SPECIAL_PLACES:
        for flag in table.SPECIAL_FLAGS:
            setattr(context, flag, flag == special_flag(lesson, exercise))
    looks = "-----"
    rows = table.AIDS_ARABIC if context.arabicExercise else table.AIDS_ENGLISH
    for lessons, exercises, row in rows:
        if lesson in lessons and exercise in exercises:
            looks = row + "?"
    raised = [flag for flag in table.SPECIAL_FLAGS if getattr(context, flag)]
    if len(raised) > 1 and len({table.AIDS_SPECIAL[flag] for flag in raised}) > 1:
        # At most one flag is ever true unless set by hand.
        raise Open("several special flags")
    for flag in raised:
        looks = table.AIDS_SPECIAL[flag]
    return looks
