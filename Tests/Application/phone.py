#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""phone.py BUILD ROOT FOLDER: the packaged program for arm64, installed in the system at ROOT and run on an emulated
processor, beside the program of the build folder for this machine. Each opens with two simulated consoles, reads them
when F5 is pressed, and draws the list of consoles: both must draw nearly the same. The pictures go to FOLDER. ./test
--phone calls it as root, in mounts of its own."""

import pathlib
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time
import zlib

PATIENCE = 180  # seconds; the emulated program takes some twenty times as long as a phone's
SLEEP = 20
SIZE = (390, 844)


class Display:
    """A screen whose picture lies in a file."""

    def __init__(self, folder):
        self.picture = folder / "Xvfb_screen0"
        self.server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", f"{SIZE[0]}x{SIZE[1]}x24", "-fbdir",
                                        folder, "-nolisten", "tcp"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                       text=True)
        self.name = ":" + self.server.stdout.readline().strip()

    def rows(self):
        """The rows of the picture, four bytes a pixel: blue, green, red, unused."""
        data = self.picture.read_bytes()
        header = struct.unpack(">25I", data[:100])
        start, stride = header[0] + 12 * header[19], header[12]
        return [data[start + y * stride:start + y * stride + 4 * SIZE[0]] for y in range(SIZE[1])]

    def press(self, key):
        subprocess.run(["xdotool", "key", key], env={"DISPLAY": self.name, "PATH": "/usr/bin"}, check=True)

    def wait_until_still(self, seconds=3):
        """Waits until the picture has not changed for so long, and is not of one colour."""
        end, since, before = time.monotonic() + PATIENCE, time.monotonic(), None
        while time.monotonic() < end:
            now = self.rows()
            if now != before:
                before, since = now, time.monotonic()
            elif time.monotonic() - since > seconds and len(set(b"".join(now)[::4])) > 10:
                return now
            time.sleep(0.3)
        sys.exit("the picture does not come to rest")


class Consoles:
    def __init__(self, build):
        self.program = subprocess.Popen([build / "bin/lodestar-simulator", "--consoles", "2", "--control"],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.lines = []
        for line in self.program.stdout:
            if line.startswith("ready"):
                break
            if line.startswith("console "):
                self.lines.append(line.split(maxsplit=2)[2].strip())

    def requests(self):
        """What was asked since the last call."""
        found = self.ask("requests")
        self.ask("clear-requests")
        return found

    def ask(self, command):
        self.program.stdin.write(command + "\n")
        self.program.stdin.flush()
        answer = []
        for line in self.program.stdout:
            if line.startswith(("ok", "error")):
                return answer
            answer.append(line)
        sys.exit("the simulated consoles have ended")


def write_png(path, rows):
    raw = b"".join(b"\0" + b"".join(row[x + 2:x + 3] + row[x + 1:x + 2] + row[x:x + 1] for x in range(0, len(row), 4))
                   for row in rows)

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">2I5B", *SIZE, 8, 2, 0, 0, 0)) +
                     chunk(b"IDAT", zlib.compress(raw)) + chunk(b"IEND", b""))


def different_share(one, other):
    """The share of the pixels that differ by more than a shade."""
    count = 0
    for row, beside in zip(one, other):
        if row != beside:
            count += sum(max(abs(row[x + c] - beside[x + c]) for c in range(3)) > 24 for x in range(0, len(row), 4))
    return count / (SIZE[0] * SIZE[1])


def of_both(asked):
    """Whether the last feed of both consoles was asked for."""
    return sum("ServiceableEvent" in line for line in asked) >= 2


def refreshed(display, consoles):
    """Refreshes and returns what was asked of the consoles."""
    consoles.requests()
    display.press("F5")
    end = time.monotonic() + PATIENCE
    asked = []
    while time.monotonic() < end and not of_both(asked):
        time.sleep(0.5)
        asked += consoles.requests()
    return asked


def drawn_by(program, folder, seen_as, display, consoles):
    """Starts the program on the data folder and refreshes, also after a sleep. Returns the picture of the list, and
    whether both consoles were read both times."""
    begun = time.monotonic()
    process = subprocess.Popen([*program, "--full-screen", "--data", seen_as])
    try:
        display.wait_until_still()
        shown = time.monotonic() - begun
        asked = refreshed(display, consoles)
        picture = display.wait_until_still()
        # A phone that sleeps: everything stands still, and goes on.
        process.send_signal(signal.SIGSTOP)
        time.sleep(SLEEP)
        process.send_signal(signal.SIGCONT)
        again = refreshed(display, consoles)
        process.terminate()
        if process.wait(PATIENCE) != 0:
            sys.exit(f"{program[-1]} ended with {process.returncode}")
    finally:
        process.kill()
    log = (folder / "Logs/lodestar.log").read_text()
    print(f"  first picture at rest after {shown:.0f} s, {len(asked)} and {len(again)} requests, "
          f"{log.count(chr(10))} lines of log")
    return picture, all(of_both(each) for each in (asked, again))


def main(build, root, folder):
    build, root, folder = (pathlib.Path(name).resolve() for name in (build, root, folder))
    consoles = Consoles(build)
    with tempfile.TemporaryDirectory() as scratch:
        display = Display(pathlib.Path(scratch))
        inside = root / "lodestar-phone"
        shutil.rmtree(inside, ignore_errors=True)
        environment = [f"DISPLAY={display.name}", "QT_QUICK_BACKEND=software", "QT_QPA_PLATFORM=xcb", "LC_ALL=C.UTF-8",
                       "TZ=UTC", "HOME=/tmp", "XDG_RUNTIME_DIR=/tmp", "PATH=/usr/bin:/bin",
                       "DBUS_SESSION_BUS_ADDRESS=disabled:"]
        own = pathlib.Path(scratch) / "data"
        pictures, failed = {}, []
        try:
            for name, program, data, seen_as in (
                    ("this machine", ["env", "-i", *environment, build / "bin/lodestar"], own, own),
                    ("arm64", ["chroot", root, "env", "-i", *environment, "qemu-aarch64", "/usr/bin/lodestar"],
                     inside / "data", "/lodestar-phone/data")):
                print(name, flush=True)
                subprocess.run([build / "bin/lodestar-enrol", data], input="\n".join(consoles.lines) + "\n", text=True,
                               check=True, stdout=subprocess.DEVNULL)
                pictures[name], read = drawn_by(program, data, seen_as, display, consoles)
                write_png(folder / f"{name.replace(' ', '-')}.png", pictures[name])
                if not read:
                    failed.append(f"{name}: two consoles were to be read, before a sleep and after it")
        finally:
            display.server.terminate()
            consoles.program.stdin.close()
            consoles.program.wait(20)
            shutil.rmtree(inside, ignore_errors=True)
    share = different_share(*pictures.values())
    print(f"the pictures differ in {share:.2%} of their pixels; they lie in {folder}")
    if share > 0.02:
        failed.append("what the emulated program drew is not what this machine's drew")
    print("\n".join(failed) or "1 passed, 0 failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
