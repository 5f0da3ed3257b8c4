#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""What the program says in which language: Resources/Languages/lodestar_*.ts.

languages.py update        takes new and changed texts of the code into the files, and drops those that are gone
languages.py check         lists what is not translated, not used any more, or lacks what the program puts in
languages.py table FILE    writes the texts of the command line as C++, for the build
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

SOURCE = "en"
# How many plural forms each language has, by Qt's rules.
FORMS = {"en": 2, "de": 2, "fr": 2, "es": 2, "ja": 1, "ar": 6}
FOLDER = pathlib.Path("Resources/Languages")
TOOLS = pathlib.Path("/usr/lib/qt6/bin")
PLACE = re.compile(r"%L?(?:[1-9][0-9]?|n)")
NUMBER = re.compile(r"%L?n")
# Between the forms of a text in the table; Shared/CommandLine/Texts.h has it, too.
BETWEEN_FORMS = r' "\x1f" '


def file_of(folder, language):
    return folder / f"lodestar_{language}.ts"


def tool(name):
    return TOOLS / name if (TOOLS / name).exists() else name


def update(source, folder):
    """Runs lupdate into the folder. Returns what it complained about."""
    complaints = []
    for language in FORMS:
        # English is what stands in the code; only its plural forms are kept apart.
        plurals = ["-pluralonly"] if language == SOURCE else []
        done = subprocess.run(
            [tool("lupdate"), "-silent", "-locations", "none", "-no-obsolete", *plurals, "-I", "Shared",
             "-tr-function-alias", "QT_TRANSLATE_NOOP+=TEXT,QT_TRANSLATE_N_NOOP+=TEXTS,"
             "QT_TRANSLATE_NOOP3+=COMMENTED_TEXT",
             "-source-language", SOURCE, "-target-language", language, "Shared", "-ts", file_of(folder, language)],
            cwd=source, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        complaints += done.stdout.splitlines()
    return sorted(set(complaints))


class Message:
    def __init__(self, context, element):
        translation = element.find("translation")
        self.context = context
        self.source = element.findtext("source", "")
        self.comment = element.findtext("comment", "")
        self.is_plural = element.get("numerus") == "yes"
        self.state = translation.get("type", "")
        forms = [form.text or "" for form in translation.findall("numerusform")]
        self.forms = forms if self.is_plural else [translation.text or ""]

    def key(self):
        return self.context, self.source, self.comment, self.is_plural

    def faults(self, language):
        if self.state in ("vanished", "obsolete"):
            return ["is not used any more"]
        if self.state or not all(self.forms):
            return ["is not translated"]
        if self.is_plural and len(self.forms) != FORMS[language]:
            return [f"needs {FORMS[language]} plural forms"]
        found = []
        for form in self.forms:
            missing = sorted(PLACE.findall(self.source))
            there = sorted(PLACE.findall(form))
            # A form for one number, or for two, may tell it in words.
            if self.is_plural and form is not self.forms[-1] and not NUMBER.search(form):
                missing = [place for place in missing if not NUMBER.fullmatch(place)]
            if missing != there:
                found.append(f"puts in {' '.join(there) or 'nothing'} instead of {' '.join(missing) or 'nothing'}: {form}")
            if form.count("\n") != self.source.count("\n"):
                found.append(f"has other lines: {form}")
        return found


def messages_of(path):
    for context in xml.parse(path).getroot().findall("context"):
        for element in context.findall("message"):
            yield Message(context.findtext("name", ""), element)


def check(source):
    faults = []
    with tempfile.TemporaryDirectory() as scratch:
        fresh = pathlib.Path(scratch)
        for language in FORMS:
            shutil.copy(source / file_of(FOLDER, language), fresh)
        faults += update(source, fresh)
        for language in FORMS:
            path = file_of(FOLDER, language)
            kept = list(messages_of(source / path))
            wanted = {message.key() for message in messages_of(file_of(fresh, language))}
            for message in kept:
                for fault in message.faults(language):
                    faults.append(f'{path}: {message.context}: "{message.source}" {fault}')
            keys = {message.key() for message in kept}
            for context, text, *_ in sorted(wanted - keys):
                faults.append(f'{path}: {context}: "{text}" is missing; Scripts/languages.py update adds it')
            for context, text, *_ in sorted(keys - wanted):
                faults.append(f'{path}: {context}: "{text}" stands nowhere in the code; Scripts/languages.py update drops it')
    return faults


def quoted(text):
    escaped = text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n")
    return f'"{escaped}"'


def table(source):
    """C++ with every text that the command line may say. Texts that are not translated yet stay English."""
    sources = "\n".join(path.read_text() for path in sorted((source / "Shared/CommandLine").glob("*.cpp")))
    contexts = set(re.findall(r'TEXTS?\(\s*"([^"]+)"', sources)) | {"ErrorWords"}
    lines = ["// Made by Scripts/languages.py of Resources/Languages.", '#include "CommandLine/Texts.h"', "",
             "namespace lodestar", "{", "namespace", "{", ""]
    for language in FORMS:
        texts = {tuple(part.encode() for part in (message.context, message.source, message.comment)): message
                 for message in messages_of(source / file_of(FOLDER, language))
                 if message.context in contexts and not message.state and all(message.forms)}
        lines.append(f"constexpr TranslatedText {language}[] = {{")
        for _, message in sorted(texts.items()):
            forms = BETWEEN_FORMS.join(quoted(form) for form in message.forms)
            key = ", ".join(map(quoted, (message.context, message.source, message.comment)))
            lines.append(f"    {{{key}, {forms}}},")
        # An array may not be empty; no text has this context.
        lines += ['    {"~", "", "", ""},', "};", ""]
    lines += ["} // namespace", "", "const std::vector<TranslatedLanguage>& translatedLanguages()", "{",
              "    static const std::vector<TranslatedLanguage> all = {"]
    lines += [f'        {{"{language}", {language}, sizeof({language}) / sizeof(*{language})}},' for language in FORMS]
    lines += ["    };", "    return all;", "}", "", "} // namespace lodestar", ""]
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--source", type=pathlib.Path, default=pathlib.Path(__file__).resolve().parent.parent)
    commands = parser.add_subparsers(dest="command", required=True)
    commands.add_parser("update")
    commands.add_parser("check")
    commands.add_parser("table").add_argument("file", type=pathlib.Path)
    options = parser.parse_args()
    if options.command == "table":
        options.file.write_text(table(options.source))
        return 0
    faults = update(options.source, FOLDER) if options.command == "update" else check(options.source)
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
