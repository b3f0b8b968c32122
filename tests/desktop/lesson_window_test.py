"""The window of an exercise: the mouse on its pictures and fields, and the keys that lead elsewhere
in other windows."""
from harness import case, keys, screen
from harness.files import StudentFile
from harness.visitor import centre, showing
from harness.waiting import let_pass

# How the notes begin that a first stop may show; they are Arabic whatever the language.
STOP_NOTES = ("ما الفائدة", "أتيت", "لا تتكاسل", "نذكرك", "بكل سرعة", "ماذا", "قد بدأت",
              "هل بإمكانك")


class LessonWindow(case.DesktopTest):
    def test_mouse(self):
        self.sign_in("Layla")
        lesson = self.open_exercise(1, arabic=False, aids=["Clock Timer"])
        self.type("as", keys.ENGLISH)
        lesson.copy_becomes("as")
        self.check_hover(lesson)
        self.check_caution(lesson)
        self.check_pause(lesson)
        self.check_stop(lesson)

    def check_hover(self, lesson):
        """A picture under the pointer looks otherwise, until the pointer is on the bare window."""
        place = self.control(lesson.window, "push button", "Break").place
        before = self.machine.pixels(*place)
        self.pointer.move(place[0] + 10, place[1] + 10)
        lesson.wait(lambda: self.machine.pixels(*place) != before, "the picture is lit")
        left, top, _, height = lesson.window.place
        self.pointer.move(left + 20, top + height - 20)
        lesson.wait(lambda: self.machine.pixels(*place) == before, "the picture is put out")

    def check_caution(self, lesson):
        for field in (lesson.origin, lesson.copy):
            self.click(field)
            caution = self.window_with("label", "Caution!")
            self.click(self.control(caution, "push button", "OK"))
            lesson.wait(lambda: lesson.window.has(screen.ACTIVE) and
                        lesson.origin.has(screen.FOCUSED), "the exercise has the keyboard again")
        self.assertEqual(lesson.copy.text, "as")

    def check_pause(self, lesson):
        def clock():
            return lesson.says(r"\d\d:\d\d")
        def has_button(name):
            return showing(lesson.window, "push button", name)
        lesson.wait(lambda: clock() >= "00:01", "the clock runs")
        self.click(self.control(lesson.window, "push button", "Break"))
        lesson.wait(lambda: has_button("Resumption"), "the pause has begun")
        self.assertFalse(has_button("Break"))
        stood_at = clock()
        self.type("d", keys.ENGLISH)
        let_pass(1.3)
        self.assertEqual((clock(), lesson.copy.text), (stood_at, "as"))

        self.click(self.control(lesson.window, "push button", "Resumption"))
        lesson.wait(lambda: has_button("Break"), "the pause can be ended by a key")
        let_pass(1.3)
        self.assertEqual((clock(), lesson.copy.text), (stood_at, "as"))
        self.type("d", keys.ENGLISH)
        lesson.copy_becomes("asd")
        lesson.wait(lambda: clock() > stood_at, "the clock runs again")

    def check_stop(self, lesson):
        """The exercise goes as the button goes down; nothing of it is kept."""
        self.pointer.move(*centre(self.control(lesson.window, "push button", "Stop")))
        self.pointer.press()
        def is_note(window):
            labels = showing(window, "label")
            return (window.has(screen.ACTIVE) and len(labels) == 1 and
                    labels[0].name.startswith(STOP_NOTES))
        note = self.program.wait_for_window(is_note, "the note of a stop")
        self.pointer.release()
        self.assertFalse(lesson.is_open())
        left, top, _, _ = note.place
        self.pointer.click(left + 5, top + 5)
        self.main_window()
        self.choose_from_menu("File", "Quit")
        self.arabic = True  # from the note on
        self.click_button("yes")
        farewell = self.program.wait_for_window(
            lambda window: len(showing(window, "push button")) == 1, "the farewell")
        self.click(self.control(farewell, "push button"))
        self.assertEqual(self.program.wait_for_end(), 0)
        self.assertEqual(self.folder.student("Layla").read_bytes(), StudentFile().bytes())

    def test_keys(self):
        self.sign_in("Layla")
        self.keyboard.tap(keys.CAPS_LOCK)
        lesson = self.open_exercise(1, arabic=False, aids=["Counter"])
        self.accuracy = self.control(lesson.window, "progress bar", "Resulotion:")
        self.right = self.wrong = 0
        self.check_caps_lock(lesson)  # asdf
        self.check_keys_that_lead_elsewhere(lesson)  # and the blank
        self.check_shift_in_a_blink(lesson)  # asdf

    def key_is_right(self, lesson, text):
        """The last key was right: the copy holds its letter then."""
        self.right += 1
        lesson.copy_becomes(text)

    def key_is_wrong(self, lesson, text):
        """The last key was refused: the mark falls, and after the blink the copy is as before."""
        self.wrong += 1
        expected = round(100 * self.right / (self.right + self.wrong))
        lesson.wait(lambda: self.accuracy.value == expected, f"the mark falls to {expected}")
        lesson.copy_becomes(text)

    def check_caps_lock(self, lesson):
        """Caps Lock was on before the exercise began; with it a small letter passes with Shift."""
        corner = lesson.window.place[:2]
        lesson.wait(lambda: lesson.shows_caps_lock(*corner),
                    "the picture shows that Caps Lock is on")
        self.keyboard.tap(*self.shifted("a"))
        self.key_is_right(lesson, "a")
        self.type("s", keys.ENGLISH)
        self.key_is_right(lesson, "as")
        self.keyboard.tap(keys.CAPS_LOCK)
        lesson.wait(lambda: not lesson.shows_caps_lock(*corner),
                    "the picture shows that Caps Lock is off")
        self.keyboard.tap(*self.shifted("d"))
        self.key_is_wrong(lesson, "as")
        self.type("d", keys.ENGLISH)
        self.key_is_right(lesson, "asd")

    @staticmethod
    def shifted(letter):
        return keys.ENGLISH[letter][0], keys.LEFT_SHIFT

    def check_keys_that_lead_elsewhere(self, lesson):
        """Without a cap they do nothing, with one they are wrong keys like any other; none moves
        the keyboard to another control or opens anything."""
        windows = self.program.windows()
        for place in (keys.TAB, keys.LEFT_ALT, keys.LEFT_CTRL, keys.LEFT, keys.HOME):
            self.keyboard.tap(place)
        for place in (keys.ESCAPE, keys.F10, keys.RETURN):
            self.keyboard.tap(place)
            self.key_is_wrong(lesson, "asd")
        self.keyboard.tap(keys.ENGLISH["f"][0], keys.LEFT_ALT)
        self.key_is_right(lesson, "asdf")
        self.assertEqual(self.accuracy.value, round(100 * self.right / (self.right + self.wrong)))
        self.assertEqual(self.program.windows(), windows)
        self.assertTrue(lesson.window.has(screen.ACTIVE))
        self.assertTrue(lesson.origin.has(screen.FOCUSED))
        self.assertEqual(lesson.origin.selection, (4, 5))
        menus = [node for node in windows[0].all() if node.role == "popup menu"]
        self.assertEqual([menu for menu in menus if menu.has(screen.SHOWING)], [])
        self.keyboard.tap(keys.SPACE, keys.LEFT_CTRL)
        self.key_is_right(lesson, "")

    def check_shift_in_a_blink(self, lesson):
        """A Shift that goes down while a blink shuts keys out counts from the end of the blink
        on."""
        self.type("j", keys.ENGLISH)
        self.keyboard.press(keys.RIGHT_SHIFT)
        self.key_is_wrong(lesson, "")
        self.type("a", keys.ENGLISH)
        self.key_is_wrong(lesson, "")
        self.keyboard.release(keys.RIGHT_SHIFT)
        self.type("a", keys.ENGLISH)
        self.key_is_right(lesson, "a")


if __name__ == "__main__":
    case.main()
