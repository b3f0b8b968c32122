#!/usr/bin/env python3
"""Runs one transcript: a script for the console and what it must answer.

usage: run.py CONSOLE SCRIPT.console [--write]

The expected output stands beside the script, in SCRIPT.expected. The script runs in an empty folder
of its own, which is the program's folder then. Lines of the script that begin with "#!" prepare and
check:

    #! status N            the exit status that must come (0 without such a line)
    #! stderr TEXT         the one line on standard error, in full
    #! file NAME : HEX...  a file below the folder before the console starts
    #! folder NAME         a folder below the folder
    #! link NAME : TARGET  a link, for a file that can't be written (TARGET /dev/full)
    #! after NAME : HEX... a file's content after the console has ended
    #! missing NAME        a file that must not be there afterwards

HEX may be divided by blanks; `00*20` stands for twenty such bytes, `00*0` for an empty file. On
standard error the program's folder is left out of the names of files. With --write the answers are
written as the new expectation, to be read before they are kept.
"""
import pathlib
import subprocess
import sys
import tempfile


def decode(words):
    data = b""
    for word in words:
        digits, _, times = word.partition("*")
        data += bytes.fromhex(digits) * int(times or 1)
    return data


class Transcript:
    def __init__(self, path):
        self.path = path
        self.script = path.read_text(encoding="utf-8")
        self.status = 0
        self.stderr = ""
        self.files = {}
        self.folders = []
        self.links = {}
        self.after = {}
        self.missing = []
        for line in self.script.splitlines():
            if line.startswith("#! "):
                self.read_directive(line[3:].strip())

    def read_directive(self, directive):
        word, _, rest = directive.partition(" ")
        if word == "status":
            self.status = int(rest)
        elif word == "stderr":
            self.stderr = rest + "\n"
        elif word == "folder":
            self.folders.append(rest)
        elif word == "missing":
            self.missing.append(rest)
        elif word == "link":
            name, _, target = rest.partition(" : ")
            self.links[name] = target
        elif word in ("file", "after"):
            name, _, words = rest.partition(" : ")
            target = self.files if word == "file" else self.after
            target[name] = decode(words.split())
        else:
            raise SystemExit(f"{self.path}: unknown directive {word}")

    def prepare(self, folder):
        for name in self.folders:
            (folder / name).mkdir(parents=True)
        for name in [*self.files, *self.links]:
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
        for name, data in self.files.items():
            (folder / name).write_bytes(data)
        for name, target in self.links.items():
            (folder / name).symlink_to(target)

    def run(self, console, folder):
        self.prepare(folder)
        return subprocess.run([console], cwd=folder, input=self.script.encode(),
                              capture_output=True, timeout=60)

    def complaints(self, result, folder, expected):
        if result.stdout.decode() != expected:
            yield "output differs:\n" + difference(expected, result.stdout.decode())
        if result.returncode != self.status:
            yield f"exit status {result.returncode}, not {self.status}"
        reported = result.stderr.decode().replace(f"{folder}/", "")
        if reported != self.stderr:
            yield f"standard error was {reported!r}, not {self.stderr!r}"
        for name, data in self.after.items():
            path = folder / name
            if not path.is_file():
                yield f"{name} is missing"
            elif path.read_bytes() != data:
                yield f"{name} holds {path.read_bytes().hex(' ')}"
        for name in self.missing:
            if (folder / name).exists():
                yield f"{name} is there"


def difference(expected, actual):
    import difflib
    return "\n".join(difflib.unified_diff(expected.splitlines(), actual.splitlines(),
                                          "expected", "answered", lineterm=""))


def main():
    console = pathlib.Path(sys.argv[1]).resolve()
    path = pathlib.Path(sys.argv[2]).resolve()
    transcript = Transcript(path)
    expected_path = path.with_suffix(".expected")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name).resolve()
        result = transcript.run(console, folder)
        if "--write" in sys.argv:
            expected_path.write_bytes(result.stdout)
        expected = expected_path.read_text(encoding="utf-8")
        found = list(transcript.complaints(result, folder, expected))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
