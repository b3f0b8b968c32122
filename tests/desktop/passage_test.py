"""A whole passage of the last lesson: faults are typed through and mended afterwards, with the
mouse and the keys, in a text field that works as any other."""
from harness import case, keys, screen
from harness.files import StudentFile
from harness.visitor import centre


class Passage(case.DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder.put_student("Layla", StudentFile(reached_windows=15))

    def test_a_passage_with_faults_is_mended(self):
        self.sign_in("Layla")
        lesson = self.open_exercise(1, arabic=False)
        passage = lesson.origin.text
        self.assertEqual(passage.count(keys.LINE_END + "\r\n"), passage.count("\n"))
        self.assertGreater(passage.count("\n"), 4)

        wrong_letter = passage.index("letter")
        swapped = passage.index("should") + 1
        typed = list(passage)
        typed[wrong_letter] = "x"
        typed[swapped], typed[swapped + 1] = passage[swapped + 1], passage[swapped]
        faulty = "".join(typed)
        lesson.type_passage(faulty, keys.ENGLISH)
        lesson.wait(lambda: self.errors(lesson) == 3, "the review tells three differences")
        self.assertEqual(lesson.fields()[0].text, passage)
        lesson.origin, lesson.copy = lesson.fields()
        self.assertEqual(lesson.copy.text, faulty)

        self.scroll_to(lesson, 0)
        self.mend_line_end(lesson, faulty)
        self.mend_letter(lesson, wrong_letter, passage[wrong_letter])
        self.mend_pair(lesson, swapped, passage[swapped:swapped + 2])

        presses = len(passage) - 2 * passage.count("\n")
        accuracy, bonus, mark = self.result()
        # The mark is that of the first pass; twice the percentage, as the standard mark is 200.
        self.assertEqual(accuracy, 2 * round((presses - 3) * 100 / presses))
        self.assertEqual(mark, accuracy + bonus)
        self.leave("yes")
        expected = StudentFile(reached_windows=15).set_mark(15, 1, False, mark)
        self.assertEqual(self.folder.student("Layla").read_bytes(), expected.bytes())

    @staticmethod
    def errors(lesson):
        text = lesson.says(r"No of Errors: \d+\. Please correct the text\.")
        return int(text.split()[3].rstrip(".")) if text else None

    def scroll_to(self, lesson, position):
        """Turns the wheel over the copy until a letter further up is to be seen."""
        self.pointer.move(*centre(lesson.copy))
        def is_seen():
            _, _, width, _ = lesson.copy.place_of_letter(position)
            if not width:
                self.pointer.turn_wheel_up()
            return width
        lesson.wait(is_seen, "the beginning is to be seen")

    def click_before(self, lesson, position):
        """Puts the caret before a letter of the copy with the mouse."""
        left, top, _, height = lesson.copy.place_of_letter(position)
        self.pointer.click(left + 1, top + height // 2)
        lesson.wait(lambda: lesson.copy.caret == position, f"the caret is at {position}")
        lesson.wait(lambda: lesson.copy.has(screen.FOCUSED), "the copy has the keyboard")

    def mend_line_end(self, lesson, text):
        """A line's end is taken away with Backspace, and Enter puts it back whole."""
        start = text.index("\n") + 1
        self.click_before(lesson, start)
        self.keyboard.tap(keys.BACKSPACE)
        lesson.copy_becomes(text[:start - 2] + text[start:])
        self.keyboard.tap(keys.BACKSPACE)
        lesson.copy_becomes(text[:start - 3] + text[start:])
        self.keyboard.tap(keys.RETURN)
        lesson.copy_becomes(text)
        self.assertEqual(lesson.copy.caret, start)
        lesson.wait(lambda: self.errors(lesson) == 3, "three differences are left")

    def mend_letter(self, lesson, position, letter):
        self.click_before(lesson, position)
        self.keyboard.tap(keys.DELETE)
        self.type(letter, keys.ENGLISH)
        lesson.wait(lambda: self.errors(lesson) == 2, "two differences are left")

    def mend_pair(self, lesson, position, pair):
        """Two letters are taken with the mouse and typed over; the passage is right then."""
        left, top, _, height = lesson.copy.place_of_letter(position)
        right, _, _, _ = lesson.copy.place_of_letter(position + 2)
        middle = top + height // 2
        self.pointer.move(left + 1, middle)
        self.pointer.press()
        self.pointer.move((left + right) // 2, middle)
        self.pointer.move(right, middle)
        self.pointer.release()
        lesson.wait(lambda: lesson.copy.selection == (position, position + 2),
                    "two letters are selected")
        self.type(pair, keys.ENGLISH)


if __name__ == "__main__":
    case.main()
