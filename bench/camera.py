"""Sees what is drawn on a virtual screen, where and when.

The events are stamped as they come and read afterwards: a measurer that reads while it waits would
measure itself."""
import os
import select
import struct
import time

from Xlib import display
from Xlib.ext import damage

_EVENT = struct.Struct("=BBHIIIhhHHhhHH")  # a DamageNotify
_IS_SENT = 0x80


class Camera:
    """Times are in seconds, moments are those of time.perf_counter()."""

    def __init__(self, machine):
        self._display = display.Display(machine.environment["DISPLAY"])
        screen = self._display.screen()
        self._everywhere = (0, 0, screen.width_in_pixels, screen.height_in_pixels)
        self._field = self._everywhere
        self._display.damage_query_version()
        screen.root.damage_create(damage.DamageReportRawRectangles)
        self._display.sync()
        self._kind = self._display.extension_event.DamageNotify

    def look_at(self, field):
        """Only drawing in this rectangle (left, top, width, height) is an answer from here on."""
        self._field = field

    def look_everywhere(self):
        self._field = self._everywhere

    def forget(self):
        """What has been drawn so far is of no interest."""
        while self._wait(0):
            self._read()

    def watch(self, settled, latest):
        """The moment of the last drawing of an answer, which begins in the field and ends when
        nothing has been drawn for the settled time; None when it has not begun in the latest
        time."""
        last = None
        until = time.perf_counter() + latest
        while self._wait(until - time.perf_counter()):
            moment = time.perf_counter()
            if self._shows_field(self._read()) or last is not None:
                last = moment
                until = moment + settled
        return last

    def watch_until(self, until):
        """The moment of the last drawing in the field, up to a moment; None without one."""
        last = None
        while self._wait(until - time.perf_counter()):
            moment = time.perf_counter()
            if self._shows_field(self._read()):
                last = moment
        return last

    def wait_for_peace(self, seconds):
        """Until nothing has been drawn for so long."""
        while self._wait(seconds):
            self._read()

    def _wait(self, seconds):
        return bool(select.select([self._display.fileno()], [], [], max(seconds, 0))[0])

    def _read(self):
        return os.read(self._display.fileno(), 1 << 20)

    def _shows_field(self, events):
        left, top, across, down = self._field
        whole = len(events) // _EVENT.size * _EVENT.size
        for event in _EVENT.iter_unpack(events[:whole]):
            x, y, width, height = event[6:10]
            if (event[0] & ~_IS_SENT == self._kind and x < left + across and left < x + width and
                    y < top + down and top < y + height):
                return True
        return False
