#!/usr/bin/env python3
"""Runs all transcripts one after the other and stops at the first that does not agree.

usage: run_all.py CONSOLE

The tests run each by itself, with run.py; this is for one who only asks whether all agree.
"""
import pathlib
import subprocess
import sys
import tempfile

import run


def agrees(console, path):
    transcript = run.Transcript(path)
    expected = path.with_suffix(".expected").read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name).resolve()
        try:
            result = transcript.run(console, folder)
        except subprocess.TimeoutExpired:
            return False
        return not any(transcript.complaints(result, folder, expected))


def main():
    console = pathlib.Path(sys.argv[1]).resolve()
    here = pathlib.Path(__file__).resolve().parent
    for path in sorted(here.glob("*/*.console")):
        if not agrees(console, path):
            print(path.relative_to(here))
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
