"""A new student signs in, types the first exercise, leaves, and finds the mark at the next
visit."""
from harness import case, keys
from harness.files import StudentFile


class FirstSteps(case.DesktopTest):
    def test_english(self):
        self.sign_in("Layla")
        rows = self.open_exercise(1, arabic=False).type_to_end(keys.ENGLISH)
        self.assertEqual(rows[:4], ["asdf ", "asdf ", "asdf ", "jkl; "])
        self.assertEqual(len(rows), 46)
        self.assertEqual(self.result(), [100, 0, 100])
        self.leave("yes")
        self.assertEqual(self.folder.student("Layla").read_bytes(),
                         StudentFile().set_mark(1, 1, False, 100).bytes())
        self.assertEqual([file.name for file in self.folder.students.iterdir()], ["Layla.W"])

        self.sign_in("Layla")
        chooser = self.open_chooser()
        self.assertEqual(self.exercise_row(chooser, 1, arabic=False)[1:], ("100", "100"))
        self.assertEqual(self.exercise_row(chooser, 1, arabic=True)[1:], ("100", "0"))
        self.assertEqual(self.control(chooser, "label", "Your Score:").name, "Your Score:100")


class FirstStepsInArabic(case.DesktopTest):
    arabic = True

    def test_arabic(self):
        self.keyboard.use_map("ara")
        self.sign_in("منى", keys.ARABIC)
        rows = self.open_exercise(1, arabic=True).type_to_end(keys.ARABIC)
        self.assertEqual(rows[0], "ش س ي ب ")
        self.assertIn("ت ت ت ت " + keys.LINE_END, rows)
        self.assertEqual(len(rows), 40)
        self.assertEqual(self.result(), [100, 0, 100])
        self.leave("yes")
        self.assertEqual(self.folder.student("منى").read_bytes(),
                         StudentFile().set_mark(1, 1, True, 100).bytes())

        self.sign_in("منى", keys.ARABIC)
        chooser = self.open_chooser()
        self.assertEqual(self.exercise_row(chooser, 1, arabic=True)[1:], ("100", "100"))
        self.assertEqual(self.exercise_row(chooser, 1, arabic=False)[1:], ("100", "0"))
        self.assertEqual(self.control(chooser, "label", self.word("sum")).name.split()[-1], "100")


if __name__ == "__main__":
    case.main()
