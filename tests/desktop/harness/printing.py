"""The print dialog, a PDF as its readers see it, and a print service of the test's own."""
import pathlib
import re
import subprocess

from harness import keys, machine, screen
from harness.visitor import expect
from harness.waiting import wait_until

POINTS_OF_A4 = (595, 842)
_DRIVER = pathlib.Path("/usr/share/ppd/cups-pdf/CUPS-PDF_noopt.ppd")
_DRIVER_SETTINGS = pathlib.Path("/etc/cups/cups-pdf.conf")


class PrintDialog:
    """The toolkit's, answered with the mouse and the keys."""

    def __init__(self, visitor):
        self._visitor = visitor
        self._window = self._wait_for("Print")

    def _wait_for(self, title):
        def is_it(window):
            return window.role == "dialog" and window.name == title and window.has(screen.ACTIVE)
        return self._visitor.program.wait_for_window(is_it, f"the dialog {title!r}")

    def _control(self, window, role, name):
        def shown():
            return next((node for node in window.all() if node.role == role and
                         node.name.startswith(name) and node.has(screen.SHOWING)), None)
        return self._visitor.program.wait(shown, f"the dialog shows the {role} {name!r}")

    def _fill(self, node, text):
        self._visitor.click(node)
        self._visitor.program.wait(lambda: node.has(screen.FOCUSED), "the field has the keyboard")
        self._visitor.keyboard.tap(keys.ENGLISH["a"][0], keys.LEFT_CTRL)
        self._visitor.type(text, keys.ENGLISH)

    def print_to(self, file):
        field = self._control(self._window, "text", "Output file:")
        self._fill(field, str(file))
        self._visitor.program.wait(lambda: field.text == str(file), "the file's name stands there")

    def choose_copies(self, number):
        self._visitor.click(self._control(self._window, "push button", "Options >>"))
        field = self._control(self._window, "spin box", "Copies:")
        self._fill(field, str(number))
        self._visitor.program.wait(lambda: field.value == number, "the copies are chosen")

    def choose_orientation(self, name):
        self._visitor.click(self._control(self._window, "push button", "Properties"))
        properties = self._visitor.program.wait_for_window(
            lambda window: window.role == "dialog" and window != self._window and
            window.has(screen.ACTIVE), "the properties")
        choice = self._control(properties, "radio button", name)
        self._visitor.click(choice)
        self._visitor.program.wait(lambda: choice.has(screen.CHECKED), f"{name} is chosen")
        self._visitor.click(self._control(properties, "push button", "OK"))
        self._visitor.program.wait(lambda: self._window.has(screen.ACTIVE), "the dialog is back")

    def check_printer(self, name):
        self._control(self._window, "combo box", name)

    def choose_printer(self, name):
        self._visitor.click(self._control(self._window, "combo box", ""))
        self._visitor.click(self._control(self._window, "list item", name))
        self._control(self._window, "combo box", name)

    def press(self, button):
        self._visitor.click(self._control(self._window, "push button", button))


class Pdf:
    """The pages of a file: their sizes, and the words with their boxes, in points."""

    def __init__(self, file):
        self._file = file
        text = self._tell("pdftotext", "-bbox", file, "-")
        pages = re.split(r"<page ", text)[1:]
        self.sizes = [(round(_number(page, "width")), round(_number(page, "height")))
                      for page in pages]
        self.words = [[Word(line) for line in re.findall(r"<word [^>]*>[^<]*", page)]
                      for page in pages]

    @property
    def pictures(self):
        """The pictures' page, width and height in their own pixels, masks left out."""
        lines = (line.split() for line in self._tell("pdfimages", "-list", self._file).splitlines())
        return [(int(line[0]), int(line[3]), int(line[4])) for line in lines
                if len(line) > 4 and line[2] == "image"]

    def shades(self, page):
        """The rows of a page as it looks, in shades of grey, at 36 points of light to the inch."""
        data = subprocess.run(["pdftoppm", "-r", "36", "-gray", "-f", str(page), "-l", str(page),
                               str(self._file)], check=True, capture_output=True).stdout
        kind, width, height, _, pixels = data.split(maxsplit=4)
        expect(kind == b"P5", kind)
        width, height = int(width), int(height)
        pixels = data[-width * height:]
        return [pixels[start:start + width] for start in range(0, width * height, width)]

    @staticmethod
    def _tell(*command):
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Word:
    def __init__(self, line):
        self.text = line.partition(">")[2].strip()
        self.left, self.top, self.right, self.bottom = (
            _number(line, name) for name in ("xMin", "yMin", "xMax", "yMax"))

    def __repr__(self):
        return (f"<{self.text!r} {self.left:.1f} to {self.right:.1f}, "
                f"{self.top:.1f} to {self.bottom:.1f}>")


def _number(text, name):
    return float(re.search(rf'{name}="([-0-9.]+)"', text)[1])


class PrintService:
    """A print service with one queue. Where the test may do so, the queue has a driver, which makes
    a PDF of each job; it reads its settings at one place of the system alone, so a file of the
    test's is put there, for the test's own view of the machine. Elsewhere a job is kept as it
    comes."""

    NAME = "Desk"

    def __init__(self, visitor):
        self.has_driver = machine.is_isolated() and machine.is_superuser()
        self._folder = visitor.machine.scratch / "printing"
        for name in ("spool/tmp", "cache", "state", "root/ppd", "log", "printed"):
            (self._folder / name).mkdir(parents=True)
        visitor.machine.scratch.chmod(0o755)  # the driver may be another user
        self.socket = self._folder / "socket"
        self._environment = dict(visitor.machine.environment, CUPS_SERVER=str(self.socket))
        self._write_settings()
        if self.has_driver:
            self._put_driver_settings()
        else:
            self._make_device()
        # Without a superuser's rights the service must not take itself for one.
        humbly = (["unshare", "--user", "--map-user=65534"]
                  if machine.is_isolated() and not self.has_driver else [])
        self._process = visitor.machine.run(
            [*humbly, "/usr/sbin/cupsd", "-f", "-c", str(self._folder / "cupsd.conf"),
             "-s", str(self._folder / "cups-files.conf")],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(self.socket.is_socket, "the print service runs")
        kind = (["-v", "cups-pdf:/", "-P", str(_DRIVER)] if self.has_driver else
                ["-v", "keep:/", "-m", "raw"])
        self._run("lpadmin", "-p", self.NAME, "-E", *kind)
        self._run("lpadmin", "-d", self.NAME)

    def _write_settings(self):
        folder = self._folder
        anyone = "Order allow,deny\nAllow all\n"
        (folder / "cupsd.conf").write_text(
            f"Listen {self.socket}\nBrowsing No\nPrintcap\nWebInterface No\nDefaultAuthType None\n"
            f"<Location />\n{anyone}</Location>\n<Location /admin>\n{anyone}</Location>\n"
            "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n")
        (folder / "cups-files.conf").write_text(
            f"ServerRoot {folder}/root\nRequestRoot {folder}/spool\nTempDir {folder}/spool/tmp\n"
            f"CacheDir {folder}/cache\nStateDir {folder}/state\nErrorLog {folder}/log/error\n"
            f"AccessLog {folder}/log/access\nPageLog {folder}/log/page\n" +
            ("" if self.has_driver else f"ServerBin {folder}/programs\n"))

    def _put_driver_settings(self):
        settings = self._folder / "cups-pdf.conf"
        settings.write_text(f"Out {self._folder}/printed\nLog {self._folder}/log\n")
        subprocess.run(["mount", "--bind", str(settings), str(_DRIVER_SETTINGS)], check=True)

    def _make_device(self):
        """Beside the service's own programs one more, which keeps what is sent to it."""
        devices = self._folder / "programs" / "backend"
        devices.mkdir(parents=True)
        for name in ("daemon", "filter", "notifier"):
            (devices.parent / name).symlink_to(f"/usr/lib/cups/{name}")
        (self._folder / "printed").chmod(0o777)
        keep = devices / "keep"
        keep.write_text(f'#!/bin/sh\nexec cat "$6" >"{self._folder}/printed/job.pdf"\n')
        keep.chmod(0o700)  # run as the service itself

    def _run(self, *command):
        return subprocess.run(command, env=self._environment, check=True, capture_output=True,
                              text=True, timeout=30).stdout

    def printed(self):
        """The file of the one job, once it is done."""
        def found():
            files = list((self._folder / "printed").rglob("*.pdf"))
            return files[0] if files and not self._run("lpstat", "-o") else None
        return wait_until(found, "the job is printed", patience=60)

    def stop(self):
        self._process.kill()
        self._process.wait()

    def close(self):
        self.stop()
        if self.has_driver:
            subprocess.run(["umount", str(_DRIVER_SETTINGS)], check=True)
