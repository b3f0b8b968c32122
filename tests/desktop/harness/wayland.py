"""The same machine with a Wayland desktop on its screen. The compositor is one that draws into a
window of the X server and takes that server's keys, pointer and keyboard map."""
import pathlib
import socket

from harness import case, keys, screen
from harness.machine import SCREEN
from harness.visitor import centre
from harness.waiting import wait_until

_SOCKET = "wayland-under-test"


def _answers(address):
    with socket.socket(socket.AF_UNIX) as client:
        return client.connect_ex(str(address)) == 0


class WaylandTest(case.DesktopTest):
    """A person before the Wayland desktop. Nothing of the X server is known to the program."""

    def begin(self, machine, **preferences):
        super().begin(machine, **preferences)
        self.compositor = None

    def end(self):
        super().end()
        if self.compositor is not None:
            self.compositor.kill()
            self.compositor.wait()
            self.machine.environment = self._environment

    def start_desktop(self, layout):
        """The desktop with an input language, which it keeps."""
        self.keyboard.use_map(layout)
        width, height = SCREEN
        config = self.machine.scratch / "compositor.ini"
        config.write_text("[shell]\npanel-position=none\n")
        with open(self.machine.scratch / "compositor.log", "wb") as log:
            self.compositor = self.machine.run(
                ["weston", "--backend=x11-backend.so", "--use-pixman", f"--width={width}",
                 f"--height={height}", "--shell=desktop-shell.so", f"--socket={_SOCKET}",
                 "--idle-time=0", f"--config={config}"], stdout=log, stderr=log)
        self._environment = self.machine.environment
        address = pathlib.Path(self._environment["XDG_RUNTIME_DIR"]) / _SOCKET
        wait_until(lambda: _answers(address), "the compositor runs")
        self.machine.environment = dict(self._environment, WAYLAND_DISPLAY=_SOCKET,
                                        QT_WAYLAND_DISABLE_WINDOWDECORATION="1")
        for name in ("DISPLAY", "QT_QPA_PLATFORM"):
            del self.machine.environment[name]

    def find_on_screen(self, window):
        """The corner of a window with a black frame."""
        _, _, width, height = window.place
        blue = self.machine.pixels(0, 0, *SCREEN)[0::4]
        line = b"\0" * width
        for top in range(SCREEN[1] - height + 1):
            row = blue[top * SCREEN[0]:(top + 1) * SCREEN[0]]
            left = row.find(line)
            bottom = (top + height - 1) * SCREEN[0] + left
            if left >= 0 and blue[bottom:bottom + width] == line:
                return left, top
        return None

    def click(self, node):
        """No window knows here where on the screen it is, but for the one that fills it. The
        others' buttons are pressed by assistive technology, and Space stands for a click on a bare
        one."""
        window = next(window for window in self.program.windows() if window.has(screen.ACTIVE))
        if window.place[2:] == SCREEN:
            self.pointer.click(*centre(node))
        elif node == window:
            self.keyboard.tap(keys.SPACE)
        else:
            node.do()
