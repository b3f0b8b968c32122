#!/usr/bin/env python3
"""Makes the copyright file of an installation: the project's own licence, and, as the faces that the
program embeds are files of the distribution's packages, what those packages tell of them.

usage: make-copyright.py LICENSE OUT PACKAGE=FILE[,FILE...] ...
"""
import pathlib
import re
import sys

DOCUMENTS = pathlib.Path("/usr/share/doc")
HEADER = """Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: KeyFluent
Comment: The faces named below are embedded in the program as they stand in
 their packages.
"""


def paragraphs(text):
    """Each as a dictionary of its fields; the first line of a value stands apart from the others."""
    for block in re.split(r"\n[ \t]*\n", text):
        fields = re.findall(r"^([\w-]+):[ \t]*(.*)((?:\n[ \t].*)*)", block, re.M)
        if fields:
            yield {name: (first.strip(), rest.strip("\n")) for name, first, rest in fields}


def indented(lines):
    return "\n".join(" " + (line.strip() or ".") for line in lines)


def own(licence):
    title, holder, *text = licence.strip().split("\n\n", 2)
    years = holder.removeprefix("Copyright (c) ")
    return (f"Files: *\nCopyright: {years}\nLicense: Expat\n" +
            indented("\n\n".join(text).splitlines()) + "\n")


def face(package, files):
    source = DOCUMENTS / package / "copyright"
    if not source.is_file():
        sys.exit(f"{source}, which tells the licence of a face, is not there")
    told = list(paragraphs(source.read_text(encoding="utf-8")))
    whole = next(fields for fields in told if fields.get("Files", ("", ""))[0] == "*")
    name, text = whole["License"]
    if not text:
        text = next(fields["License"][1] for fields in told
                    if "Files" not in fields and fields.get("License", ("", ""))[0] == name)
    holders = [line.strip() for line in "\n".join(whole["Copyright"]).splitlines() if line.strip()]
    return "\n".join(["Files: " + "\n ".join(files), "Copyright: " + "\n ".join(holders),
                      f"License: {name}", indented(text.splitlines()), ""])


def main():
    licence, target, *faces = sys.argv[1:]
    parts = [HEADER, own(pathlib.Path(licence).read_text(encoding="utf-8"))]
    for told in faces:
        package, files = told.split("=")
        parts.append(face(package, files.split(",")))
    pathlib.Path(target).write_text("\n".join(parts), encoding="utf-8")


if __name__ == "__main__":
    main()
