"""A key is known by its place: an exercise can be typed whatever the desktop's input language."""
from harness import case, keys
from harness.files import StudentFile


class InputLanguages(case.DesktopTest):
    def test_english_exercise_under_arabic(self):
        self.keyboard.use_map("ara")
        self.sign_in("منى", keys.ARABIC)
        self.open_exercise(1, arabic=False).type_to_end(keys.ENGLISH)
        self.assertEqual(self.result(), [100, 0, 100])

    def test_arabic_exercise_under_english(self):
        self.keyboard.use_map("us")
        self.sign_in("Layla")
        self.open_exercise(1, arabic=True).type_to_end(keys.ARABIC)
        self.assertEqual(self.result(), [100, 0, 100])

    def test_arabic_exercise_under_french(self):
        """The key of the letter jim is a dead key there, which gives no character by itself."""
        self.folder.put_student("Irene", StudentFile(reached_windows=2))
        self.keyboard.use_map("fr")
        self.sign_in("Irene")  # letters that have the same places
        rows = self.open_exercise(3, arabic=True).type_to_end(keys.ARABIC)
        self.assertGreater("".join(rows).count("ج"), 5)
        self.assertEqual(self.result(), [100, 0, 100])


if __name__ == "__main__":
    case.main()
