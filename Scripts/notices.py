#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""notices.py FOLDER NAME=FILE...: writes FOLDER/NAME.txt for every licence file that is given, and removes what else is
there. The words stay as they are; the packagers' indentation goes, and lines that were broken for a wide terminal are
joined, since a phone breaks them elsewhere. Ends with a message for a file that cannot be read or names nothing."""

import pathlib
import re
import sys

# A line at least this long was broken for its length, not for its meaning.
FULL_LINE = 58
# The start of a line that begins something of its own: a list's item, a year, a copyright, a field.
OWN_LINE = re.compile(r"[-*•#=]|[0-9]{4}\b|\(?[0-9a-zA-Z]{1,3}[.)]\s|Copyright\b|©|[A-Z][A-Za-z-]+: ?")
# Text that is indented more is a column of names, and still more a heading in the middle of its line.
DEEPEST_TEXT = 5
DEEPEST_COLUMN = 12
# The screen takes the ending off a file's name, so that a name needs more than the ending has.
SHORTEST_NAME = 4


def without_indentation(row):
    """A row of a machine-readable copyright file: continued fields are indented by one, their empty rows hold a dot."""
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
