#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""notices.py FOLDER NAME=FILE...: writes FOLDER/NAME.txt for every licence file given, and removes other files from
FOLDER. Keeps the words, drops the packagers' indentation, and joins lines that were broken for a wide terminal, since a
phone breaks them elsewhere. Ends with a message when a name is too short or a file is empty or cannot be read."""

import pathlib
import re
import sys

# A line at least this long was broken because it was full, so the next line continues it.
FULL_LINE = 58
# How a line starts that never continues the one before: with a list's mark, a year, a copyright or a field's name.
OWN_LINE = re.compile(r"[-*•#=]|[0-9]{4}\b|\(?[0-9a-zA-Z]{1,3}[.)]\s|Copyright\b|©|[A-Z][A-Za-z-]+: ?")
# Columns of indentation. Running text has at most the first number, a column of names at most the second; what is
# indented further is a centred heading.
DEEPEST_TEXT = 5
DEEPEST_COLUMN = 12
# The screen cuts the four characters of the ending off a file's name; no shorter name is accepted.
SHORTEST_NAME = 4


def without_indentation(row):
    """The text of a row in a machine-readable copyright file: one space continues a field, a dot is an empty row."""
    if row.rstrip() == " .":
        return ""
    return row[1:].rstrip() if row.startswith(" ") else row.rstrip()


def readable(text):
    rows = text.splitlines()
    if text.startswith("Format: "):
        rows = [without_indentation(row) for row in rows]
    joined = []
    previous = ""
    for row in (row.expandtabs().rstrip() for row in rows):
        words = row.lstrip()
        depth = len(row) - len(words)
        broken = len(previous) >= FULL_LINE and not previous.endswith(":")
        if joined and words and broken and depth <= DEEPEST_TEXT and not OWN_LINE.match(words):
            joined[-1] += " " + words
        else:
            joined.append(("  " if DEEPEST_TEXT < depth <= DEEPEST_COLUMN else "") + words)
        previous = row
    return "\n".join(joined).strip("\n") + "\n"


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    written = set()
    for argument in sys.argv[2:]:
        name, _, source = argument.partition("=")
        if len(name) < SHORTEST_NAME or "/" in name:
            sys.exit(f"a notice cannot be called {name!r}")
        try:
            text = pathlib.Path(source).read_text(encoding="utf-8", errors="replace")
        except OSError as failure:
            sys.exit(f"the licence of {name} cannot be read: {failure}")
        if not text.strip():
            sys.exit(f"the licence of {name} is empty: {source}")
        target = folder / f"{name}.txt"
        content = readable(text)
        if not target.exists() or target.read_text(encoding="utf-8") != content:
            target.write_text(content, encoding="utf-8")
        written.add(target.name)
    for other in folder.iterdir():
        if other.name not in written:
            other.unlink()


if __name__ == "__main__":
    main()
