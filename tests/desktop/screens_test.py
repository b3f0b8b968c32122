"""Screens of many sizes: the main window fills each with its backdrop, and an exercise opens in the
middle. On a dense screen everything is as large as on another, and sharp."""
from harness import case
from harness.visitor import centre

MENU_HEIGHT = 21
STRIP_HEIGHT = 129  # below the backdrop
EXERCISE = (800, 600)
GREEN = slice(1, None, 4)  # of pixels: the shade, for what is not coloured

# Parts of an exercise's window: left, top, right, bottom.
TITLE = (200, 5, 600, 25)
KEYBOARD = (87, 138, 713, 290)
HANDS = (230, 300, 560, 450)


def cut(rows, part, scale):
    left, top, right, bottom = (scale * number for number in part)
    return [row[left:right] for row in rows[top:bottom]]


def blocks(rows):
    """The shades of every four pixels that are one of a window's on a dense screen, row by row."""
    for upper, lower in zip(rows[0::2], rows[1::2]):
        yield from zip(upper[0::2], upper[1::2], lower[0::2], lower[1::2])


def reduced(rows):
    """A picture of a dense screen as another screen would show it."""
    means = [sum(block) // 4 for block in blocks(rows)]
    width = len(rows[0]) // 2
    return [means[start:start + width] for start in range(0, len(means), width)]


def mean_difference(rows, others):
    pairs = [(one, other) for row, other_row in zip(rows, others, strict=True)
             for one, other in zip(row, other_row, strict=True)]
    return sum(abs(one - other) for one, other in pairs) / len(pairs)


class Screens(case.DesktopTest):
    size = (800, 600)
    scale = 1  # pixels of the screen to one of a window's

    def find_machine(self):
        machine = case.machine_of_size(self.size)
        machine.environment["QT_SCALE_FACTOR"] = str(self.scale)
        return machine

    def end(self):
        super().end()
        self.machine.stop()

    def go_to(self, size, scale=1):
        """Leaves this machine for another."""
        self.tearDown()
        self.end()
        self.size, self.scale = size, scale
        self.begin(self.find_machine())

    def click(self, node):
        self.pointer.click(*(self.scale * place for place in centre(node)))

    def shades(self, left, top, width, height):
        """Rows of shades, of a place in a window's pixels."""
        place = [self.scale * number for number in (left, top, width, height)]
        shades = self.machine.pixels(*place)[GREEN]
        return [shades[start:start + place[2]] for start in range(0, len(shades), place[2])]

    def check_screen(self):
        """Through the main window into an exercise."""
        main = self.sign_in("Layla")
        self.check_main_window(main)
        lesson = self.open_exercise(1, arabic=False)
        self.pointer.move(2, 2)
        left, top, width, height = lesson.window.place
        self.assertEqual((width, height), EXERCISE)
        for start, length, whole in zip((left, top), EXERCISE, self.size):
            self.assertEqual(start, (whole // self.scale - length) // 2)
        def is_framed():
            rows = self.shades(left, top, width, height)
            return not any(rows[0]) and not any(rows[-1])
        lesson.wait(is_framed, "the exercise stands on the screen with its frame")
        return lesson

    def check_main_window(self, main):
        """It fills what the desktop's title bar leaves: the backdrop from edge to edge, the strip
        with the pictures below it."""
        width, height = (number // self.scale for number in self.size)
        left, top, own_width, own_height = main.place
        rounding = self.scale - 1  # the title bar may be half a pixel of the window's high
        self.assertEqual((left, own_width), (0, width))
        self.assertAlmostEqual(top + own_height, height, delta=rounding)
        self.assertLess(top, 30)
        first, last = top + MENU_HEIGHT + 1, height - STRIP_HEIGHT - 2
        def is_painted():
            pixels = [self.pixel(x, y)
                      for x in (0, width // 3, width // 2, width - 1)
                      for y in (first, (first + last) // 2, last)]
            strip = [self.pixel(x, height - 1) for x in (0, width // 2, width - 1)]
            return (all(blue > red and green > red for blue, green, red in pixels) and
                    len(set(pixels)) > 8 and all(min(pixel) > 225 for pixel in strip))
        self.program.wait(is_painted, "the backdrop fills the screen")
        picture = self.control(main, "push button", "Exercises").place
        self.assertEqual(picture[:1] + picture[2:], (10, 90, 81))
        self.assertAlmostEqual(height - picture[1], 127, delta=rounding)
        self.assertLess(min(map(min, self.shades(*picture))), 100)

    def pixel(self, x, y):
        return tuple(self.machine.pixels(self.scale * x, self.scale * y, 1, 1)[:3])

    def test_smallest(self):
        self.check_screen()

    def test_old(self):
        self.go_to((1024, 768))
        self.check_screen()

    def test_square(self):
        self.go_to((1280, 1024))
        self.check_screen()

    def test_largest(self):
        self.go_to((3840, 2160))
        self.check_screen()

    def test_dense(self):
        self.go_to((1920, 1080))
        place = self.check_screen().window.place
        expected = self.shades(*place)
        self.go_to((3840, 2160), scale=2)
        self.assertEqual(self.check_screen().window.place, place)
        shades = self.shades(*place)
        self.assertLess(mean_difference(reduced(shades), expected), 2)
        for part in (TITLE, KEYBOARD, HANDS):
            self.check_sharpness(part, cut(shades, part, 2))

    def check_sharpness(self, part, shades):
        """A picture that is only enlarged has every pixel four times, or no hard edge."""
        ink = [block for block in blocks(shades) if min(block) < 160]
        detailed = [block for block in ink if max(block) - min(block) > 24]
        self.assertGreater(len(detailed), len(ink) / 5, part)
        steps = (abs(one - other) for row in shades for one, other in zip(row, row[1:]))
        self.assertGreater(max(steps), 150, part)


if __name__ == "__main__":
    case.main()
