#!/usr/bin/env python3
"""Checks that the rooms include one another one way round only.

usage: check-rooms.py SOURCE_FOLDER

A file may include its own room and the rooms named for it below. The five rooms of the core include
nothing else but the standard library and, for their two kinds of files, the system's calls. Prints
each offending line and fails.
"""
import pathlib
import re
import sys

CORE = {
    "context": set(),
    "course": {"context"},
    "keyboard": {"context"},
    "progress": {"context", "course"},
    "session": {"context", "course", "keyboard", "progress"},
}
ROOMS = dict(CORE)
ROOMS["headless"] = set(CORE)
ROOMS["shell"] = set(CORE)

# What the core may take from the system, beside the standard library.
SYSTEM_HEADERS = {"fcntl.h", "sys/stat.h", "sys/types.h", "unistd.h"}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def offences(root, room):
    allowed = ROOMS[room] | {room}
    for path in sorted((root / room).rglob("*.[hc]*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            quote, header = match.groups()
            first = header.split("/")[0]
            where = f"{path.relative_to(root)}:{number}: "
            if quote == '"':
                if first not in allowed:
                    yield where + f"{room} may not include {header}"
            elif room in CORE and header not in SYSTEM_HEADERS:
                if "/" in header or "." in header or header[0].isupper():
                    yield where + f"the core may not include <{header}>"


def main():
    root = pathlib.Path(sys.argv[1])
    found = [line for room in ROOMS if (root / room).is_dir() for line in offences(root, room)]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
