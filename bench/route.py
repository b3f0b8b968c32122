"""A way through the program, found once with the eyes of assistive technology and gone again
without them, as most people have it: what assistive technology costs is not measured with the
rest."""
import time

from Xlib import X

PEACE = 0.15  # seconds without drawing, after which a window is complete
PATIENCE = 8.0


class Route:
    """The keys and clicks of a way. Some of them open a window that has been named."""

    def __init__(self):
        self.steps = []
        self._opens = None

    def opens(self, window):
        """The next step opens this window."""
        self._opens = window

    def add(self, act):
        self.steps.append((act, self._opens))
        self._opens = None


class RecordingKeyboard:
    """Taps as the keyboard does and notes what it taps."""

    def __init__(self, keyboard, route):
        self._keyboard = keyboard
        self._route = route

    def tap(self, place, *held):
        self._route.add(lambda: self._keyboard.tap(place, *held))
        self._keyboard.tap(place, *held)

    def __getattr__(self, name):
        return getattr(self._keyboard, name)


class RecordingPointer:
    def __init__(self, pointer, route):
        self._pointer = pointer
        self._route = route

    def click(self, x, y):
        # The pointer is there before the click: what lights up under it is not the answer.
        self._route.add(lambda: self._pointer.move(x, y))
        self._route.add(lambda: self._pointer.click(x, y))
        # Named windows are opened by the click, not by the way to it.
        (move, opened), (click, _) = self._route.steps[-2:]
        self._route.steps[-2:] = [(move, None), (click, opened)]
        self._pointer.click(x, y)

    def __getattr__(self, name):
        return getattr(self._pointer, name)


def active_title(display):
    """The title of the window that has the keyboard."""
    root = display.screen().root
    active = root.get_full_property(display.intern_atom("_NET_ACTIVE_WINDOW"), X.AnyPropertyType)
    if active is None or not active.value[0]:
        return ""
    window = display.create_resource_object("window", active.value[0])
    title = window.get_full_property(display.intern_atom("_NET_WM_NAME"), X.AnyPropertyType)
    return title.value.decode() if title is not None else ""


def go(route, camera):
    """Goes the way again. Yields each window that a step has opened and the seconds from the step
    to the last of the window's pixels."""
    for act, opened in route.steps:
        camera.wait_for_peace(PEACE)
        begun = time.perf_counter()
        act()
        if opened is not None:
            last = camera.watch(PEACE, PATIENCE)
            if last is None:
                raise AssertionError(f"{opened} did not open")
            yield opened, last - begun
    camera.wait_for_peace(PEACE)
