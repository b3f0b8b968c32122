"""One KeyFluent at a time: a second one shows its pictures and is refused then."""
from harness import case, keys
from harness.program import Folder
from harness.visitor import showing


class Instances(case.DesktopTest):
    def test_second_is_refused(self):
        self.check_refusal(arabic=False,
                           message="Zen Orchard KeyFluent 1.0 is already running!")

    def test_second_is_refused_in_arabic(self):
        """The refusal speaks the language of the second one's preferences."""
        self.check_refusal(arabic=True,
                           message="لا تستطيع تشغيل اكثر من نسخة من برنامج كي فلونت 1,0.")

    def check_refusal(self, arabic, message):
        self.start_to_name()
        first = self.program
        folder = Folder(self.machine, arabic=arabic)
        before = self.contents(folder)
        second = self.start(folder)
        second.wait_for_window(lambda window: showing(window, "graphic"),
                               "the second one's opening picture")
        second.wait_for_window(lambda window: showing(window, "graphic", "KeyFluent"),
                               "the second one's splash")
        refusal = second.wait_for_window(lambda window: showing(window, "label", message),
                                         "the refusal")
        self.assertEqual(len(second.windows()), 1)
        box = next(node for node in refusal.all() if node.role == "push button")
        self.click(box)
        self.assertEqual(second.wait_for_end(), 0)
        self.assertEqual(self.contents(folder), before)

        self.assertTrue(first.runs())
        self.give_name("Layla", keys.ENGLISH)
        self.pass_greeting()

    @staticmethod
    def contents(folder):
        return {str(file.relative_to(folder.path)): file.read_bytes()
                for file in folder.path.rglob("*") if file.is_file()}


if __name__ == "__main__":
    case.main()
