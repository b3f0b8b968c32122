#!/usr/bin/env python3
"""Runs random scripts against the console and the model, and shows the first line that differs.

usage: compare.py CONSOLE [--seed N] [--scripts N] [--seconds S] [--kind NAME] [--keep FOLDER]
       compare.py CONSOLE --sweeps [--no-shrink]
       compare.py CONSOLE --script FILE

Each script is one process start in a folder of its own. Answers, the line on standard error, the
exit status and the files that are left must be what the model says. On a difference the script and
its shortest form are saved, and the exit status is 1.
"""

import argparse
import os
import random
import re
import select
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import course_tables  # noqa: E402
import scripts  # noqa: E402
import sweeps  # noqa: E402
from context_model import START_FOLDER  # noqa: E402
from model import ENDED, FATAL, MISTAKE, OPEN, entries_of, expect, wording_of  # noqa: E402
from values import Like, OneOf, to_units  # noqa: E402

TIME_LIMIT = 60
STATUS = {ENDED: 0, MISTAKE: 2, FATAL: 3}
ERROR_LINE = re.compile(r"error: ([0-9]+): [^\n]+\n\Z")
FATAL_LINE = re.compile(r"fatal: [^\n]+\n\Z")
# One script in so many goes through a pipe line by line, each answer awaited before the next line.
THROUGH_PIPE = 40


class Outcome:
    """What the console did: answers, standard error, status, files left, its folder."""

    def __init__(self, answers, errors, status, entries, folder):
        self.answers = answers
        self.errors = errors
        self.status = status
        self.entries = entries
        self.folder = folder


def fill(folder, entries):
    for path in sorted(entries):
        place = os.path.join(folder, path)
        if entries[path] is None:
            os.makedirs(place, exist_ok=True)
        else:
            os.makedirs(os.path.dirname(place), exist_ok=True)
            with open(place, "wb") as file:
                file.write(entries[path])


def found(folder):
    entries = {}
    for root, folders, files in os.walk(folder):
        for name in folders:
            entries[os.path.relpath(os.path.join(root, name), folder)] = None
        for name in files:
            place = os.path.join(root, name)
            with open(place, "rb") as file:
                entries[os.path.relpath(place, folder)] = file.read()
    return entries


def run_console(console, lines):
    """Runs a script in a folder of its own."""
    text = "".join(line + "\n" for line in lines).encode("utf-16", "surrogatepass").decode("utf-16")
    if len(lines) % 5 == 0:
        # The last line counts without its end too.
        text = text[:-1]
    folder = os.path.realpath(tempfile.mkdtemp(prefix="keyfluent-"))
    try:
        fill(folder, entries_of(lines))
        try:
            done = subprocess.run([console], cwd=folder, input=text.encode("utf-8"),
                                  capture_output=True, timeout=TIME_LIMIT, check=False)
            out, errors, status = done.stdout, done.stderr, done.returncode
        except subprocess.TimeoutExpired as trouble:
            out, errors, status = trouble.stdout or b"", b"", "no end"
        return Outcome(answers_of(out), errors.decode("utf-8", "replace"), status, found(folder),
                       folder)
    finally:
        shutil.rmtree(folder)


def answers_of(out):
    answers = out.decode("utf-8", "replace").split("\n")
    last = answers.pop()
    return answers + [last + "<no end of line>"] if last else answers


def agrees(wanted, answer, folder):
    if isinstance(wanted, OneOf):
        return any(agrees(part, answer, folder) for part in wanted.answers)
    if isinstance(wanted, Like):
        return wanted.pattern.fullmatch(answer) is not None
    return wanted.replace(START_FOLDER, folder) == answer


def difference(expectation, outcome):
    """The first difference: line number of the script and what differs; None for none."""
    at = expectation.at
    wanted_status = STATUS.get(expectation.outcome)
    error = ERROR_LINE.match(outcome.errors)
    error_at = int(error[1]) if error and outcome.status == 2 else None
    steps = expectation.steps
    given = len(outcome.answers)
    lenient = None
    if error_at is not None and (wanted_status, at) != (2, error_at):
        lenient = next((s for s in steps if s.may_fail and s.number == error_at), None)
    elif outcome.status == 3 and (wanted_status != 3 or given < sum(len(s.answers) for s in steps)):
        count = 0
        for step in steps:
            if step.may_fail and count == given:
                lenient = step
            count += len(step.answers)
    if lenient is not None:
        steps = steps[:steps.index(lenient)]
    position = 0
    for step in steps:
        for wanted in step.answers:
            if position == len(outcome.answers):
                return step.number, f"wanted {wanted!r}\nno answer; {ending(outcome)}"
            answer = outcome.answers[position]
            if not agrees(wanted, answer, outcome.folder):
                return step.number, f"wanted {wanted!r}\ngot    {answer!r}"
            position += 1
    if lenient is not None:
        if position < len(outcome.answers):
            return lenient.number, f"got    {outcome.answers[position]!r} before an error"
        return None
    if expectation.outcome == OPEN:
        if outcome.status not in (0, 2, 3):
            return at, f"wanted an orderly end ({expectation.reason})\n{ending(outcome)}"
        return None
    if position < len(outcome.answers):
        return at, (f"wanted {expectation.outcome} {expectation.reason}\n"
                    f"got    {outcome.answers[position]!r}; {ending(outcome)}")
    if outcome.status != wanted_status or (wanted_status == 2 and error_at != at):
        return at, f"wanted {expectation.outcome} {expectation.reason}\ngot    {ending(outcome)}"
    if wanted_status == 0 and outcome.errors:
        return at, f"wanted nothing on standard error\ngot    {outcome.errors!r}"
    if wanted_status == 3 and not FATAL_LINE.match(outcome.errors):
        return at, f"wanted one line of a failure\ngot    {outcome.errors!r}"
    return files_difference(expectation, outcome)


def files_difference(expectation, outcome):
    for path in sorted(set(expectation.entries) | set(outcome.entries)):
        wanted, left = (side.get(path, "nothing")
                        for side in (expectation.entries, outcome.entries))
        if wanted != left:
            return None, f"file {path!r}\nwanted {shown_file(wanted)}\nleft   {shown_file(left)}"
    return None


def shown_file(content):
    if content is None:
        return "a folder"
    return content if isinstance(content, str) else f"{len(content)} bytes {content.hex()}"


def ending(outcome):
    return f"status {outcome.status}, standard error {outcome.errors!r}"


def check(console, lines, wording):
    return difference(expect(lines, wording), run_console(console, lines))


def mark_of(lines, found_difference):
    """What a difference is about, so that a shorter script keeps to it."""
    number = found_difference[0]
    if number is None or number > len(lines):
        return "end"
    return " ".join(lines[number - 1].split(" ")[:2])


def shrink(console, lines, wording, first, limit=120):
    """The shortest script found that differs in the same command."""
    mark = mark_of(lines, first)
    best = lines[:first[0]] if first[0] else list(lines)
    started = time.monotonic()

    def still(trial):
        again = check(console, trial, wording)
        return again is not None and mark_of(trial, again) == mark

    if not still(best):
        best = list(lines)
    size = max(len(best) // 2, 1)
    while time.monotonic() - started < limit:
        index = 0
        shorter = False
        while index < len(best) and time.monotonic() - started < limit:
            trial = best[:index] + best[index + size:]
            if trial and still(trial):
                best, shorter = trial, True
            else:
                index += size
        if size == 1 and not shorter:
            break
        size = max(size // 2, 1)
    return best


def through_pipe(console, lines, expectation):
    """Feeds a script line by line; the line whose answer does not come before the next is sent."""
    folder = tempfile.mkdtemp(prefix="keyfluent-")
    counts = {step.number: len(step.answers) for step in expectation.steps}
    try:
        fill(folder, entries_of(lines))
        with subprocess.Popen([console], cwd=folder, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL) as process:
            waiting = b""
            for number, line in enumerate(lines, 1):
                process.stdin.write(line.encode("utf-16", "surrogatepass").decode("utf-16")
                                    .encode("utf-8") + b"\n")
                process.stdin.flush()
                wanted = counts.get(number, 0)
                while waiting.count(b"\n") < wanted:
                    if not select.select([process.stdout], [], [], 10)[0]:
                        process.kill()
                        return number, "no answer came through the pipe"
                    part = os.read(process.stdout.fileno(), 65536)
                    if not part:
                        return number, "the console ended before its answer"
                    waiting += part
                waiting = waiting.split(b"\n", wanted)[wanted]
            process.stdin.close()
            process.wait(timeout=TIME_LIMIT)
        return None
    finally:
        shutil.rmtree(folder)


def wording_differences(wording):
    """What is fixed of the texts and notes, held against what the console has."""
    for place, sides in course_tables.TEXT_BEGINNINGS.items():
        for arabic, side in zip((False, True), sides):
            rows = wording.rows[(arabic, *place)]
            count, beginning = side or (1, "")
            first = rows[0].rstrip(" \u0691")
            if len(rows) != count or not rows[0].startswith(beginning) or (side is None and first):
                yield f"text {place} {'ar' if arabic else 'en'}: {len(rows)} rows, {rows[0]!r}"
    for place, sides in course_tables.NOTE_BEGINNINGS.items():
        for arabic, beginning in zip((False, True), sides):
            note = wording.notes[(arabic, *place)]
            if note != beginning and not note.startswith(beginning + "\r"):
                yield f"note {place} {'ar' if arabic else 'en'}: {note!r}"
    for lesson, beginning in course_tables.LESSON_NOTE_BEGINNINGS.items():
        if not wording.lesson_notes[lesson].startswith(beginning):
            yield f"lesson note {lesson}: {wording.lesson_notes[lesson]!r}"
    for place, flag in course_tables.SPECIAL_PLACES.items():
        note = {
            course_tables.ENGLISH_ANAGRAM: course_tables.NOTE_ENGLISH_ANAGRAM,
            course_tables.ARABIC_ANAGRAM: course_tables.NOTE_ARABIC_ANAGRAM,
            course_tables.FREE_TEXT: course_tables.NOTE_FREE_TEXT,
        }[flag]
        if place == (10, 4):
            note = note.replace(*course_tables.NOTE_TWO_BLANKS)
        if wording.notes[(False, *place)] != note:
            yield f"note {place} en: {wording.notes[(False, *place)]!r}"
    for kind, texts in (("note", wording.notes), ("lesson note", wording.lesson_notes),
                        ("help page", wording.help_pages),
                        ("recommendation", wording.recommendations)):
        for place, text in texts.items():
            if not text or "\n" in text:
                yield f"{kind} {place}: {text!r}"


def save(folder, name, lines):
    os.makedirs(folder, exist_ok=True)
    path = os.path.join(folder, name)
    with open(path, "w", encoding="utf-8", newline="\n") as file:
        file.write("".join(line + "\n" for line in lines)
                   .encode("utf-16", "surrogatepass").decode("utf-16"))
    return path


def report(arguments, name, kind, lines, first, wording):
    number, text = first
    command = lines[number - 1] if number and number <= len(lines) else "the end"
    if arguments.no_shrink:
        print(f"{kind}, {name}, line {number}: {command}\n{text}", flush=True)
        return
    whole = save(arguments.keep, f"{name}.console", lines)
    print(f"{kind}, {whole}, line {number}: {command}\n{text}")
    short = shrink(arguments.console, lines, wording, first)
    path = save(arguments.keep, f"{name}.short.console", short)
    again = check(arguments.console, short, wording)
    print(f"shortest form, {path}:")
    print("".join(f"    {line}\n" for line in short[-40:]), end="")
    if again is not None:
        print(again[1])
    sys.stdout.flush()


def parsed():
    parser = argparse.ArgumentParser(description="Compares the console with the model.")
    parser.add_argument("console", metavar="CONSOLE")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--scripts", type=int, default=300)
    parser.add_argument("--seconds", type=float, help="stop after so long")
    parser.add_argument("--kind", help="only scripts of this kind")
    parser.add_argument("--sweeps", action="store_true", help="go through all tables instead")
    parser.add_argument("--keep", default="model-differences", metavar="FOLDER")
    parser.add_argument("--no-shrink", action="store_true", help="save no script, cut none down")
    parser.add_argument("--script", metavar="FILE", help="check one script")
    parser.add_argument("--going", type=int, default=1, metavar="N",
                        help="go on until so many different commands differ")
    arguments = parser.parse_args()
    arguments.console = os.path.abspath(arguments.console)
    return arguments


def check_file(arguments, wording):
    with open(arguments.script, encoding="utf-8", newline="\n") as file:
        lines = to_units(file.read()).split("\n")
    lines = lines[:-1] if lines[-1] == "" else lines
    first = check(arguments.console, lines, wording)
    if first is None:
        print("the script agrees")
        return 0
    print(f"line {first[0]}: {lines[first[0] - 1] if first[0] else 'the end'}\n{first[1]}")
    return 1


def trials(arguments, wording):
    """Name, kind, lines and expectation of each script to run."""
    if arguments.sweeps:
        for kind, lines in sweeps.scripts():
            yield "sweep", kind, lines, expect(lines, wording)
        for place, arabic, kind in sweeps.places_with_text():
            rng = random.Random(f"{place}{arabic}{kind}")
            typed = scripts.whole_text(rng, wording, place, arabic, kind)
            yield f"text{place[0]}-{place[1]}-{arabic}-{kind}", "whole text", *typed
        return
    for index in range(arguments.scripts):
        rng = random.Random(f"{arguments.seed}/{index}")
        yield f"seed{arguments.seed}-{index}", *scripts.make(rng, wording, arguments.kind)


def first_difference(arguments, count, lines, expectation):
    first = difference(expectation, run_console(arguments.console, lines))
    if first is None and arguments.sweeps and expectation.outcome != ENDED:
        return expectation.at, f"the sweep does not reach its end: {expectation.reason}"
    if first is None and count % THROUGH_PIPE == 1 and expectation.outcome == ENDED:
        if not any(step.may_fail for step in expectation.steps):
            first = through_pipe(arguments.console, lines, expectation)
    return first


def main():
    arguments = parsed()
    wording = wording_of(arguments.console)
    if arguments.script:
        return check_file(arguments, wording)
    wrong = list(wording_differences(wording))
    for line in wrong:
        print(line)
    started = time.monotonic()
    marks = set()
    count = lines_run = 0
    for name, kind, lines, expectation in trials(arguments, wording):
        if arguments.seconds and time.monotonic() - started > arguments.seconds:
            break
        count += 1
        lines_run += len(lines)
        first = first_difference(arguments, count, lines, expectation)
        if first is None:
            continue
        mark = mark_of(lines, first)
        if mark not in marks:
            marks.add(mark)
            report(arguments, name, kind, lines, first, wording)
        if len(marks) >= arguments.going:
            break
    verdict = "agree" if not marks and not wrong else f"differ in {len(marks) + len(wrong)} ways"
    origin = "sweeps" if arguments.sweeps else f"seed {arguments.seed}"
    print(f"{count} scripts, {lines_run} lines, {origin}: console and model {verdict} "
          f"({time.monotonic() - started:.1f} s)")
    return 1 if marks or wrong else 0


if __name__ == "__main__":
    sys.exit(main())
