"""A preferences file of any length and any content is taken as it stands, and an exercise can be
typed under whatever it holds."""
import random

from harness import case, keys, screen
from harness.files import PREFERENCES_LENGTH, cut, preferences
from harness.visitor import showing

LARGEST, SMALLEST = 2**31 - 1, -2**31


class BrokenPreferences(case.DesktopTest):
    def test_of_any_length_and_content(self):
        """Whatever the file holds, a name is asked for; nothing is written."""
        generator = random.Random(1)
        kinds = [cut(preferences(), length) for length in (0, 1, 266, 531, 533, 700)]
        kinds += [b"\xff" * PREFERENCES_LENGTH, generator.randbytes(PREFERENCES_LENGTH)]
        for number, data in enumerate(kinds):
            with self.subTest(number=number):
                self.folder.preferences.write_bytes(data)
                self.program = self.start()
                self.window_with("graphic", "KeyFluent")
                self.keyboard.tap(keys.SPACE)
                self.program.wait_for_window(
                    lambda window: window.has(screen.ACTIVE) and showing(window, "text"),
                    "the question for the name")
                self.keyboard.tap(keys.ESCAPE)
                self.assertEqual(self.program.wait_for_end(), 0)
                self.assertEqual(self.folder.preferences.read_bytes(), data)

    def test_exercise_under_wild_values(self):
        for font_size, keyboard, colour in ((LARGEST, -1, -1), (SMALLEST, LARGEST, LARGEST),
                                            (0, 0, 0)):
            with self.subTest(font_size=font_size, keyboard=keyboard, colour=colour):
                self.folder.preferences.write_bytes(preferences(
                    font_size=font_size, keyboard=keyboard, right_colour=colour,
                    wrong_colour=colour))
                self.sign_in("Layla")
                lesson = self.open_exercise(1, arabic=False, aids=["Counter"])
                accuracy = self.control(lesson.window, "progress bar", "Resulotion:")
                self.assertEqual(lesson.type_row(keys.ENGLISH), "asdf ")
                self.type("j", keys.ENGLISH)
                lesson.wait(lambda: accuracy.value == 83, "a wrong key counts")
                lesson.copy_becomes("")
                self.program.kill()


if __name__ == "__main__":
    case.main()
