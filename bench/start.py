#!/usr/bin/env python3
"""What a start costs, measured from outside on a display of its own.

Usage: bench/start.py PROGRAM [PROGRAM...] [--runs N]

The first program is ours. For each, run in turn, on a day after the first: milliseconds from exec to the first mapped
window, and a second after that its resident memory in MB and the processor time so far in seconds. Printed are medians
and, behind the first program, how they stand to the others'. A program may be several words, such as
"env QT_QUICK_BACKEND=software tavi".
"""
import argparse
import ctypes
import os
import select
import shlex
import shutil
import sqlite3
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

MAP_NOTIFY = 19
SUBSTRUCTURE_NOTIFY_MASK = 1 << 19


class Display:
    """An Xvfb without anyone else on it, told of each window that is mapped."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        self.name = ":" + os.read(read, 16).decode().strip()
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.connection = ctypes.c_void_p(self.x.XOpenDisplay(self.name.encode()))
        root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.connection))
        self.x.XSelectInput(self.connection, root, ctypes.c_long(SUBSTRUCTURE_NOTIFY_MASK))
        self.x.XSync(self.connection, 0)

    def forget(self):
        self.x.XSync(self.connection, 1)

    def wait_for_window(self, seconds):
        event = ctypes.create_string_buffer(192)
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            while self.x.XPending(self.connection):
                self.x.XNextEvent(self.connection, event)
                if ctypes.c_int.from_buffer(event).value == MAP_NOTIFY:
                    return
            select.select([self.x.XConnectionNumber(self.connection)], [], [], end - time.monotonic())
        sys.exit("no window came")

    def close(self):
        self.x.XCloseDisplay(self.connection)
        self.server.terminate()
        self.server.wait()


def used(process):
    """Resident MB, processor seconds and the most MB of a process."""
    with open(f"/proc/{process.pid}/status") as file:
        status = dict(line.split(":", 1) for line in file)
    resident, peak = (int(status[name].split()[0]) / 1024 for name in ("VmRSS", "VmHWM"))
    nanoseconds = 0
    for thread in Path(f"/proc/{process.pid}/task").iterdir():
        nanoseconds += int((thread / "schedstat").read_text().split()[0])
    return resident, nanoseconds / 1e9, peak


def start(display, program, home):
    """Milliseconds to the window and, a second later, resident MB, processor seconds and the most MB."""
    display.forget()
    environment = dict(os.environ, DISPLAY=display.name, HOME=str(home), QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8")
    for name in ("WAYLAND_DISPLAY", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"):
        environment.pop(name, None)
    begin = time.monotonic()
    process = subprocess.Popen(shlex.split(program), env=environment,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        display.wait_for_window(20)
        mapped = (time.monotonic() - begin) * 1000
        time.sleep(1)
        return (mapped, *used(process))
    finally:
        process.kill()
        process.wait()


def answer_first_start(home):
    """Everything that a first start of ours asks is answered, as it is on any other day."""
    store = sqlite3.connect(home / ".local/share/tavi/preferences.sqlite")
    answers = {"isOnboardingFinished": "[true]", "isDsgvoAccepted": "[true]", "counterForRating": "[100000]"}
    store.executemany("INSERT OR REPLACE INTO preferences VALUES(?, ?)", answers.items())
    store.commit()
    store.close()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("programs", nargs="+")
    parser.add_argument("--runs", type=int, default=10)
    arguments = parser.parse_args()
    if not shutil.which("Xvfb"):
        sys.exit("no Xvfb; ./dev bench start installs it")
    display = Display()
    try:
        with tempfile.TemporaryDirectory() as home:
            for program in arguments.programs:  # fills the caches
                start(display, program, home)
            answer_first_start(Path(home))
            runs = {program: [] for program in arguments.programs}
            for _ in range(arguments.runs):
                for program in arguments.programs:
                    runs[program].append(start(display, program, home))
    finally:
        display.close()
    medians = {program: [statistics.median(column) for column in zip(*rows)] for program, rows in runs.items()}
    first = medians[arguments.programs[0]]
    for program, (mapped, memory, seconds, _) in medians.items():
        ratios = ", ".join(f"{a / b:.2f}" for a, b in zip(first, (mapped, memory, seconds)) if b)
        print(f"{mapped:6.0f} ms {memory:6.0f} MB {seconds:6.2f} s  (first to this: {ratios})  {program}")


if __name__ == "__main__":
    main()
