#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Provokes every fault of the table against the real client, each row in a process of its own. For each row prints how
often the fault was provoked, how often the client survived it, the process's peak memory, and whether anything stored
was lost. A row runs tests, which provoke the fault and report how often."""

import argparse
import dataclasses
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

WAITING = ("FaultRows", "*Limits*")  # takes minutes and no processor
PASSWORD = "lantern-7-quay"  # what every simulated console accepts


@dataclasses.dataclass
class Row:
    fault: str
    must: str
    runs: list  # pairs of a program and the tests that it runs
    seconds: int = 600
    filled: bool = True  # fills fresh memory with a pattern; off where peak memory counts, since filling uses it all


ROWS = [
    Row("one byte a second, or silence, at the limits as shipped", "settled within 1.05 × the request's limit",
        [WAITING], 700),
    Row("refused, no route, unknown name", "the row says \"Offline\"",
        [("URLLoadingTests", "*FailuresToConnect*"), ("views_tests", "FleetTest.EachConsole*"),
         ("ApplicationTests", "*ReadsOffline*")]),
    Row("reset, cut body, cut gzip, cut chunk, two lengths, status 500",
        "that feed \"NA\", console online, no partial feed, whole at the next refresh",
        [("RESTHandlerTests", "*FeedThatCannotBeHad*:*FleetWithBadConsoles*"), ("URLLoadingTests", "*CutAnswers*")]),
    Row("redirect loop, redirect to another host", "at most 20 hops; the key stays with its origin",
        [("RESTHandlerTests", "*FleetWithBadConsoles*"), ("URLLoadingTests", "*Redirect*:*SessionKey*")]),
    Row("logon redirected to another console", "no byte of the document leaves the origin",
        [("RESTHandlerTests", "*NothingOfALogonGoesToAnotherHost*")]),
    Row("1 GB body, gzip bomb, 16 MB of headers, endless chunk, beside 49 others",
        "cut, named in the log; memory within the budget and 150 MB; the others at most 1.1 × later",
        [("FaultRows", "*TooMuch*"), ("URLLoadingTests", "*HostileSizes*:*OddAnswers*")], filled=False),
    Row("feed cut at every byte, mutated, in another encoding", "reads as libxml2's own tree, and so do the records",
        [("XMLElementTests", "XMLElementTests.*"), ("InventoryTests", "*Damaged*"),
         ("views_tests", "*EveryListTest.*")]),
    Row("entity bombs, external entities, depth of 100,000", "at most 100 ms and 20 MB; no file or address opened",
        [("XMLElementTests", "XMLLimitsTests.*")]),
    Row("metrics: not JSON, wrong types, nulls, invalid UTF-8, status 500", "told or read as documented",
        [("InventoryTests", "Metrics*"), ("RESTHandlerTests", "Metrics*"), ("views_tests", "PerformanceTest.*")]),
    Row("certificate self-signed, expired, misnamed, swapped", "logon accepted; feeds from the same leaf alone",
        [("RESTHandlerTests", "*SwappedCertificate*"), ("URLLoadingTests", "URLTrustTest.*")]),
    Row("i-th allocation, write, sync or rename fails; disk read-only", "the old state as it was, or the new one whole",
        [("XMLMemoryTests", "*"), ("FaultInjectionTests", "*"), ("ResetFaultTests", "*-*Meanwhile*"),
         ("PlatformTests", "ObjectContextFaultTests.AStore*")], 1200),
    Row("i-th allocation of a refresh fails, on any thread", "feeds whole or \"NA\"; the next refresh is whole",
        [("FaultRows", "*RefusedMemory*")], 1800),
    Row("store corrupted in random places", "refused and left alone, or whole",
        [("PlatformTests", "*DamageIsRefused*")]),
    Row("killed while saving", "the last save is there", [("PlatformTests", "*AKilledProcess*")]),
    Row("keychain absent, gone, silent, locked", "bounded wait; a failed write is not told as saved",
        [("AdapterTests", "SystemKeychainTests.*"), ("PasscodeServiceTests", "*")]),
    Row("clock set by ten years, 24 zones, daylight-saving gaps", "deadlines and stamps as documented",
        [("ClockJumpTests", "*"), ("InventoryTests", "MetricsDateTest.*"), ("views_tests", "FeedTimeStamp*")]),
    Row("5,000 consoles", "all settle; memory grows with their number", [("FaultRows", "*Fleets*")], 1800),
    Row("console deleted while it is asked", "no use after free, no key back",
        [("RESTHandlerTests", "*DeletedMeanwhile*"),
         ("views_tests", "CorvelListTest.Delete*:*MayBeDeleted*:AddingTest.*Gathers*")]),
    Row("application reset while it refreshes", "no key back, no secret in any file",
        [("ResetFaultTests", "*Meanwhile*"), ("ApplicationTests", "ResetTest.*")]),
    Row("ten hours of pulls while consoles fail and come back", "resident memory flat after the warm-up",
        [("FaultRows", "*Pulls*")], 1800),
]


@dataclasses.dataclass
class Found:
    tries: int = 0
    survived: int = 0
    peak: float = 0  # MB
    ratio: float = 0
    lost: bool = False
    troubles: list = dataclasses.field(default_factory=list)


class Run:
    """One program that runs for a row."""

    def __init__(self, build, program, tests, row):
        self.folder = tempfile.TemporaryDirectory()
        self.report = pathlib.Path(self.folder.name) / "report.json"
        self.output = open(pathlib.Path(self.folder.name) / "output", "w+b")
        arguments = [f"--gtest_filter={tests}", f"--gtest_output=json:{self.report}"]
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software",
                       "LODESTAR_LONG_RUN": "1", "MALLOC_PERTURB_": "165" if row.filled else "0"}
        self.process = subprocess.Popen([build / "bin" / program, *arguments], env=environment, start_new_session=True,
                                        stdout=self.output, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL)
        self.end = time.monotonic() + row.seconds
        self.peak = 0

    def wait(self):
        """Waits until the program has ended, or kills it when its time is up. Returns what it found."""
        while self.process.poll() is None and time.monotonic() < self.end:
            self.notePeak()
            time.sleep(0.02)
        hung = self.process.poll() is None
        if hung:
            os.killpg(self.process.pid, signal.SIGKILL)
        self.process.wait()
        self.output.seek(0)
        text = self.output.read().decode(errors="replace")
        found = self.read_tests()
        found.peak = self.peak / 1024
        if hung:
            found.troubles.append("did not end in time")
        elif self.process.returncode != 0:
            found.troubles.append(f"ended with {self.process.returncode}")
        if PASSWORD in text:
            found.lost = True
            found.troubles.append("a password stands in its output")
        if found.troubles or found.survived < found.tries:
            found.troubles += text.rstrip().splitlines()[-15:]
        return found

    def notePeak(self):
        try:
            status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
        except OSError:
            return
        if line := re.search(r"VmHWM:\s+(\d+)", status):
            self.peak = max(self.peak, int(line[1]))

    def read_tests(self):
        """Counts each test as often as the test says that it provoked its fault; once when it says nothing."""
        found = Found()
        report = json.loads(self.report.read_text()) if self.report.exists() else {}
        for suite in report.get("testsuites", []):
            for test in suite["testsuite"]:
                tries = int(test.get("tries", 1))
                found.tries += tries
                found.survived += tries if "failures" not in test else 0
                found.ratio = max(found.ratio, float(test.get("ratio", 0)))
                found.lost = found.lost or "lost" in test
        if found.tries == 0:
            found = Found(tries=1, troubles=["no such test"])
        return found


def merged(parts):
    whole = Found()
    for part in parts:
        whole.tries += part.tries
        whole.survived += part.survived
        whole.peak = max(whole.peak, part.peak)
        whole.ratio = max(whole.ratio, part.ratio)
        whole.lost = whole.lost or part.lost
        whole.troubles += part.troubles
    return whole


def is_good(found):
    return found.survived == found.tries and not found.lost and not found.troubles


def line(row, found):
    others = f"others {found.ratio:.2f} ×" if found.ratio else ""
    lost = "SOMETHING LOST" if found.lost else "nothing lost"
    verdict = "" if is_good(found) else "  FAILED"
    return f"{row.fault:<76} {found.survived:>6} of {found.tries:<6} {found.peak:>5.0f} MB  {lost}  {others}{verdict}"


def page(results):
    rows = "\n".join(f"| {row.fault} | {row.must} | {found.survived:,} of {found.tries:,} | {found.peak:.0f} MB | "
                     f"{'no' if found.lost else 'yes'} | {'' if not found.ratio else f'{found.ratio:.2f} ×'} |"
                     for row, found in results)
    return f"""# What Lodestar survives

Made by `./test --faults -- --page docs/reliability.md`, and to be made anew whenever a row changes. Each row ran in a
process of its own against the real client: simulated consoles that misbehave, files that cannot be written, processes
that are killed. A row counts as survived when nothing crashed or hung, each request settled just once, the consoles
beside it had what they have without the fault, and what had been stored was read back afterwards. Peak memory is that
of the whole process, its test included. The last column is the time of the latest of the other consoles, divided by
their time without the fault. A row that was survived less often than it was tried is a fault that is known and stands.

| fault | what must happen | survived | peak memory | nothing lost | others |
|---|---|---|---|---|---|
{rows}

Not in the table: the fuzzers (`./test --fuzz SECONDS`) and the sanitizers (`./test --asan`, `./test --tsan`), which run
the same tests. One allocation that fails is bridged by a reserve; where no memory at all is left, the process ends, and
what was saved stays.
"""


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--page", type=pathlib.Path, help="write the table there as Markdown")
    parser.add_argument("only", nargs="*", help="parts of the names of rows to run instead of all")
    arguments = parser.parse_args()
    rows = [row for row in ROWS if not arguments.only or any(part in row.fault for part in arguments.only)]
    # The row that only waits is started now, and waits while the others run.
    waiting = {id(row): [Run(arguments.build, *run, row) for run in row.runs]
               for row in rows if row.runs[0] == WAITING}
    results = []
    for row in sorted(rows, key=lambda each: id(each) in waiting):
        runs = waiting.get(id(row)) or (Run(arguments.build, *run, row) for run in row.runs)
        found = merged([run.wait() for run in runs])
        results.append((row, found))
        print(line(row, found), flush=True)
        for trouble in dict.fromkeys(found.troubles):
            print("    " + trouble, flush=True)
    good = sum(is_good(found) for _, found in results)
    if arguments.page:
        arguments.page.write_text(page(results))
    print(f"{good} of {len(results)} rows survived")
    sys.exit(0 if good == len(results) else 1)


if __name__ == "__main__":
    main()
