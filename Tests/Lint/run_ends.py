#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""./run, told to end or killed, leaves neither the program nor the simulated consoles behind. Both are stood in for by
programs that only wait, and the build by nothing: what is tried is the script."""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

source = pathlib.Path(sys.argv[1])


def write_program(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text("#!/bin/bash\n" + text)
    path.chmod(0o755)


def living(folder):
    """The programs that wait in the folder: their ids stand there in files."""
    ids = [int(path.read_text()) for path in folder.glob("*.pid")]
    return [pid for pid in ids if pathlib.Path(f"/proc/{pid}").exists()]


def wait_until(holds, seconds=20):
    end = time.monotonic() + seconds
    while not holds() and time.monotonic() < end:
        time.sleep(0.05)
    return holds()


def what_is_left_after(number):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        shutil.copytree(source / "Scripts", folder / "Scripts")
        (folder / "Packaging").mkdir()
        (folder / "Packaging/debian-packages.txt").write_text("bash\n")
        shutil.copy(source / "run", folder / "run")
        write_program(folder / "stub/cmake", "")
        waits = f"echo $$ >{folder}/$(basename $0).pid; echo ready; exec sleep 600"
        write_program(folder / "build/release/bin/lodestar", waits)
        write_program(folder / "build/release/bin/lodestar-simulator", waits)
        environment = {**os.environ, "PATH": f"{folder}/stub:{os.environ['PATH']}", "QT_QPA_PLATFORM": "offscreen"}
        script = subprocess.Popen([folder / "run", "--simulator", "1"], env=environment, start_new_session=True,
                                  stdout=subprocess.DEVNULL)
        if not wait_until(lambda: len(living(folder)) == 2):
            sys.exit("program and simulator did not start")
        script.send_signal(number)
        wait_until(lambda: script.poll() is not None and not living(folder))
        left = living(folder)
        for pid in left:
            os.kill(pid, signal.SIGKILL)
        return ["./run goes on"] if script.poll() is None else [f"process {pid} is left" for pid in left]


faults = [f"{number.name}: {fault}" for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGKILL)
          for fault in what_is_left_after(number)]
print("\n".join(faults))
sys.exit(1 if faults else 0)
