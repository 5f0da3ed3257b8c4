#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""command_line.py PROGRAM SIMULATOR SOURCE [CASE]: the command line as scripts and terminals see it. What it writes is
read by Python's own readers of JSON and CSV."""

import csv
import fcntl
import io
import json
import os
import pathlib
import pty
import re
import resource
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unicodedata
import unittest
import urllib.parse

PROGRAM, SIMULATOR, SOURCE = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
PASSWORD = "lantern-7-quay"
GOOD, WARNINGS, ERRORS, UNKNOWN = range(4)
HOSTILE = "evil\x1b[2J\x1b]0;title\x07\u202e\u009b31m\r\nname"


def entry(kind, number, fields):
    inner = "".join(f"<{tag}>{text}</{tag}>" for tag, text in fields.items())
    return (f"<entry><id>{kind}-{number}</id><content><{kind}><Metadata><Atom><AtomID>{kind}-{number}</AtomID></Atom>"
            f"</Metadata>{inner}</{kind}></content></entry>")


def system(state, lit=False, name="helios"):
    return entry("ManagedSystem", 1, {"SystemName": name, "State": state,
                                      "PhysicalSystemAttentionLEDState": "true" if lit else "false"})


class Consoles:
    """A simulator, steered over its standard input."""

    def __init__(self, count, *options):
        # On addresses of their own: ctest runs several cases at once.
        self.process = subprocess.Popen([SIMULATOR, "--control", "--address", "auto", "--consoles", str(count),
                                         *options], text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.addresses = [line.split()[2] for line in self.lines("ready") if line.startswith("console")]

    def lines(self, last):
        return list(iter(lambda: self.process.stdout.readline().strip(), last))

    def tell(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        return self.lines("ok")

    def feed(self, console, kind, *entries):
        self.tell(f"feed {console} {kind} " + urllib.parse.quote(f"<feed>{''.join(entries)}</feed>", safe=""))

    def calm(self, console):
        """Nothing is wrong there from now on."""
        for kind in ("VirtualIOServer", "LogicalPartition", "ServiceableEvent", "Group"):
            self.feed(console, kind)
        self.feed(console, "ManagedSystem", system("operating"))

    def end(self):
        self.process.stdin.close()
        self.process.wait(30)
        self.process.stdout.close()


class Case(unittest.TestCase):
    count, options = 2, ()

    def setUp(self):
        self.consoles = Consoles(self.count, *self.options)
        self.addCleanup(self.consoles.end)
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.data = self.folder / "data"
        self.environment = {**os.environ, "TZ": "UTC", "TERM": "xterm", "HOME": folder.name, "LC_ALL": "C.UTF-8"}
        self.environment.pop("NO_COLOR", None)

    def arguments(self, *words):
        return [PROGRAM, "--data", str(self.data), *map(str, words)]

    def run_cli(self, *words, **more):
        return subprocess.run(self.arguments(*words), text=True, encoding="utf-8",
                              capture_output="stdout" not in more, env=self.environment, timeout=60, **more)

    def expect(self, code, *words, **more):
        done = self.run_cli(*words, **more)
        self.assertEqual(done.returncode, code, f"{words}\n{done.stdout}\n{done.stderr}")
        return done

    def json(self, code, *words):
        return json.loads(self.expect(code, *words, "--json").stdout)

    def csv(self, code, *words):
        done = subprocess.run(self.arguments(*words, "--csv"), capture_output=True, env=self.environment, timeout=60)
        self.assertEqual(done.returncode, code, done.stderr)
        return list(csv.DictReader(io.StringIO(done.stdout.decode("utf-8"), newline="")))

    def register(self, *indexes, name="Harbour {}"):
        for index in indexes or range(self.count):
            self.expect(GOOD, "consoles", "add", self.consoles.addresses[index], "--user", "operator", "--name",
                        name.format(index), "--password-fd", "0", input=PASSWORD + "\n")

    def wait_for_requests(self):
        end = time.monotonic() + 20
        while not self.consoles.tell("requests") and time.monotonic() < end:
            time.sleep(0.02)

    def on_terminal(self, columns, *words, answers=(), more={}):
        """The exit code, and what the terminal was shown. Answers are typed once the words before them appear."""
        pid, terminal = pty.fork()
        if pid == 0:
            fcntl.ioctl(0, termios.TIOCSWINSZ, struct.pack("HHHH", 40, columns, 0, 0))
            os.execve(PROGRAM, self.arguments(*words), {**self.environment, **more})
        shown, answers = b"", list(answers)
        while True:
            try:
                piece = os.read(terminal, 65536)
            except OSError:
                break
            shown += piece
            if answers and answers[0][0] in shown:
                os.write(terminal, answers.pop(0)[1])
        os.close(terminal)
        return os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1]), shown.decode("utf-8")


class Reading(Case):
    options = ("--systems", "4", "--partitions", "6")

    def test_the_exit_code_says_how_the_fleet_is(self):
        self.expect(UNKNOWN, "status")  # nobody is watched
        self.register()
        for console in range(self.count):
            self.consoles.calm(console)
        said = self.json(GOOD, "status")
        self.assertEqual((said["schema"], said["verdict"], said["needs_attention"]), (1, "good", 0))
        self.assertIn("Nothing needs attention", self.expect(GOOD, "attention").stdout)
        # Nothing is told, too: to a person in words, to the next program as a table without rows.
        self.assertIn("No open events.", self.on_terminal(80, "events", "--open")[1])
        self.assertRegex(self.expect(GOOD, "list", "partitions").stdout, "^name +state .*console\n$")
        self.assertEqual((self.json(GOOD, "events")["objects"], self.csv(GOOD, "events")), ([], []))

        self.consoles.feed(0, "ServiceableEvent", entry("ServiceableEvent", 7, {
            "problemNumber": "7", "problemState": "Open", "shortDescription": "Fan"}))
        self.assertEqual(self.json(GOOD, "status")["open_events"], 1)  # an open event alone is no warning

        self.consoles.feed(1, "ManagedSystem", system("operating", lit=True))
        found = self.json(WARNINGS, "attention")["findings"]
        self.assertEqual([(each["band"], each["sentence"]) for each in found],
                         [("warnings", "LED on, system operating"), ("open_events", "#7")])

        self.consoles.tell("fault failedStatus:LogicalPartition:0")
        said = self.json(UNKNOWN, "status")  # a warning is the worst that is known, not the worst
        self.assertEqual(said["consoles"][0]["missing_feeds"], ["LogicalPartition"])
        self.expect(UNKNOWN, "list", "partitions")
        self.expect(GOOD, "list", "systems")
        self.consoles.tell("stop 0")
        said = self.json(UNKNOWN, "attention")
        self.assertEqual(said["findings"][0]["error"]["reason"], "connection refused")
        self.expect(WARNINGS, "status", "--console", "Harbour 1")

        self.consoles.feed(1, "ManagedSystem", system("error"))
        self.assertEqual(self.json(ERRORS, "attention")["reading"],
                         {"consoles": 2, "complete": 1, "partial": 0, "offline": 1, "left_out": 0})
        done = self.expect(UNKNOWN, "list", "systems")
        self.assertIn("Harbour 0 did not answer: connection refused.", done.stderr)
        self.assertIn("helios", done.stdout)

    def test_what_is_listed_is_what_the_consoles_said_in_every_form(self):
        self.register()
        systems = self.json(GOOD, "list", "systems")["objects"]
        counts = self.consoles.tell("summary 0")[0].split()
        self.assertEqual(len([each for each in systems if each["console"] == "Harbour 0"]), int(counts[1]))
        for kind in ("consoles", "systems", "io-servers", "partitions", "events", "groups"):
            objects, rows = self.json(GOOD, "list", kind)["objects"], self.csv(GOOD, "list", kind)
            self.assertGreater(len(rows), 0)
            volatile = {"last_reading_utc", "last_complete_utc"}
            as_text = [{title: "" if text is None else str(text) for title, text in each.items()} for each in objects]
            for each in as_text + rows:
                for title in volatile & each.keys():
                    each[title] = ""
            self.assertEqual(as_text, rows)

        # Quotes, line ends, formulas and letters of many alphabets come through whole.
        name = "=1+1,\"a\" \n\u00e9 \u6771\u4eac"
        self.consoles.feed(0, "ManagedSystem",
                           system("operating", name="=1+1,&quot;a&quot; &#10;\u00e9 \u6771\u4eac"))
        chosen = ("--console", "Harbour 0")
        self.assertEqual(self.json(GOOD, "show", "system", "ManagedSystem-1", *chosen)["objects"][0]["name"], name)
        self.assertEqual(self.csv(GOOD, "list", "systems", *chosen)[0]["name"], "'" + name)
        self.assertIn("Nothing of that kind", self.expect(UNKNOWN, "show", "partition", "nobody").stderr)

        shown = self.json(GOOD, "events", "--open", "--order", "newest")["objects"]
        self.assertEqual({each["status"] for each in shown}, {"Open"})
        stamps = [int(each["last_reported"]) for each in shown]
        self.assertEqual(stamps, sorted(stamps, reverse=True))

        identifier = self.csv(GOOD, "list", "systems", "--console", "Harbour 1")[0]["id"]
        metrics = self.json(GOOD, "metrics", identifier)
        rows = self.csv(GOOD, "metrics", identifier, "--memory")
        self.assertEqual([float(row["used_memory_gb"]) for row in rows],
                         [round(each["used"], 4) for each in metrics["memory_gb"]["samples"]])
        self.consoles.tell("fault unprocessedMetrics")
        self.assertIn("cannot be had", self.expect(UNKNOWN, "metrics", identifier).stderr)


class Registering(Case):
    count = 3

    def test_consoles_are_added_by_prompt_or_descriptor_and_never_half(self):
        address = self.consoles.addresses[0]
        add = ("consoles", "add", address, "--user", "operator", "--name", "Quay")
        # Keys that would end or halt the program before it could show again what is typed are a password's letters.
        code, shown = self.on_terminal(80, *add, answers=[(b"Password of operator: ", b"\x1c\x1awrong\n")])
        self.assertEqual(code, UNKNOWN)
        self.assertIn("wrong user or password", shown)
        code, shown = self.on_terminal(80, *add, answers=[(b"Password of operator: ", PASSWORD.encode() + b"\n")])
        self.assertEqual(code, GOOD, shown)
        self.assertNotIn(PASSWORD, shown)
        self.assertIn("Quay was added.", shown)
        self.assertIn("registered already", self.expect(UNKNOWN, *add).stderr)
        self.assertIn("--password-fd", self.expect(UNKNOWN, "consoles", "add", "127.0.0.9", "--user", "x",
                                                   start_new_session=True).stderr)
        self.assertIn("connection refused",
                      self.expect(UNKNOWN, "consoles", "add", "127.255.0.9", "--user", "x", "--password-fd", "0",
                                  input="x\n").stderr)

        # An interrupted attempt leaves nothing.
        self.consoles.tell("fault stallFeed:ManagedSystem:1")
        adding = subprocess.Popen(self.arguments("consoles", "add", self.consoles.addresses[1], "--user", "operator",
                                                 "--password-fd", "0"), stdin=subprocess.PIPE,
                                  stderr=subprocess.PIPE, env=self.environment)
        adding.stdin.write(PASSWORD.encode() + b"\n")
        adding.stdin.flush()
        time.sleep(1)
        adding.send_signal(signal.SIGINT)
        self.assertEqual(adding.communicate(timeout=30)[1], b"")
        self.assertEqual(adding.returncode, -signal.SIGINT)
        known = self.json(GOOD, "consoles")["consoles"]
        self.assertEqual([(each["console"], each["address"], each["user"]) for each in known],
                         [("Quay", address, "operator")])
        kept = b"".join(path.read_bytes() for path in self.data.rglob("*") if path.is_file())
        self.assertNotIn(self.consoles.addresses[1].encode(), (self.data / "Lodestar.defaults").read_bytes())
        self.assertNotIn(b"wrong", kept)
        self.assertEqual({path.stat().st_mode & 0o077 for path in self.data.rglob("*")}, {0})

    def test_a_sheet_goes_in_and_out(self):
        one, two, three = self.consoles.addresses
        sheet = self.folder / "sheet.csv"
        sheet.write_bytes("\ufeffname;address;user;colour\r\n"
                          f"One;{one};operator;red\r\nTwo;{two};intruder;\r\nThree;;operator;\r\n".encode())
        answers = f"{PASSWORD}\nguess\n"
        arguments = ("consoles", "import", sheet, "--password-fd", "0")
        done = self.expect(ERRORS, *arguments, "--all-or-none", input=answers)
        self.assertIn("Nothing was added.", done.stdout)
        self.assertEqual(self.json(GOOD, "consoles")["consoles"], [])
        done = self.expect(WARNINGS, *arguments, "--json", input=answers)
        said = json.loads(done.stdout)
        self.assertEqual([(row["result"], row["note"]) for row in said["rows"]],
                         [("added", None), ("not_added", "wrong user or password"), ("not_added", "no address")])
        self.assertIn("The column colour is not used.", done.stderr)
        self.assertIn("Row 4: no address.", done.stderr)

        # Once more: lines of users who have nothing left to do are passed over, and no line is cut in two.
        head = "name,address,user\r\n"
        sheet.write_text(f"{head}One,{one},first\r\nTwo,{two},operator\r\n")
        self.expect(GOOD, *arguments, input=f"\n{PASSWORD}\n")
        self.assertIn("registered already", self.expect(GOOD, *arguments, input="").stdout)
        self.expect(GOOD, "consoles", "remove", two)
        self.assertIn("too long", self.expect(UNKNOWN, *arguments, input=f"\n{'x' * 5000}\n").stderr)
        self.register(2, name="=Three, \"south\"")

        exported = self.folder / "out.csv"
        self.expect(GOOD, "consoles", "export", exported)
        rows = list(csv.reader(io.StringIO(exported.read_text("utf-8"), newline="")))
        self.assertEqual(rows[1:], [["One", one, "operator"], ["'=Three, \"south\"", three, "operator"]])
        self.assertEqual(exported.stat().st_mode & 0o777, 0o600)
        before = exported.read_bytes()
        self.assertIn("exists", self.expect(UNKNOWN, "consoles", "export", exported).stderr)
        self.assertEqual(exported.read_bytes(), before)

        self.expect(GOOD, "consoles", "remove", "One")
        self.expect(GOOD, "consoles", "remove", three)
        self.assertIn("No console is called One.", self.expect(UNKNOWN, "consoles", "remove", "One").stderr)
        for bad, sentence in ((b"\x00\xff\xfe\x89PNG", "not a CSV file"), (b"a,b\n1,2\n", "no first line with name"),
                              (b'name,address,user\n"open', "not a CSV file")):
            sheet.write_bytes(bad)
            self.assertIn(sentence, self.expect(UNKNOWN, *arguments, input="x\n").stderr)
        self.assertIn("No such file", self.expect(UNKNOWN, "consoles", "import", self.folder / "none").stderr)
        self.assertEqual(len(self.json(GOOD, "consoles")["consoles"]), 0)


class Terminals(Case):
    count = 1

    def plain(self, shown, columns):
        """The lines that stay, without colours and progress; nothing else may steer the terminal."""
        shown = re.sub(r"\r[^\r\n]*\x1b\[K|\r\x1b\[K", "", shown)
        shown = re.sub(r"\x1b\[(0|31|32|33)m", "", shown)
        for line in re.split("\r*\n", shown):  # the terminal adds a return to those that CSV has
            self.assertFalse([letter for letter in line if unicodedata.category(letter) in ("Cc", "Cf")], repr(line))
            width = sum(2 if unicodedata.east_asian_width(letter) in "WF" else 1 for letter in line)
            self.assertLessEqual(width, columns, line)
        return shown

    def test_a_terminal_is_filled_and_never_obeys_a_console(self):
        self.register(name=HOSTILE + " \u6771\u4eac{}")
        escaped = "evil" + "".join(f"&#{ord(letter)};" for letter in "\u202e\u009b31m\r\n") + "name\u6771\u4eac"
        self.consoles.feed(0, "ManagedSystem", system("error", name=escaped))
        commands = (("status",), ("attention",), ("list", "systems"), ("list", "partitions", "--all"), ("events",),
                    ("show", "system", "ManagedSystem-1"), ("consoles",), ("list", "systems", "--csv"),
                    ("attention", "--json"))
        for columns in (20, 80, 300):
            for command in commands:
                code, shown = self.on_terminal(columns, *command)
                self.assertLess(code, 3, shown)
                as_data = command[-1] in ("--json", "--csv")
                self.assertIn("evil", self.plain(shown, 10_000 if as_data else columns))
        self.assertIn("\x1b[31merror\x1b[0m", self.on_terminal(80, "status")[1])
        shown = self.on_terminal(80, "status", more={"NO_COLOR": "1"})[1]
        self.assertNotIn("\x1b[3", shown)
        self.assertIn("reading 1 of 1", shown)
        done = self.expect(ERRORS, "status")
        self.assertNotIn("\x1b", done.stdout)
        self.assertEqual(done.stderr, "")

    def test_an_endless_text_is_shown_whole_and_holds_up_nothing(self):
        self.register()
        endless = "x" * 1_000_000
        self.consoles.feed(0, "ManagedSystem", system("error", name=endless), entry("ManagedSystem", 2, {
            "SystemName": "helios", "State": "operating"}))
        begin = time.monotonic()
        shown = self.plain(self.on_terminal(80, "show", "system", "ManagedSystem-1")[1], 80)
        self.assertEqual(shown.count("x") // 1_000_000, 1)
        self.assertLess(time.monotonic() - begin, 15)
        lines = self.expect(GOOD, "list", "systems").stdout.splitlines()
        self.assertTrue(any(endless in line for line in lines))
        self.assertLess(min(map(len, lines)), 1_000)


class Ending(Case):
    options = ("--partitions", "60")

    def test_pipes_disks_and_folders_that_fail(self):
        self.register()
        with open("/dev/full", "w") as full:
            done = self.expect(UNKNOWN, "list", "partitions", stdout=full, stderr=subprocess.PIPE)
            self.assertIn("No space left", done.stderr)
        reader, writer = os.pipe()
        os.close(reader)
        done = self.expect(GOOD, "list", "partitions", stdout=writer, stderr=subprocess.PIPE)
        self.assertEqual(done.stderr, "")

        watching = subprocess.Popen(self.arguments("watch", "--every", "1h"), stdout=writer, stderr=subprocess.PIPE,
                                    env=self.environment)
        os.close(writer)
        self.assertEqual((watching.communicate(timeout=30)[1], watching.returncode), (b"", GOOD))

        self.consoles.tell("clear-requests")
        watching = subprocess.Popen(self.arguments("watch", "--every", "1h"), stdout=subprocess.PIPE,
                                    stderr=subprocess.PIPE, env=self.environment)
        self.wait_for_requests()
        done = self.expect(UNKNOWN, "status")
        self.assertIn("Lodestar is open", done.stderr)
        self.assertEqual(done.stdout, "")
        watching.send_signal(signal.SIGTERM)
        self.assertEqual((watching.communicate(timeout=30)[1], watching.returncode), (b"", GOOD))
        self.assertNotEqual(self.run_cli("status").returncode, UNKNOWN)

        def fill_disk():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (8192, 8192))
        for words in (("status",), ("consoles", "remove", "Harbour 0")):
            self.assertIn("cannot be read", self.expect(UNKNOWN, *words, preexec_fn=fill_disk).stderr)
        self.assertEqual(len(self.json(GOOD, "consoles")["consoles"]), 2)

        for words, sentence in ((("nonsense",), "There is no command nonsense."), ((), "No command was given."),
                                (("list", "nonsense"), "There is no kind nonsense"),
                                (("status", "--every", "5"), "status takes no option --every."),
                                (("events", "--order", "odd"), "--order takes"),
                                (("status", "--console", "nobody"), "No console is called nobody."),
                                (("watch", "--every", "soon"), "--every takes"),
                                (("watch", "--times", "0"), "--times takes"),
                                (("status", "--data="), "--data needs a value"),
                                (("consoles", "odd"), "There is no command consoles odd.")):
            self.assertIn(sentence, self.expect(UNKNOWN, *words).stderr)
        (self.data / "Documents" / "History.sqlite").write_bytes(b"x" * 4096)
        done = self.expect(GOOD, "consoles")
        self.assertRegex(done.stderr, r"^lodestar-cli: The history was damaged\. .*Earlier changes are missing\.\n$")
        self.assertIn("Harbour 0", done.stdout)
        self.assertEqual(self.expect(GOOD, "consoles").stderr, "")  # not for 30 days
        (self.data / "Documents" / "Lodestar.sqlite").write_bytes(b"x" * 4096)
        self.assertIn("cannot be read", self.expect(UNKNOWN, "consoles").stderr)
        self.assertEqual((self.data / "Documents" / "Lodestar.sqlite").read_bytes(), b"x" * 4096)
        (self.data / "Lodestar.defaults").write_text("[Booleans]\nresetUnderWay=true\n")
        self.assertIn("reset", self.expect(UNKNOWN, "consoles").stderr)
        self.data = self.folder / "file"
        self.data.write_text("")
        self.assertIn("There is no data folder.", self.expect(UNKNOWN, "consoles").stderr)


class Speaking(Case):
    count = 1

    def test_a_person_is_told_in_their_language_and_a_script_in_its_own(self):
        self.register()
        self.consoles.calm(0)
        self.consoles.feed(0, "ManagedSystem", system("error", lit=True))
        english = self.expect(ERRORS, "status").stdout
        scripts = [self.csv(ERRORS, "attention"), self.json(ERRORS, "attention")["findings"]]
        self.environment.pop("LC_ALL")
        told = {}
        for locale in ("de_DE.UTF-8", "fr_FR.UTF-8", "es_ES.UTF-8", "ja_JP.UTF-8", "ar_EG.UTF-8", "pt_BR.UTF-8", "C"):
            # A locale need not be installed for its language to be spoken.
            self.environment["LANG"] = locale
            told[locale] = self.expect(ERRORS, "status").stdout
            self.assertIn("Harbour 0", told[locale])
            self.assertEqual([self.csv(ERRORS, "attention"), self.json(ERRORS, "attention")["findings"]], scripts)
        self.assertEqual((told.pop("C"), told.pop("pt_BR.UTF-8")), (english, english))
        self.assertEqual(len({english, *told.values()}), 6)
        self.environment["LC_MESSAGES"] = "de_AT"
        self.assertEqual(self.expect(ERRORS, "status").stdout, told["de_DE.UTF-8"])
        self.assertRegex(self.run_cli("status", "--frob").stderr, "(?s)^lodestar-cli: .*--frob.*\nlodestar-cli: .*--help")


class Watching(Case):
    def test_each_change_is_a_line(self):
        self.register()
        for console in range(self.count):
            self.consoles.calm(console)
        self.expect(GOOD, "status")
        watching = subprocess.Popen(self.arguments("watch", "--every", "1s", "--json"), stdout=subprocess.PIPE,
                                    text=True, env=self.environment)

        def line():
            change = json.loads(watching.stdout.readline())
            return change["console"], change["sense"], change["change"], change["from"], change["to"]
        self.consoles.feed(0, "ManagedSystem", system("error"))
        self.assertEqual(line(), ("Harbour 0", "worse", "state", "operating", "error"))
        self.consoles.tell("stop 1")
        self.assertEqual(line()[:3], ("Harbour 1", "worse", "offline"))
        self.consoles.tell("start 1")
        self.assertEqual(line()[:3], ("Harbour 1", "better", "online_again"))
        watching.send_signal(signal.SIGINT)
        self.assertEqual(watching.wait(30), GOOD)
        watching.stdout.close()

        self.consoles.feed(0, "ManagedSystem", system("operating"))
        self.assertRegex(self.expect(GOOD, "watch", "--times", "1").stdout,
                         r"^\d\d:\d\d better helios: error → operating \(Harbour 0\)\n$")


class LeftOut(Case):
    def setUp(self):
        with tempfile.NamedTemporaryFile("w", suffix=".story") as story:
            story.write("0 0 console name=North\n60 1 certificate swaps once\n")
            story.flush()
            self.options = ("--story", story.name, "--story-still")
            super().setUp()

    def test_a_console_whose_certificate_changed_within_an_attempt_waits_for_a_person(self):
        self.register()
        self.consoles.tell("advance 60")
        said = self.json(ERRORS, "attention")
        reasons = [each["error"]["reason"] for each in said["findings"] if each["band"] == "not_answering"]
        self.assertEqual(reasons, ["its certificate changed"])
        self.consoles.tell("clear-requests")
        said = self.json(ERRORS, "status")
        self.assertEqual((said["reading"]["left_out"], said["consoles"][1]["last_reading"]), (1, "not_tried"))
        self.assertEqual({row.split()[1] for row in self.consoles.tell("requests")}, {"0"})
        self.assertIn("Harbour 1 was left out", self.expect(UNKNOWN, "list", "systems").stderr)
        self.run_cli("status", "--console", "Harbour 1")
        self.assertEqual(self.json(ERRORS, "status")["reading"]["left_out"], 0)


class Packaging(unittest.TestCase):
    def test_help_manual_and_completions_know_the_same_commands_and_options(self):
        told = subprocess.run([PROGRAM, "--help"], capture_output=True, text=True, check=True).stdout
        commands = re.findall(r"^lodestar-cli ([a-z]+(?: [a-z]+)?)", told, re.MULTILINE)
        options = set(re.findall(r"--[a-z-]+", told))
        self.assertIn("consoles import", commands)
        manual = (SOURCE / "Packaging/lodestar-cli.1").read_text().replace("\\-", "-")
        script = SOURCE / "Packaging/completions/lodestar-cli.bash"
        zsh = (SOURCE / "Packaging/completions/_lodestar-cli").read_text()

        def completed(*words):
            quoted = " ".join(f"'{word}'" for word in ("lodestar-cli", *words))
            asked = f". {script}; COMP_WORDS=({quoted}); COMP_CWORD={len(words)}; _lodestar_cli; echo ${{COMPREPLY[*]}}"
            return set(subprocess.run(["bash", "-c", asked], capture_output=True, text=True, check=True).stdout.split())
        for command in commands:
            words = command.split()
            self.assertIn(words[-1], completed(*words[:-1], ""), command)
            self.assertIn(words[-1], zsh)
            self.assertIn(command, manual)
        for block in re.split(r"^(?=lodestar-cli )", told.split("\nWith every command")[0], flags=re.MULTILINE)[1:]:
            words = re.match(r"lodestar-cli ([a-z]+(?: [a-z]+)?)", block).group(1).split()
            missing = set(re.findall(r"^ +(--[a-z-]+)", block, re.MULTILINE)) - completed(*words, "-")
            self.assertEqual(missing, set(), words)
        for option in options:
            self.assertIn(option, zsh)
            self.assertIn(option, manual)
        self.assertEqual(completed("list", "io"), {"io-servers"})
        self.assertEqual(completed("--data", "=", "/a", "events", "--order", "=", "n"), {"newest"})


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
