#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Tells the release notes, which people read in Lodestar, to those who package it.

releases.py changelog VERSION                        Debian's changelog
releases.py metainfo VERSION TEMPLATE PICTURES URL   AppStream's metadata: the template, with the releases in the place
                                                     of <releases/>, and with the size of each picture, which lies in
                                                     the folder PICTURES and is shown by software centres from the URL

The notes are the one source: Resources/VersionChangelog.rtf. A release is a heading "Lodestar NUMBER" with the day on
which it was made in an ignored group behind it, {\\*\\released 2026-11-21}, then what it is in a sentence, then parts of
one heading and several points. VERSION, the project's, is the newest release's."""

import email.utils
import datetime
import pathlib
import re
import struct
import sys
import textwrap
import xml.sax.saxutils

NOTES = pathlib.Path(__file__).resolve().parent.parent / "Resources/VersionChangelog.rtf"
MAINTAINER = "Ornis <lodestar@ornis.example>"
SYMBOLS = {"rquote": "\u2019", "lquote": "\u2018", "ldblquote": "\u201c", "rdblquote": "\u201d", "endash": "\u2013",
           "emdash": "\u2014"}


def words_of(rtf):
    """The text of a paragraph without its control words and groups that are not shown."""
    rtf = re.sub(r"\{\\(\*|listtext\b)[^{}]*\}", "", rtf)
    rtf = re.sub(r"\\u(-?\d+) ?\??", lambda found: chr(int(found[1]) % 65536), rtf)
    rtf = re.sub(r"\\'([0-9a-f]{2})", lambda found: bytes.fromhex(found[1]).decode("cp1252"), rtf)
    rtf = re.sub(r"\\([a-z]+)-?\d* ?", lambda found: SYMBOLS.get(found[1], ""), rtf)
    return re.sub(r"\s+", " ", re.sub(r"[{}]", "", rtf)).strip()


def read_releases():
    releases = []
    for paragraph in NOTES.read_text(encoding="ascii").split("\\par\n"):
        text = words_of(paragraph)
        style = (re.findall(r"\\pard\\plain\\s(\d)", paragraph) or [""])[-1]
        if style == "1":
            made = re.search(r"\{\\\*\\released (\d{4}-\d\d-\d\d)\}", paragraph)
            number = re.fullmatch(r".*Lodestar (\d+(?:\.\d+)*)", text)
            if not made or not number:
                sys.exit(f"{NOTES.name}: “{text}” is no heading of a release with its day")
            releases.append({"version": number[1], "made": made[1], "what": "", "parts": []})
        elif style == "2" and releases:
            releases[-1]["parts"].append((text, []))
        elif "listtext" in paragraph and releases:
            releases[-1]["parts"][-1][1].append(text)
        elif style == "0" and releases and text:
            releases[-1]["what"] += text
    return releases


def releases_up_to(version):
    releases = read_releases()
    newest = releases[0]["version"] if releases else "none"
    if re.sub(r"(\.0)+$", "", newest) != re.sub(r"(\.0)+$", "", version):
        sys.exit(f"the newest release in {NOTES.name} is {newest}, the project's version is {version}")
    releases[0]["version"] = version
    return releases


def print_changelog(version):
    def point(text):
        print(textwrap.fill(text, 79, initial_indent="  * ", subsequent_indent="    ", break_on_hyphens=False))

    for release in releases_up_to(version):
        made = datetime.datetime.fromisoformat(release["made"] + "T09:00:00+00:00")
        print(f"lodestar ({release['version']}) stable; urgency=medium\n")
        point(release["what"])
        for heading, points in release["parts"]:
            print(f"\n  [ {heading} ]")
            for text in points:
                point(text)
        print(f"\n -- {MAINTAINER}  {email.utils.format_datetime(made)}\n")


def release_element(release):
    escape = xml.sax.saxutils.escape
    lines = [f'    <release version="{release["version"]}" date="{release["made"]}" type="stable">', "      <description>",
             f"        <p>{escape(release['what'])}</p>"]
    for heading, points in release["parts"]:
        lines.append(f"        <p>{escape(heading)}:</p>")
        lines.append("        <ul>")
        lines += [f"          <li>{escape(text)}</li>" for text in points]
        lines.append("        </ul>")
    return "\n".join(lines + ["      </description>", "    </release>"])


def print_metainfo(version, template, pictures, url):
    def image(found):
        header = (pathlib.Path(pictures) / found[1]).read_bytes()[:24]
        width, height = struct.unpack(">II", header[16:24])
        return f'<image type="source" width="{width}" height="{height}">{url}/{found[1]}</image>'

    text = pathlib.Path(template).read_text(encoding="utf-8")
    text = re.sub(r"<image>([^<]+)</image>", image, text)
    releases = "\n".join(release_element(release) for release in releases_up_to(version))
    print(text.replace("  <releases/>", f"  <releases>\n{releases}\n  </releases>"), end="")


if __name__ == "__main__":
    sys.stdout.reconfigure(encoding="utf-8")
    {"changelog": print_changelog, "metainfo": print_metainfo}[sys.argv[1]](*sys.argv[2:])
