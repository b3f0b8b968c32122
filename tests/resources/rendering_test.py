#!/usr/bin/env python3
"""How the pictures are made: what render.py refuses, that it does nothing twice, that the same
sources always give the same pictures, and that no picture depends on the machine's fonts.

usage: rendering_test.py RESOURCES_DIR RESOURCES_BUILD_DIR TABLE_DUMP_PROGRAM TO_JPEG_PROGRAM
"""

import csv
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCES, BUILD, TABLE_DUMP, TO_JPEG = (Path(argument).resolve() for argument in sys.argv[1:5])
RENDER = SOURCES / "pictures" / "render.py"
CHARTS = SOURCES / "charts" / "charts.py"

SQUARE = ('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="8" viewBox="0 0 8 8">'
          '<rect width="8" height="8" fill="%s"/></svg>')


def run(*command):
    return subprocess.run([str(part) for part in command], capture_output=True, text=True)


def render(*arguments):
    return run(sys.executable, "-B", RENDER, *arguments)


def contents(folder):
    """All files of a folder by name, without the times at which scripts ran."""
    return {path.relative_to(folder).as_posix(): path.read_bytes()
            for path in folder.rglob("*") if path.is_file() and path.name != "scripted.txt"}


class SmallSource(unittest.TestCase):
    """render.py on a source folder of two pictures."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source, self.out = Path(folder.name, "source"), Path(folder.name, "out")
        (self.source / "svg").mkdir(parents=True)
        (self.source / "scripts").mkdir()
        self.write("sizes.csv", "id,width,height\n1,8,8\n2,8,8\n")
        self.write("svg/1.svg", SQUARE % (8, "red"))
        self.write("svg/2.svg", SQUARE % (8, "blue"))
        self.write("svg/icon.svg", SQUARE % (8, "green"))

    def write(self, name, text):
        (self.source / name).write_text(text, encoding="utf-8")

    def times(self):
        return {path: path.stat().st_mtime_ns for path in self.out.rglob("*") if path.is_file()}

    def test_all_is_well_without_a_word(self):
        done = render("--strict", self.source, self.out)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        listing = (self.out / "pictures.qrc").read_text(encoding="utf-8")
        for name in ("pictures/1.png", "pictures/1@2x.png", "pictures/2@3x.png",
                     "icons/keyfluent-16.png"):
            self.assertIn('alias="%s"' % name, listing)

    def test_a_second_run_leaves_every_file_alone(self):
        render(self.source, self.out)
        before = self.times()
        render(self.source, self.out)
        self.assertEqual(self.times(), before)

    def test_a_changed_picture_alone_is_made_again(self):
        render(self.source, self.out)
        before = self.times()
        self.write("svg/2.svg", SQUARE % (8, "yellow"))
        render(self.source, self.out)
        after = self.times()
        changed = {path.name for path in after if after[path] != before[path]}
        self.assertEqual(changed, {"2.svg", "2.png", "2@2x.png", "2@3x.png", "pictures.qrc"})

    def test_a_number_without_a_source_is_named_when_all_are_wanted(self):
        (self.source / "svg" / "2.svg").unlink()
        done = render("--strict", self.source, self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("2: has no source", done.stderr)
        self.assertEqual(render(self.source, self.out).returncode, 0)

    def test_a_picture_of_another_size_than_the_tables_is_refused(self):
        self.write("svg/2.svg", SQUARE % (9, "blue"))
        done = render(self.source, self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("2: its width and height", done.stderr)

    def test_a_number_outside_the_table_is_refused(self):
        self.write("svg/3.svg", SQUARE % (8, "blue"))
        done = render(self.source, self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("3: is not in sizes.csv", done.stderr)

    def test_two_sources_of_one_number_are_refused(self):
        other = self.source / "other"
        other.mkdir()
        self.write("other/2.svg", SQUARE % (8, "blue"))
        done = render("--also", other, self.source, self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("2.svg: has two sources", done.stderr)

    def test_a_picture_that_is_broken_is_named(self):
        self.write("svg/2.svg", '<svg width="8" height="8"><rect></svg>')
        done = render(self.source, self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("2: ", done.stderr)

    def test_a_picture_for_fast_decoding_is_listed_as_a_jpeg_file(self):
        self.write("sizes.csv", "id,width,height,file\n1,8,8,png\n2,8,8,jpeg\n")
        done = render("--strict", "--to-jpeg", TO_JPEG, self.source, self.out)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))
        listing = (self.out / "pictures.qrc").read_text(encoding="utf-8")
        self.assertIn('alias="pictures/2.jpg"', listing)
        self.assertIn('alias="pictures/2@2x.jpg"', listing)
        self.assertNotIn("pictures/2.png", listing)
        self.assertNotIn("2@3x", listing)
        self.assertEqual((self.out / "2.jpg").read_bytes()[:3], b"\xff\xd8\xff")
        before = self.times()
        render("--to-jpeg", TO_JPEG, self.source, self.out)
        self.assertEqual(self.times(), before)

    def test_a_jpeg_file_cannot_be_made_without_the_program(self):
        self.write("sizes.csv", "id,width,height,file\n1,8,8,png\n2,8,8,jpeg\n")
        done = render(self.source, self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("2: wants --to-jpeg", done.stderr)
        done = render("--to-jpeg", "/bin/false", self.source, self.out)
        self.assertEqual(done.returncode, 1)
        self.assertIn("2: ", done.stderr)


class WholeSet(unittest.TestCase):
    """The pictures of the program."""

    @classmethod
    def setUpClass(cls):
        cls.sources = {path.name: path.read_text(encoding="utf-8")
                       for path in (BUILD / "pictures" / "svg").glob("*.svg")}

    def test_every_number_of_the_table_has_a_source(self):
        with open(SOURCES / "pictures" / "sizes.csv", newline="", encoding="utf-8") as table:
            wanted = {row["id"] + ".svg" for row in csv.DictReader(table)}
        self.assertEqual(set(self.sources), wanted | {"icon.svg"})

    def test_letters_are_outlines(self):
        for name, text in self.sources.items():
            found = re.search(r"<\s*(text|tspan|textPath|font)\b|font-family|@import", text)
            self.assertIsNone(found, name)

    def test_no_picture_needs_another_file(self):
        for name, text in self.sources.items():
            for target in re.findall(r'href\s*=\s*["\']([^"\']*)', text):
                self.assertTrue(target.startswith("#"), "%s: %s" % (name, target))
            for target in re.findall(r'url\(\s*["\']?([^)"\']*)', text):
                self.assertTrue(target.startswith("#"), "%s: %s" % (name, target))
            self.assertNotIn("<image", text, name)

    def test_what_a_picture_refers_to_is_in_it_once(self):
        for name, text in self.sources.items():
            ids = re.findall(r'\sid="([^"]+)"', text)
            self.assertEqual(len(ids), len(set(ids)), name)
            wanted = set(re.findall(r'url\(#([^)]+)\)', text))
            wanted |= set(re.findall(r'href="#([^"]+)"', text))
            self.assertEqual(wanted - set(ids), set(), name)

    def test_the_same_sources_give_the_same_pictures(self):
        with tempfile.TemporaryDirectory() as folder:
            tables, charts, out = (Path(folder, name) for name in ("tables", "charts", "out"))
            self.assertEqual(run(TABLE_DUMP, tables).returncode, 0)
            done = run(sys.executable, "-B", CHARTS, tables, charts)
            self.assertEqual(done.returncode, 0, done.stderr)
            done = render("--strict", "--also", charts, "--to-jpeg", TO_JPEG,
                          SOURCES / "pictures", out)
            self.assertEqual(done.returncode, 0, done.stderr)
            anew, built = contents(out), contents(BUILD / "pictures")
            self.assertEqual(sorted(anew), sorted(built))
            self.assertEqual([name for name in anew if anew[name] != built[name]], [])

    def test_a_chart_says_which_text_it_has_no_outline_for(self):
        with tempfile.TemporaryDirectory() as folder:
            tables = Path(folder, "tables")
            run(TABLE_DUMP, tables)
            tables.write_text(tables.read_text(encoding="utf-8").replace('"تحكم"', '"تحككم"'),
                              encoding="utf-8")
            done = run(sys.executable, "-B", CHARTS, tables, Path(folder, "charts"))
            self.assertEqual(done.returncode, 1)
            self.assertIn("تحككم", done.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
