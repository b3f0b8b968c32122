#!/usr/bin/env python3
"""Renders the vector pictures of the program to PNG files and lists them for the resource compiler.

Usage: render.py [--strict] [--also DIR]... [--to-jpeg PROGRAM] SOURCE_DIR OUT_DIR

SOURCE_DIR holds sizes.csv (the one table of picture numbers, of their sizes in pixels and of the
kind of file, png or jpeg, that the program gets; png where the table names none), svg/<id>.svg, svg/icon.svg and scripts/*.py. A script is run as "python3 SCRIPT DIR" and writes
DIR/<id>.svg for each picture of its family; files whose name starts with "_" are modules of the
scripts. --also names a further folder of SVG files, for pictures that another program makes.

OUT_DIR receives svg/, <id>.png, <id>@2x.png, <id>@3x.png, icons/keyfluent-<size>.png,
icons/keyfluent.svg and pictures.qrc. A jpeg picture is there as <id>.jpg and <id>@2x.jpg too, and
these are what pictures.qrc lists; PROGRAM IN_FILE OUT_FILE makes them. Only what is out of date is
made again.

Nothing is printed when all went well. Otherwise each failing id is named on the error output and
the exit status is 1. A number of the table that has no source is a failure with --strict and is
left out without it.
"""

import argparse
import concurrent.futures
import csv
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

RATIOS = (1, 2, 3)
ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
# A picture that is a JPEG file is large: at three times its size it would take long to decode, and
# two times serve for every screen.
JPEG_RATIOS = (1, 2)


class PictureError(Exception):
    """A fault of one picture; its text starts with the picture's id."""


def read_table(source):
    """The sizes of all pictures by their ids, and the ids of those that are JPEG files."""
    with open(source / "sizes.csv", newline="", encoding="utf-8") as table:
        rows = list(csv.DictReader(table))
    return ({row["id"]: (int(row["width"]), int(row["height"])) for row in rows},
            {row["id"] for row in rows if row.get("file") == "jpeg"})


def write_if_changed(path, data):
    """Keeps the time stamp of a file whose content stays the same, so that nothing is redone."""
    if not path.exists() or path.read_bytes() != data:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


def run_script(script):
    """The SVG files that one script writes, as a dictionary from file name to content."""
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run([sys.executable, "-B", str(script), folder],
                              capture_output=True, text=True)
        if done.returncode != 0:
            raise PictureError("%s: %s" % (script.name, done.stderr.strip()))
        return {path.name: path.read_bytes() for path in sorted(Path(folder).glob("*.svg"))}


def scripted_pictures(source, out):
    """Runs the scripts when any file that they read is newer than their last run; returns the file
    names that they made."""
    folder = source / "scripts"
    scripts = [path for path in sorted(folder.glob("*.py")) if not path.name.startswith("_")]
    inputs = [*folder.glob("*"), *(source / "lettering").glob("*"),
              source / "svg" / "icon.svg"]
    newest = max((path.stat().st_mtime_ns for path in inputs if path.is_file()), default=0)
    listing = out / "scripted.txt"
    names = [path.name for path in scripts]
    if listing.exists() and listing.stat().st_mtime_ns >= newest:
        lines = listing.read_text(encoding="utf-8").splitlines()
        made = lines[1].split() if len(lines) == 2 else []
        if lines and lines[0].split() == names and all((out / "svg" / n).exists() for n in made):
            return made
    pictures = {}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for script, made in zip(scripts, pool.map(run_script, scripts)):
            for name, data in made.items():
                if name in pictures:
                    raise PictureError("%s: made a second time by %s" % (name, script.name))
                pictures[name] = data
    for name, data in pictures.items():
        write_if_changed(out / "svg" / name, data)
    listing.write_text("%s\n%s\n" % (" ".join(names), " ".join(pictures)), encoding="utf-8")
    return list(pictures)


def collect(source, also, out):
    """Brings all vector sources together in OUT_DIR/svg; what has no source any more goes."""
    (out / "svg").mkdir(parents=True, exist_ok=True)
    names = scripted_pictures(source, out)
    for folder in [source / "svg", *also]:
        for path in sorted(folder.glob("*.svg")):
            if path.name in names:
                raise PictureError("%s: has two sources" % path.name)
            names.append(path.name)
            write_if_changed(out / "svg" / path.name, path.read_bytes())
    for path in (out / "svg").glob("*.svg"):
        if path.name not in names:
            path.unlink()
    return {Path(name).stem for name in names}


def has_size(svg, size):
    """Whether the picture's own size is the table's; otherwise it would be stretched."""
    head = svg.read_text(encoding="utf-8")[:2000]
    tag = re.search(r"<svg\b[^>]*>", head)
    own = tuple(re.search(r'\s%s="([0-9.]+)(?:px)?"' % side, tag.group(0)) if tag else None
                for side in ("width", "height"))
    return None not in own and tuple(float(match.group(1)) for match in own) == size


def is_current(made, origin):
    return made.exists() and made.stat().st_mtime_ns >= origin.stat().st_mtime_ns


def make(id_, target, *command):
    """Runs a command with the name of an unfinished file at its end, which becomes the target."""
    unfinished = target.with_suffix(".part")
    done = subprocess.run([*map(str, command), str(unfinished)], capture_output=True, text=True)
    if done.returncode != 0:
        unfinished.unlink(missing_ok=True)
        raise PictureError("%s: %s" % (id_, done.stderr.strip()))
    os.replace(unfinished, target)


def render(svg, png, width, height):
    if is_current(png, svg):
        return False
    make(svg.stem, png, "rsvg-convert", "--width", width, "--height", height, svg, "--output")
    return True


def store_as_jpeg(id_, png, program):
    jpeg = png.with_suffix(".jpg")
    if is_current(jpeg, png):
        return False
    make(id_, jpeg, program, png)
    return True


def picture_name(id_, ratio):
    return "%s.png" % id_ if ratio == 1 else "%s@%dx.png" % (id_, ratio)


def jobs(sizes, jpegs, present, out):
    """All renderings as (svg, png, width, height), the largest first so that no core idles."""
    todo = []
    for id_, (width, height) in sizes.items():
        svg = out / "svg" / (id_ + ".svg")
        if id_ in present:
            todo += [(svg, out / picture_name(id_, r), width * r, height * r)
                     for r in (JPEG_RATIOS if id_ in jpegs else RATIOS)]
    if "icon" in present:
        icon = out / "svg" / "icon.svg"
        todo += [(icon, out / "icons" / ("keyfluent-%d.png" % s), s, s) for s in ICON_SIZES]
    return sorted(todo, key=lambda job: -job[2] * job[3])


def all_done(function, todo):
    """Calls the function for each job at the same time; returns whether anything was made, and
    raises with the texts of all failures."""
    failures = []
    changed = False
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for future in [pool.submit(function, *job) for job in todo]:
            try:
                changed |= future.result()
            except PictureError as error:
                failures.append(str(error))
    if failures:
        raise PictureError("\n".join(failures))
    return changed


def write_listing(files, out, changed):
    """pictures.qrc is touched whenever a picture changed, so that the resource is compiled anew."""
    lines = ["<RCC>", '<qresource prefix="/">']
    for file in sorted(files):
        folder = "icons" if file.parent.name == "icons" else "pictures"
        lines.append('<file alias="%s/%s">%s</file>' %
                     (folder, file.name, file.relative_to(out).as_posix()))
    lines += ["</qresource>", "</RCC>", ""]
    listing = out / "pictures.qrc"
    write_if_changed(listing, "\n".join(lines).encode())
    if changed:
        listing.touch()


def remove_stale(wanted, out):
    for folder in (out, out / "icons"):
        for path in [*folder.glob("*.png"), *folder.glob("*.jpg")]:
            if path not in wanted:
                path.unlink()


def make_files(sizes, jpegs, present, out, program):
    """Makes all files that the program gets, and lists them."""
    todo = jobs(sizes, jpegs, present, out)
    pngs = [job[1] for job in todo]
    to_store = [(job[0].stem, job[1], program) for job in todo if job[0].stem in jpegs]
    stored = {png: png.with_suffix(".jpg") for _, png, _ in to_store}
    if stored and not program:
        raise PictureError("%s: wants --to-jpeg" % ", ".join(sorted(jpegs & present)))
    remove_stale({*pngs, *stored.values()}, out)
    changed = all_done(render, todo)
    changed |= all_done(store_as_jpeg, to_store)
    write_listing([stored.get(png, png) for png in pngs], out, changed)


def main():
    parser = argparse.ArgumentParser(description="Renders the pictures of the program.")
    parser.add_argument("--strict", action="store_true", help="a number without a source fails")
    parser.add_argument("--also", action="append", default=[], type=Path, metavar="DIR")
    parser.add_argument("--to-jpeg", type=Path, metavar="PROGRAM")
    parser.add_argument("source", type=Path, metavar="SOURCE_DIR")
    parser.add_argument("out", type=Path, metavar="OUT_DIR")
    options = parser.parse_args()

    sizes, jpegs = read_table(options.source)
    (options.out / "icons").mkdir(parents=True, exist_ok=True)
    present = collect(options.source, options.also, options.out)
    faults = ["%s: is not in sizes.csv" % id_ for id_ in sorted(present - set(sizes) - {"icon"})]
    faults += ["%s: its width and height are not those of sizes.csv" % id_
               for id_, size in sizes.items() if id_ in present
               and not has_size(options.out / "svg" / (id_ + ".svg"), size)]
    if options.strict:
        faults += ["%s: has no source" % id_ for id_ in [*sizes, "icon"] if id_ not in present]
    if faults:
        raise PictureError("\n".join(faults))
    make_files(sizes, jpegs, present, options.out, options.to_jpeg)
    if "icon" in present:
        write_if_changed(options.out / "icons" / "keyfluent.svg",
                         (options.out / "svg" / "icon.svg").read_bytes())


if __name__ == "__main__":
    try:
        main()
    except PictureError as error:
        sys.exit(str(error))
