#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""The checks of ./test on files alone (format, elements, includes, circles, licences, texts, claims, pictures, api), and the
analyser of ./test --tidy."""

import argparse
import concurrent.futures
import graphlib
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

# The modules from the bottom up. A module may include its own files and those of the modules in its row's set.
PLATFORM = {"Platform"}
BELOW = {
    "Platform": set(),
    "Feedback": PLATFORM,
    "Application/Model": PLATFORM | {"Feedback"},
    "XML": PLATFORM | {"Feedback"},
    "Inventory": PLATFORM | {"Feedback", "Application/Model", "XML"},
    "Controllers/REST": PLATFORM | {"Feedback", "Application/Model", "XML", "Inventory"},
    "Fleet": PLATFORM | {"Feedback", "Application/Model", "XML", "Inventory", "Controllers/REST"},
    "CommandLine": PLATFORM | {"Feedback", "Application/Model", "XML", "Inventory", "Controllers/REST", "Fleet"},
    "Views/About/RichText": set(),
    "Kit": PLATFORM | {"Feedback"},
    "Feedback/UI": PLATFORM | {"Feedback", "Kit"},
    "Charts": PLATFORM | {"Feedback"},
    "Views": PLATFORM | {"Feedback", "Application/Model", "XML", "Inventory", "Controllers/REST", "Fleet", "Kit", "Charts", "Views/About/RichText"},
    "Application": PLATFORM | {"Feedback", "Application/Model", "XML", "Inventory", "Controllers/REST", "Fleet", "Kit", "Feedback/UI", "Charts", "Views"},
}
# Every module whose files must compile without Qt.
QT_FREE = {"Platform", "Feedback", "Application/Model", "XML", "Inventory", "Controllers/REST", "Fleet", "CommandLine", "Views/About/RichText"}

TEXT_ENDINGS = {".h", ".cpp", ".qml", ".cmake", ".txt", ".py", ".sh", ".md", ".json", ""}
LICENSED_ENDINGS = {".h", ".cpp", ".qml", ".cmake", ".py", ".sh"}


def tracked(source, *endings):
    listed = subprocess.run(["git", "-C", source, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            check=True, stdout=subprocess.PIPE, text=True).stdout
    paths = [pathlib.Path(name) for name in listed.split("\0") if name]
    return sorted(path for path in paths if (source / path).is_file() and (not endings or path.suffix in endings))


def module_of(path):
    """The module of a path below Shared/, or none. The longest module name that fits wins."""
    for module in sorted(BELOW, key=len, reverse=True):
        if path.startswith(module + "/"):
            return module
    return None


def check_format(source, _build):
    files = [str(path) for path in tracked(source, ".h", ".cpp")]
    done = subprocess.run(["clang-format", "--dry-run", "-Werror", *files], cwd=source, stderr=subprocess.PIPE, text=True)
    return done.stderr.splitlines()


INCLUDE = re.compile(r'\s*#\s*include\s+(["<])([^">]+)')


def check_includes(source, _build):
    faults = []
    for path in tracked(source, ".h", ".cpp"):
        if path.parts[0] != "Shared":
            continue
        module = module_of("/".join(path.parts[1:]))
        for number, text in enumerate((source / path).read_text().splitlines(), 1):
            include = INCLUDE.match(text)
            if not include:
                continue
            bracket, name = include.groups()
            if bracket == "<":
                if module in QT_FREE and re.match(r"(Q[A-Z]|Qt[A-Z])", name):
                    faults.append(f"{path}:{number}: {module} must stay free of Qt: {name}")
                continue
            target = module_of(name)
            if target is None or target == module:
                continue
            if target not in BELOW[module]:
                faults.append(f"{path}:{number}: {module} must not include upwards: {name}")
    return faults


def check_circles(source, _build):
    """A unit is a header with its program files: those that bear its name or, having no header, begin with it. No unit
    includes itself by way of others."""
    files = [path for path in tracked(source, ".h", ".cpp", ".mm") if path.parts[0] != "Tests"]
    units = {path.with_suffix(""): set() for path in files if path.suffix == ".h"}
    for path in files:
        own = [unit for unit in units if unit.parent == path.parent and path.stem.startswith(unit.name)]
        unit = max(own, key=lambda each: len(each.name), default=path.with_suffix(""))
        for row in (source / path).read_text().splitlines():
            include = INCLUDE.match(row)
            if include and include.group(1) == '"':
                name = pathlib.Path(include.group(2)).with_suffix("")
                units.setdefault(unit, set()).update({name, "Shared" / name} & units.keys() - {unit})
    faults = []
    while True:
        try:
            graphlib.TopologicalSorter(units).prepare()
            return faults
        except graphlib.CycleError as error:
            circle = error.args[1][::-1]  # it comes as "is included by"
            faults.append("a circle of includes: " + " -> ".join(map(str, circle)))
            units[circle[0]].discard(circle[1])


def check_elements(source, _build):
    """Only the inventory may read elements by the consoles' names; the client itself reads the answer to a logon."""
    reads = re.compile(r"\.(child|childCount|children|attribute|member)\([^)]|\.path\(\{")
    readers = ("Shared/XML/", "Shared/Inventory/", "Shared/Controllers/REST/RESTSupport.cpp")
    return [f"{path}:{number}: reads an element above the inventory: {row.strip()}"
            for path in tracked(source, ".h", ".cpp")
            if path.parts[0] == "Shared" and not str(path).startswith(readers)
            for number, row in enumerate((source / path).read_text().splitlines(), 1) if reads.search(row)]


def check_licences(source, _build):
    faults = []
    for path in tracked(source):
        if path.suffix in LICENSED_ENDINGS or path.name in {"CMakeLists.txt", "run", "test", "bench"}:
            head = (source / path).read_text(errors="replace").splitlines()[:3]
            if not any("SPDX-License-Identifier: " in text for text in head):
                faults.append(f"{path}: no SPDX line at its head")
    return faults


def check_texts(source, _build):
    """Finds notes of unfinished work, tests that check nothing, and stray bytes."""
    faults = []
    loose = re.compile(r"\b(TO" r"DO|FIX" r"ME|XX" r"X)\b|SUCC" r"EED\(\)|GTEST_" r"SKIP|DISABLED" r"_")
    for path in tracked(source, *TEXT_ENDINGS):
        if path.parts[0] in {"LICENSES", "Resources", "docs"}:
            continue
        text = (source / path).read_text(errors="replace")
        if text and not text.endswith("\n"):
            faults.append(f"{path}: no newline at the end")
        for number, row in enumerate(text.splitlines(), 1):
            if row != row.rstrip():
                faults.append(f"{path}:{number}: trailing space")
            if loose.search(row):
                faults.append(f"{path}:{number}: a loose end: {row.strip()}")
    return faults


def check_claims(source, _build):
    """Finds tests, folders and files that a page names but that do not exist."""
    tests = set()
    for path in tracked(source, ".cpp", ".h"):
        if path.parts[0] == "Tests":
            tests |= {".".join(name) for name in re.findall(r"^TEST(?:_[FP])?\((\w+),\s*(\w+)\)",
                                                            (source / path).read_text(), re.MULTILINE)}
    faults = []
    for path in tracked(source, ".md"):
        for number, row in enumerate((source / path).read_text().splitlines(), 1):
            faults += [f"{path}:{number}: there is no test {name}" for name in re.findall(r"`([A-Z]\w+\.[A-Z]\w{7,})`", row)
                       if name not in tests and not (source / name).exists()]
            faults += [f"{path}:{number}: there is no {name}" for name in re.findall(r"`((?:[A-Z]\w+|docs)/[^`\s]+)`", row)
                       if not (source / name).exists()]
    return faults


# A picture within a page: Markdown's, or an element that says how wide it is drawn.
PICTURE = re.compile(r'!\[[^]]*\]\(([^)\s]+)\)|<img [^>]*?src="([^"]+)"')
PICTURE_BYTES = 2_000_000


def check_pictures(source, _build):
    """Holds the pages' pictures against the looks that `lodestar-screenshots` draws, and the other way round."""
    looks = {name for path in tracked(source, ".cpp") if path.parts[:2] == ("Tools", "Screenshots")
             for name in re.findall(r'\{"([a-z0-9-]+)",', (source / path).read_text())}
    kept = {path for path in tracked(source, ".png") if path.parts[0] == "docs"}
    named, faults = set(), []
    for path in tracked(source, ".md"):
        for number, row in enumerate((source / path).read_text().splitlines(), 1):
            for name in (a or b for a, b in PICTURE.findall(row)):
                picture = pathlib.Path(os.path.normpath(path.parent / name))
                named.add(picture)
                if picture not in kept:
                    faults.append(f"{path}:{number}: there is no picture {picture}; ./run --guide makes it")
                if re.sub(r"-\d+(-[a-z0-9]+)?$", "", picture.stem) not in looks:
                    faults.append(f"{path}:{number}: no look is called {picture.stem}")
    faults += [f"{picture}: no page shows it" for picture in sorted(kept - named)]
    size = sum((source / picture).stat().st_size for picture in kept)
    if size > PICTURE_BYTES:
        faults.append(f"docs: the pictures take {size} bytes, more than {PICTURE_BYTES}")
    return faults


def check_api(source, build):
    """Makes the API documentation of the core, and finds what doxygen warns about."""
    pages = build / "api"
    pages.mkdir(parents=True, exist_ok=True)
    done = subprocess.run(["doxygen", "docs/Doxyfile"], cwd=source, env={**os.environ, "LODESTAR_API": str(pages)},
                          stderr=subprocess.PIPE, text=True)
    rows = [row.removeprefix(f"{source}/") for row in done.stderr.splitlines() if row]
    return rows or ([f"doxygen ended with {done.returncode}"] if done.returncode != 0 else [])


def dependencies(build):
    """For each object file the files from which it was built, as ninja recorded them."""
    done = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True, stdout=subprocess.PIPE, text=True)
    found, current = {}, None
    for row in done.stdout.splitlines():
        if row and not row.startswith(" "):
            current = found.setdefault(row.split(":")[0], [])
        elif row.strip() and current is not None:
            current.append(row.strip())
    return found


def check_tidy(source, build):
    """Runs clang-tidy over the program, the simulator, the tools and the benchmarks. Skips a file that passed before if
    neither the file nor anything that it includes has changed. Leaves out the tests: their macros would take most of
    the time."""
    commands = json.loads((build / "compile_commands.json").read_text())
    objects = dependencies(build)
    cache = build / "tidy-passed"
    cache.mkdir(exist_ok=True)
    config = (source / ".clang-tidy").read_bytes()
    jobs = []
    for command in commands:
        file = pathlib.Path(command["file"])
        if not any(file.is_relative_to(source / folder) for folder in ("Shared", "Simulator", "Tools", "Benchmarks")):
            continue
        digest = hashlib.sha256(config + command["command"].replace(str(source), "").encode())
        for dependency in sorted({str(file), *objects.get(command.get("output", ""), [])}):
            path = pathlib.Path(os.path.join(build, dependency))
            if path.is_relative_to(source) and path.is_file():
                digest.update(path.read_bytes())
        jobs.append((file, cache / digest.hexdigest()))
    waiting = [job for job in jobs if not job[1].exists()]

    def run(job):
        file, stamp = job
        done = subprocess.run(["clang-tidy", "--quiet", "-p", build, "--extra-arg=-Wno-unknown-warning-option", file],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        if done.returncode == 0:
            stamp.touch()
            return []
        return done.stdout.splitlines() or [f"{file}: clang-tidy ended with {done.returncode}"]

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return [row for rows in pool.map(run, waiting) for row in rows]


def main():
    checks = {"format": check_format, "elements": check_elements, "includes": check_includes, "circles": check_circles,
              "licences": check_licences, "texts": check_texts,
              "claims": check_claims, "pictures": check_pictures, "api": check_api, "tidy": check_tidy}
    parser = argparse.ArgumentParser()
    parser.add_argument("--source", type=pathlib.Path, required=True)
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("check", choices=checks)
    arguments = parser.parse_args()
    faults = checks[arguments.check](arguments.source.resolve(), arguments.build.resolve())
    for fault in faults:
        print(fault)
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
