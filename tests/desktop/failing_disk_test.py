"""A disk that fails when the results are saved: one clear report that names the file, exit status
1, and no other student's file is touched."""
import os
import resource
import subprocess

from harness import case, machine
from harness.files import StudentFile

OTHER = StudentFile(reached_windows=7).set_mark(3, 2, True, 88).bytes()
OLD = StudentFile(reached_windows=2).set_mark(1, 1, False, 90).bytes()


class FailingDisk(case.DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder.put_student("Other", OTHER)
        self.preferences = self.folder.preferences.read_bytes()
        self.file = self.folder.student("Layla")

    def save_and_expect_report(self):
        """Leaves with Yes; what comes is a report, and nothing else but the end."""
        self.choose_from_menu("File", "Quit")
        self.click_button("yes")
        self.expect_report(self.file)
        self.assertEqual(self.folder.student("Other").read_bytes(), OTHER)
        self.assertEqual(self.folder.preferences.read_bytes(), self.preferences)

    def mount(self, *arguments):
        """Mounts on the students' folder until the test is over, in the test's own view of the
        machine. Answers whether it may."""
        command = ["mount", *arguments, str(self.folder.students)]
        allowed = (machine.is_isolated() and
                   subprocess.run(command, capture_output=True).returncode == 0)
        if allowed:
            self.addCleanup(subprocess.run, ["umount", "--lazy", command[-1]], check=True)
        return allowed

    def test_full_disk(self):
        """On a small disk of its own where one can be made, else on the device that is always
        full."""
        small_disk = self.mount("-t", "tmpfs", "-o", "size=64k", "none")
        if small_disk:
            self.folder.put_student("Other", OTHER)
        self.sign_in("Layla")
        if small_disk:
            self.fill_disk()
        else:
            self.file.symlink_to("/dev/full")
        self.save_and_expect_report()

    def fill_disk(self):
        with open(self.folder.students / "filling", "wb", buffering=0) as filling:
            try:
                while True:
                    filling.write(bytes(4096))
            except OSError:
                pass

    def test_full_device(self):
        self.sign_in("Layla")
        self.file.symlink_to("/dev/full")
        self.save_and_expect_report()

    def test_failure_half_way(self):
        """The records before the failure are written, the others stay: here both are the same."""
        self.folder.put_student("Layla", OLD)
        self.sign_in("Layla")
        resource.prlimit(self.program.process.pid, resource.RLIMIT_FSIZE, (300, 300))
        self.save_and_expect_report()
        self.assertEqual(self.file.read_bytes(), OLD)

    def test_read_only_folder(self):
        """Mounted so where that can be done, for a superuser writes whatever the folder's mode
        says."""
        self.sign_in("Layla")
        students = self.folder.students
        if self.mount("--bind", str(students)):
            subprocess.run(["mount", "-o", "remount,ro,bind", str(students)], check=True)
        else:
            students.chmod(0o555)
            self.addCleanup(students.chmod, 0o755)
            if os.access(students, os.W_OK):
                self.file.mkdir()
        self.save_and_expect_report()

    def test_folder_in_the_files_place(self):
        self.sign_in("Layla")
        self.file.mkdir()
        self.save_and_expect_report()


if __name__ == "__main__":
    case.main()
