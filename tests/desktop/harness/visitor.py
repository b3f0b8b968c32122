"""The ways through the program that a person goes, with the hands on the keyboard and the mouse and
the eyes of assistive technology."""
import re

from harness import keys, screen
from harness.program import Folder, Program
from harness.waiting import Gone

# What the windows say, in English and in Arabic.
WORDS = {
    "ok": ("OK", "موافق"),
    "cancel": ("Cancel", "إلغاء"),
    "exercises": ("Exercises", "التمارين"),
    "continue": ("Continue", "تابع"),
    "file": ("File", "ملف"),
    "lessons": ("Lessons", "الدروس"),
    "quit": ("Quit", "إنهاء"),
    "log out": ("Log out", "تسجيل الخروج"),
    "sign in": ("Change Student Name...", "تسجيل الدخول..."),
    "yes": ("Yes", "نعم"),
    "no": ("No", "لا"),
    "break": ("Break", "استراحة"),
    "resumption": ("Resumption", "متابعة"),
    "stop": ("Stop", "توقيف"),
    "accuracy": ("Resolution Typing Mark:", "علامة دقة الطباعة:"),
    "bonus": ("Speed Bonus:", "مكافأة للسرعة:"),
    "mark": ("Your Mark:", "علامتك لهذا التمرين:"),
    "passing": ("Passing Mark:", "علامة النجاح :"),
    "sum": ("Your Score:", "مجموعك :"),
}

# The place of the Caps Lock key in the picture of the keyboard, in pixels of an exercise's window,
# for a text of 13 points or more.
CAPS_LOCK_CAP = (87, 215, 49, 24)


def centre(node):
    left, top, width, height = node.place
    return left + width // 2, top + height // 2


def showing(window, role, name=""):
    """The controls of a window on the screen, of that role, whose name begins so."""
    return [node for node in window.children()
            if node.role == role and node.name.startswith(name) and node.has(screen.SHOWING)]


def expect(condition, what):
    if not condition:
        raise AssertionError(what)


class Visitor:
    """One person before one machine. The program in use is self.program."""

    arabic = False  # the language of the windows

    def begin(self, machine, **preferences):
        """Comes to the machine with a folder of the program's own."""
        self.machine = machine
        self.keyboard = machine.keyboard
        self.pointer = machine.pointer
        self.programs = []
        self.program = None
        self.folder = Folder(machine, arabic=self.arabic, **preferences)
        self.keyboard.use_map("us")
        self.pointer.move(2, 2)

    def end(self):
        """Leaves the machine as it was."""
        for program in self.programs:
            program.kill()
        self.keyboard.let_go(keys.CAPS_LOCK)

    def word(self, what):
        return WORDS[what][self.arabic]

    # Windows and their controls.

    def start(self, folder=None):
        program = Program(self.machine, self.machine.eyes, folder or self.folder)
        self.programs.append(program)
        return program

    def window_with(self, role, name):
        """The window with such a control, once it has the keyboard."""
        def shows(window):
            return window.has(screen.ACTIVE) and showing(window, role, name)
        return self.program.wait_for_window(shows, f"a window with {role} {name!r}")

    def control(self, window, role, name=""):
        found = showing(window, role, name)
        expect(found, f"no {role} {name!r} in\n" + "\n".join(window.tell()))
        return found[0]

    def click(self, node):
        self.pointer.click(*centre(node))

    def click_button(self, what):
        window = self.window_with("push button", self.word(what))
        self.click(self.control(window, "push button", self.word(what)))

    def type(self, text, table):
        for character in text:
            place, shift = table[character]
            self.keyboard.tap(place, *([keys.LEFT_SHIFT] if shift else []))

    # The way into the program and out of it.

    def start_to_name(self):
        """Starts the program as far as the question for the name; a key cuts the splash short."""
        self.program = self.start()
        return self.pass_opening()

    def pass_opening(self):
        self.window_with("graphic", "KeyFluent")
        self.keyboard.tap(keys.SPACE)
        return self.window_with("push button", self.word("cancel"))

    def give_name(self, name, table):
        """Types a name into the window that asks for it and confirms it."""
        window = self.window_with("push button", self.word("cancel"))
        field = self.control(window, "text")
        self.program.wait(lambda: field.has(screen.FOCUSED), "the name's field has the keyboard")
        self.type(name, table)
        self.program.wait(lambda: field.text == name, f"the field holds {name!r}")
        self.keyboard.tap(keys.RETURN)

    def sign_in(self, name, table=keys.ENGLISH):
        """From the program's start to the main window, for a student new or known."""
        self.start_to_name()
        self.give_name(name, table)
        return self.pass_greeting()

    def pass_greeting(self):
        """Answers the greeting, which is told from the question for the name by having no field."""
        def shows(window):
            return (window.has(screen.ACTIVE) and not showing(window, "text") and
                    showing(window, "push button", self.word("ok")))
        window = self.program.wait_for_window(shows, "the greeting")
        self.click(self.control(window, "push button", self.word("ok")))
        return self.main_window()

    def main_window(self):
        return self.window_with("push button", self.word("exercises"))

    def choose_from_menu(self, menu, item):
        bar = self.control(self.main_window(), "menu bar")
        title = self.control(bar, "menu item", menu)
        self.click(title)
        popup = title.children()[0]
        shown = self.program.wait(lambda: showing(popup, "menu item", item),
                                  f"the menu {menu!r} shows {item!r}")
        self.click(shown[0])

    def log_out(self, answer):
        self.choose_from_menu(self.word("file"), self.word("log out"))
        self.click_button(answer)

    def leave(self, answer):
        """Quits by the menu, answers whether to save, and takes the farewell."""
        self.choose_from_menu(self.word("file"), self.word("quit"))
        self.click_button(answer)
        def shows(window):
            return window.has(screen.ACTIVE) and len(showing(window, "push button")) == 1
        farewell = self.program.wait_for_window(shows, "the farewell")
        self.click(self.control(farewell, "push button"))
        expect(self.program.wait_for_end() == 0, self.program.said)

    def expect_report(self, file):
        """One report that names the file, and the end of the program with status 1."""
        def is_report(window):
            return any(str(file) in node.name for node in showing(window, "label"))
        report = self.program.wait_for_window(is_report, f"a report that names {file}")
        self.click(next(node for node in report.all() if node.role == "push button"))
        expect(self.program.wait_for_end() == 1, "a failure ends the program with status 1")
        told = self.program.said.splitlines()
        expect(len(told) == 1 and told[0].startswith("KeyFluent:") and str(file) in told[0],
               self.program.said)
        self.program.expected = self.program.said

    # Exercises.

    def choose_lesson(self, lesson):
        """Picks a lesson from the menu and closes its note."""
        self.choose_from_menu(self.word("lessons"), f"{lesson}- ")
        self.click_button("ok")
        self.main_window()

    def open_chooser(self):
        self.click(self.control(self.main_window(), "push button", self.word("exercises")))
        return self.window_with("label", self.word("passing"))

    def exercise_row(self, chooser, exercise, arabic):
        """The button of an exercise and the two texts in its row: standard mark, own mark."""
        left, _, width, _ = chooser.place
        middle = left + width // 2
        def is_in_column(node):
            x, _ = centre(node)
            return (x > middle) == arabic
        def top(node):
            return node.place[1]
        buttons = sorted(filter(is_in_column, showing(chooser, "push button")), key=top)
        button = buttons[exercise - 1]
        texts = [node for node in filter(is_in_column, showing(chooser, "label"))
                 if top(node) == top(button) and node.name != button.name]
        texts.sort(key=lambda node: node.place[0], reverse=self.arabic)
        expect(len(texts) == 2, "\n".join(chooser.tell()))
        return button, texts[0].name, texts[1].name

    def open_exercise(self, exercise, arabic, aids=()):
        """From the main window into an exercise of the current lesson, with the aids named
        ticked."""
        self.start_exercise(exercise, arabic, aids)
        return Lesson(self)

    def start_exercise(self, exercise, arabic, aids=()):
        button, _, _ = self.exercise_row(self.open_chooser(), exercise, arabic)
        self.click(button)
        options = self.window_with("push button", self.word("continue"))
        for aid in aids:
            box = self.control(options, "check box", aid)
            self.click(box)
            self.program.wait(lambda: box.has(screen.CHECKED), f"{aid} is ticked")
        self.click(self.control(options, "push button", self.word("continue")))

    def result(self):
        """The accuracy, the bonus and the mark that the result's window shows; closes it."""
        window = self.window_with("label", self.word("mark"))
        numbers = [int(re.search(r"-?\d+$", self.control(window, "label", self.word(what)).name)[0])
                   for what in ("accuracy", "bonus", "mark")]
        self.click(window)
        self.main_window()
        return numbers


class Lesson:
    """The window in which an exercise is typed."""

    def __init__(self, visitor):
        self.visitor = visitor
        self.wait = visitor.program.wait
        self.window = visitor.window_with("push button", visitor.word("break"))
        self.origin, self.copy = self.fields()
        self.wait(lambda: self.origin.has(screen.FOCUSED), "the exercise has the keyboard")

    def fields(self):
        """The model above and the copy below it."""
        fields = sorted(showing(self.window, "text"), key=lambda node: node.place[1])
        expect(len(fields) == 2, "\n".join(self.window.tell()))
        return fields

    def says(self, pattern):
        """What the label says that matches, or None."""
        texts = (node.name for node in showing(self.window, "label"))
        return next((text for text in texts if re.fullmatch(pattern, text)), None)

    def shows_caps_lock(self, left, top):
        """Whether the picture of the key is dark, in the window whose corner is there."""
        x, y, width, height = CAPS_LOCK_CAP
        pixels = self.visitor.machine.pixels(left + x, top + y, width, height)
        return sum(pixels[1::4]) < 128 * width * height

    def is_open(self):
        try:
            return self.window.has(screen.SHOWING)
        except Gone:
            return False

    def copy_becomes(self, text):
        self.wait(lambda: self.copy.text == text, f"the copy holds {text!r}")

    def type_row(self, table):
        """Types the row that the screen shows, whole and right, and waits for what comes after:
        another row or the end of the exercise. Answers the row."""
        row = self.origin.text
        self.visitor.type(row[:-1], table)
        self.copy_becomes(row[:-1])
        self.visitor.type(row[-1], table)
        self.wait(lambda: not self.is_open() or self.copy.text == "", f"{row!r} is done")
        return row

    def type_to_end(self, table):
        """Types every row that comes; answers them."""
        rows = []
        while self.is_open():
            rows.append(self.type_row(table))
        return rows

    def type_passage(self, text, table):
        """Types a whole passage. A line's end is one key, which puts in the mark and both
        characters after it. The last line waits for the clock, since the speed of what took no time
        has no number."""
        last_line = text.rindex("\n") + 1
        self.visitor.type(text[:last_line].replace("\r\n", ""), table)
        self.copy_becomes(text[:last_line])
        self.wait(lambda: self.says(r"00:0[1-9]"), "the clock shows a second")
        self.visitor.type(text[last_line:], table)
