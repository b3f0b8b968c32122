"""A folder of the program's own and the program in it."""
import os
import pathlib
import shutil
import tempfile

from harness import files
from harness.waiting import Gone, NeverHappened, wait_until

_SOUNDS = ("enter", "char", "space", "caps", "Back")


class Folder:
    """What a launcher makes for a person: a link to the program, the sounds, the preferences."""

    def __init__(self, machine, **preferences):
        self.path = pathlib.Path(tempfile.mkdtemp(prefix="folder-", dir=machine.scratch))
        self.program = self.path / "keyfluent"
        self.program.symlink_to(pathlib.Path(os.environ["KEYFLUENT_PROGRAM"]).resolve())
        for sound in _SOUNDS:
            shutil.copy(pathlib.Path(os.environ["KEYFLUENT_SOUNDS"]) / f"{sound}.wav", self.path)
        self.preferences = self.path / files.PREFERENCES
        self.preferences.write_bytes(files.preferences(**preferences))
        self.students = self.path / "Students"

    def student(self, name):
        return self.students / f"{name}.W"

    def put_student(self, name, data):
        self.students.mkdir(exist_ok=True)
        self.student(name).write_bytes(data if isinstance(data, bytes) else data.bytes())


class Program:
    """One run of the program. What it says on the terminal is kept; expected is what the test has
    taken note of."""

    def __init__(self, machine, eyes, folder):
        self.folder = folder
        self.expected = ""
        self._eyes = eyes
        log, self._log = tempfile.mkstemp(prefix="said-", dir=machine.scratch)
        self.process = machine.run([str(folder.program)], cwd=machine.scratch, stdout=log,
                                   stderr=log)
        os.close(log)
        self._node = None

    @property
    def said(self):
        return pathlib.Path(self._log).read_text(errors="replace")

    def runs(self):
        return self.process.poll() is None

    def windows(self):
        """The nodes of its windows that are on the screen."""
        if self._node is None:
            self._node = self._eyes.program(self.process.pid)
        return [] if self._node is None or not self.runs() else self._node.children()

    def wait(self, condition, what):
        """Waits as wait_until does, and no longer than the program runs."""
        def holds():
            running = self.runs()
            try:
                value = condition()
            except Gone:
                value = None
            if not value and not running:
                raise NeverHappened(f"the program ended with status {self.process.returncode} "
                                    f"before this: {what}\n{self.said}")
            return value
        return wait_until(holds, what)

    def wait_for_window(self, shows, what):
        """The window for which shows(window) is true, once there is one."""
        def found():
            return next((window for window in self.windows() if shows(window)), None)
        return self.wait(found, what)

    def wait_for_end(self):
        wait_until(lambda: not self.runs(), "the program ends")
        return self.process.returncode

    def kill(self):
        self.process.kill()
        self.process.wait()

    def tell(self):
        lines = [f"on the terminal:\n{self.said}"]
        if self.runs():
            for window in self.windows():
                lines += window.tell()
        return "\n".join(lines)
