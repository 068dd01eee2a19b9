#!/usr/bin/env python3
"""How fast the whole is: each figure beside the most it may be.

Usage: bench/whole.py FOLDER [--runs N] [ROWS...]

FOLDER holds tavi and tavi-tour. ROWS are words of the rows that are wanted, such as "start" or "key"; all without one.
Starts are measured from outside, on a display of its own, in turn with KCalc's (see start.py); the rest inside, by
tavi-tour on Qt's offscreen platform. Figures are medians. The processor time of frames and of rest stays the same on a
busy machine, the others need a quiet one.
"""
import argparse
import os
import shutil
import sqlite3
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

from start import Display, answer_first_start, start

SIZES = {"1": 1, "10,000": 10_000, "100,000": 100_000}


class Machine:
    """The programs, a home for each size of history, and what was measured already."""

    def __init__(self, programs, runs, folder):
        self.tavi, self.tour, self.runs, self.figures = str(programs / "tavi"), str(programs / "tavi-tour"), runs, {}
        self.homes = {size: Path(folder) / str(count) for size, count in SIZES.items()}
        self.display = Display()
        for size, home in self.homes.items():
            home.mkdir()
            start(self.display, self.tavi, home)
            self.fill(home, SIZES[size])

    @staticmethod
    def fill(home, count):
        """A home as on a day after the first, whose history has so many records."""
        answer_first_start(home)
        store = sqlite3.connect(home / ".local/share/tavi/preferences.sqlite")
        [(record,)] = store.execute("SELECT value FROM elements WHERE key = 'Calculations'")
        store.executemany("INSERT INTO elements(key, value) VALUES('Calculations', ?)", [(record,)] * (count - 1))
        store.commit()
        store.close()

    def starts(self, programs):
        """Medians of (milliseconds, MB, seconds, peak MB) of each start of (program, home), run in turn."""
        for each in programs:  # fills the caches
            start(self.display, *each)
        runs = [[start(self.display, *each) for each in programs] for _ in range(self.runs)]
        return [[statistics.median(column) for column in zip(*rows)] for rows in zip(*runs)]

    def once(self, name, measure):
        if name not in self.figures:
            self.figures[name] = measure()
        return self.figures[name]

    def start(self, figure):
        """How a start stands to KCalc's."""
        kcalc = shutil.which("kcalc") or sys.exit("no kcalc to compare with")
        home = self.homes["1"]
        ours, theirs = self.once("start", lambda: self.starts([(self.tavi, home), (kcalc, home)]))
        return ours[figure] / theirs[figure]

    def full(self, size):
        medians = self.once("full", lambda: self.starts([(self.tavi, home) for home in self.homes.values()]))
        return medians[list(SIZES).index(size)]

    def slowdown(self, size):
        return self.full(size)[0] / self.full("1")[0]

    def peak(self, size):
        return self.full(size)[3]

    def inside(self, part, name, size="1", scale="1", runs=None):
        return self.once((part, size, scale), lambda: self.tours(part, self.homes[size], scale, runs or self.runs))[name]

    def tours(self, part, home, scale, runs):
        data = home / ".local/share"
        environment = dict(os.environ, HOME=str(home), XDG_DATA_HOME=str(data), XDG_CONFIG_HOME=str(data),
                           XDG_RUNTIME_DIR=str(data), QT_QPA_PLATFORM="offscreen", QT_SCALE_FACTOR=scale,
                           LANGUAGE="en", QT_LOGGING_RULES="*.info=false")
        figures = {}
        for _ in range(runs):
            output = subprocess.run([self.tour, "--measure", part], env=environment, check=True, text=True,
                                    stdout=subprocess.PIPE).stdout
            for name, value in (line.rsplit("=", 1) for line in output.splitlines()):
                figures.setdefault(name, []).append(float(value))
        return {name: statistics.median(values) for name, values in figures.items()}


def rows():
    """What it is, the most it may be, its unit and how it is measured."""
    yield "start: exec to mapped window / KCalc's", 0.70, "", lambda m: m.start(0)
    yield "start: resident memory / KCalc's", 0.60, "", lambda m: m.start(1)
    yield "start: processor time / KCalc's", 0.90, "", lambda m: m.start(2)
    yield "start with 10,000 records / with one", 1.15, "", lambda m: m.slowdown("10,000")
    yield "start with 100,000 records / with one", 2, "", lambda m: m.slowdown("100,000")
    yield "peak memory of a start with 10,000 records", 75, "MB", lambda m: m.peak("10,000")
    yield "peak memory of a start with 100,000 records", 150, "MB", lambda m: m.peak("100,000")
    for size, most in (("1", 12), ("10,000", 16), ("100,000", 16)):
        yield f"tap to the solution's frame, {size}", most, "ms", lambda m, size=size: m.inside("use", "solution", size)
    yield "key to the field's frame", 8, "ms", lambda m: m.inside("use", "key")
    yield "key to the field's frame, slowest 5 %", 8, "ms", lambda m: m.inside("use", "slow key")
    yield "rest of 60 s, caret blinking", 0.3, "s", lambda m: m.inside("rest", "rest", runs=1)
    for name in ("drawer opens", "drawer closes", "tabs", "history scrolls"):
        yield (f"longest frame at 1280x800, 2x: {name}", 16, "ms",
               lambda m, name=name: m.inside("frames", name, "10,000", "2"))
    yield "share 300 rows: longest without events", 16, "ms", lambda m: m.inside("sharing", "300 rows block")
    yield "share 10,000 factors: longest without events", 50, "ms", lambda m: m.inside("sharing", "10,000 factors block")
    yield "adding to a history of 10,000", 5, "ms", lambda m: m.inside("use", "adding", "10,000")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=Path)
    parser.add_argument("rows", nargs="*")
    parser.add_argument("--runs", type=int, default=5)
    arguments = parser.parse_intermixed_args()
    wanted = [row for row in rows() if not arguments.rows or any(word in row[0] for word in arguments.rows)]
    with tempfile.TemporaryDirectory() as folder:
        machine = Machine(arguments.folder, arguments.runs, folder)
        try:
            print(f"{'':50} {'at most':>8} {'measured':>9}")
            for name, most, unit, measure in wanted:
                value = measure(machine)
                print(f"{name:50} {most:>8} {value:>9.2f} {unit:3}{'' if value <= most else ' missed'}", flush=True)
        finally:
            machine.display.close()


main()
