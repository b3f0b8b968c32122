#!/usr/bin/env python3
"""The rules of the program, stated a second time, as what the console must answer to a script.

usage: model.py CONSOLE SCRIPT

Prints the answers that the model expects. CONSOLE is asked for the wording of the texts and notes
and for the places that the window chooses itself; everything else is the model's own.

A script may begin with lines that the console skips and that say what its folder holds:
"#@file PATH HEX" and "#@folder PATH".
"""

import os
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import json  # noqa: E402

from console_model import Console  # noqa: E402
from context_model import START_FOLDER  # noqa: E402
from course_model import Wording  # noqa: E402
from course_tables import HELP_PAGES, RECOMMENDATION_PAGES  # noqa: E402
from session_model import LABELS, PUSH_PICTURES  # noqa: E402
from values import Fatal, Like, Mistake, OneOf, Open, from_units, to_units  # noqa: E402

ENDED, MISTAKE, FATAL, OPEN = "ended", "mistake", "fatal", "open"


class Step:
    """A line of a script: its number, its answers, and whether an error would be as right."""

    def __init__(self, number, answers, may_fail):
        self.number = number
        self.answers = answers
        self.may_fail = may_fail


class Expectation:
    """What a script must answer. outcome: how it ends; at: the line that ends it."""

    def __init__(self):
        self.steps = []
        self.outcome = ENDED
        self.at = None
        self.reason = ""
        self.entries = {}


class Run:
    """A script that grows line by line, with what each line must answer."""

    def __init__(self, wording, entries=()):
        self.console = Console(wording, entries)
        self.expectation = Expectation()
        self.lines = []
        for path, content in sorted(dict(entries).items()):
            note = f"#@folder {path}" if content is None else f"#@file {path} {content.hex()}"
            self.lines.append(note)

    @property
    def ended(self):
        return self.expectation.outcome != ENDED

    def add(self, line):
        """Adds a line; false when the script ends with it."""
        self.lines.append(line)
        expectation, console = self.expectation, self.console
        try:
            answers = console.run(line)
            checked = [_written(answer) for answer in answers]
            if checked or console.may_fail:
                expectation.steps.append(Step(len(self.lines), checked, console.may_fail))
        except Mistake as trouble:
            expectation.outcome, expectation.reason = MISTAKE, str(trouble)
        except Fatal as trouble:
            expectation.outcome, expectation.reason = FATAL, str(trouble)
        except Open as trouble:
            expectation.outcome, expectation.reason = OPEN, str(trouble)
        if self.ended:
            expectation.at = len(self.lines)
        return not self.ended

    def finish(self):
        self.expectation.entries = dict(self.console.disk.entries)
        return self.expectation


def _written(answer):
    if isinstance(answer, OneOf):
        return OneOf(*[_written(part) for part in answer.answers])
    if isinstance(answer, Like):
        return Like(from_units(answer.text))
    return from_units(answer)


def entries_of(lines):
    """What the folder of a script holds at its start."""
    entries = {}
    for line in lines:
        words = line.split(" ")
        if words[0] == "#@folder":
            entries[" ".join(words[1:])] = None
        elif words[0] == "#@file":
            entries[" ".join(words[1:-1])] = bytes.fromhex(words[-1])
    return entries


def expect(lines, wording):
    """What a whole script must answer."""
    run = Run(wording, entries_of(lines))
    run.lines.clear()
    for line in lines:
        if not run.add(line):
            break
    return run.finish()


def ask(console, lines):
    """Runs a script that makes no mistake; its answers."""
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run([os.path.abspath(console)], cwd=folder, timeout=60, check=True,
                              input="\n".join(lines) + "\n", capture_output=True, text=True,
                              encoding="utf-8")
    return done.stdout.split("\n")[:-1]


def wording_of(console):
    """The texts, notes and free positions of a console."""
    wording = Wording()
    places = [(lesson, exercise) for lesson in range(1, 16) for exercise in range(1, 6)]
    for arabic in (False, True):
        language = "ar" if arabic else "en"
        lines = [f"set arabicExercise {'true' if arabic else 'false'}"]
        lines += [f"rows 192 {lesson} {exercise}" for lesson, exercise in places]
        answers = iter(ask(console, lines))
        for place in places:
            rows = [to_units(json.loads(next(answers))) for _ in range(int(next(answers)))]
            wording.rows[(arabic, *place)] = rows
            if next(answers) != "end":
                raise ValueError("rows without an end")
        lines = [f"exercisenote {lesson} {exercise} {language}" for lesson, exercise in places]
        for place, answer in zip(places, ask(console, lines)):
            wording.notes[(arabic, *place)] = to_units(json.loads(answer))
    for numbers, command, kept in (
        (range(1, 16), "lessonnote", wording.lesson_notes),
        (range(1, HELP_PAGES + 1), "helptext", wording.help_pages),
        (range(1, RECOMMENDATION_PAGES + 1), "recommendation", wording.recommendations),
    ):
        answers = ask(console, [f"{command} {number}" for number in numbers])
        kept.update(zip(numbers, (to_units(json.loads(answer)) for answer in answers)))
    wording.places = places_of(console)
    return wording


def places_of(console):
    """Where the window has the controls that it places itself, in the narrow layout."""
    places = {}
    for arabic in (False, True):
        lines = [f"set arabicInterface {'true' if arabic else 'false'}", "open"]
        lines += [f"label {name}" for name in LABELS]
        for name, answer in zip(LABELS, ask(console, lines)):
            places[(name, arabic)] = json.loads(answer)["left"]
    names = ["imgLeftHand", "imgRightHand", *PUSH_PICTURES]
    for coloured in (False, True):
        lines = [f"set colouredHands {'true' if coloured else 'false'}", "open"]
        for name, answer in zip(names, ask(console, lines + [f"image {name}" for name in names])):
            picture = json.loads(answer)
            places[(name, coloured)] = (picture["left"], picture["top"])
    return places


def main():
    console, script = sys.argv[1:]
    with open(script, encoding="utf-8", newline="\n") as file:
        lines = file.read().split("\n")
    expectation = expect(lines[:-1] if lines[-1] == "" else lines, wording_of(console))
    for step in expectation.steps:
        for answer in step.answers:
            print(str(answer).replace(START_FOLDER, "."))
    if expectation.outcome != ENDED:
        print(f"{expectation.outcome} at line {expectation.at}: {expectation.reason}",
              file=sys.stderr)


if __name__ == "__main__":
    main()
