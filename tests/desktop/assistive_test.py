"""The program for those who use it by assistive technology: every control is pressed by its action
there, without the mouse, and the exercise tells what it shows."""
from harness import case, keys, screen
from harness.visitor import Lesson, showing


class Assistive(case.DesktopTest):
    def press(self, window, role, name):
        """Does what assistive technology does to press a control; all like it have names too."""
        for node in showing(window, "push button") + showing(window, "check box"):
            self.assertTrue(node.name, "\n".join(window.tell()))
        self.control(window, role, name).do()

    def test_from_sign_in_to_result(self):
        self.press(self.start_to_name(), "push button", "OK")  # without a name: nothing happens
        window = self.window_with("push button", "Cancel")
        field = self.control(window, "text", "Hello, How are you, what is your name?")
        self.type("Layla", keys.ENGLISH)
        self.program.wait(lambda: field.text == "Layla", "the field holds the name")
        self.press(window, "push button", "OK")
        self.press(self.window_with("label", "I could'nt recognize you Layla"), "push button", "OK")
        self.press(self.main_window(), "push button", "Exercises")
        chooser = self.window_with("label", "Passing Mark:")
        button, _, _ = self.exercise_row(chooser, 1, arabic=False)
        button.do()
        options = self.window_with("push button", "Continue")
        self.check_boxes(options)
        self.press(options, "push button", "Continue")
        self.check_exercise(Lesson(self))
        self.assertEqual(self.result()[0], 97)

    def check_boxes(self, options):
        """A free aid can be ticked, a fixed one stays as it is."""
        for name, ticked_before, ticked_after in (("Key Caps", True, True), ("Hands", True, True),
                                                  ("Counter", False, True),
                                                  ("Clock Timer", False, True)):
            box = self.control(options, "check box", name)
            self.assertEqual(box.has(screen.CHECKED), ticked_before, name)
            box.do()
            self.program.wait(lambda: box.has(screen.CHECKED) == ticked_after, f"{name} answers")
        for box in showing(options, "check box"):
            self.assertEqual(box.has(screen.CHECKED), box.name != "Sound")

    def check_exercise(self, lesson):
        """The selected letter is the one to type; the gauges have values; the pause can be had."""
        accuracy = self.control(lesson.window, "progress bar", "Resulotion:")
        speed = self.control(lesson.window, "progress bar", "Chars pm. :")
        self.assertEqual((accuracy.value, speed.value), (0, 0))
        for position, letter in enumerate("asd"):
            lesson.wait(lambda: lesson.origin.selection == (position, position + 1),
                        f"{letter!r} is selected")
            self.assertEqual(lesson.origin.text[position], letter)
            self.type(letter, keys.ENGLISH)
            lesson.copy_becomes("asd"[:position + 1])
        self.assertEqual(accuracy.value, 100)
        self.assertGreater(speed.value, 0)

        self.press(lesson.window, "push button", "Break")
        lesson.wait(lambda: showing(lesson.window, "push button", "Resumption"), "the pause")
        self.press(lesson.window, "push button", "Resumption")
        lesson.wait(lambda: showing(lesson.window, "push button", "Break"), "the end of the pause")
        for _ in range(6):
            right = accuracy.value
            self.type("j", keys.ENGLISH)
            lesson.wait(lambda: accuracy.value < right, "a wrong key lowers the gauge")
            lesson.copy_becomes("asd")
        self.type("f ", keys.ENGLISH)
        lesson.copy_becomes("")
        lesson.type_to_end(keys.ENGLISH)


if __name__ == "__main__":
    case.main()
