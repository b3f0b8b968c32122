#!/usr/bin/python3
"""Measures the speed, the memory and the rest of the program, and prints the figures.

usage: measure.py BUILD [SECTION ...]

BUILD is the folder of a release build with KEYFLUENT_BENCH, as the preset `release` makes it.
Sections: core, keys, windows, idle; all of them without a word. The windows run on a virtual screen
of 1280 by 1024 without a graphics card. docs/performance.md tells what the figures mean."""
import json
import os
import pathlib
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "desktop"))

from Xlib import X  # noqa: E402
from Xlib.ext import xtest  # noqa: E402

import route  # noqa: E402
from camera import Camera  # noqa: E402
from harness import keys, machine, screen  # noqa: E402
from harness.files import StudentFile  # noqa: E402
from harness.program import Folder, Program  # noqa: E402
from harness.visitor import Visitor, showing  # noqa: E402

NAME = "Layla"
LONGEST = 12, 1  # the exercise with the most rows and keys
PASSAGE = 15, 1
FREE_TEXT = 12, 4
AIDS = ("Hands", "Counter", "Clock Timer")

KEYS = 300
SPACING = 0.070  # seconds from one measured key to the next
SETTLED = 0.005  # seconds without drawing, after which an answer is complete
LATEST = 1.0  # seconds after which a key has had no answer
BURST, BURST_SPACING = 60, 0.025
QUICKLY = 0.004  # seconds between keys that are not measured
SEED, COPIES = "the quick brown fox jumps over the lazy dog and runs away ", (8, 8, 8)
FREE_CHARACTERS = len(SEED) * 8 ** 3  # the measured keys end below the limit of 30,000
STARTS = 7
IDLE = 20.0  # seconds


def in_ms(seconds):
    return f"{1000 * seconds:.2f} ms"


def report(what, seconds):
    cuts = statistics.quantiles(seconds, n=100, method="inclusive")
    print(f"{what}, {len(seconds)} keys: median {in_ms(statistics.median(seconds))}, "
          f"95th percentile {in_ms(cuts[94])}, 99th {in_ms(cuts[98])}, worst {in_ms(max(seconds))}",
          flush=True)


def rows_of(build, lesson, exercise):
    """The keys of the rows of an English exercise, from the console: a line end follows its own
    letter by itself."""
    answer = subprocess.run([build / "keyfluent-headless"],
                            input=f"set arabicExercise false\nrows 192 {lesson} {exercise}\n",
                            capture_output=True, text=True, check=True).stdout
    return [json.loads(line).replace("\r\n", "") for line in answer.splitlines()
            if line.startswith('"')]


class Bench:
    """The machine, and a program in it that assistive technology has never looked at."""

    def __init__(self, build):
        self.build = build
        self.machine = machine.Machine().start()
        self.machine.eyes = screen.Eyes(self.machine)
        self.camera = Camera(self.machine)
        self.program = None

    def find(self, way, student):
        """The route of a way, and the title of the window that it leads to."""
        found = route.Route()
        self.camera.look_everywhere()
        scout = Visitor()
        scout.begin(self.machine)
        scout.folder.put_student(NAME, student)
        scout.keyboard = route.RecordingKeyboard(self.machine.keyboard, found)
        scout.pointer = route.RecordingPointer(self.machine.pointer, found)
        way(scout, found.opens)
        self.camera.wait_for_peace(route.PEACE)
        title = route.active_title(self.machine.display)
        scout.end()
        return found, title

    def go(self, way, student):
        """Starts a program and goes a way. Answers the windows that it named and their times."""
        found, title = self.find(way, student)
        self.start(student)
        times = list(route.go(found, self.camera))
        reached = route.active_title(self.machine.display)
        if reached != title:
            raise AssertionError(f"{reached!r} instead of {title!r}")
        return times

    def start(self, student):
        """Starts a program as far as its splash. Answers the seconds to the opening picture."""
        folder = Folder(self.machine)
        folder.put_student(NAME, student)
        always = self.machine.environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON")
        self.machine.pointer.move(2, 2)
        self.camera.look_everywhere()
        self.camera.wait_for_peace(route.PEACE)
        begun = time.perf_counter()
        self.program = Program(self.machine, None, folder)
        first = self.camera.watch(route.PEACE, route.PATIENCE)
        self.camera.watch(route.PEACE, route.PATIENCE)
        self.machine.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = always
        return first - begun

    def end(self):
        self.program.kill()

    def memory(self):
        """The proportional memory of the program, in MiB."""
        told = pathlib.Path(f"/proc/{self.program.process.pid}/smaps_rollup").read_text()
        kib = next(line.split()[1] for line in told.splitlines() if line.startswith("Pss:"))
        return int(kib) / 1024

    def wakeups(self, seconds):
        """How often a second a thread of the program is woken."""
        before = self._switches()
        time.sleep(seconds)
        return (self._switches() - before) / seconds

    def _switches(self):
        tasks = pathlib.Path(f"/proc/{self.program.process.pid}/task").iterdir()
        lines = (line for task in tasks for line in (task / "status").read_text().splitlines())
        return sum(int(line.split()[1]) for line in lines
                   if line.startswith("voluntary_ctxt_switches"))


def into_exercise(place, aids=()):
    def way(visitor, opens):
        visitor.sign_in(NAME)
        visitor.open_exercise(place[1], arabic=False, aids=aids)
    return way


class Typist:
    """Types without waiting for anything but the clock."""

    def __init__(self, bench, characters):
        self._display = bench.machine.display
        self._camera = bench.camera
        self._characters = iter(characters)

    def send_key(self):
        place, shift = keys.ENGLISH[next(self._characters)]
        for key in [keys.LEFT_SHIFT] * shift:
            xtest.fake_input(self._display, X.KeyPress, key)
        if shift:  # the cap of the Shift key has its own answer
            self._display.flush()
            self._camera.watch_until(time.perf_counter() + SPACING / 2)
        xtest.fake_input(self._display, X.KeyPress, place)
        xtest.fake_input(self._display, X.KeyRelease, place)
        for key in [keys.LEFT_SHIFT] * shift:
            xtest.fake_input(self._display, X.KeyRelease, key)
        sent_at = time.perf_counter()
        self._display.flush()
        return sent_at

    def measure_key(self):
        """Seconds from a key to the last drawing of its answer."""
        self._camera.forget()
        sent_at = self.send_key()
        answered = self._camera.watch(SETTLED, LATEST)
        assert answered is not None, "a key without an answer"
        self._camera.watch_until(sent_at + SPACING)
        return answered - sent_at

    def measure(self, what, count=KEYS):
        report(what, [self.measure_key() for _ in range(count)])

    def measure_burst(self):
        """A fast typist: how long after the last key all is on the screen."""
        start = time.perf_counter()
        for number in range(BURST):
            self._camera.watch_until(start + number * BURST_SPACING)
            sent_at = self.send_key()
        answered = self._camera.watch(SETTLED, LATEST)
        assert answered is not None, "the last key without an answer"
        print(f"burst of {BURST} keys at {1 / BURST_SPACING:.0f} a second: the last is shown after "
              f"{in_ms(answered - sent_at)}", flush=True)

    def hurry(self, count):
        for _ in range(count):
            self.send_key()
            time.sleep(QUICKLY)
        self._camera.wait_for_peace(route.PEACE)


def measure_core(bench):
    told = subprocess.run([bench.build / "bench" / "keyfluent-bench", "--benchmark_format=json"],
                          capture_output=True, text=True, check=True).stdout
    for result in json.loads(told)["benchmarks"]:
        print(f"core, {result['name']}: {result['items_per_second'] / 1e6:.2f} million keys "
              "a second", flush=True)


def field_of_copy(bench):
    """Where the copy stands in the exercise's window of 800 by 600 pixels in the screen's middle."""
    width, height = machine.SCREEN
    left, top = (width - 800) // 2, (height - 600) // 2
    return left, top, 800, 110  # the model above it and the copy


def measure_keys(bench):
    lesson, _ = LONGEST
    bench.go(into_exercise(LONGEST, AIDS), StudentFile(reached_windows=lesson))
    bench.camera.look_at(field_of_copy(bench))
    characters = "".join(rows_of(bench.build, *LONGEST))
    typist = Typist(bench, characters)
    typist.measure("longest exercise, first keys")
    typist.measure_burst()
    typist.hurry(len(characters) - 2 * KEYS - BURST - 1)
    typist.measure("longest exercise, last keys")
    print(f"memory in the exercise: {bench.memory():.1f} MiB", flush=True)
    bench.end()

    lesson, _ = PASSAGE
    bench.go(into_exercise(PASSAGE), StudentFile(reached_windows=lesson))
    typist = Typist(bench, "".join(rows_of(bench.build, *PASSAGE)))
    typist.measure("lesson 15")
    bench.end()

    lesson, _ = FREE_TEXT
    bench.go(into_free_text, StudentFile(reached_windows=lesson))
    typist = Typist(bench, "quick brown foxes jump over the lazy dog " * 100)
    typist.measure(f"free text of {FREE_CHARACTERS:,} characters")
    bench.end()


def into_free_text(visitor, opens):
    """Writes a text and doubles it by the clipboard until it is long."""
    visitor.sign_in(NAME)
    visitor.start_exercise(FREE_TEXT[1], arabic=False)
    window = visitor.window_with("push button", visitor.word("break"))
    visitor.type(SEED, keys.ENGLISH)
    for copies in COPIES:
        visitor.keyboard.tap(keys.A, keys.LEFT_CTRL)
        visitor.keyboard.tap(keys.C, keys.LEFT_CTRL)
        visitor.keyboard.tap(keys.END)
        for _ in range(copies - 1):
            visitor.keyboard.tap(keys.V, keys.LEFT_CTRL)
    visitor.program.wait(lambda: any(len(field.text) == FREE_CHARACTERS
                                     for field in showing(window, "text")), "the long text")


def through_windows(visitor, opens):
    """Opens one window after the other, each by a key or a click."""
    v = visitor
    v.program = v.start()
    v.window_with("graphic", "KeyFluent")
    opens("the question for the name")
    v.keyboard.tap(keys.SPACE)
    v.window_with("push button", v.word("cancel"))
    v.type(NAME, keys.ENGLISH)
    opens("the greeting")
    v.click_button("ok")
    greeting = v.window_with("push button", v.word("ok"))
    v.program.wait(lambda: not greeting.has(screen.SHOWING) or
                   not [node for node in greeting.children() if node.role == "text"], "the greeting")
    opens("the main window")
    v.click(v.control(greeting, "push button", v.word("ok")))
    v.main_window()

    def by_menu(menu, item, window, role, control):
        bar = v.control(v.main_window(), "menu bar")
        title = v.control(bar, "menu item", menu)
        opens(f"the menu {menu}")
        v.click(title)
        popup = title.children()[0]
        v.program.wait(lambda: popup.has(screen.SHOWING), menu)
        opens(window)
        v.click(v.control(popup, "menu item", item))
        return v.window_with(role, control)

    by_menu("File", "Preferences", "the preferences", "push button", "Cancel")
    v.click_button("cancel")
    by_menu("Recommendation", "", "a recommendation", "push button", "Thanks")
    recommendation = v.window_with("push button", "Thanks")
    v.click(v.control(recommendation, "push button", "Thanks"))
    note = by_menu("Lessons", "2- ", "a lesson's note", "push button", "Thanks")
    opens("a picture")
    v.click(v.control(note, "push button", "Thanks"))
    v.click(v.program.wait_for_window(
        lambda window: window.has(screen.ACTIVE) and showing(window, "graphic") and
        not showing(window, "push button"), "a picture"))
    exercises = v.control(v.main_window(), "push button", v.word("exercises"))
    opens("the exercises")
    v.click(exercises)
    chooser = v.window_with("label", v.word("passing"))
    button, _, _ = v.exercise_row(chooser, 1, False)
    opens("the options")
    v.click(button)
    options = v.window_with("push button", v.word("continue"))
    opens("an exercise")
    v.click(v.control(options, "push button", v.word("continue")))
    window = v.window_with("push button", v.word("break"))
    opens("the note of a stop")
    v.click(v.control(window, "push button", v.word("stop")))


def measure_windows(bench):
    student = StudentFile(reached_windows=3)
    starts = []
    for _ in range(STARTS):
        starts.append(bench.start(student))
        bench.end()
    print(f"start to the opening picture, {STARTS} times: median "
          f"{in_ms(statistics.median(starts))}, worst {in_ms(max(starts))}", flush=True)
    for window, seconds in bench.go(through_windows, student):
        print(f"{window} is open after {in_ms(seconds)}", flush=True)
    bench.end()


def measure_idle(bench):
    student = StudentFile(reached_windows=LONGEST[0])
    bench.go(lambda visitor, opens: visitor.sign_in(NAME), student)
    print(f"memory after signing in: {bench.memory():.1f} MiB", flush=True)
    print(f"wake-ups in the main window: {bench.wakeups(IDLE):.2f} a second", flush=True)
    bench.end()
    bench.go(into_exercise(LONGEST, AIDS), student)
    print(f"memory in an exercise: {bench.memory():.1f} MiB", flush=True)
    print(f"wake-ups in an exercise that waits: {bench.wakeups(IDLE):.2f} a second", flush=True)
    bench.end()


SECTIONS = {"core": measure_core, "keys": measure_keys, "windows": measure_windows,
            "idle": measure_idle}


def main():
    if len(sys.argv) < 2 or not set(sys.argv[2:]) <= set(SECTIONS):
        sys.exit(__doc__)
    machine.isolate()
    build = pathlib.Path(sys.argv[1]).resolve()
    os.environ["KEYFLUENT_PROGRAM"] = str(build / "keyfluent")
    os.environ["KEYFLUENT_SOUNDS"] = str(build / "installation" / "sounds")
    bench = Bench(build)
    for section in sys.argv[2:] or SECTIONS:
        SECTIONS[section](bench)


if __name__ == "__main__":
    main()
