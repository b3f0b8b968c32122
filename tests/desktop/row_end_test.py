"""An exercise that is checked at the end of each row: a row with a fault is wiped and typed again,
a fault taken back in time costs more but saves the row."""
from harness import case, keys
from harness.files import StudentFile
from harness.waiting import NeverHappened, let_pass, wait_until


def percent(right, wrong):
    """Halves go to the even neighbour, as round() has it."""
    return round(right * 100 / (right + wrong))


class RowEnd(case.DesktopTest):
    def test_a_row_with_a_fault_is_typed_again(self):
        self.folder.put_student("Layla", StudentFile(reached_windows=12))
        self.sign_in("Layla")
        lesson = self.open_exercise(1, arabic=False)
        right = wrong = 0

        first = lesson.origin.text
        self.assertNotIn("z", first)
        faulty = "z" + first[1:]
        seen = self.type_and_watch_wiping(lesson, faulty)
        self.assertTrue(seen, "the row went at one stroke")
        for text in seen:
            self.assertTrue(faulty.startswith(text), seen)
        self.assertEqual(lesson.origin.text, first)
        self.assertEqual(lesson.origin.selection, (0, 1))
        right, wrong = right + len(first) - 1, wrong + 1
        self.type_first_letter(lesson, first[0])
        self.type_rest(lesson, first)
        right += len(first)

        second = lesson.origin.text
        self.assertNotEqual(second, first)
        self.type(second[0] + "z", keys.ENGLISH)
        lesson.copy_becomes(second[0] + "z")
        self.keyboard.tap(keys.BACKSPACE)
        lesson.copy_becomes(second[0])
        self.type_rest(lesson, second)
        right, wrong = right + len(second), wrong + 1 + 5

        right += len("".join(lesson.type_to_end(keys.ENGLISH)))
        accuracy, bonus, mark = self.result()
        self.assertEqual(accuracy, percent(right, wrong))
        self.assertEqual(mark, accuracy + bonus)
        self.assertLessEqual(abs(bonus), accuracy)
        self.leave("yes")
        expected = StudentFile(reached_windows=12).set_mark(12, 1, False, mark)
        self.assertEqual(self.folder.student("Layla").read_bytes(), expected.bytes())

    def type_first_letter(self, lesson, letter):
        """The wiping shuts keys out for one tick more than there is to see, so a key may be
        lost."""
        def is_taken():
            self.type(letter, keys.ENGLISH)
            try:
                wait_until(lambda: lesson.copy.text == letter, "the letter is taken", patience=1)
            except NeverHappened:
                return False
            return True
        let_pass(0.05)
        lesson.wait(is_taken, "the wiped row can be typed")

    def type_rest(self, lesson, row):
        self.type(row[1:-1], keys.ENGLISH)
        lesson.copy_becomes(row[:-1])
        self.type(row[-1], keys.ENGLISH)
        lesson.wait(lambda: lesson.origin.text != row and lesson.copy.text == "",
                    f"{row!r} is taken")

    def type_and_watch_wiping(self, lesson, row):
        """Types a row that is wiped and one key more, which is lost; answers the copy's texts that
        were seen on the way."""
        self.type(row[:-1], keys.ENGLISH)
        lesson.copy_becomes(row[:-1])
        self.type(row[-1] + "x", keys.ENGLISH)
        seen = []
        def is_wiped():
            text = lesson.copy.text
            if text and text != row[:-1]:
                seen.append(text)
            return text == ""
        lesson.wait(is_wiped, "the row is wiped")
        return seen


if __name__ == "__main__":
    case.main()
