"""Some runs of the program that are each killed at a random moment. Started several at a time by
kill_test.py, which tells the number of runs and the seed."""
import os
import random
import signal
import threading

from harness import case, keys
from harness.files import STUDENT_LENGTH, StudentFile
from harness.waiting import Gone, NeverHappened, wait_until

RECORD = 20
LONGEST_RUN = 6.0  # seconds: the pictures, a sign-in and two or three savings
SAVING = 0.008  # seconds from the answer Yes in which the saving happens
FRESH = StudentFile().bytes()


def records(data):
    return [data[start:start + RECORD] for start in range(0, STUDENT_LENGTH, RECORD)]


class KilledRuns(case.DesktopTest):
    def test_runs(self):
        self.random = random.Random(int(os.environ["KEYFLUENT_SEED"]))
        self.other = self.some_student().bytes()
        self.folder.put_student("Other", self.other)
        self.folder.put_student("Layla", self.some_student())
        self.preferences = self.folder.preferences.read_bytes()
        for number in range(int(os.environ["KEYFLUENT_KILLS"])):
            self.newcomer = f"New{number}"
            self.run_and_kill(while_saving=number % 2 == 0)
            self.check_files()
            self.keyboard.let_go(keys.CAPS_LOCK)
        left = self.folder.student("Layla").read_bytes()
        self.sign_in("Layla")
        self.leave("yes")
        self.assertEqual(self.folder.student("Layla").read_bytes(), left)

    def some_student(self):
        made = StudentFile(self.random.randint(1, 14), self.random.randint(1, 14))
        for lesson in range(1, 15):
            for exercise in range(1, 6):
                made.set_mark(lesson, exercise, True, self.random.randint(0, 200))
        return made

    def run_and_kill(self, while_saving):
        """Signs in and out with saving, over and over, until the kill comes."""
        self.program = self.start()
        self.savings_before_kill = self.random.randint(1, 2) if while_saving else None
        if not while_saving:
            self.kill_after(self.random.uniform(0, LONGEST_RUN))
        try:
            self.pass_opening()
            while True:
                self.sign_in_and_out("Layla")
                self.choose_from_menu("File", "Change Student Name...")
                self.sign_in_and_out(self.newcomer)
                self.choose_from_menu("File", "Change Student Name...")
        except (AssertionError, Gone) as problem:
            # A killed program is off the bus before it is dead.
            try:
                wait_until(lambda: not self.program.runs(), "the program dies", patience=1)
            except NeverHappened:
                raise problem from None
        self.killer.join()
        self.assertEqual(self.program.process.returncode, -signal.SIGKILL, self.program.said)

    def sign_in_and_out(self, name):
        self.give_name(name, keys.ENGLISH)
        self.pass_greeting()
        if name == "Layla":
            # The file changes behind the program's back, so that what it writes can be told apart.
            self.written = self.folder.student(name).read_bytes()
            self.replaced = self.some_student().bytes()
            self.folder.put_student(name, self.replaced)
        self.choose_from_menu("File", "Log out")
        yes = self.control(self.window_with("push button", "Yes"), "push button", "Yes")
        if self.savings_before_kill is not None:
            self.savings_before_kill -= 1
            if self.savings_before_kill == 0:
                self.kill_after(self.random.uniform(0, SAVING))
        self.click(yes)

    def kill_after(self, seconds):
        self.killer = threading.Timer(seconds, self.program.process.kill)
        self.killer.start()

    def check_files(self):
        self.assertEqual(self.folder.preferences.read_bytes(), self.preferences)
        self.assertEqual(self.folder.student("Other").read_bytes(), self.other)
        student = self.folder.student("Layla").read_bytes()
        self.assertEqual(len(student), STUDENT_LENGTH)
        if hasattr(self, "written"):
            choices = zip(records(student), records(self.written), records(self.replaced))
            for number, (found, written, replaced) in enumerate(choices, start=1):
                self.assertIn(found, (written, replaced), f"record {number} is torn")
        newcomer = self.folder.student(self.newcomer)
        if newcomer.exists():
            data = newcomer.read_bytes()
            self.assertEqual(len(data) % RECORD, 0)
            self.assertTrue(FRESH.startswith(data))


if __name__ == "__main__":
    case.main()
