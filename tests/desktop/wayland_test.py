"""On a Wayland desktop: the keys are known by their places under any input language, and Caps Lock
is known whichever window heard its key."""
from harness import case, keys, wayland
from harness.files import StudentFile


class Wayland(wayland.WaylandTest):
    def test_first_steps(self):
        self.start_desktop("us")
        self.sign_in("Layla")
        rows = self.open_exercise(1, arabic=False).type_to_end(keys.ENGLISH)
        self.assertEqual(len(rows), 46)
        self.assertEqual(self.result(), [100, 0, 100])
        self.open_exercise(1, arabic=True).type_to_end(keys.ARABIC)
        self.assertEqual(self.result(), [100, 0, 100])
        self.leave("yes")
        expected = StudentFile().set_mark(1, 1, False, 100).set_mark(1, 1, True, 100)
        self.assertEqual(self.folder.student("Layla").read_bytes(), expected.bytes())

        self.sign_in("Layla")
        chooser = self.open_chooser()
        self.assertEqual(self.exercise_row(chooser, 1, arabic=False)[1:], ("100", "100"))
        self.assertEqual(self.exercise_row(chooser, 2, arabic=False)[1:], ("50", "0"))
        self.assertEqual(self.control(chooser, "label", "Your Score:").name, "Your Score:200")

    def test_english_exercise_under_arabic(self):
        self.start_desktop("ara")
        self.sign_in("منى", keys.ARABIC)
        self.open_exercise(1, arabic=False).type_to_end(keys.ENGLISH)
        self.assertEqual(self.result(), [100, 0, 100])

    def test_arabic_exercise_under_french(self):
        """The key of the letter jim is a dead key there."""
        self.folder.put_student("Irene", StudentFile(reached_windows=2))
        self.start_desktop("fr")
        self.sign_in("Irene")  # letters that have the same places
        rows = self.open_exercise(3, arabic=True).type_to_end(keys.ARABIC)
        self.assertGreater("".join(rows).count("ج"), 5)
        self.assertEqual(self.result(), [100, 0, 100])

    def test_caps_lock(self):
        """The key goes to another window, and the exercise knows of it before its first key."""
        self.start_desktop("us")
        self.sign_in("Layla")
        self.keyboard.tap(keys.CAPS_LOCK)
        lesson = self.open_exercise(1, arabic=False)
        corner = lesson.wait(lambda: self.find_on_screen(lesson.window), "the window is found")
        lesson.wait(lambda: lesson.shows_caps_lock(*corner),
                    "the picture shows that Caps Lock is on")
        self.keyboard.tap(keys.ENGLISH["a"][0], keys.LEFT_SHIFT)
        lesson.copy_becomes("a")
        self.keyboard.tap(keys.CAPS_LOCK)
        lesson.wait(lambda: not lesson.shows_caps_lock(*corner),
                    "the picture shows that Caps Lock is off")
        self.type("s", keys.ENGLISH)
        lesson.copy_becomes("as")


if __name__ == "__main__":
    case.main()
