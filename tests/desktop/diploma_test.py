"""All four courses are completed by their last exercises, and the diploma is shown and printed: to
a file, and through a print service."""
import datetime
import resource

from harness import case, keys, printing
from harness.files import MACINTOSH, WINDOWS, StudentFile
from harness.printing import Pdf, PrintDialog, PrintService
from harness.visitor import showing

NOTE = ("Your result was good, and allowed you to get your diploma, "
        "select View Diploma from File Menu.")
FOUR_COURSES = ("- Arabic Mac Typing: A -- English Mac Typing: B -- Arabic Win Typing: C - "
                "- English Win Typing: A -")
ONE_COURSE = "- English Win Typing: B -"
UPRIGHT = printing.POINTS_OF_A4
ACROSS = UPRIGHT[::-1]
SHEET = (675, 525)  # points
PICTURE = (2700, 2100)  # the sheet's, in pixels of its own


class Diploma(case.DesktopTest):
    def test_four_courses(self):
        expected = StudentFile(reached_windows=15, reached_macintosh=15)
        for keyboard, arabic_mark, english_mark in ((WINDOWS, 60, 180), (MACINTOSH, 160, 2)):
            for exercise in range(1, 5):
                expected.set_mark(15, exercise, True, arabic_mark, keyboard)
            expected.set_mark(15, 1, False, english_mark, keyboard)
        self.folder.put_student("Layla", expected)
        self.sign_in("Layla")
        dates = [datetime.date.today()]
        self.complete(5, True, keys.ARABIC)
        self.complete(2, False, keys.ENGLISH)
        dates.append(datetime.date.today())
        self.choose_from_menu("File", "Use Macintosh Keyboard")
        self.complete(5, True, keys.ARABIC_MACINTOSH)
        self.complete(2, False, keys.ENGLISH)
        self.open_diploma(FOUR_COURSES)
        told = self.control(self.diploma, "label", "Date: ").name
        self.assertIn(told, [date.strftime("Date: %d/%m/%Y") for date in dates])
        self.print_to_file(told)
        self.leave("yes")

        for keyboard in (WINDOWS, MACINTOSH):
            expected.set_mark(15, 5, True, 200, keyboard).set_mark(15, 2, False, 1000, keyboard)
        expected.take_diploma([int(number) for number in told.split()[1].split("/")],
                              WINDOWS, MACINTOSH)
        self.assertEqual(self.folder.student("Layla").read_bytes(), expected.bytes())

    def complete(self, exercise, arabic, table):
        """Types the last exercise of a course, which tells that the diploma is there."""
        lesson = self.open_exercise(exercise, arabic)
        lesson.type_passage(lesson.origin.text, table)
        result = self.window_with("label", self.word("mark"))
        self.assertTrue(showing(result, "label", NOTE), "\n".join(result.tell()))
        accuracy, bonus, mark = self.result()
        self.assertEqual((accuracy, bonus), (mark // 2, mark // 2))

    def open_diploma(self, courses):
        self.choose_from_menu("File", "View Diploma...")
        self.diploma = self.window_with("label", courses)
        self.control(self.diploma, "label", "Layla")

    def open_print_dialog(self):
        self.click(self.control(self.diploma, "push button", "طباعة"))
        return PrintDialog(self)

    def print_to_file(self, date):
        """Across, as it is offered; then upright and in two copies."""
        across = self.machine.scratch / "across.pdf"
        dialog = self.open_print_dialog()
        dialog.print_to(across)
        dialog.press("Print")
        self.main_window()
        self.check_pages(Pdf(across), ACROSS, 1, FOUR_COURSES, date)

        upright = self.machine.scratch / "upright.pdf"
        self.open_diploma(FOUR_COURSES)
        dialog = self.open_print_dialog()
        dialog.print_to(upright)
        dialog.choose_copies(2)
        dialog.choose_orientation("Portrait")
        dialog.press("Print")
        self.main_window()
        self.check_pages(Pdf(upright), UPRIGHT, 2, FOUR_COURSES, date)

    def check_pages(self, pdf, size, copies, courses, date):
        """Every page has the sheet's picture and the three texts. The texts' lines begin at their
        distances from the sheet's top, the sheet standing in the middle of the page."""
        self.assertEqual(pdf.sizes, [size] * copies)
        self.assertEqual(pdf.pictures, [(page, *PICTURE) for page in range(1, copies + 1)])
        left, top = ((of_page - of_sheet) / 2 for of_page, of_sheet in zip(size, SHEET))
        for words in pdf.words:
            name, course, day = self.lines(words)
            for line, text, distance in ((name, "Layla", 322.5), (course, courses, 408),
                                         (day, date, 448.75)):
                self.assertEqual(" ".join(word.text for word in line), text)
                self.assertAlmostEqual(line[0].top, top + distance, delta=0.6)
            for line in (name, course):
                self.assertAlmostEqual((line[0].left + line[-1].right) / 2, size[0] / 2, delta=0.6)
            self.assertAlmostEqual(day[0].left, left + 99, delta=0.6)

    @staticmethod
    def lines(words):
        lines = {}
        for word in words:
            lines.setdefault(word.top, []).append(word)
        return [lines[top] for top in sorted(lines)]

    def test_given_up_and_failing(self):
        """The window of the diploma closes without a word, and the program goes on."""
        self.sign_in_as_graduate()
        file = self.machine.scratch / "given-up.pdf"
        self.open_diploma(ONE_COURSE)
        dialog = self.open_print_dialog()
        dialog.print_to(file)
        dialog.press("Cancel")
        self.expect_main_window_alone()
        self.assertFalse(file.exists())

        self.open_diploma(ONE_COURSE)
        dialog = self.open_print_dialog()
        dialog.print_to(file)
        # Above what the terminal may take, below what a page is.
        resource.prlimit(self.program.process.pid, resource.RLIMIT_FSIZE, (4096, 4096))
        dialog.press("Print")
        self.expect_main_window_alone()
        self.assertEqual(file.stat().st_size, 4096)

        self.open_diploma(ONE_COURSE)
        self.click(self.control(self.diploma, "push button", "إغلاق"))
        self.expect_main_window_alone()

    def test_print_service(self):
        service = PrintService(self)
        self.addCleanup(service.close)
        self.machine.environment["CUPS_SERVER"] = str(service.socket)
        self.addCleanup(self.machine.environment.pop, "CUPS_SERVER")
        self.sign_in_as_graduate()
        self.open_diploma(ONE_COURSE)
        dialog = self.open_print_dialog()
        dialog.check_printer(service.NAME)
        dialog.choose_copies(2)
        dialog.press("Print")
        self.expect_main_window_alone()
        self.open_diploma(ONE_COURSE)
        direct = self.machine.scratch / "direct.pdf"
        dialog = self.open_print_dialog()
        dialog.choose_printer("Print to File (PDF)")
        dialog.print_to(direct)
        dialog.press("Print")
        self.expect_main_window_alone()
        self.check_printed(Pdf(service.printed()), Pdf(direct), service.has_driver)

        self.open_diploma(ONE_COURSE)
        dialog = self.open_print_dialog()
        dialog.check_printer(service.NAME)
        service.stop()
        dialog.press("Print")
        self.expect_main_window_alone()

    def check_printed(self, printed, direct, on_its_side):
        """As it looks: a driver that lays the page on its side makes pictures of the letters."""
        self.assertEqual(printed.sizes, [UPRIGHT if on_its_side else ACROSS] * 2)
        self.assertEqual(printed.pictures, [(1, *PICTURE), (2, *PICTURE)])
        rows = direct.shades(1)
        expected = [bytes(column) for column in zip(*rows)][::-1] if on_its_side else rows
        for page in (1, 2):
            self.assertLess(self.difference(printed.shades(page), expected), 2)
            self.assertGreater(self.difference(printed.shades(page), expected[::-1]), 4)

    @staticmethod
    def difference(rows, others):
        """The mean difference of the shades inside the sheet's border, whose small pattern looks
        otherwise at the least shift."""
        def inside(line):
            return line[len(line) // 5:-len(line) // 5]
        pairs = [(one, other) for row, other_row in zip(inside(rows), inside(others))
                 for one, other in zip(inside(row), inside(other_row))]
        return sum(abs(one - other) for one, other in pairs) / len(pairs)

    def sign_in_as_graduate(self):
        student = StudentFile(reached_windows=15)
        student.set_mark(15, 1, False, 400).set_mark(15, 2, False, 500)
        student.take_diploma((9, 5, 2026))
        student.numbers[8] = 100
        self.folder.put_student("Layla", student)
        self.sign_in("Layla")

    def expect_main_window_alone(self):
        main = self.main_window()
        self.program.wait(lambda: self.program.windows() == [main], "the main window is alone")


if __name__ == "__main__":
    case.main()
