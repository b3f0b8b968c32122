"""What every desktop test starts from."""
import os
import pathlib
import sys
import unittest

from harness import machine, screen
from harness.visitor import Visitor

_here = None


def here():
    """The machine that the tests of this process share."""
    global _here
    if _here is None:
        _here = machine_of_size(machine.SCREEN)
    return _here


def machine_of_size(size):
    """A machine of its own, with a screen of that size in pixels."""
    made = machine.Machine(size).start()
    made.eyes = screen.Eyes(made)
    return made


def main():
    machine.isolate()
    unittest.main(verbosity=2)


class DesktopTest(Visitor, unittest.TestCase):
    def setUp(self):
        self.begin(self.find_machine())

    def find_machine(self):
        return here()

    def tearDown(self):
        """No program says anything on its terminal, but for the report of a failure that a test
        has read."""
        for program in self.programs:
            self.assertEqual(program.said, program.expected, "on the terminal")

    def run(self, result=None):
        before = len(result.failures) + len(result.errors)
        super().run(result)
        if len(result.failures) + len(result.errors) > before:
            self._report()
        self.end()
        return result

    def _report(self):
        """What the program shows at the end of a failed test, in words and as a picture."""
        for program in self.programs:
            print(program.tell(), file=sys.stderr)
        folder = os.environ.get("KEYFLUENT_SCREENSHOTS")
        if folder:
            pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
            file = pathlib.Path(folder) / f"{type(self).__name__}.{self._testMethodName}.png"
            self.machine.picture(file)
            print(f"screenshot: {file}", file=sys.stderr)
