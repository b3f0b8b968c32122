#!/usr/bin/python3
"""Measures from a key to its pixels in the real window, on a virtual screen of 1280 by 1024.

usage: key-to-pixels.py PROGRAM SOUNDS

PROGRAM is the keyfluent to measure, SOUNDS the folder of its five sounds. A key event goes into the
X server, and the time runs until the server has taken the last of what the program draws in answer.
The exercise is the one with the most rows and keys of the course, with all its aids on; assistive
technology finds the way into it and is switched off then, as most people have it."""
import collections
import os
import pathlib
import select
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "desktop"))

from Xlib import X  # noqa: E402
from Xlib.ext import damage, xtest  # noqa: E402

from harness import keys, machine, screen  # noqa: E402
from harness.files import StudentFile  # noqa: E402
from harness.visitor import Visitor  # noqa: E402
from harness.waiting import let_pass  # noqa: E402

LESSON, EXERCISE = 12, 1
AIDS = ("Hands", "Counter", "Clock Timer")

KEYS = 300
SPACING = 0.070  # seconds from one measured key to the next
SETTLED = 0.005  # seconds without drawing, after which an answer is complete
BURST, BURST_SPACING = 60, 0.025
LATEST = 1.0  # seconds after which a key has had no answer


class Camera:
    """Sees what is drawn in a window, and where, as soon as it is on the screen."""

    def __init__(self, connection, window, field):
        self._display = connection
        self._field = field
        self._seen = collections.deque()
        self._display.damage_query_version()
        window.damage_create(damage.DamageReportRawRectangles)
        self._display.sync()

    def next_drawing(self, until):
        """The moment of the next drawing and whether it was in the field, or None when the time
        until then passes without one."""
        while not self._seen:
            self._take_events()
            left = until - time.perf_counter()
            if self._seen or left <= 0:
                break
            select.select([self._display.fileno()], [], [], left)
        return self._seen.popleft() if self._seen else None

    def forget(self):
        self._take_events()
        self._seen.clear()

    def _take_events(self):
        moment = time.perf_counter()
        for _ in range(self._display.pending_events()):
            event = self._display.next_event()
            if event.type == self._display.extension_event.DamageNotify:
                self._seen.append((moment, self._is_in_field(event.area)))

    def _is_in_field(self, area):
        left, top, width, height = self._field
        return (area.x < left + width and left < area.x + area.width and
                area.y < top + height and top < area.y + area.height)


class Measurer(Visitor):
    def go(self, here):
        here.eyes = screen.Eyes(here)
        here.eyes.switch_on()
        self.begin(here)
        self.folder.put_student("Layla", StudentFile(reached_windows=LESSON))
        self.sign_in("Layla")
        self.lesson = self.open_exercise(EXERCISE, arabic=False, aids=AIDS)
        here.eyes.switch_off()
        window = self.window_under_keyboard()
        left, top, _, _ = self.lesson.window.place
        x, y, width, height = self.lesson.copy.place
        self.camera = Camera(here.display, window, (x - left, y - top, width, height))
        self.places = self.next_keys()
        self.report("first keys", [self.measure_key() for _ in range(KEYS)])
        self.report_burst()
        self.report("last keys", [self.measure_key() for _ in range(KEYS)])
        self.end()

    def window_under_keyboard(self):
        display = self.machine.display
        active = display.screen().root.get_full_property(
            display.intern_atom("_NET_ACTIVE_WINDOW"), X.AnyPropertyType)
        return display.create_resource_object("window", active.value[0])

    def next_keys(self):
        """The places of the keys to come, row by row. The row is read when its first key is due."""
        while True:
            for character in self.lesson.origin.text:
                place, shift = keys.ENGLISH[character]
                assert not shift, "a key for each character"
                yield place

    def send_key(self):
        place = next(self.places)
        display = self.machine.display
        xtest.fake_input(display, X.KeyPress, place)
        xtest.fake_input(display, X.KeyRelease, place)
        sent_at = time.perf_counter()
        display.flush()
        return sent_at

    def measure_key(self):
        """Seconds from a key to the last drawing of its answer, which is that in the field of the
        copy and what comes with it."""
        self.camera.forget()
        sent_at = self.send_key()
        answered = None
        until = sent_at + LATEST
        while (seen := self.camera.next_drawing(until)) is not None:
            moment, in_field = seen
            if in_field or answered is not None:
                answered = moment
                until = moment + SETTLED
        assert answered is not None, "a key without an answer"
        let_pass(max(sent_at + SPACING - time.perf_counter(), 0))
        return answered - sent_at

    def report_burst(self):
        """A fast typist: how long after the last key all is on the screen."""
        start = time.perf_counter()
        for number in range(BURST):
            while self.camera.next_drawing(start + number * BURST_SPACING) is not None:
                pass
            sent_at = self.send_key()
        answered = None
        while (seen := self.camera.next_drawing(sent_at + LATEST)) is not None:
            moment, in_field = seen
            if in_field:
                answered = moment
        assert answered is not None, "the last key without an answer"
        print(f"burst of {BURST} keys at {1 / BURST_SPACING:.0f} a second: the last is shown after "
              f"{1000 * (answered - sent_at):.2f} ms")

    @staticmethod
    def report(what, seconds):
        cuts = statistics.quantiles(seconds, n=100, method="inclusive")
        print(f"{what}, {len(seconds)}: median {1000 * statistics.median(seconds):.2f} ms, "
              f"95th percentile {1000 * cuts[94]:.2f} ms, 99th {1000 * cuts[98]:.2f} ms, "
              f"worst {1000 * max(seconds):.2f} ms")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    machine.isolate()
    os.environ["KEYFLUENT_PROGRAM"], os.environ["KEYFLUENT_SOUNDS"] = sys.argv[1:]
    here = machine.Machine()
    del here.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
    Measurer().go(here.start())


if __name__ == "__main__":
    main()
