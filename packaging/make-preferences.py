#!/usr/bin/env python3
"""Makes the preferences files that an installation ships: the default record, once with the Arabic
interface and once with the English one. The console writes them, so that they are what the program
itself would write.

usage: make-preferences.py CONSOLE FOLDER
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile

FILE = "KeyFluent Preference.prf"
WINDOWS, POINTS, BLACK, RED = 192, 14, 0, 255


def main():
    console = pathlib.Path(sys.argv[1]).resolve()
    target = pathlib.Path(sys.argv[2])
    target.mkdir(parents=True, exist_ok=True)
    for language, arabic in (("ar", "true"), ("en", "false")):
        script = f'saveprefs {arabic} {WINDOWS} "{POINTS}" {BLACK} {RED} true\n'
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([console], cwd=folder, input=script.encode(), check=True)
            shutil.copyfile(pathlib.Path(folder) / FILE, target / f"{language}.prf")


if __name__ == "__main__":
    main()
