"""What an installation holds, and what it says of itself to desktops and people."""
import configparser
import gzip
import os
import pathlib
import re
import resource
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

PROJECT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ["KEYFLUENT_BUILD"])
SIZES = [16, 22, 24, 32, 48, 64, 128, 256]
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
ARABIC_LETTER = re.compile("[\u0621-\u064a]")

FILES = sorted([
    "bin/keyfluent",
    "bin/keyfluent-headless",
    "libexec/keyfluent/keyfluent",
    "share/applications/keyfluent.desktop",
    "share/doc/keyfluent/copyright",
    *(f"share/icons/hicolor/{size}x{size}/apps/keyfluent.png" for size in SIZES),
    "share/icons/hicolor/scalable/apps/keyfluent.svg",
    "share/keyfluent/preferences/ar.prf",
    "share/keyfluent/preferences/en.prf",
    "share/keyfluent/sounds/Back.wav",
    "share/keyfluent/sounds/caps.wav",
    "share/keyfluent/sounds/char.wav",
    "share/keyfluent/sounds/enter.wav",
    "share/keyfluent/sounds/space.wav",
    "share/man/ar/man1/keyfluent.1.gz",
    "share/man/man1/keyfluent-headless.1.gz",
    "share/man/man1/keyfluent.1.gz",
    "share/metainfo/example.keyfluent.keyfluent.metainfo.xml",
])


def version():
    cache = (BUILD / "CMakeCache.txt").read_text()
    return re.search(r"^CMAKE_PROJECT_VERSION:STATIC=(.*)$", cache, re.M)[1]


def newest_release():
    """The number and the day of the newest release in the changelog."""
    changelog = (PROJECT / "CHANGELOG.md").read_text(encoding="utf-8")
    return re.search(r"^## \[(\d[^]]*)\] - (\d{4}-\d\d-\d\d)$", changelog, re.M).groups()


def silently(*command):
    """Runs a checker; answers what it says."""
    run = subprocess.run(command, capture_output=True, text=True,
                         env={**os.environ, "LC_ALL": "C.UTF-8"})
    return run.returncode, (run.stdout + run.stderr).strip()


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory(prefix="keyfluent installed ")
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.root = pathlib.Path(cls.scratch.name) / "a prefix"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.root], check=True,
                       stdout=subprocess.DEVNULL)

    def text(self, name):
        path = self.root / name
        data = path.read_bytes()
        return (gzip.decompress(data) if path.suffix == ".gz" else data).decode()

    def test_holds_these_files_and_no_others(self):
        found = sorted(str(path.relative_to(self.root)) for path in self.root.rglob("*")
                       if not path.is_dir())
        self.assertEqual(found, FILES)

    def test_what_is_a_program_can_be_run_and_nothing_else(self):
        for name in FILES:
            runs = os.access(self.root / name, os.X_OK) and \
                (self.root / name).stat().st_mode & 0o111 != 0
            self.assertEqual(runs, name.startswith(("bin/", "libexec/")), name)

    def test_the_console_runs_where_it_is_installed(self):
        run = subprocess.run([self.root / "bin/keyfluent-headless"], input="lessonname 1\n",
                             capture_output=True, text=True, cwd=self.scratch.name)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertTrue(run.stdout.startswith('"'), run.stdout)

    def test_the_launcher_finds_the_program_and_its_files(self):
        """The program stops at the toolkit: there is no such kind of screen."""
        folder = pathlib.Path(self.scratch.name) / "folder"
        run = subprocess.run([self.root / "bin/keyfluent"], capture_output=True, text=True,
                             env={"PATH": "/usr/bin:/bin", "KEYFLUENT_FOLDER": str(folder),
                                  "QT_QPA_PLATFORM": "no-such-screen"},
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CORE, (0, 0)))
        self.assertIn("no-such-screen", run.stderr)
        self.assertEqual(os.readlink(folder / "keyfluent"),
                         str(self.root / "libexec/keyfluent/keyfluent"))
        for sound in ("enter", "char", "space", "caps", "Back"):
            self.assertEqual((folder / f"{sound}.wav").read_bytes()[:4], b"RIFF")
        self.assertEqual((folder / "KeyFluent Preference.prf").stat().st_size, 532)

    def test_icons_have_their_sizes(self):
        for size in SIZES:
            data = (self.root / f"share/icons/hicolor/{size}x{size}/apps/keyfluent.png").read_bytes()
            self.assertEqual(data[1:4], b"PNG")
            told = [int.from_bytes(data[at:at + 4], "big") for at in (16, 20)]
            self.assertEqual(told, [size, size])

    def test_licences_of_all_faces_are_told(self):
        told = self.text("share/doc/keyfluent/copyright")
        fonts = (PROJECT / "shell/platform/fonts.cmake").read_text()
        faces = re.findall(r"^add_font\((\S+) ", fonts, re.M)
        self.assertEqual(len(faces), 6)
        for face in faces:
            self.assertRegex(told, rf"(?m)^(Files:)? {re.escape(face)}$")
        for words in ("The KeyFluent developers", "Permission is hereby granted", "SIL", "OFL",
                      "PERMISSION & CONDITIONS", "Bitstream"):
            self.assertIn(words, told)
        for line in told.splitlines():
            self.assertRegex(line, r"^(| .+|[A-Z][A-Za-z-]+: .+)$")


class Entry(unittest.TestCase):
    FILE = PROJECT / "packaging/desktop/keyfluent.desktop"

    def setUp(self):
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read_string(self.FILE.read_text(encoding="utf-8"))
        self.entry = dict(parser["Desktop Entry"])

    def test_is_valid(self):
        self.assertEqual(silently("desktop-file-validate", str(self.FILE)), (0, ""))

    def test_speaks_both_languages(self):
        for key in ("Name", "GenericName", "Comment", "Keywords"):
            self.assertNotRegex(self.entry[key], ARABIC_LETTER)
            self.assertRegex(self.entry[f"{key}[ar]"], ARABIC_LETTER)

    def test_starts_the_launcher_with_the_installed_icon(self):
        self.assertIn(f"bin/{self.entry['Exec']}", FILES)
        self.assertIn(f"share/icons/hicolor/scalable/apps/{self.entry['Icon']}.svg", FILES)


class Metainfo(unittest.TestCase):
    FILE = BUILD / "packaging/documents/keyfluent.metainfo.xml"

    def setUp(self):
        self.root = xml.etree.ElementTree.parse(self.FILE).getroot()

    def test_is_valid(self):
        status, said = silently("appstreamcli", "validate", "--no-net", "--no-color",
                                str(self.FILE))
        self.assertEqual(status, 0, said)
        self.assertNotRegex(said, r"(?m)^[EW]:")

    def test_tells_the_newest_release(self):
        newest = self.root.find("releases/release")
        self.assertEqual((newest.get("version"), newest.get("date")), newest_release())

    def test_says_everything_in_both_languages(self):
        for path in ("name", "summary", "developer_name", "description/p", "description/ul/li"):
            told = self.root.findall(path)
            self.assertTrue(told, path)
            languages = [node.get(LANGUAGE) for node in told]
            self.assertEqual(languages, [None, "ar"] * (len(told) // 2), path)
            for node in told[1::2]:
                self.assertRegex(node.text, ARABIC_LETTER)

    def test_names_files_that_are_installed(self):
        self.assertIn("share/applications/" + self.root.find("launchable").text, FILES)
        for binary in self.root.findall("provides/binary"):
            self.assertIn("bin/" + binary.text, FILES)


class ManualPages(unittest.TestCase):
    NAMES = ["keyfluent.1", "keyfluent.ar.1", "keyfluent-headless.1"]

    def page(self, name):
        return BUILD / "packaging/documents" / name

    def test_are_well_written(self):
        for name in self.NAMES:
            self.assertEqual(silently("mandoc", "-Tlint", "-Wwarning", str(self.page(name))),
                             (0, ""))

    def test_tell_version_and_day(self):
        for name in self.NAMES:
            first = self.page(name).read_text(encoding="utf-8").splitlines()[0]
            self.assertIn(f" {version()}\"", first)
            self.assertIn(newest_release()[1], first)

    def test_tell_every_variable_that_the_launcher_reads(self):
        launcher = (PROJECT / "packaging/keyfluent-launcher.sh").read_text(encoding="utf-8")
        read = set(re.findall(r"\$\{([A-Z_]+):-", launcher))
        # For a program that is not installed, and what every program has.
        read -= {"KEYFLUENT_PROGRAM", "KEYFLUENT_DATA", "HOME", "DISPLAY", "WAYLAND_DISPLAY"}
        self.assertEqual(len(read), 6, read)
        for name in ("keyfluent.1", "keyfluent.ar.1"):
            page = self.page(name).read_text(encoding="utf-8")
            for variable in read:
                self.assertIn(variable, page)

    def test_both_languages_have_the_same_sections_and_files(self):
        def marks(name):
            lines = self.page(name).read_text(encoding="utf-8").splitlines()
            return ([line for line in lines if line.startswith((".I ~", ".IR ~"))],
                    sum(line.startswith(".SH") for line in lines),
                    sum(line == ".TP" for line in lines))
        self.assertEqual(marks("keyfluent.ar.1"), marks("keyfluent.1"))

    def test_the_example_of_the_console_gives_what_it_says(self):
        page = self.page("keyfluent-headless.1").read_text(encoding="utf-8")
        command = re.search(r"\.nf\n(.*?)\.fi", page, re.S)[1]
        command = command.replace("\\e", "\\").replace("\\-", "-")
        with tempfile.TemporaryDirectory() as folder:
            run = subprocess.run(["sh", "-c", command], capture_output=True, text=True, cwd=folder,
                                 env={"PATH": f"{BUILD}:/usr/bin:/bin"})
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertEqual(len(run.stdout.splitlines()), 4, run.stdout)
        self.assertIn('"totalCount": 1', run.stdout)


def tracked_files():
    told = subprocess.run(["git", "-C", PROJECT, "ls-files", "-z"], check=True,
                          capture_output=True, text=True).stdout
    return list(filter(None, told.split("\0")))


class ProjectDocuments(unittest.TestCase):
    """README, CONTRIBUTING and docs/: what they name is there."""

    # What is not in the repository: made by a build, or another folder than the project's.
    ELSEWHERE = re.compile(r"build(-\w+)?/|[~/]|Students/")
    PLACEHOLDER = re.compile(r"[A-Z]{4,}|N\b|<")
    WORDS = {"README.md", "CONTRIBUTING.md", "CHANGELOG.md"}  # capitals that are names

    def setUp(self):
        self.files = tracked_files()
        self.texts = {name: (PROJECT / name).read_text(encoding="utf-8") for name in self.files
                      if name.endswith(".md") and "/" not in name.removeprefix("docs/")}
        self.assertIn("docs/architecture.md", self.texts)

    def exists(self, path):
        """A file or folder, named from the root or by the end of its path; * stands for a name."""
        middle = re.escape(path.rstrip("/")).replace(r"\*", "[^/]*")
        # A header and its source may be named together.
        pattern = re.compile(rf"(^|/){middle}(\.(h|cpp))?(/|$)")
        return any(pattern.search(name) for name in self.files)

    def test_every_path_leads_somewhere(self):
        checked = 0
        for name, text in self.texts.items():
            # What stands apart as a command, and what stands between backticks.
            told = re.findall(r"`([^`\n]+)`", text)
            told += [word for line in re.findall(r"(?m)^    (.*)$", text) for word in line.split()]
            for path in told:
                path = path.removeprefix("./")
                if not re.fullmatch(r"[\w.*/-]+", path) or not re.search(r"/|\.(sh|py|md|h)$", path):
                    continue
                if self.ELSEWHERE.match(path) or \
                        path not in self.WORDS and self.PLACEHOLDER.search(path):
                    continue
                checked += 1
                self.assertTrue(self.exists(path), f"{name}: {path}")
        self.assertGreater(checked, 80)

    def test_every_preset_is_there(self):
        presets = (PROJECT / "CMakePresets.json").read_text()
        for name, text in self.texts.items():
            for preset in re.findall(r"--preset ([\w-]+)", text):
                self.assertIn(f'"name": "{preset}"', presets, name)


class Version(unittest.TestCase):
    def test_the_changelog_tells_of_this_version_first(self):
        self.assertEqual(newest_release()[0], version())

    def test_stands_in_one_place(self):
        """The changelog apart, which tells of all of them."""
        number = re.compile(rf"(?<![\d.]){re.escape(version())}(?![\d.])")
        found = []
        for name in tracked_files():
            try:
                text = (PROJECT / name).read_text(encoding="utf-8")
            except (UnicodeDecodeError, FileNotFoundError):
                continue
            if name != "CHANGELOG.md" and number.search(text):
                found.append(name)
        self.assertEqual(found, ["CMakeLists.txt"])

    def test_the_changelog_of_the_package_is_the_same_one(self):
        text = gzip.decompress(
            (BUILD / "packaging/documents/changelog.gz").read_bytes()).decode()
        self.assertTrue(text.startswith(f"keyfluent ({version()}) unstable; urgency=medium\n\n"))
        changelog = (PROJECT / "CHANGELOG.md").read_text(encoding="utf-8")
        self.assertEqual(len(re.findall(r"^  \* ", text, re.M)),
                         len(re.findall(r"^- ", changelog, re.M)))
        self.assertRegex(text, r"(?m)^ -- .+ <.+@.+\.example>  \w{3}, \d\d \w{3} \d{4} ")
        for line in text.splitlines():
            if not line.startswith(" -- "):
                self.assertLessEqual(len(line), 80)


if __name__ == "__main__":
    unittest.main()
