#!/usr/bin/python3
"""Starts an installed KeyFluent as an ordinary user in a tree of its own, on a virtual screen, signs a
student in, looks at the windows, leaves, and checks what the user's folder holds then.

usage: start-installed.py TREE COMMAND arabic|english PICTURE.png

COMMAND is what the user types, in the tree, whose user "student" exists. The program must not need
anything of this machine but the screen.
"""
import os
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests" / "desktop"))

from harness import files, keys  # noqa: E402
from harness import machine as machines  # noqa: E402
from harness.waiting import wait_until  # noqa: E402
from Xlib import X  # noqa: E402
from Xlib.protocol import event  # noqa: E402

FOLDER = "home/student/.local/share/KeyFluent"
SOUNDS = ["Back.wav", "caps.wav", "char.wav", "enter.wav", "space.wav"]
TITLES = {"english": "Zen Orchard KeyFluent 1.0", "arabic": "زن أورتشارد كي فلونت 1.0"}


def expect(condition, what):
    if not condition:
        sys.exit(f"start-installed: {what}")


class Visit:
    def __init__(self, tree, command, language):
        self.tree = pathlib.Path(tree)
        self.machine = machines.Machine().start()
        self.machine.keyboard.use_map("us")
        self.display = self.machine.display
        self.root = self.display.screen().root
        self.seen = set()
        self.process = self._start(command, "ar_EG.UTF-8" if language == "arabic" else "C.UTF-8")

    def _start(self, command, language):
        sockets = self.tree / "tmp/.X11-unix"
        sockets.mkdir(exist_ok=True)
        subprocess.run(["mount", "--bind", "/tmp/.X11-unix", sockets], check=True)
        user = subprocess.run(["chroot", self.tree, "id", "-u", "student"], check=True, text=True,
                              capture_output=True).stdout.strip()
        environment = {"HOME": "/home/student", "PATH": "/usr/local/bin:/usr/bin:/bin",
                       "LANG": language, "DISPLAY": self.machine.environment["DISPLAY"]}
        settings = [f"{name}={value}" for name, value in environment.items()]
        self.log = self.machine.scratch / "said"
        with open(self.log, "wb") as log:
            return self.machine.run(
                ["chroot", f"--userspec={user}:{user}", self.tree, "env", "-i", *settings, "sh",
                 "-c", f"cd && exec {command}"], stdout=log, stderr=log)

    def said(self):
        return self.log.read_text(errors="replace")

    def _active(self):
        told = self.root.get_full_property(self.display.intern_atom("_NET_ACTIVE_WINDOW"),
                                           X.AnyPropertyType)
        return told.value[0] if told is not None else 0

    def next_window(self, what):
        """The window that has the keyboard now and was not there before."""
        def found():
            expect(self.process.poll() is None, f"the program ended before {what}:\n{self.said()}")
            active = self._active()
            return active if active and active not in self.seen else None
        number = wait_until(found, f"{what}\n{self.said()}")
        self.seen.add(number)
        return self.display.create_resource_object("window", number)

    def title(self, window):
        name = window.get_full_property(self.display.intern_atom("_NET_WM_NAME"),
                                        X.AnyPropertyType)
        return name.value.decode() if name is not None else ""

    def colours(self, window):
        """How many different pixels the window shows."""
        place = window.get_geometry()
        corner = window.translate_coords(self.root, 0, 0)
        left, top = max(-corner.x, 0), max(-corner.y, 0)
        width = min(place.width, machines.SCREEN[0] - left)
        height = min(place.height, machines.SCREEN[1] - top)
        pixels = self.machine.pixels(left, top, width, height)
        return len({pixels[i:i + 3] for i in range(0, len(pixels), 4)})

    def wait_for_picture(self, window, what):
        wait_until(lambda: self.colours(window) > 50, f"{what} shows a picture")

    def close(self, window):
        protocols = self.display.intern_atom("WM_PROTOCOLS")
        delete = self.display.intern_atom("WM_DELETE_WINDOW")
        window.send_event(event.ClientMessage(window=window, client_type=protocols,
                                              data=(32, [delete, X.CurrentTime, 0, 0, 0])))
        self.display.sync()

    def tap(self, place):
        self.machine.keyboard.tap(place)

    def go_through(self, language, picture):
        opening = self.next_window("the opening picture")
        self.wait_for_picture(opening, "the opening picture")
        self.check_menu_entry(opening)
        splash = self.next_window("the splash")
        self.wait_for_picture(splash, "the splash")
        self.tap(keys.SPACE)
        self.next_window("the question for the name")
        for letter in "layla":
            self.tap(keys.ENGLISH[letter][0])
        self.tap(keys.RETURN)
        self.next_window("the greeting")
        self.tap(keys.RETURN)
        main = self.next_window("the main window")
        self.wait_for_picture(main, "the main window")
        expect(self.title(main) == TITLES[language], f"the main window says {self.title(main)!r}")
        self.machine.picture(picture)
        self.close(main)
        self.next_window("the question whether to save")
        self.tap(keys.RETURN)
        self.next_window("the farewell")
        self.tap(keys.RETURN)
        wait_until(lambda: self.process.poll() is not None, f"the program ends\n{self.said()}")
        expect(self.process.returncode == 0, f"status {self.process.returncode}\n{self.said()}")

    def check_menu_entry(self, window):
        """A desktop tells by these names which entry of its menu a window belongs to."""
        entry = (HERE / "desktop" / "keyfluent.desktop").read_text(encoding="utf-8")
        _, program = window.get_wm_class()
        expect(f"StartupWMClass={program}\n" in entry, f"the window is of class {program}")

    def check_folder(self, language):
        folder = self.tree / FOLDER
        names = sorted(str(path.relative_to(folder)) for path in folder.rglob("*"))
        wanted = sorted(SOUNDS + [files.PREFERENCES, "keyfluent", "Students", "Students/layla.W"])
        expect(names == wanted, f"the folder holds {names}")
        expect(all(path.lstat().st_uid == folder.stat().st_uid != 0 for path in folder.rglob("*")),
               "not every file is the user's")
        data = (folder / "Students/layla.W").read_bytes()
        expect(data == files.StudentFile().bytes(), "the student's file is not a new student's")
        prepared = files.preferences(arabic=language == "arabic")
        expect((folder / files.PREFERENCES).read_bytes() == prepared, "the preferences are others")


def main():
    machines.isolate()
    tree, command, language, picture = sys.argv[1:]
    visit = Visit(tree, command, language)
    try:
        visit.go_through(language, picture)
    except BaseException:
        visit.machine.picture(picture)
        raise
    visit.check_folder(language)


if __name__ == "__main__":
    main()
