"""A student's file of any length and any content is taken as it stands, or the program ends with
one clear report that names the file. It never crashes, hangs or writes where it should not."""
import random

from harness import case, keys, screen
from harness.files import STUDENT_LENGTH, StudentFile, cut


class BrokenStudentFiles(case.DesktopTest):
    def test_of_any_length(self):
        """What is not there counts as zeros, what is too much is not read; nothing is written."""
        whole = StudentFile(reached_windows=3).bytes()
        lengths = (0, 1, 19, 20, 531, 619, 621, 700)
        for length in lengths:
            self.folder.put_student(f"S{length}", cut(whole, length))
        self.start_to_name()
        for length in lengths:
            self.give_name(f"S{length}", keys.ENGLISH)
            self.pass_greeting()
            self.assertEqual(self.open_lessons(), 0 if length < 11 else 3, length)
            if length == 0:
                self.type_into_lesson_without_number()
            self.log_out("no")
            self.choose_from_menu("File", "Change Student Name...")
        for length in lengths:
            self.assertEqual(self.folder.student(f"S{length}").read_bytes(), cut(whole, length))

    def open_lessons(self):
        """How many lessons the menu offers."""
        menus = self.control(self.main_window(), "menu bar").children()
        lessons = next(menu for menu in menus if menu.name == "Lessons").children()[0]
        return sum(item.has(screen.ENABLED) for item in lessons.children()[:15])

    def type_into_lesson_without_number(self):
        """An empty file leaves the student in a lesson 0, which has an exercise without a text."""
        self.open_exercise(1, arabic=False)
        self.type("a", keys.ENGLISH)
        self.assertEqual(self.result(), [0, 0, 0])

    def test_of_any_content(self):
        """A reached lesson that is no number of a lesson can't be taken."""
        generator = random.Random(1)
        for number, data in enumerate((b"\xff" * STUDENT_LENGTH, b"\x7f" * 700,
                                       generator.randbytes(STUDENT_LENGTH))):
            with self.subTest(number=number):
                self.folder.put_student("Layla", data)
                self.start_to_name()
                self.give_name("Layla", keys.ENGLISH)
                self.expect_report(self.folder.student("Layla"))
                self.assertEqual(self.folder.student("Layla").read_bytes(), data)

    def test_name_that_is_no_file_name(self):
        """It can't lead into another folder: the file that it would name is never opened."""
        target = self.folder.path / "elsewhere.W"
        target.write_bytes(StudentFile().bytes())
        self.start_to_name()
        self.give_name("../elsewhere", keys.ENGLISH)
        self.expect_report(self.folder.students / "../elsewhere.W")
        self.assertEqual(target.read_bytes(), StudentFile().bytes())

    def test_file_in_the_folders_place(self):
        self.folder.students.write_bytes(b"no folder")
        self.start_to_name()
        self.give_name("Layla", keys.ENGLISH)
        self.expect_report(self.folder.student("Layla"))
        self.assertEqual(self.folder.students.read_bytes(), b"no folder")


if __name__ == "__main__":
    case.main()
