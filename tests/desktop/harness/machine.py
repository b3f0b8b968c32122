"""A virtual screen with a window manager, a session bus with assistive technology, a keyboard and a
pointer. Everything is started for one run and ended with it."""
import atexit
import ctypes
import os
import pathlib
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import zlib

from Xlib import X, display
from Xlib.error import ConnectionClosedError
from Xlib.ext import xtest

from harness.waiting import wait_until

SCREEN = (1280, 1024)
_ISOLATED = "KEYFLUENT_TEST_ISOLATED"
_OWN_SOCKETS = """
mkdir -p -m 1777 /tmp/.X11-unix && mount -t tmpfs -o mode=1777 none /tmp/.X11-unix && exec "$@"
"""
_DIE_WITH_PARENT = 1  # PR_SET_PDEATHSIG

# No key of the window manager's own: every key belongs to the program. The Wayland desktop covers
# the screen.
_WINDOW_MANAGER = """<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
<focus><focusNew>yes</focusNew></focus>
<keyboard></keyboard>
<theme><keepBorder>no</keepBorder></theme>
<applications><application class="Weston*"><decor>no</decor>
<position force="yes"><x>0</x><y>0</y></position></application></applications>
</openbox_config>
"""


def isolate():
    """Starts this script again with a network and mounts of its own where the system allows it, so
    that a KeyFluent that runs on the machine already does not refuse the one under test (it holds
    its one instance by a name in the network), and small disks can be made. The virtual screens'
    sockets are kept apart too: servers that do not see each other would choose the same number."""
    if _ISOLATED in os.environ:
        return
    command = ["unshare", "--net", "--mount"]
    if os.geteuid() != 0:
        command += ["--user", "--map-root-user"]
    command += ["sh", "-c", _OWN_SOCKETS, "sh"]
    try:
        allowed = subprocess.run([*command, "true"], capture_output=True).returncode == 0
    except FileNotFoundError:
        allowed = False
    os.environ[_ISOLATED] = "yes" if allowed else "no"
    if allowed:
        os.execvp(command[0], [*command, sys.executable, "-B", *sys.argv])


def is_isolated():
    return os.environ.get(_ISOLATED) == "yes"


def is_superuser():
    """Of the whole machine, not only of a view of it that stands for one ordinary user."""
    with open("/proc/self/uid_map", encoding="ascii") as users:
        return os.geteuid() == 0 and users.read().split()[2] == str(2**32 - 1)


def forget_isolation(environment):
    """A script started with this environment isolates itself anew."""
    environment.pop(_ISOLATED, None)


def _end_with_parent():
    ctypes.CDLL(None).prctl(_DIE_WITH_PARENT, signal.SIGKILL)


class Machine:
    def __init__(self, size=SCREEN):
        self.size = size
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="keyfluent-desktop-"))
        self._processes = []
        self._groups = []
        self.environment = self._clean_environment()
        self.display = None

    def start(self):
        atexit.register(self.stop)
        self._start_screen()
        self.keyboard = Keyboard(self)
        self.pointer = Pointer(self.display)
        self._start_window_manager()
        self._start_bus()
        return self

    def stop(self):
        self._close_display()
        for group in self._groups:
            try:
                os.killpg(group, signal.SIGKILL)
            except ProcessLookupError:
                pass
        for process in reversed(self._processes):
            with process:  # closes its pipes and waits for it
                process.kill()
        self._processes.clear()
        self._groups.clear()
        shutil.rmtree(self.scratch, ignore_errors=True)

    def _close_display(self):
        if self.display is not None:
            try:
                self.display.close()
            except ConnectionClosedError:
                pass  # the screen is gone already
            self.display = None

    def run(self, arguments, **options):
        """Starts a process of this machine that ends with the test at the latest."""
        process = subprocess.Popen(arguments, env=self.environment, stdin=subprocess.DEVNULL,
                                   preexec_fn=_end_with_parent, **options)
        self._processes.append(process)
        return process

    def picture(self, file):
        """A screenshot as a PNG."""
        width, height = self.size
        pixels = self.pixels(0, 0, width, height)
        rows = bytearray()
        for y in range(height):
            line = pixels[y * width * 4:(y + 1) * width * 4]
            row = bytearray(width * 3)
            row[0::3], row[1::3], row[2::3] = line[2::4], line[1::4], line[0::4]
            rows += b"\0" + row
        def chunk(kind, body):
            checked = kind + body
            return struct.pack(">I", len(body)) + checked + struct.pack(">I", zlib.crc32(checked))
        header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
        pathlib.Path(file).write_bytes(
            b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
            chunk(b"IDAT", zlib.compress(bytes(rows), 6)) + chunk(b"IEND", b""))

    def pixels(self, left, top, width, height):
        """The screen's pixels there, four bytes each: blue, green, red, nothing."""
        root = self.display.screen().root
        return root.get_image(left, top, width, height, X.ZPixmap, 0xFFFFFFFF).data

    def _clean_environment(self):
        kept = {name: value for name, value in os.environ.items()
                if name in ("PATH", "LD_LIBRARY_PATH") or name.startswith(("ASAN_", "UBSAN_"))}
        for folder in ("home", "run"):
            (self.scratch / folder).mkdir(mode=0o700)
        kept.update(HOME=str(self.scratch / "home"), XDG_RUNTIME_DIR=str(self.scratch / "run"),
                    LANG="C.UTF-8", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
        return kept

    def _start_screen(self):
        number, told = os.pipe()
        width, height = self.size
        with open(self.scratch / "screen.log", "wb") as log:
            self.run(["Xvfb", "-displayfd", str(told), "-screen", "0", f"{width}x{height}x24",
                      "-nolisten", "tcp", "-noreset"], pass_fds=(told,), stdout=log, stderr=log)
        os.close(told)
        with os.fdopen(number) as pipe:
            answer = pipe.readline().strip()
        if not answer:
            raise RuntimeError("Xvfb did not start: " +
                               (self.scratch / "screen.log").read_text(errors="replace"))
        self.environment["DISPLAY"] = f":{answer}"
        self.display = display.Display(f":{answer}")

    def _start_window_manager(self):
        config = self.scratch / "window-manager.xml"
        config.write_text(_WINDOW_MANAGER)
        self.run(["openbox", "--config-file", str(config)], stdout=subprocess.DEVNULL,
                 stderr=subprocess.DEVNULL)
        root = self.display.screen().root
        manages = self.display.intern_atom("_NET_SUPPORTING_WM_CHECK")
        wait_until(lambda: root.get_full_property(manages, X.AnyPropertyType),
                   "the window manager runs")

    def _start_bus(self):
        address = f"unix:path={self.scratch / 'run' / 'bus'}"
        bus = self.run(["dbus-daemon", "--session", "--nofork", "--nopidfile",
                        f"--address={address}", "--print-address=1"],
                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, start_new_session=True)
        self._groups.append(bus.pid)
        if not bus.stdout.readline():
            raise RuntimeError("the session bus did not start")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address


class Keyboard:
    """Keys are known by their place: the numbers are those that the X server gives the places."""

    def __init__(self, machine):
        self._machine = machine
        self._display = machine.display
        self._held = set()
        # A test that a busy machine holds up must not repeat a key by that.
        self._display.change_keyboard_control(auto_repeat_mode=X.AutoRepeatModeOff)
        self._display.sync()

    def use_map(self, layout):
        """us, ara, fr: the desktop's input language."""
        # A server that has only just begun may not take a map yet.
        wait_until(lambda: self._set_map(layout), f"the keyboard map {layout}")

    def _set_map(self, layout):
        return subprocess.run(["setxkbmap", layout], env=self._machine.environment, check=False,
                              stderr=subprocess.DEVNULL).returncode == 0

    def press(self, place):
        self._held.add(place)
        self._send(X.KeyPress, place)

    def release(self, place):
        self._held.discard(place)
        self._send(X.KeyRelease, place)

    def tap(self, place, *held):
        """Presses and releases a key while the others are held."""
        for other in held:
            self.press(other)
        self.press(place)
        self.release(place)
        for other in reversed(held):
            self.release(other)

    def caps_lock_is_on(self):
        mask = self._display.screen().root.query_pointer().mask
        return bool(mask & X.LockMask)

    def let_go(self, caps_lock_place):
        """The keyboard as it was at the start, whatever a failed test left."""
        for place in list(self._held):
            self.release(place)
        if self.caps_lock_is_on():
            self.tap(caps_lock_place)

    def _send(self, event, place):
        xtest.fake_input(self._display, event, place)
        self._display.sync()


class Pointer:
    def __init__(self, connection):
        self._display = connection

    def move(self, x, y):
        self._send(X.MotionNotify, 0, x, y)

    def press(self):
        self._send(X.ButtonPress, 1)

    def release(self):
        self._send(X.ButtonRelease, 1)

    def click(self, x, y):
        self.move(x, y)
        self.press()
        self.release()

    def turn_wheel_up(self):
        self._send(X.ButtonPress, 4)
        self._send(X.ButtonRelease, 4)

    def _send(self, event, detail, x=0, y=0):
        xtest.fake_input(self._display, event, detail, x=x, y=y)
        self._display.sync()
