# SPDX-License-Identifier: Apache-2.0
"""The program as an assistive program finds it over the bus: what stands on its screens, and what can be done there.
Nothing here looks at the window. Run it by the system's own Python, inside a session bus of its own."""

import os
import re
import subprocess
import sys
import tempfile
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

warnings.simplefilter("ignore")  # the binding calls its own names old

SESSION = "LODESTAR_READER_SESSION"
PATIENCE = 15  # seconds until something must have come

# The X server's names of keys.
HOME, RIGHT, RETURN = 0xFF50, 0xFF53, 0xFF0D


class Missing(AssertionError):
    """Something is not on the screen. Says what is there instead."""


class Node:
    """One element of a screen at the moment when it was found."""

    def __init__(self, accessible, depth):
        self.accessible, self.depth = accessible, depth
        self.role, self.name = accessible.get_role_name(), accessible.get_name() or ""
        self.states = {state.value_nick for state in accessible.get_state_set().get_states()}

    def __str__(self):
        return f"{'  ' * self.depth}{self.role} “{self.name}” {' '.join(sorted(self.states & INTERESTING))}"

    @property
    def description(self):
        return self.accessible.get_description() or ""

    @property
    def actions(self):
        actions = self.accessible.get_action_iface()
        return [actions.get_action_name(each) for each in range(actions.get_n_actions())] if actions else []

    @property
    def extents(self):
        place = self.accessible.get_extents(Atspi.CoordType.SCREEN)
        return place.x, place.y, place.width, place.height

    @property
    def text(self):
        text = self.accessible.get_text_iface()
        return text.get_text(0, -1) if text else ""

    @property
    def children(self):
        """Also those that have been scrolled out of view."""
        found = [self.accessible.get_child_at_index(each) for each in range(self.accessible.get_child_count())]
        return [Node(each, self.depth + 1) for each in found if each]

    def now(self):
        self.accessible.clear_cache()
        return Node(self.accessible, self.depth)

    def act(self, action="Press"):
        names = self.actions
        if action not in names:
            raise Missing(f"{self} offers {names}, not {action}")
        self.accessible.get_action_iface().do_action(names.index(action))

    def focus(self):
        self.act("SetFocus")


INTERESTING = {"checked", "selected", "focused", "modal", "editable", "selectable", "checkable"}
CONTROLS = {"push button", "page tab", "check box", "radio button", "slider", "menu item", "entry", "password text",
            "text"}


def in_own_session(script, arguments):
    """Runs the script anew, with a display, a home and a session bus of its own. Services that the bus starts find the
    display, too: one of them plays the keyboard."""
    end, begin = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(begin), "-screen", "0", "420x860x24", "-nolisten", "tcp"],
                              pass_fds=[begin], stderr=subprocess.DEVNULL)
    os.close(begin)
    with os.fdopen(end) as told, tempfile.TemporaryDirectory() as home:
        environment = {**os.environ, SESSION: "1", "DISPLAY": ":" + told.readline().strip(), "HOME": home,
                       "XDG_RUNTIME_DIR": home, "TZ": "UTC", "LC_ALL": "C.UTF-8", "LANGUAGE": "en",
                       "QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "software", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        try:
            return subprocess.run(["dbus-run-session", "--", sys.executable, "-B", script, *arguments],
                                  env=environment, check=False).returncode
        finally:
            server.terminate()
            server.wait()


class Screen:
    """The program, and all that a reader is told meanwhile."""

    def __init__(self, program, *arguments):
        Atspi.init()
        self.spoken = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:showing")
        self.program = subprocess.Popen([program, "--full-screen", *arguments])
        self.application = self.wait(self.find_application, "the program on the bus")

    def close(self):
        self.program.terminate()
        self.listener.deregister("object:state-changed:showing")
        return self.program.wait(PATIENCE)

    def kill(self):
        if self.program.poll() is None:
            self.program.kill()
            self.program.wait()

    def hear(self, event):
        try:
            if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
                self.spoken.append(event.source.get_name())
        except GLib.Error:
            pass  # what appeared has gone since

    def find_application(self):
        desktop = Atspi.get_desktop(0)
        found = [desktop.get_child_at_index(each) for each in range(desktop.get_child_count())]
        return next((each for each in found if each and each.get_name() == "Lodestar" and each.get_child_count()), None)

    def settle(self, seconds=0.05):
        """Lets time pass and hears what is said meanwhile."""
        end = time.monotonic() + seconds
        while True:
            while GLib.MainContext.default().iteration(False):
                pass
            if time.monotonic() >= end:
                return
            time.sleep(0.01)

    def wait(self, ready, what):
        end = time.monotonic() + PATIENCE
        while True:
            try:
                found = ready()
            except GLib.Error:  # it went while it was asked
                found = None
            if found:
                return found
            if time.monotonic() > end:
                shown = "\n".join(map(str, self.tree())) if hasattr(self, "application") else ""
                raise Missing(f"no {what} on:\n{shown}")
            self.settle(0.1)

    def tree(self):
        """All that is shown, in reading order."""
        found = []

        def collect(accessible, depth):
            for each in range(accessible.get_child_count()):
                child = accessible.get_child_at_index(each)
                if child is None:
                    continue
                node = Node(child, depth)
                if {"showing", "visible"} <= node.states:
                    found.append(node)
                    collect(child, depth + 1)

        Atspi.Accessible.clear_cache(self.application)
        collect(self.application, 0)
        return found

    def all(self, role, name=""):
        """The elements of a role whose whole name matches the pattern."""
        return [node for node in self.tree() if re.fullmatch(role, node.role) and (not name or re.fullmatch(name, node.name))]

    def one(self, role, name):
        return self.wait(lambda: next(iter(self.all(role, name)), None), f"{role} “{name}”")

    def gone(self, role, name):
        self.wait(lambda: not self.all(role, name), f"end of {role} “{name}”")

    def press(self, role, name, action="Press"):
        self.one(role, name).act(action)
        self.settle(0.4)  # what slides in or out

    def type(self, role, label, words):
        """Types into a field as a person does who hears it."""
        self.one(role, label).focus()
        self.wait(lambda: "focused" in self.one(role, label).states, f"focus in {label}")
        for letter in words:
            self.key(RETURN if letter == "\n" else ord(letter))
        self.settle(0.3)

    def key(self, symbol):
        Atspi.generate_keyboard_event(symbol, None, Atspi.KeySynthType.SYM)

    def hears(self, pattern):
        self.wait(lambda: any(re.fullmatch(pattern, each) for each in self.spoken), f"announcement of “{pattern}”")
