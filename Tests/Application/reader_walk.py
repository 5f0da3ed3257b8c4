#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""reader_walk.py PROGRAM SIMULATOR [CASE]: does by the accessible tree and the keyboard alone what a person does who
does not see the screen."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from screen_reader import CONTROLS, HOME, RIGHT, SESSION, Screen, in_own_session

PROGRAM, SIMULATOR = sys.argv[1:3]
PASSWORD = "lantern-7-quay"
PARTITIONS = 40


class Walk(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.data = pathlib.Path(folder.name) / "data"
        self.start()

    def start(self):
        self.screen = Screen(PROGRAM, "--data", str(self.data))
        self.addCleanup(self.screen.kill)

    def skip_tour(self):
        self.screen.press("push button", "Skip")
        self.screen.one("heading", "My Corvels")

    def console(self):
        """The address of a new simulated console."""
        simulator = subprocess.Popen([SIMULATOR, "--control", "--address", "auto", "--systems", "2", "--partitions",
                                      str(PARTITIONS // 2)], text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.addCleanup(simulator.wait)
        self.addCleanup(simulator.stdin.close)
        lines = iter(lambda: simulator.stdout.readline().strip(), "ready")
        return [line.split()[2] for line in lines if line.startswith("console")][0]

    def expect_readable(self, title):
        """The screen has its title, names everything that can be used, and keeps the keyboard in one place."""
        self.screen.one("heading|dialog|alert", title)
        shown = self.screen.tree()
        for node in shown:
            if node.role in CONTROLS or node.role in ("list", "list item", "chart"):
                self.assertTrue(node.name.strip(), f"{node} has no name on {title}")
            width, height = node.extents[2:]
            self.assertTrue(width > 1 and height > 1 or node.role == "notification", f"{node} is nowhere on {title}")
            if node.role in ("push button", "page tab", "check box"):
                self.assertEqual("sensitive" in node.states, "Press" in node.actions, f"{node} on {title}")
        focused = [node for node in shown if "focused" in node.states and node.role != "frame"]
        self.assertLessEqual(len(focused), 1, title)
        modal = [node for node in shown if "modal" in node.states]
        self.assertLessEqual(len(modal), 1, title)
        if modal:
            self.assertTrue(all(node.depth > 0 or node.role == "frame" for node in shown), "something beside the sheet")

    def rows(self, label):
        """The names of all rows of a list, each reached from the row before it."""
        names, row = [], None
        while True:
            rows = [node for node in self.screen.one("list", label).children if node.role == "list item"]
            place = next((each for each, node in enumerate(rows) if row and node.name == row.name), -1)
            if place + 1 == len(rows):
                return names
            row = rows[place + 1]
            names.append(row.name)
            row.focus()
            self.screen.wait(lambda: "showing" in row.now().states, f"{row} in view")

    def test_adds_a_console(self):
        screen = self.screen
        self.expect_readable("Every console, one list")
        screen.press("slider", "Page 1 of 6", "Increase")
        self.expect_readable("The sum of it all")
        self.skip_tour()
        self.expect_readable("My Corvels")

        address = self.console()
        screen.press("push button", "Add console")
        self.expect_readable("Add Corvel")
        for label, words in (("Name", "Harbour X-7"), ("Address", address), ("User ID", "operator")):
            screen.type("text", label, words)
            self.assertEqual(screen.one("text", label).text, words)
        screen.type("password text", "Password", PASSWORD)
        self.assertNotIn(PASSWORD[:3], screen.one("password text", "Password").text)
        screen.press("push button", "Save")
        screen.hears("verifying...")
        screen.gone("dialog", "Add Corvel")
        screen.press("list item", "Harbour X-7, .*attention .*events .*")
        self.expect_readable("Harbour X-7")
        screen.press("list item", f"Logical Partitions, {PARTITIONS}")
        self.expect_readable("Logical Partitions, .*")
        rows = self.rows("Logical Partitions")
        self.assertEqual(len(rows), PARTITIONS)
        self.assertEqual(len(set(rows)), PARTITIONS)

        screen.press("push button", "Search")
        screen.type("text", "Search", rows[-1].split(",")[0])
        self.assertEqual(self.rows("Search results"), rows[-1:])
        screen.press("list item", ".*")
        self.expect_readable("Partition Details")
        self.assertIn("Name, " + rows[-1].split(",")[0], self.rows("Partition Details"))
        screen.press("push button", "Back")
        screen.press("push button", "Cancel")
        for title in ("Harbour X-7", "My Corvels"):
            screen.press("push button", "Back")
            self.expect_readable(title)
        self.assertIn(address, screen.one("list item", "Harbour X-7, .*").description)
        screen.press("list item", "Harbour X-7, .*", "Delete")
        screen.gone("list item", "Harbour X-7, .*")

    def test_locks(self):
        screen = self.screen
        self.skip_tour()
        screen.press("push button", "Settings")
        self.expect_readable("Settings")
        self.assertNotIn("checked", screen.one("check box", "Require Passcode").states)
        screen.press("check box", "Require Passcode")
        self.expect_readable("Set Password")
        for label in ("New passcode", "Verify passcode"):
            screen.type("password text", label, "tide-9")
        screen.press("push button", "Save")
        screen.press("push button", "Continue")
        self.assertIn("checked", screen.one("check box", "Require Passcode").states)
        self.assertEqual(screen.close(), 0)

        self.start()
        screen = self.screen
        self.assertFalse(screen.all("page tab"), "something is told while it is locked")
        screen.type("password text", ".*", "tide-9\n")
        screen.one("heading", "My Corvels")

    def test_finds_and_reports(self):
        screen = self.screen
        self.skip_tour()
        screen.press("page tab", "Attention, 7 things")
        self.expect_readable("Attention")
        screen.one("heading", "Errors, .*")
        rows = self.rows("Now")
        self.assertTrue(any(row.startswith("helios-04, system incomplete, attention LED on, Demo Corvel") for row in rows))
        screen.press("push button", "Show")
        self.expect_readable("Show")
        screen.press("check box", "Systems, 3")
        self.assertIn("checked", screen.one("check box", "Systems, 3").states)
        screen.press("push button", "Done")
        self.assertLess(len(self.rows("Now")), len(rows))
        screen.press("push button", "Show all")

        screen.press("page tab", "Events")
        screen.one("chart", "New Events a Day, 14 days, .*")
        screen.press("list item", r".*\(#1042\).*")
        self.expect_readable("Event Details")
        screen.press("push button", "Service report")
        self.expect_readable("Service Report")
        screen.one("label", r"(?s)Serviceable event #1042\n.*helios-03.*")
        screen.press("push button", "Copy")
        screen.hears("Copied .*#1042")
        screen.gone("dialog", "Service Report")

        screen.press("page tab", "Dashboard")
        self.expect_readable("Dashboard")
        screen.one("chart", "operating 6, .*")
        screen.press("push button", "Find anywhere")
        screen.type("text", "Search", "helios-01")
        screen.press("list item", "helios-01, .*")
        self.expect_readable("helios-01")

        # A chart is read value by value.
        screen.press("page tab", "Corvels")
        for role, name in (("list item", "Demo Corvel, .*"), ("list item", "Managed Systems, .*"),
                           ("list item", "helios-01, .*"), ("menu item", "Performance Monitoring"),
                           ("push button", "Large Chart")):
            screen.press(role, name)
        screen.hears("helios-01, .* - .*")  # where nothing has the keyboard
        screen.one("chart", "Total, .*").focus()
        screen.key(HOME)
        screen.hears(r"21:44:00, total 16, allocated 11, used 4\.72")
        screen.key(RIGHT)
        screen.hears(r"(?!21:44:00).*, total 16, .*")


if __name__ == "__main__":
    if SESSION not in os.environ:
        sys.exit(in_own_session(__file__, sys.argv[1:]))
    keyring = subprocess.Popen(["gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"],
                               stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    keyring.stdin.write(b"\n")
    keyring.stdin.close()
    try:
        unittest.main(argv=[sys.argv[0], *(f"Walk.{each}" for each in sys.argv[3:])], verbosity=2, warnings="ignore")
    finally:
        keyring.terminate()
        keyring.wait()
