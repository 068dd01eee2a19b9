#!/usr/bin/env python3
"""Goes for the application's faults with a user who throws dice, and prints a table.

campaign.py MINUTES BUILD...: each build folder gets its share of the time. Nothing acknowledged may be lost, the process
may end only where it must, and every start must come up. Exit code 1 as soon as something else is seen.
"""

import errno
import gzip
import http.server
import json
import os
import pathlib
import random
import re
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time

PATIENCE = 120  # Seconds for a start or an end, however slow the machine is.


class Fault(Exception):
    """What must not happen."""


class Home:
    """A folder that is all the user has, and the processes that run in it."""

    def __init__(self, build, folder):
        self.build = pathlib.Path(build)
        self.folder = pathlib.Path(folder)
        self.data = self.folder / "tavi"
        self.lines = []

    def environment(self, **more):
        wanted = {"PATH": os.environ["PATH"], "HOME": str(self.folder), "LANG": "C.UTF-8", "LANGUAGE": "en"}
        for name in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"):
            wanted[name] = str(self.folder)
        wanted.update(QT_QPA_PLATFORM="offscreen", ASAN_OPTIONS="verify_asan_link_order=0:detect_leaks=0")
        return wanted | {name: str(value) for name, value in more.items()}

    def start(self, *arguments, **environment):
        # Two pipes could block each other, so what is complained of goes into a file.
        self.complaints = tempfile.TemporaryFile()
        return subprocess.Popen([self.build / "bin/tavi-user", *map(str, arguments)], stdout=subprocess.PIPE,
                                stderr=self.complaints, text=True, env=self.environment(**environment))

    def run(self, *arguments, **environment):
        """Runs to the proper end; the lines that were said."""
        process = self.start(*arguments, **environment)
        lines = process.communicate(timeout=600 + PATIENCE)[0].splitlines()
        if process.returncode != 0:
            raise Fault(f"ended with {process.returncode}: {self.complained()[-2000:]}")
        return lines

    def complained(self):
        self.complaints.seek(0)
        said = self.complaints.read().decode(errors="replace").splitlines()
        return "\n".join(line for line in said if not line.startswith("INPUT"))  # Of a wrong task, as told.

    def stored(self):
        """The names of the records in the store, newest first."""
        return records(self.run("--dump"))[-1]

    def store(self):
        found = list(self.folder.rglob("preferences.sqlite"))
        return found[0] if found else None


def records(lines):
    return [line.split()[1:] for line in lines if line.startswith("records")]


def follows(new, old):
    """Whether one operation on the history leads from one list to the other."""
    if new == old or not new or sorted(new) == sorted(old) or new[1:] == old:
        return True
    missing = list(old)
    for name in new:
        if name not in missing:
            return False
        missing.remove(name)
    return len(missing) == 1


def killed(home, dice, number):
    """kill -9 at a random moment; afterwards what was told must be there."""
    process = home.start("--agree", "--seed", number)
    lines = []
    reader = threading.Thread(target=lambda: lines.extend(process.stdout.read().splitlines()), daemon=True)
    reader.start()
    time.sleep(dice.uniform(0.1, 2.5))
    process.send_signal(signal.SIGKILL)
    process.wait(PATIENCE)
    reader.join(PATIENCE)
    if home.complained():
        raise Fault(f"said: {home.complained()[:500]}")
    if list(home.folder.rglob("*.unreadable*")):
        raise Fault(f"after kill {number} a store could not be read")
    told = records(lines)
    now = home.stored()
    # The action that was under way may be seen or not; an undo brings several records back at once.
    if told and not follows(now, told[-1]) and not (now in told and set(told[-1]) <= set(now)):
        raise Fault(f"after kill {number} the store holds {now}, told was {told[-1]}")


def refused(home, dice, number):
    """The disk refuses from some write on: the application goes on, and what is stored is a state that was."""
    before = home.stored()
    code = dice.choice([errno.ENOSPC, errno.EIO])
    lines = home.run("--agree", "--seed", number, "--actions", 60, REFUSE_AFTER=dice.randrange(60), REFUSE_WITH=code,
                     LD_PRELOAD=home.build / "lib/libtavi_refuse.so")
    now = home.stored()
    if not any(follows(now, each) for each in [before, *records(lines)]):
        raise Fault(f"after errno {code} in run {number} the store holds what never was")


def pages_defective(store):
    with open(store, "r+b") as file:
        file.seek(4096)
        file.write(b"\xff" * 4096)


def column_renamed(store):
    with sqlite3.connect(store) as database:
        table, column = element_column(database)
        database.execute(f"ALTER TABLE {table} RENAME COLUMN {column} TO {column}_2")
    database.close()


def sql(*statements):
    def run(store):
        with sqlite3.connect(store) as database:
            for statement in statements:
                database.execute(statement)
        database.close()
    return run


def folder_instead(store):
    for each in store.parent.glob(store.name + "*"):
        each.unlink()
    store.mkdir()


def field_wrong(store):
    """One field of the newest record gets a number where a text was."""
    with sqlite3.connect(store) as database:
        table, column = element_column(database)
        row, text = database.execute(f"SELECT rowid, {column} FROM {table} LIMIT 1").fetchone()
        text = text if isinstance(text, str) else text.decode()
        changed = re.sub(r'("latexString"\s*:\s*)"(?:[^"\\]|\\.)*"', r"\g<1>17.5", text)
        database.execute(f"UPDATE {table} SET {column} = ? WHERE rowid = ?", (changed, row))
    database.close()


def element_column(database):
    for (table,) in database.execute("SELECT name FROM sqlite_master WHERE type = 'table'").fetchall():
        for column in [row[1] for row in database.execute(f"PRAGMA table_info({table})")]:
            for (value,) in database.execute(f"SELECT {column} FROM {table}").fetchall():
                value = value.decode(errors="replace") if isinstance(value, bytes) else value
                if isinstance(value, str) and '"latexString"' in value:
                    return table, column
    raise Fault("no record is found in the store")


DAMAGES = {
    "a defective page": (pages_defective, None),
    "a newer version": (column_renamed, None),
    "another application's file": (sql("PRAGMA application_id = 305419896"), None),
    "a folder in its place": (folder_instead, None),
    "an empty file": (lambda store: store.write_bytes(b""), None),
    "half of the file": (lambda store: os.truncate(store, store.stat().st_size // 2), None),
    "one wrong field": (field_wrong, 5),
}


def damaged(home, dice, number):
    """The store is not what it was: the application comes up, works, and comes up again."""
    name, (damage, kept) = list(DAMAGES.items())[number % len(DAMAGES)]
    shutil.rmtree(home.data, ignore_errors=True)
    home.run("--agree", "--fill", 5, "--actions", 1)
    store = home.store()
    for log in store.parent.glob(store.name + "-*"):
        log.unlink()
    damage(store)
    if kept and len(home.stored()) < kept:
        raise Fault(f"{name}: of {kept} records {len(home.stored())} are left")
    for run in range(2):
        lines = home.run("--agree", "--seed", number + run, "--actions", 20)
        if "up" not in lines:
            raise Fault(f"{name}: did not come up")
    if not kept and not [each for each in store.parent.iterdir() if ".unreadable" in each.name] and name != "an empty file":
        raise Fault(f"{name}: nothing was set aside")


def taken_away(home, dice, number):
    """The folder goes while the application runs."""
    process = home.start("--agree", "--seed", number, "--actions", 200)
    while process.stdout.readline().strip() not in ("up", ""):
        pass
    time.sleep(dice.uniform(0, 0.3))
    away = home.folder / f"away-{number}"
    try:
        home.data.rename(away)
    except FileNotFoundError:
        pass
    process.communicate(timeout=PATIENCE)
    if process.returncode != 0:
        raise Fault(f"ended with {process.returncode}: {home.complained()[-2000:]}")
    if "up" not in home.run("--agree", "--actions", 5):
        raise Fault("did not come up without its folder")
    shutil.rmtree(away, ignore_errors=True)


def up(process):
    """Waits for the first word of a start: whether it is up; otherwise it runs already."""
    line = process.stdout.readline().strip()
    if line not in ("up", "runs already"):
        raise Fault(f"a start began with {line!r}")
    return line == "up"


def twice(home, dice, number):
    """The second start lets the first go on and ends. Where the first cannot answer, both go on and none loses what it adds."""
    shutil.rmtree(home.data, ignore_errors=True)
    home.run("--agree", "--fill", 3, "--actions", 1)
    before = set(home.stored())
    cannot_answer = number % 2 == 1
    first = home.start("--agree", "--seed", number, "--actions", 300)
    try:
        if not up(first):
            raise Fault("the first start runs already")
        if cannot_answer:
            first.send_signal(signal.SIGSTOP)
        second = home.start("--agree", "--seed", number + 1, "--actions", 100)
        if up(second) != cannot_answer:
            raise Fault(f"the second start {'ended' if cannot_answer else 'came up'}")
        if cannot_answer:
            first.send_signal(signal.SIGCONT)
        said = [process.communicate(timeout=PATIENCE)[0].splitlines() for process in (first, second)]
    finally:
        first.kill()
    if second.returncode or first.returncode:
        raise Fault(f"ended with {first.returncode} and {second.returncode}: {home.complained()[-2000:]}")
    stored = set(home.stored())
    for lines in said:
        added = set((records(lines) or [[]])[-1]) - before
        if not added <= stored:
            raise Fault(f"{len(added - stored)} records of one of two processes are lost")


def monkey(home, dice, number, actions):
    """Nothing is said, nothing ends, and memory settles."""
    shutil.rmtree(home.data, ignore_errors=True)
    lines = home.run("--agree", "--quiet", "--seed", 7, "--actions", actions)
    if home.complained():
        raise Fault(f"said: {home.complained()[:1000]}")
    untold = [line for line in lines if line.startswith("not in the vocabulary")]
    if untold:
        raise Fault(untold[0])
    settled, end = next(map(int, line.split()[1:]) for line in lines if line.startswith("memory"))
    grown = (end - settled) / 1024
    # The sanitizers keep what was freed; a short run has not opened everything in its first tenth.
    if home.build.name == "release" and actions >= 10_000 and grown > 8:
        raise Fault(f"memory grew by {grown:.1f} MB")
    return f"{actions} actions, memory {grown:+.1f} MB after the first tenth"


class Service(http.server.BaseHTTPRequestHandler):
    """Plays the remote configuration and the collector, both as enemies would."""

    dice = random.Random(0)

    def answer(self):
        length = int(self.headers.get("Content-Length") or 0)
        self.rfile.read(length)
        body = self.hostile().encode(errors="surrogatepass")
        self.send_response(self.dice.choice([200, 200, 200, 200, 400, 429, 500, 503]))
        self.send_header("Content-Type", "application/json")
        if self.dice.random() < 0.2:
            self.send_header("Retry-After", self.dice.choice(["0", "-5", "1e9", "999999999999999999999", "soon"]))
        if self.dice.random() < 0.2:
            body = gzip.compress(body)
            self.send_header("Content-Encoding", "gzip")
        self.send_header("Content-Length", str(len(body) + self.dice.choice([0, 0, 0, 50])))
        self.end_headers()
        self.wfile.write(body[: self.dice.choice([len(body), len(body) // 2])])

    do_GET = do_POST = answer

    def hostile(self):
        def anything(depth=0):
            kind = self.dice.randrange(9 if depth < 5 else 6)
            if kind == 0:
                return self.dice.choice([None, True, False])
            if kind == 1:
                return self.dice.choice([0, -1, 1e308, -0.5, 2**63, 17])
            if kind < 6:
                return self.dice.choice(["", "x", "\u0000", "http://", "javascript:alert(1)", "file:///etc/passwd", "ü" * 300,
                                         "https://www.youtube.com/watch?v=" + "a" * self.dice.randrange(20), "<b>%1 %2</b>"])
            if kind == 6:
                return [anything(depth + 1) for _ in range(self.dice.randrange(4))]
            return {self.dice.choice(KEYS): anything(depth + 1) for _ in range(self.dice.randrange(6))}
        texts = {key: self.dice.choice([json.dumps(anything()), json.dumps([anything(), anything()]), anything()])
                 for key in ("videoTutorials", "ads", "appsMetaData", "umpReferenceData")}
        text = json.dumps(texts)
        if self.dice.random() < 0.3:
            cut = self.dice.randrange(len(text))
            text = text[:cut] + self.dice.choice(["", "\x00", "\ud800", "}", "[" * 5000]) + text[cut + 1:]
        return text

    def log_message(self, *_):
        pass


KEYS = ["appIdentifiers", "appName", "appURL", "appURLPro", "ratingURL", "ratingURLPro", "storeURL", "storeURLPro",
        "shouldShow", "calculationsUntilInterstitial", "isMultiApp", "en", "de", "title", "url", "videos", "imageName",
        "linkingString", "rowTitle"]


def hostile(home, dice, number):
    """Every service answers as an enemy would."""
    Service.dice = random.Random(number)
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Service)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    address = f"http://127.0.0.1:{server.server_port}"
    settings = home.folder / "settings"
    settings.mkdir(exist_ok=True)
    (settings / "ProjectSettings.json").write_text(json.dumps({
        "remoteConfigEndpoint": address + "/values", "measurementEndpoint": address + "/v1/logs",
        "allowsLoopbackHttp": True, "videoHost": "www.youtube.com", "videoPlayer": address}))
    try:
        for file in home.folder.rglob("*.sqlite*"):
            if "remote" in file.name:
                file.unlink()
        lines = home.run("--agree", "--settings", settings, "--seed", number, "--actions", 60)
    finally:
        server.shutdown()
        server.server_close()
    if "up" not in lines:
        raise Fault(f"did not come up over the answers of seed {number}")


def campaign(minutes, builds):
    share = minutes * 60 / len(builds)
    parts = [("killed with -9", killed, 0.3, 1000), ("a disk that refuses", refused, 0.15, 300),
             ("a damaged store", damaged, 0.15, 70), ("a folder taken away", taken_away, 0.05, 50),
             ("two starts at once", twice, 0.08, 50), ("hostile services", hostile, 0.12, 300)]
    is_clean = True
    print(f"{'build':<10} {'fault':<22} {'times':>6}  outcome", flush=True)

    def row(build, name, times, outcome):
        print(f"{pathlib.Path(build).name:<10} {name:<22} {times:>6}  {outcome}", flush=True)

    for build in builds:
        for name, part, portion, limit in parts:
            dice = random.Random(name)
            with tempfile.TemporaryDirectory() as folder:
                home, end, times, outcome = Home(build, folder), time.monotonic() + share * portion, 0, "clean"
                try:
                    while times < limit and (times < 2 or time.monotonic() < end):
                        part(home, dice, times)
                        times += 1
                except (Fault, subprocess.TimeoutExpired) as fault:
                    is_clean, outcome = False, f"FAULT: {fault}"
                row(build, name, times, outcome)
        # Sixty actions a second are few, so that this part keeps its share of the time on a slow machine, too.
        actions = max(200, min(100_000, int(share * 0.15 * 60)))
        with tempfile.TemporaryDirectory() as folder:
            try:
                row(build, "a monkey", 1, monkey(Home(build, folder), random.Random(7), 0, actions))
            except (Fault, subprocess.TimeoutExpired) as fault:
                is_clean = False
                row(build, "a monkey", 1, f"FAULT: {fault}")
    return is_clean


if __name__ == "__main__":
    sys.exit(0 if campaign(float(sys.argv[1]), sys.argv[2:]) else 1)
