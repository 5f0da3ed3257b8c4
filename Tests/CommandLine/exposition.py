#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""exposition.py PROGRAM SIMULATOR SOURCE [CASE]: what a monitoring system is told. The text is read by Python's own
reader of OpenMetrics, by promtool and by a real Prometheus."""

import collections
import fcntl
import json
import os
import pathlib
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest
import urllib.error
import urllib.parse
import urllib.request

from prometheus_client.openmetrics.parser import text_string_to_metric_families

from command_line import GOOD, PASSWORD, PROGRAM, SOURCE, UNKNOWN, Case, LeftOut as LeftOutCase, entry, system

RULES = SOURCE / "Packaging/prometheus/lodestar-rules.yml"
# Backslashes, a quote, a line end, and more than 300 characters.
HOSTILE = "a\\n\\\"b\nc" + "\u00e9" * 300


def wait(for_what, seconds=40):
    end = time.monotonic() + seconds
    while not (found := for_what()) and time.monotonic() < end:
        time.sleep(0.2)
    return found


class Samples:
    def __init__(self, text):
        self.text = text
        self.all = collections.defaultdict(list)
        for family in text_string_to_metric_families(text):
            for sample in family.samples:
                self.all[sample.name.removeprefix("lodestar_")].append((sample.labels, sample.value))

    def of(self, name, **labels):
        return [value for each, value in self.all[name] if labels.items() <= each.items()]

    def by(self, name, label, **labels):
        return {each[label]: value for each, value in self.all[name] if labels.items() <= each.items()}


class Exposing(Case):
    def export(self, *words):
        return Samples(self.expect(GOOD, "export", "--openmetrics", "-", *words).stdout)

    def listen(self, *words):
        """A listener that is ended with the test; its port."""
        listener = subprocess.Popen(self.arguments("export", "--listen", "0", *words), stdout=subprocess.PIPE,
                                    text=True, env=self.environment)
        self.addCleanup(listener.stdout.close)
        self.addCleanup(listener.wait)
        self.addCleanup(listener.kill)
        said = listener.stdout.readline()
        self.assertRegex(said, r"^Listening on http://127\.0\.0\.1:\d+/metrics\n$")
        return listener, int(re.findall(r":(\d+)/", said)[0])


class Text(Exposing):
    options = ("--systems", "4", "--partitions", "6")

    def test_it_tells_what_the_lists_show_and_nothing_that_is_not_known(self):
        self.register()
        rows = {kind: self.csv(GOOD, "list", kind) for kind in ("systems", "io-servers", "partitions", "events")}
        named = rows["systems"][0]
        told = self.export("--system", named["id"], "--system", named["id"], "--system", "no\"body")
        for kind, family, label in (("systems", "console_systems", "state"), ("events", "console_events", "status"),
                                    ("io-servers", "console_io_servers", "state"),
                                    ("partitions", "console_partitions", "state")):
            listed = collections.Counter(row[label] for row in rows[kind] if row["console"] == "Harbour 0")
            self.assertEqual(told.by(family, label, console="Harbour 0"), listed, kind)
        self.assertEqual(sum(told.of("console_attention_leds")),
                         sum(row["attention_led"] == "true" for row in rows["systems"]))
        self.assertEqual({(each["state"], each["health"]) for each, _ in told.all["console_systems"]},
                         {(row["state"], row["health"]) for row in rows["systems"]})
        status = self.json(2, "status")
        self.assertEqual(told.of("attention_needed"), [status["needs_attention"]])
        self.assertEqual(sum(told.of("console_findings", finding="open_event")), status["open_events"])
        self.assertEqual(sum(told.of("console_findings")), status["needs_attention"] + status["open_events"])
        samples = self.json(GOOD, "metrics", named["id"])
        self.assertEqual(told.of("system_processors_used", system=named["name"]),
                         [samples["processors"]["samples"][-1]["used"]])
        self.assertEqual(told.of("system_memory_bytes"),
                         [round(samples["memory_gb"]["samples"][-1]["total"] * 1000) * 1e6])
        self.assertEqual(told.by("named_system_up", "name"), {named["id"]: 1, "no\"body": 0})

        # A missing feed and a silent console say nothing, above all not 0.
        complete = self.export().of("console_last_complete_timestamp_seconds", console="Harbour 0")
        self.consoles.tell("fault failedStatus:LogicalPartition:0")
        self.consoles.tell("stop 1")
        time.sleep(1.1)
        told = self.export()
        self.assertEqual(told.by("console_up", "console"), {"Harbour 0": 1, "Harbour 1": 0})
        self.assertEqual(told.of("console_complete"), [0, 0])
        self.assertEqual({feed for feed, value in told.by("console_feed_missing", "feed").items() if value},
                         {"LogicalPartition"})
        self.assertEqual(told.of("console_partitions") + told.of("console_systems", console="Harbour 1"), [])
        self.assertNotEqual(told.of("console_systems"), [])
        self.assertNotIn(0, told.of("console_findings"))
        self.assertEqual(told.by("console_findings", "finding", console="Harbour 1"), {"console_offline": 1})
        self.assertLess(complete[0], told.of("refresh_timestamp_seconds")[0])
        self.assertEqual(told.of("console_last_complete_timestamp_seconds", console="Harbour 0"), complete)
        self.assertGreaterEqual(told.of("console_age_seconds", console="Harbour 0")[0], 1)

    def test_hostile_names_stay_readable_and_states_few(self):
        self.register(0, name=HOSTILE)
        self.register(1, name="Harbour")
        self.consoles.feed(0, "ManagedSystem", *(system(f"mood \\ &quot; {number} &#10;") for number in range(1000)),
                           system("operating"), system("operating"), *(system("error") for _ in range(3)))
        told = self.export()
        self.assertEqual(set(told.by("console_up", "console")), {HOSTILE, "Harbour"})
        states = told.by("console_systems", "state", console=HOSTILE)
        self.assertEqual((len(states), sum(states.values())), (21, 1005))
        self.assertEqual((states["error"], states["operating"], states["other"]), (3, 2, 982))
        self.assertTrue(any(state.startswith("mood \\ \" ") for state in states))
        for secret in (PASSWORD, "operator", *re.findall(r"=(.{20,})", (self.data / "Lodestar.defaults").read_text())):
            self.assertNotIn(secret, told.text)
        # The older reader, which collectors of text files use.
        checked = subprocess.run(["promtool", "check", "metrics"], input=told.text, text=True, capture_output=True)
        self.assertEqual((checked.returncode, checked.stdout + checked.stderr), (0, ""))

    def test_the_file_is_whole_at_every_moment(self):
        self.register()
        folder = self.folder / "metrics"
        folder.mkdir()
        file = folder / "lodestar.prom"
        done = self.expect(GOOD, "export", "--openmetrics", file, preexec_fn=lambda: os.umask(0o077))
        self.assertEqual(done.stdout + done.stderr, "")
        self.assertEqual(file.stat().st_mode & 0o777, 0o644)
        for _ in range(3):
            writing = subprocess.Popen(self.arguments("export", "--openmetrics", file), env=self.environment)
            while writing.poll() is None:
                self.assertTrue(file.read_text("utf-8").endswith("# EOF\n"))
            self.assertEqual(writing.returncode, GOOD)
        before = file.read_bytes()

        # One that is ended leaves the old text.
        self.consoles.tell("fault stallFeed:ManagedSystem:1")
        self.consoles.tell("clear-requests")
        writing = subprocess.Popen(self.arguments("export", "--openmetrics", file), env=self.environment)
        self.wait_for_requests()
        writing.send_signal(signal.SIGTERM)
        self.assertEqual(writing.wait(30), -signal.SIGTERM)
        self.consoles.tell("clear")
        self.assertEqual((file.read_bytes(), os.listdir(folder)), (before, [file.name]))

        # What a killed one left goes at the next writing; what somebody writes now, and what is not ours, stays.
        left, held = (folder / f".{file.name}.lodestar-{end}" for end in ("aB3dE6", "held00"))
        others = {".other.prom.lodestar-aB3dE6", f".{file.name}.backup", f".{file.name}.lodestar-aB3dE67"}
        for name in (left.name, held.name, *others):
            (folder / name).write_text("")
        with open(held) as holder:
            fcntl.flock(holder, fcntl.LOCK_EX)
            self.expect(GOOD, "export", "--openmetrics", file)
        self.assertEqual(set(os.listdir(folder)), {file.name, held.name} | others)
        self.expect(GOOD, "export", "--openmetrics", file)
        self.assertEqual(set(os.listdir(folder)), {file.name} | others)
        for name in others:
            (folder / name).unlink()

        os.mkfifo(folder / "pipe")
        for bad, sentence in (("pipe", "no file that could be replaced"), (".", "no file that could be replaced"),
                              ("none/x.prom", "No such file or directory"), ("x" * 300, "File name too long")):
            self.assertIn(sentence, self.expect(UNKNOWN, "export", "--openmetrics", folder / bad).stderr)
        self.assertEqual(set(os.listdir(folder)), {file.name, "pipe"})
        for words in ((), ("--openmetrics", file, "--listen", "0"), ("--openmetrics", file, "--every", "5"),
                      ("--listen", "0.0.0.0:9750"), ("--listen", "[::]:9750"), ("--listen", "quay.example:9750"),
                      ("--listen", "70000"), ("--listen", "127.0.0.1:"), ("--listen", "0", "--json")):
            self.expect(UNKNOWN, "export", *words)


class Left(LeftOutCase, Exposing):
    def test_a_console_whose_certificate_changed_within_an_attempt_waits_for_a_person(self):
        self.register()
        self.consoles.tell("advance 60")
        self.assertEqual(self.export().of("console_left_out"), [0, 0])
        self.consoles.tell("clear-requests")
        # To name it here is nobody's word: the line stands in a unit.
        told = self.export("--console", "Harbour 0", "--console", "Harbour 1")
        self.assertEqual(told.by("console_left_out", "console"), {"Harbour 0": 0, "Harbour 1": 1})
        self.assertEqual({row.split()[1] for row in self.consoles.tell("requests")}, {"0"})


class Listening(Exposing):
    count = 1

    def get(self, port, path="/metrics", method="GET", **headers):
        request = urllib.request.Request(f"http://127.0.0.1:{port}{path}", method=method, headers=headers)
        try:
            with urllib.request.urlopen(request, timeout=20) as answer:
                return answer.status, answer.headers, answer.read().decode("utf-8")
        except urllib.error.HTTPError as error:
            with error:
                return error.code, error.headers, error.read().decode("utf-8")

    def test_it_serves_the_last_reading_and_no_scrape_starts_one(self):
        self.register()
        self.consoles.tell("fault stallFeed:ManagedSystem")
        listener, port = self.listen("--every", "1h")
        self.assertEqual(self.get(port)[0], 503)
        self.consoles.tell("clear")
        self.assertTrue(wait(lambda: self.get(port)[0] == 200, 90))
        self.consoles.tell("clear-requests")
        first = Samples(self.get(port)[2])
        time.sleep(2.2)
        status, headers, text = self.get(port)
        self.assertEqual((status, headers["Content-Type"]),
                         (200, "application/openmetrics-text; version=1.0.0; charset=utf-8"))
        later = Samples(text)
        self.assertGreaterEqual(later.of("console_age_seconds")[0] - first.of("console_age_seconds")[0], 2)
        self.assertEqual(later.of("refresh_timestamp_seconds"), first.of("refresh_timestamp_seconds"))
        self.assertEqual(self.consoles.tell("requests"), [])

        self.assertEqual(self.get(port, "/")[0], 404)
        self.assertEqual(self.get(port, "/metrics/../metrics")[0], 404)
        for method in ("POST", "DELETE", "OPTIONS"):
            status, headers, _ = self.get(port, method=method)
            self.assertEqual((status, headers["Allow"]), (405, "GET, HEAD"))
        self.assertEqual(self.get(port, method="HEAD")[2], "")
        # A page of the web whose name was made to lead here reads nothing.
        for host, expected in (("localhost", 200), ("LOCALHOST:80", 200), ("[::1]:9750", 200), ("127.0.0.5", 200),
                               ("evil.example", 421), (f"localhost.evil.example:{port}", 421), ("[::1", 421),
                               ("192.0.2.1", 421), ("127.0.0.1.evil.example", 421), ("", 421)):
            self.assertEqual(self.get(port, Host=host)[0], expected, host)
        with socket.create_connection(("127.0.0.1", port), 10) as greedy:
            greedy.sendall(b"GET /metrics HTTP/1.1\r\nHost: x\r\n" + b"X: " + b"y" * 60000)
            self.assertRegex(greedy.recv(100).decode(), r"^HTTP/1\.[01] 4\d\d ")
        self.assertIn("Address already in use", subprocess.run(
            [PROGRAM, "--data", str(self.folder / "other"), "export", "--listen", str(port)], capture_output=True,
            text=True, env=self.environment).stderr)

        # More clients than there are places dribble their requests; a scrape waits for a few seconds at most.
        slow = [socket.create_connection(("127.0.0.1", port)) for _ in range(80)]
        for each in slow:
            each.sendall(b"GET /metrics HTTP/1.1\r\n")
        began = time.monotonic()
        scrape = subprocess.Popen(["curl", "-sf", "-m", "9", "-o", os.devnull, f"http://127.0.0.1:{port}/metrics"])
        cut = set()
        while len(cut) < len(slow) and time.monotonic() - began < 30:
            time.sleep(0.3)
            for each in slow:
                try:
                    each.sendall(b"X: y\r\n")
                except OSError:
                    cut.add(each)
        self.assertEqual((scrape.wait(10), len(cut)), (0, len(slow)))
        for each in slow:
            each.close()

        listener.send_signal(signal.SIGTERM)
        self.assertEqual(listener.wait(30), GOOD)
        with self.assertRaises(OSError):
            socket.create_connection(("127.0.0.1", port), 1)


class Scraping(Exposing):
    def prometheus(self, port):
        """A server that asks the port each second; its own port."""
        home = self.folder / "prometheus"
        home.mkdir()
        # The waiting is tried with promtool.
        (home / "lodestar-rules.yml").write_text(re.sub(r"for: \S+", "for: 0s", RULES.read_text()))
        scrape = (SOURCE / "Packaging/prometheus/lodestar-scrape.yml").read_text()
        (home / "prometheus.yml").write_text(
            "global: {evaluation_interval: 1s}\nrule_files: [lodestar-rules.yml]\n" +
            scrape.replace("scrape_interval: 1m", "scrape_interval: 1s").replace("127.0.0.1:9750", f"127.0.0.1:{port}"))
        with socket.create_server(("127.0.0.1", 0)) as probe:
            own = probe.getsockname()[1]
        with open(home / "log", "w") as log:
            server = subprocess.Popen(["prometheus", f"--config.file={home}/prometheus.yml",
                                       f"--storage.tsdb.path={home}/data", f"--web.listen-address=127.0.0.1:{own}"],
                                      stdout=log, stderr=log)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        return own

    def ask(self, path, **query):
        address = f"http://127.0.0.1:{self.server}/api/v1/{path}?{urllib.parse.urlencode(query)}"
        try:
            with urllib.request.urlopen(address, timeout=10) as answer:
                return json.load(answer)["data"]
        except urllib.error.URLError:
            return {}

    def alerts(self):
        return {(each["labels"]["alertname"].removeprefix("Lodestar"), each["labels"].get("console"))
                for each in self.ask("alerts").get("alerts", []) if each["state"] == "firing"}

    def becomes(self, *alerts):
        wait(lambda: self.alerts() == set(alerts))
        self.assertEqual(self.alerts(), set(alerts))

    def value(self, query):
        result = self.ask("query", query=query).get("result", [])
        return float(result[0]["value"][1]) if result else None

    def partition(self, kind, state):
        return entry(kind, 1, {"PartitionName": "p", "PartitionState": state})

    def test_alerts_fire_for_what_happens_behind_its_back(self):
        self.register()
        for console in range(self.count):
            self.consoles.calm(console)
        self.consoles.feed(1, "LogicalPartition", self.partition("LogicalPartition", "running"))
        listener, port = self.listen("--every", "1s")
        self.server = self.prometheus(port)
        self.assertEqual(wait(lambda: self.value("sum(lodestar_console_up)")), 2)
        self.becomes()

        north, south = "Harbour 0", "Harbour 1"
        self.consoles.feed(0, "ManagedSystem", system("error", lit=True))
        self.consoles.feed(0, "VirtualIOServer", self.partition("VirtualIOServer", "error"))
        self.consoles.feed(0, "ServiceableEvent", entry("ServiceableEvent", 7, {
            "problemNumber": "7", "problemState": "Open", "shortDescription": "Fan"}))
        self.consoles.feed(1, "ManagedSystem", system("operating", lit=True))
        self.consoles.feed(1, "LogicalPartition", self.partition("LogicalPartition", "not activated"))
        self.becomes(("SystemError", north), ("IOServerError", north), ("OpenEvent", north), ("AttentionLED", south),
                     ("Stopped", south))
        self.assertEqual(self.value('lodestar_console_systems{state="error",health="error"}'), 1)

        self.consoles.feed(1, "LogicalPartition", self.partition("LogicalPartition", "error"))
        self.consoles.feed(1, "ManagedSystem", system("operating"))
        self.consoles.tell("fault failedStatus:Group:1")
        self.consoles.tell("stop 0")
        self.becomes(("ConsoleOffline", north), ("PartitionError", south), ("FeedMissing", south))
        self.assertEqual(self.value("count(lodestar_console_systems)"), 1)
        self.assertGreater(self.value("lodestar_attention_needed_before_offline"), 0)

        self.consoles.tell("clear")
        self.consoles.tell("start 0")
        for console in range(self.count):
            self.consoles.calm(console)
        self.becomes()
        listener.send_signal(signal.SIGINT)
        self.assertEqual(listener.wait(30), GOOD)
        self.becomes(("Down", None))


class Shipped(unittest.TestCase):
    def test_rules_units_and_scrapes_are_what_their_readers_take(self):
        folder = self.enterContext(tempfile.TemporaryDirectory())
        shutil.copy(RULES, folder)
        shutil.copy(SOURCE / "Tests/CommandLine/exposition_rules.yml", folder)
        scrape = (SOURCE / "Packaging/prometheus/lodestar-scrape.yml").read_text()
        (pathlib.Path(folder) / "prometheus.yml").write_text("rule_files: [lodestar-rules.yml]\n" + scrape)
        for words in (("check", "config", "prometheus.yml"), ("test", "rules", "exposition_rules.yml")):
            done = subprocess.run(["promtool", *words], cwd=folder, capture_output=True, text=True)
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

        if shutil.which("systemd-analyze") is None:
            return
        units = pathlib.Path(folder) / "units"
        shutil.copytree(SOURCE / "Packaging/systemd", units)
        for unit in units.glob("lodestar-*.service"):
            if unit.is_file():
                unit.write_text(unit.read_text().replace("/usr/bin/lodestar-cli", PROGRAM))
        for unit in sorted([*units.glob("*.service"), *units.glob("*.timer")]):
            done = subprocess.run(["systemd-analyze", "verify", "--man=no", "--recursive-errors=no", str(unit)],
                                  env={**os.environ, "SYSTEMD_UNIT_PATH": f"{units}:"}, capture_output=True, text=True)
            self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""), unit.name)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
