#!/usr/bin/env python3
"""Makes the changelog of the Debian package, compressed, from the project's own.

usage: make-changelog.py CHANGELOG.md MAINTAINER OUT.gz
"""
import datetime
import email.utils
import gzip
import pathlib
import re
import sys
import textwrap

RELEASE = re.compile(r"^## \[(\d[^\]]*)\] - (\d{4}-\d{2}-\d{2})$", re.M)
ITEM = re.compile(r"^- (.+(?:\n  .+)*)", re.M)


def releases(text):
    """(version, date, items) for each release, the newest first."""
    parts = RELEASE.split(text)[1:]
    for version, date, body in zip(parts[0::3], parts[1::3], parts[2::3]):
        items = [" ".join(item.split()).replace("`", "") for item in ITEM.findall(body)]
        yield version, datetime.datetime.fromisoformat(date + "T12:00:00+00:00"), items


def entry(version, date, items, maintainer):
    wrapped = (textwrap.fill(item, 76, initial_indent="  * ", subsequent_indent="    ",
                             break_on_hyphens=False) for item in items)
    return (f"keyfluent ({version}) unstable; urgency=medium\n\n" + "\n".join(wrapped) +
            f"\n\n -- {maintainer}  {email.utils.format_datetime(date)}\n")


def main():
    source, maintainer, target = sys.argv[1:]
    text = pathlib.Path(source).read_text(encoding="utf-8")
    entries = [entry(*release, maintainer) for release in releases(text)]
    if not entries:
        sys.exit(f"{source} tells of no release")
    # No name and no time in the file, so that the same text gives the same bytes.
    pathlib.Path(target).write_bytes(
        gzip.compress("\n".join(entries).encode(), compresslevel=9, mtime=0))


if __name__ == "__main__":
    main()
