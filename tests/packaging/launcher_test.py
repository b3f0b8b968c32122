"""The launcher: the user's folder at the first start, at later ones, and where it cannot be."""
import os
import pathlib
import shutil
import stat
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "keyfluent-launcher.sh"
SOUNDS = ["enter.wav", "char.wav", "space.wav", "caps.wav", "Back.wav"]
PREFERENCES = "KeyFluent Preference.prf"
FIRST_FILES = sorted(SOUNDS + [PREFERENCES, "keyfluent"])

# Stands for the program: tells by which path it was started, and with what.
PROGRAM = '#!/bin/sh\nprintf "%s\\n" "$0" "$@"\nexit 7\n'


class LauncherTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="keyfluent launcher ")
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        self.home = self.scratch / "home"
        self.home.mkdir()
        self.folder = self.home / ".local/share/KeyFluent"
        self.install(self.scratch / "usr")

    def install(self, root):
        """An installation in small, and its launcher as the one that is started."""
        self.root = root
        self.program = root / "libexec/keyfluent/keyfluent"
        self.launcher = root / "bin/keyfluent"
        data = root / "share/keyfluent"
        for folder in (self.program.parent, self.launcher.parent, data / "sounds",
                       data / "preferences"):
            folder.mkdir(parents=True)
        self.program.write_text(PROGRAM)
        self.program.chmod(0o755)
        shutil.copy(SOURCE, self.launcher)
        for sound in SOUNDS:
            (data / "sounds" / sound).write_text(f"installed {sound}")
        for language in ("ar", "en"):
            (data / "preferences" / f"{language}.prf").write_text(f"prepared in {language}")

    def start(self, *arguments, command=None, cwd=None, **environment):
        environment = {"PATH": "/usr/bin:/bin", "HOME": str(self.home), **environment}
        return subprocess.run([str(command or self.launcher), *arguments], cwd=cwd or self.scratch,
                              env=environment, capture_output=True, text=True, timeout=30,
                              stdin=subprocess.DEVNULL)

    def check_started(self, run, folder):
        self.assertEqual(run.stderr, "")
        self.assertEqual(run.stdout.splitlines()[0], f"{folder}/keyfluent")
        self.assertEqual(run.returncode, 7)

    def check_refused(self, run, sentence):
        self.assertIn(sentence, run.stderr)
        self.assertTrue(run.stderr.startswith("KeyFluent: "), run.stderr)
        self.assertEqual(run.stdout, "")
        self.assertEqual(run.returncode, 1)

    @staticmethod
    def contents(folder):
        """Every file with its text, every link with where it leads."""
        return {str(path.relative_to(folder)): os.readlink(path) if path.is_symlink()
                else path.read_text() for path in folder.rglob("*")
                if path.is_symlink() or path.is_file()}


class FirstStart(LauncherTest):
    def test_makes_the_folder_and_starts_the_link_in_it(self):
        self.check_started(self.start(), self.folder)
        self.assertEqual(sorted(self.contents(self.folder)), FIRST_FILES)
        self.assertEqual(os.readlink(self.folder / "keyfluent"), str(self.program))
        for sound in SOUNDS:
            self.assertEqual((self.folder / sound).read_text(), f"installed {sound}")

    def test_hands_arguments_on_as_they_are(self):
        run = self.start("-style", "two words", "*")
        self.assertEqual(run.stdout.splitlines()[1:], ["-style", "two words", "*"])

    def test_files_are_the_users_own_to_write(self):
        for file in (self.root / "share/keyfluent").rglob("*.*"):
            file.chmod(0o444)
        self.start()
        for name in SOUNDS + [PREFERENCES]:
            self.assertTrue((self.folder / name).stat().st_mode & stat.S_IWUSR, name)

    def test_speaks_the_language_of_the_desktop(self):
        cases = [
            ({}, "en"),
            ({"LANG": "en_GB.UTF-8"}, "en"),
            ({"LANG": "ar_EG.UTF-8"}, "ar"),
            ({"LANG": "ar"}, "ar"),
            ({"LANG": "ar.UTF-8"}, "ar"),
            ({"LANG": "ar@quot"}, "ar"),
            ({"LANG": "arn_CL.UTF-8"}, "en"),  # another language of three letters
            ({"LANG": "en_GB.UTF-8", "LC_MESSAGES": "ar_SA.UTF-8"}, "ar"),
            ({"LANG": "ar_EG.UTF-8", "LC_MESSAGES": "fr_FR.UTF-8"}, "en"),
            ({"LANG": "en_GB.UTF-8", "LC_MESSAGES": "en_GB.UTF-8", "LC_ALL": "ar_EG.UTF-8"}, "ar"),
            ({"LANG": "ar_EG.UTF-8", "LC_ALL": "C"}, "en"),
            ({"LANG": "en_GB.UTF-8", "LANGUAGE": "ar:en"}, "ar"),
            ({"LANG": "ar_EG.UTF-8", "LANGUAGE": "en"}, "en"),
            ({"LANG": "C", "LANGUAGE": "ar"}, "en"),
        ]
        for number, (environment, language) in enumerate(cases):
            with self.subTest(environment=environment):
                folder = self.scratch / f"folder {number}"
                self.check_started(self.start(KEYFLUENT_FOLDER=str(folder), **environment), folder)
                self.assertEqual((folder / PREFERENCES).read_text(), f"prepared in {language}")

    def test_stands_where_the_desktop_keeps_data(self):
        self.check_started(self.start(XDG_DATA_HOME=str(self.scratch / "data")),
                           self.scratch / "data/KeyFluent")

    def test_passes_a_relative_data_home_over(self):
        self.check_started(self.start(XDG_DATA_HOME="data"), self.folder)

    def test_a_link_to_the_launcher_serves_as_well(self):
        link = self.scratch / "keyfluent here"
        link.symlink_to(self.launcher)
        self.check_started(self.start(command=link), self.folder)
        self.assertEqual(os.readlink(self.folder / "keyfluent"), str(self.program))

    def test_a_program_of_another_place_is_told_by_name(self):
        other = self.scratch / "built"
        shutil.move(self.root / "share/keyfluent", other)
        shutil.move(self.program, other / "program")
        run = self.start(KEYFLUENT_PROGRAM=str(other / "program"), KEYFLUENT_DATA=str(other))
        self.check_started(run, self.folder)
        self.assertEqual(os.readlink(self.folder / "keyfluent"), str(other / "program"))


    def test_a_file_that_another_start_makes_meanwhile_stays(self):
        tools = self.scratch / "tools"
        tools.mkdir()
        made = self.folder / PREFERENCES
        (tools / "cat").write_text('#!/bin/sh\ncase "$1" in\n'
                                   f'*.prf) echo quicker >"{made}" ;;\nesac\n'
                                   'exec /bin/cat "$@"\n')
        (tools / "cat").chmod(0o755)
        self.check_started(self.start(PATH=f"{tools}:/usr/bin:/bin"), self.folder)
        self.assertEqual(made.read_text(), "quicker\n")
        self.assertEqual(sorted(self.contents(self.folder)), FIRST_FILES)


class ChosenFolder(LauncherTest):
    def test_is_made_with_blanks_and_arabic_letters(self):
        folder = self.scratch / "الصف الثالث" / "class 3"
        self.check_started(self.start(KEYFLUENT_FOLDER=str(folder)), folder)
        self.assertEqual(sorted(self.contents(folder)), FIRST_FILES)
        self.assertFalse(self.folder.exists())

    def test_may_be_told_from_the_current_one(self):
        for name in ("class", "./class b", "-n"):
            with self.subTest(name=name):
                self.check_started(self.start(KEYFLUENT_FOLDER=name), f"{self.scratch}/{name}")
                self.assertEqual(sorted(self.contents(self.scratch / name)), FIRST_FILES)

    def test_needs_no_home(self):
        folder = self.scratch / "class"
        self.check_started(self.start(KEYFLUENT_FOLDER=str(folder), HOME=""), folder)


class LaterStart(LauncherTest):
    def setUp(self):
        super().setUp()
        self.start()
        (self.folder / "Students").mkdir()
        (self.folder / "Students/Layla.W").write_text("marks")
        (self.folder / PREFERENCES).write_text("as the teacher set them")
        (self.folder / "char.wav").write_text("a quieter sound")
        self.before = self.contents(self.folder)

    def test_leaves_every_file_as_it_is(self):
        self.check_started(self.start(LANG="ar_EG.UTF-8"), self.folder)
        self.assertEqual(self.contents(self.folder), self.before)

    def test_touches_no_file_and_no_link(self):
        def stamps():
            return {path: path.lstat().st_ctime_ns
                    for path in [self.folder, *self.folder.rglob("*")]}
        before = stamps()
        self.start()
        self.assertEqual(stamps(), before)

    def test_gives_back_what_is_missing(self):
        (self.folder / "enter.wav").unlink()
        self.check_started(self.start(), self.folder)
        self.assertEqual(self.contents(self.folder), self.before)

    def test_a_program_that_moved_is_linked_anew_and_nothing_else_changes(self):
        self.install(self.scratch / "opt/a newer one")
        shutil.rmtree(self.scratch / "usr")
        self.check_started(self.start(), self.folder)
        self.assertEqual(self.contents(self.folder),
                         {**self.before, "keyfluent": str(self.program)})

    def test_a_link_to_a_folder_is_replaced_and_that_folder_left_alone(self):
        elsewhere = self.scratch / "elsewhere"
        elsewhere.mkdir()
        (self.folder / "keyfluent").unlink()
        (self.folder / "keyfluent").symlink_to(elsewhere)
        self.check_started(self.start(), self.folder)
        self.assertEqual(list(elsewhere.iterdir()), [])
        self.assertEqual(self.contents(self.folder), self.before)


class Refusal(LauncherTest):
    def setUp(self):
        super().setUp()
        self.in_the_way = self.scratch / "a file"
        self.in_the_way.write_text("")

    def test_a_folder_that_cannot_be_made_is_named_with_the_reason(self):
        folder = self.in_the_way / "class"
        run = self.start(KEYFLUENT_FOLDER=str(folder))
        self.check_refused(run, f'The folder "{folder}" can\'t be made.')
        self.assertIn("Not a directory", run.stderr)

    def test_the_refusal_speaks_arabic_where_the_desktop_does(self):
        folder = self.in_the_way / "class"
        self.check_refused(self.start(KEYFLUENT_FOLDER=str(folder), LANG="ar_EG.UTF-8"),
                           f'تعذر إنشاء المجلد "{folder}".')

    def test_a_folder_that_takes_no_link(self):
        folder = self.scratch / "class"
        (folder / "keyfluent").mkdir(parents=True)
        run = self.start(KEYFLUENT_FOLDER=str(folder))
        self.check_refused(run, f'Nothing can be written into the folder "{folder}".')

    def test_a_full_disk_leaves_no_half_of_a_file(self):
        folder = self.scratch / "class"
        (self.root / "share/keyfluent/sounds/enter.wav").write_bytes(b"x" * 4096)
        run = self.start("-c", 'ulimit -f 1; exec "$0"', str(self.launcher), command="/bin/bash",
                         KEYFLUENT_FOLDER=str(folder))
        self.check_refused(run, f'Nothing can be written into the folder "{folder}".')
        self.assertEqual([path.name for path in folder.iterdir()], ["keyfluent"])

    def test_no_home(self):
        self.check_refused(self.start(HOME=""), "There is no home folder")

    def test_a_launcher_whose_program_is_gone_makes_no_folder(self):
        self.program.unlink()
        self.check_refused(self.start(), f'The program is not at "{self.program}".')
        self.assertFalse(self.folder.exists())

    def tools(self, *windows):
        """A search path with what the launcher needs and stand-ins for those that show a window."""
        folder = self.scratch / "tools"
        folder.mkdir()
        for tool in ("readlink", "dirname", "mkdir"):
            (folder / tool).symlink_to(shutil.which(tool))
        for window in windows:
            told = self.scratch / f"{window} told"
            (folder / window).write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" >"{told}"\nexit 1\n')
            (folder / window).chmod(0o755)
        return folder

    def told(self):
        return sorted(path.name.split()[0] for path in self.scratch.glob("* told"))

    def test_a_window_tells_it_where_nobody_sees_the_error_output(self):
        windows = ["zenity", "kdialog", "xmessage"]
        tools = self.tools(*windows)
        for window in windows:
            with self.subTest(window=window):
                run = self.start(KEYFLUENT_FOLDER=str(self.in_the_way / "class"), PATH=str(tools),
                                 DISPLAY=":nowhere")
                self.check_refused(run, "can't be made.")
                self.assertEqual(self.told(), [window])
                told = self.scratch / f"{window} told"
                self.assertIn("can't be made.", told.read_text())
                told.unlink()
                (tools / window).unlink()

    def test_no_window_is_tried_without_a_display(self):
        self.start(KEYFLUENT_FOLDER=str(self.in_the_way / "class"),
                   PATH=str(self.tools("zenity", "kdialog", "xmessage")))
        self.assertEqual(self.told(), [])


if __name__ == "__main__":
    unittest.main()
