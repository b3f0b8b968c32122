"""The program for those who use it by assistive technology and the keyboard alone: every control has
a name and is pressed by its action, and the next key is the one that the program says."""
import re

from harness import case, keys, screen
from harness.files import StudentFile
from harness.visitor import Lesson, showing

# Roles that tell nothing of what a thing is.
VAGUE_ROLES = ("filler", "panel", "unknown", "invalid", "redundant object")

# What the program says before the name of a key, and how it tells of Shift and of a hand.
NEXT_KEY = ("Next key: ", "المفتاح التالي: ")
KEYBOARD = ("Keyboard", "لوحة المفاتيح")
HANDS = (("Left hand", "Right hand"), ("اليد اليسرى", "اليد اليمنى"))
AT_REST = ("at rest", "في وضع الراحة")

# The keys of the first lesson whose names are no letters.
NAMED = ({"Space": " ", "semicolon": ";", "Return": keys.LINE_END},
         {"المسافة": " ", "إدخال": keys.LINE_END, "شين": "ش", "سين": "س", "ياء": "ي", "باء": "ب",
          "تاء": "ت", "نون": "ن", "ميم": "م", "كاف": "ك"})

# The fingers of its keys in English and in Arabic, as a person would teach them.
FINGERS = ({"a": "Left hand: little finger", "s": "Left hand: ring finger",
            "d": "Left hand: middle finger", "f": "Left hand: index finger",
            "j": "Right hand: index finger", "k": "Right hand: middle finger",
            "l": "Right hand: ring finger", ";": "Right hand: little finger",
            " ": "Right hand: thumb", keys.LINE_END: "Right hand: little finger"},
           {"ش": "اليد اليسرى: الخنصر", "س": "اليد اليسرى: البنصر", "ي": "اليد اليسرى: الوسطى",
            "ب": "اليد اليسرى: السبابة", "ت": "اليد اليمنى: السبابة", "ن": "اليد اليمنى: الوسطى",
            "م": "اليد اليمنى: البنصر", "ك": "اليد اليمنى: الخنصر", " ": "اليد اليمنى: الإبهام",
            keys.LINE_END: "اليد اليمنى: الخنصر"})


class Assistive(case.DesktopTest):
    def setUp(self):
        super().setUp()
        self.ears = self.machine.eyes.ears()
        self.addCleanup(self.ears.close)

    # Going through windows.

    def at(self, role, what):
        """The window with such a control; everything that it shows has a role and a name."""
        window = self.window_with(role, what)
        for node in window.all():
            self.assertNotIn(node.role, VAGUE_ROLES, node)
            speechless = node.role in ("separator", "label")  # what a label reads is its name
            self.assertTrue(node.name or speechless or not node.has(screen.SHOWING), node)
        return window

    def press(self, window, role, name=""):
        self.control(window, role, name).do()

    def greeting(self):
        def shows(window):
            return (window.has(screen.ACTIVE) and not showing(window, "text") and
                    showing(window, "push button", self.word("ok")))
        self.program.wait_for_window(shows, "the greeting")
        return self.at("push button", self.word("ok"))

    def sign_in_by_ear(self):
        window = self.start_to_name()
        self.press(window, "push button", self.word("ok"))  # without a name: nothing happens
        window = self.at("push button", self.word("cancel"))
        self.assertEqual(window.role, "dialog")
        self.assertTrue(window.has(screen.MODAL))
        field = self.control(window, "text")
        self.type("Layla", keys.ENGLISH)
        self.program.wait(lambda: field.text == "Layla", "the field holds the name")
        self.press(window, "push button", self.word("ok"))
        self.press(self.greeting(), "push button", self.word("ok"))

    def read_lesson_note(self):
        """The lesson by the menu, its note, and the picture that follows, which has no button."""
        main = self.at("push button", self.word("exercises"))
        self.assertEqual(main.role, "frame")
        menu = self.control(self.control(main, "menu bar"), "menu item", self.word("lessons"))
        popup = menu.children()[0]
        self.assertEqual((popup.role, popup.name), ("popup menu", menu.name))
        next(item for item in popup.children() if item.name.startswith("1- ")).do()
        thanks = ("Thanks", "شكراً")[self.arabic]
        note = self.at("push button", thanks)
        self.assertGreater(max(len(node.name) for node in showing(note, "label")), 60)
        self.press(note, "push button", thanks)
        picture = self.at("graphic", "")
        self.assertEqual(picture.name, self.control(picture, "graphic").name)
        picture.do()

    def choose_exercise(self):
        """The first exercise in the language of the windows, which the descriptions tell apart."""
        self.press(self.at("push button", self.word("exercises")), "push button",
                   self.word("exercises"))
        chooser = self.at("label", self.word("passing"))
        column = ("English Exercise", "التمرين العربي")[self.arabic]
        found = [node for node in showing(chooser, "push button")
                 if node.description.startswith(column)]
        self.assertEqual(len(found), 5)
        self.assertRegex(found[0].description, r"100\. .*: 0$")
        found[0].do()

    def choose_aids(self):
        """A free aid can be ticked, a fixed one says that it can't be changed."""
        options = self.at("push button", self.word("continue"))
        names = {"Key Caps": "مجموعة المفاتيح", "Hands": "الأيدي", "Counter": "العداد",
                 "Clock Timer": "الكرونومتر"}
        for english, before in (("Key Caps", True), ("Hands", True), ("Counter", False),
                                ("Clock Timer", False)):
            box = self.control(options, "check box", names[english] if self.arabic else english)
            self.assertEqual((box.has(screen.CHECKED), box.has(screen.READ_ONLY)),
                             (before, before), box)
            box.do()
            self.program.wait(lambda: box.has(screen.CHECKED), f"{english} answers")
        self.ears.take()  # from here on the exercise speaks
        self.press(options, "push button", self.word("continue"))

    # In the exercise.

    def notice(self, lesson):
        """What the program says next, or None if the exercise ends before. The things whose names
        have changed by then are in self.renamed."""
        self.renamed = set()
        def speaks():
            heard = self.ears.take()
            self.renamed.update(node for node, kind, what, _ in heard
                                if (kind, what) == ("PropertyChange", "accessible-name"))
            return (self.voice, "StateChanged", "showing", 1) in heard and self.voice.name
        said = lesson.wait(lambda: speaks() or not lesson.is_open(), "the program speaks or ends")
        return None if said is True else said

    def key_of(self, words):
        """The character whose key was told."""
        self.assertTrue(words.startswith(NEXT_KEY[self.arabic]), words)
        key = words.removeprefix(NEXT_KEY[self.arabic]).split(". ")[0]
        return NAMED[self.arabic].get(key, key)

    def check_aids(self, lesson, words, character):
        """The keyboard and the hands tell the same as the notice, and nothing else."""
        fingers = FINGERS[self.arabic][character]
        self.assertEqual(words.split(". ", 1)[1], fingers)
        keyboard = self.control(lesson.window, "graphic", KEYBOARD[self.arabic])
        self.assertEqual(keyboard.name, f"{KEYBOARD[self.arabic]}. {words.split('. ')[0]}")
        self.assertEqual(keyboard.children(), [])
        def hands():
            return {self.control(lesson.window, "graphic", hand).name
                    for hand in HANDS[self.arabic]}
        resting = next(hand for hand in HANDS[self.arabic] if not fingers.startswith(hand))
        # At the start of a row they come after the wink of the last key.
        lesson.wait(lambda: hands() == {fingers, f"{resting}: {AT_REST[self.arabic]}"},
                    f"the hands show {character!r}")
        return keyboard

    def check_fields(self, lesson, typed, character):
        self.assertEqual(lesson.origin.text[typed], character)
        self.assertEqual(lesson.origin.selection, (typed, typed + 1))
        self.assertEqual(lesson.origin.caret, typed)
        self.assertEqual(len(lesson.copy.text), typed)
        self.assertEqual(lesson.copy.caret, typed)

    def check_pause(self, lesson):
        self.press(lesson.window, "push button", self.word("break"))
        lesson.wait(lambda: showing(lesson.window, "push button", self.word("resumption")),
                    "the pause")
        self.press(lesson.window, "push button", self.word("resumption"))
        lesson.wait(lambda: showing(lesson.window, "push button", self.word("break")),
                    "the end of the pause")

    def check_wrong_key(self, lesson, words, table):
        """It is refused and the right one said once more."""
        before = self.gauges[0].value
        wrong = next(place for character, place in table.items() if character == "ى" or
                     character == "x")[0]
        self.keyboard.tap(wrong)
        self.assertEqual(self.notice(lesson), words)
        lesson.wait(lambda: self.gauges[0].value < before, "a wrong key lowers the gauge")

    def find_gauges(self, lesson):
        self.gauges = sorted(showing(lesson.window, "progress bar"), key=lambda node: node.place[0])
        self.assertEqual([gauge.limits for gauge in self.gauges], [(0, 100), (0, 300)])
        self.assertEqual([gauge.value for gauge in self.gauges], [0, 0])

    def type_by_ear(self, lesson, table):
        """Presses the key that is said, until the exercise ends. Answers how many there were."""
        pressed = typed = 0
        previous = words = self.notice(lesson)
        while words is not None:
            character = self.key_of(words)
            if pressed < 24:
                self.check_fields(lesson, typed, character)
                keyboard = self.check_aids(lesson, words, character)
                self.assertTrue(words == previous or keyboard in self.renamed)
            if pressed == 3:
                self.check_pause(lesson)
            if pressed == 4:
                self.check_wrong_key(lesson, words, table)
                lesson.copy_becomes(lesson.origin.text[:typed])
            row = lesson.origin.text
            self.type(character, table)
            previous, words = words, self.notice(lesson)
            pressed, typed = pressed + 1, (typed + 1) % len(row)
        return pressed

    def read_result(self):
        window = self.at("label", self.word("mark"))
        numbers = [int(re.search(r"-?\d+$", self.control(window, "label", self.word(what)).name)[0])
                   for what in ("accuracy", "bonus", "mark")]
        window.do()
        self.main_window()
        return numbers

    def go_through(self):
        self.sign_in_by_ear()
        self.read_lesson_note()
        self.choose_exercise()
        self.choose_aids()
        lesson = Lesson(self)
        self.at("push button", self.word("break"))
        self.voice = self.control(lesson.window, "notification")
        self.find_gauges(lesson)
        pressed = self.type_by_ear(lesson, keys.ARABIC if self.arabic else keys.ENGLISH)
        accuracy, bonus, mark = self.read_result()
        self.assertEqual((accuracy, mark), (round(100 * pressed / (pressed + 1)), accuracy + bonus))
        self.leave_by_ear()
        student = StudentFile.of(self.folder.student("Layla").read_bytes())
        self.assertEqual(student.mark(1, 1, self.arabic), mark)

    def leave_by_ear(self):
        main = self.main_window()
        menu = self.control(self.control(main, "menu bar"), "menu item", self.word("file"))
        next(item for item in menu.children()[0].children()
             if item.name == self.word("quit")).do()
        self.press(self.at("push button", self.word("yes")), "push button", self.word("yes"))
        def shows(window):
            return window.has(screen.ACTIVE) and len(showing(window, "push button")) == 1
        farewell = self.program.wait_for_window(shows, "the farewell")
        self.press(farewell, "push button")
        self.assertEqual(self.program.wait_for_end(), 0)


class English(Assistive):
    def test_from_sign_in_to_result(self):
        self.go_through()


class Arabic(Assistive):
    arabic = True

    def test_from_sign_in_to_result(self):
        self.go_through()


if __name__ == "__main__":
    case.main()
