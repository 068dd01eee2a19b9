#!/usr/bin/env python3
"""Goes for the application's faults with a user who throws dice, and prints a table.

campaign.py MINUTES BUILD...: all build folders are gone for side by side, and each fault is tried a few times however
short the time is; without any, no time or memory is judged. Nothing acknowledged may be lost, the process may end only
where it must, and every start must come up. Exit code 1 when something else is seen.
"""

import concurrent.futures
import contextlib
import errno
import gzip
import http.server
import json
import os
import pathlib
import random
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import threading
import time

SETTINGS = pathlib.Path(__file__).resolve().parents[2] / "resources/ProjectSettings.json"
PATIENCE = 120  # Seconds for a start or an end, however slow the machine is.


class Fault(Exception):
    """What must not happen."""


class Services:
    """The remote configuration and a collector of measurements on this machine, which answer as they are told."""

    def __init__(self, answer):
        """answer(path, body): a status, headers and what follows them, whose length may be another than is said."""
        class Handler(http.server.BaseHTTPRequestHandler):
            def respond(self):
                body = self.rfile.read(int(self.headers.get("Content-Length") or 0))
                status, headers, said = answer(self.path, body)
                self.send_response(status)
                for header in headers.items():
                    self.send_header(*header)
                self.end_headers()
                self.wfile.write(said)
            do_GET = do_POST = respond

            def log_message(self, *_):
                pass

        class Server(http.server.ThreadingHTTPServer):
            def handle_error(self, *_):  # A killed process hears no answer.
                pass

        self.server = Server(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def settings(self, folder):
        """A folder with settings that name these services."""
        address = f"http://127.0.0.1:{self.server.server_port}"
        folder.mkdir(exist_ok=True)
        (folder / "ProjectSettings.json").write_text(json.dumps(json.loads(SETTINGS.read_text()) | {
            "remoteConfigEndpoint": address + "/values", "measurementEndpoint": address + "/v1/logs",
            "allowsLoopbackHttp": True, "videoHost": "video.invalid", "videoPlayer": address}))
        return folder

    def close(self):
        self.server.shutdown()
        self.server.server_close()


class Collector(Services):
    """Takes batches and acknowledges half of them; the remote configuration beside it means well."""

    def __init__(self, seed=0):
        self.dice, self.names = random.Random(seed), set()
        super().__init__(self.take)

    def take(self, path, body):
        if path.startswith("/values"):
            # Without videos: the web view says on the console what it pleases.
            texts = json.dumps({key: json.dumps(text) for key, text in (TEXTS | {"videoTutorials": {}}).items()}).encode()
            return 200, {"Content-Length": str(len(texts))}, texts
        status = self.dice.choice([200, 200, 200, 429, 503, 0])
        if status == 200:  # A batch counts as arrived only where that is said.
            for resource in json.loads(gzip.decompress(body))["resourceLogs"]:
                for scope in resource["scopeLogs"]:
                    self.names.update(map(event_name, scope["logRecords"]))
        time.sleep(self.dice.choice([0, 0, 0.2]))
        return status or 200, {"Content-Length": "2"}, b"{}" if status else b"{"


def event_name(record):
    """What an event was told by, which goes with it; None for one of the application's own."""
    values = {each["key"]: each["value"].get("stringValue") for each in record["attributes"]}
    return values.get("taviApp")


class Home:
    """A folder that is all the user has, and the processes that run in it."""

    def __init__(self, build, folder, is_long=True):
        self.build = pathlib.Path(build)
        self.folder = pathlib.Path(folder)
        self.data = self.folder / "tavi"
        self.collector = Collector()
        self.measuring = "--measure", "--settings", self.collector.settings(self.folder / "collected")
        self.measured = set()  # What is kept or has arrived.
        self.started = []  # The processes that may still run.
        # With the sanitizers, and where another test runs beside it, all takes longer and more.
        self.is_judged = is_long and self.build.name == "release"

    def environment(self, **more):
        wanted = {"PATH": os.environ["PATH"], "HOME": str(self.folder), "LANG": "C.UTF-8", "LANGUAGE": "en"}
        for name in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"):
            wanted[name] = str(self.folder)
        # The web view does not start as root with its sandbox; strstr, checked, takes minutes for a list of voices.
        wanted.update(QT_QPA_PLATFORM="offscreen", QTWEBENGINE_DISABLE_SANDBOX="1",
                      ASAN_OPTIONS="verify_asan_link_order=0:detect_leaks=0:intercept_strstr=0")
        return wanted | {name: str(value) for name, value in more.items()}

    def start(self, *arguments, **environment):
        # Two pipes could block each other, so what is complained of goes into a file.
        self.complaints = tempfile.TemporaryFile()
        process = subprocess.Popen([self.build / "bin/tavi-user", *map(str, arguments)], stdout=subprocess.PIPE,
                                   stderr=self.complaints, text=True, env=self.environment(**environment))
        process.lines = []  # What it has said so far; a kill can cut off the last line, which then was not said.
        whole = (line.rstrip() for line in process.stdout if line.endswith("\n"))
        process.reader = threading.Thread(target=lambda: process.lines.extend(whole), daemon=True)
        process.reader.start()
        self.started = [each for each in self.started if each.poll() is None] + [process]
        return process

    def is_up(self, process):
        """Waits for the first word of a start: whether it is up; otherwise it runs already."""
        end = time.monotonic() + PATIENCE
        while not process.lines and process.reader.is_alive() and time.monotonic() < end:
            time.sleep(0.01)
        if process.lines[:1] not in (["up"], ["runs already"]):
            raise Fault(f"did not come up but said {process.lines[:1]}: {self.complained()[-2000:]}")
        return process.lines[0] == "up"

    def end(self, process, code=0, patience=PATIENCE):
        """Waits until it has ended with that code; the lines that were said."""
        process.wait(patience)
        process.reader.join(PATIENCE)
        if process.returncode != code:
            raise Fault(f"ended with {process.returncode}: {self.complained()[-2000:]}")
        return process.lines

    def run(self, *arguments, patience=600 + PATIENCE, **environment):
        """Comes up and runs to the proper end; the lines that were said."""
        process = self.start(*arguments, **environment)
        if "--dump" not in arguments and not self.is_up(process):
            raise Fault("runs already though all have ended")
        return self.end(process, patience=patience)

    def close(self):
        """Ends what a fault has left."""
        for process in self.started:
            process.kill()
            process.wait()
        self.collector.close()

    def complained(self):
        self.complaints.seek(0)
        said = self.complaints.read().decode(errors="replace").splitlines()
        return "\n".join(line for line in said if not line.startswith("INPUT"))  # Of a wrong task, as told.

    def stored(self):
        """The names of the records in the store, newest first."""
        return records(self.run("--dump"))[-1]

    def contents(self):
        """The same records with all their fields."""
        return [json.loads(line.removeprefix("record ")) for line in self.run("--dump") if line.startswith("record ")]

    def store(self, name="preferences"):
        """The file of that store; absent before there is one."""
        return next(self.folder.rglob(name + ".sqlite"), None)

    def events(self):
        """The names of the events that wait to be sent. Also lets the next start send at once."""
        if not self.store("measurement"):
            return set()
        with contextlib.closing(sqlite3.connect(self.store("measurement"), isolation_level=None)) as database:
            if not database.execute("SELECT 1 FROM sqlite_master WHERE name = 'notes'").fetchone():
                return set()  # Its first start was ended before there were any.
            database.execute("DELETE FROM notes WHERE name = 'notBefore'")
            return {event_name(json.loads(record)) for (record,) in database.execute("SELECT record FROM events")}


def records(lines):
    return [line.split()[1:] for line in lines if line.startswith("records")]


def follows(new, old):
    """Whether one operation on the history, but for the deletion of all, leads from one list to the other."""
    if new == old or sorted(new) == sorted(old) or new[1:] == old or new[:len(old)] == old != []:
        return True
    missing = list(old)
    for name in new:
        if name not in missing:
            return False
        missing.remove(name)
    return len(missing) == 1


def killed(home, dice, number):
    """kill -9 at a random moment; afterwards what was told must be there, and the next start comes up. Whether the history
    changed meanwhile, as of each part that compares what it holds."""
    before = home.stored()
    began = time.monotonic()
    process = home.start("--agree", "--seed", number, *home.measuring)
    if number == 0:  # So fast is this machine.
        home.is_up(process)
        home.patience = time.monotonic() - began
    time.sleep(dice.uniform(0.2, 5) * home.patience)
    process.send_signal(signal.SIGKILL)
    lines = home.end(process, -signal.SIGKILL)
    if home.complained():
        raise Fault(f"said: {home.complained()[:500]}")
    if list(home.folder.rglob("*.unreadable*")):
        raise Fault(f"after kill {number} a store could not be read")
    afterwards = home.run("--actions", 0, *home.measuring)
    told, now = [before, *records(lines)], records(afterwards)[-1]
    # The action that was under way may be seen or not. The deletion of all was to be expected; an undo brings several
    # records back at once, or takes imported ones away.
    is_cleared = not now and lines[-1:] == ["asked to clear"]
    is_undone = now in told and (set(told[-1]) <= set(now) or now and now == told[-1][:len(now)])
    if not (follows(now, told[-1]) or is_cleared or is_undone):
        raise Fault(f"after kill {number} the store lacks {set(told[-1]) - set(now)} and has {set(now) - set(told[-1])}, or "
                    f"another order of its {len(now)} records")
    for word, *names in map(str.split, lines):
        if word == "withdrawn":
            home.measured.clear()
        elif word == "measured":
            home.measured.update(names)
    if "withdrawn" in afterwards:
        home.measured.clear()
    waiting = home.events()
    lost = home.measured - waiting - home.collector.names
    if lost:
        raise Fault(f"after kill {number} {len(lost)} events are lost: {sorted(lost)[:5]}")
    if len(waiting) > 5000:  # Before the oldest go by themselves.
        home.store("measurement").unlink()
        home.measured.clear()
    return any(each != before for each in told)


def refused(home, dice, number):
    """The disk refuses from some write on: the application goes on, and what is stored is a state that was. Where only
    measurements are refused nothing else is lost, and no event holds up the screen."""
    if number == 0:
        home.run("--agree", "--fill", 3, "--actions", 0)
    before = home.stored()
    code = dice.choice([errno.ENOSPC, errno.EIO])
    file = ["", "measurement"][number % 2]
    lines = home.run("--agree", "--seed", number, "--actions", 60, *home.measuring, REFUSE_AFTER=dice.randrange(60),
                     REFUSE_WITH=code, REFUSE_FILE=file + ".sqlite", LD_PRELOAD=home.build / "lib/libtavi_refuse.so")
    now = home.stored()
    told = [before, *records(lines)]
    if now != told[-1] if file else not any(follows(now, each) for each in told):
        raise Fault(f"after errno {code} in run {number} the store holds what never was")
    longest = next(float(line.split()[-1]) for line in lines if line.startswith("longest event"))
    if home.is_judged and longest > 2:
        raise Fault(f"an event took {longest} ms of the processor in run {number}")
    return any(each != before for each in told)


def pages_defective(store):
    with open(store, "r+b") as file:
        file.seek(4096)
        file.write(b"\xff" * 4096)


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


# What is left of the records: where the newest one has a number in the place of a text, all but that field.
def all_left(records):
    return records


def none_left(_):
    return []


def field_forgotten(records):
    return [records[0] | {"latexString": ""}, *records[1:]]


# What is done to which store, and what of the records is left where they are not all set aside.
DAMAGES = {
    "a defective page": ("preferences", pages_defective, None),
    "a newer version": ("preferences", sql("ALTER TABLE elements RENAME COLUMN value TO entry"), None),
    "another application's file": ("preferences", sql("PRAGMA application_id = 305419896"), None),
    "a folder in its place": ("preferences", folder_instead, None),
    "an empty file": ("preferences", lambda store: store.write_bytes(b""), none_left),
    "half of the file": ("preferences", lambda store: os.truncate(store, store.stat().st_size // 2), None),
    "one wrong field": ("preferences", sql(
        "UPDATE elements SET value = json_set(value, '$[0].latexString', 17.5) WHERE number = (SELECT max(number) FROM elements)"),
        field_forgotten),
    "a defective page of measurements": ("measurement", pages_defective, all_left),
    "measurements of a newer version": ("measurement", sql("ALTER TABLE events RENAME COLUMN record TO entry"), all_left),
    "another application's tables": ("measurement", sql("DROP TABLE events", "CREATE VIEW events AS SELECT 1 AS id"), all_left),
    "a folder in the measurements' place": ("measurement", folder_instead, all_left),
    "no measurements": ("measurement", lambda store: store.write_bytes(b""), all_left),
    "half of the measurements": ("measurement", lambda store: os.truncate(store, store.stat().st_size // 2), all_left),
    "notes of a wrong kind": ("measurement", sql("UPDATE notes SET value = x'ff00'"), all_left),
    "measurements with a number from nowhere": ("measurement", sql(
        "INSERT INTO events(id, record) SELECT id + 1000000000000, record FROM events"), all_left),
}


def damaged(home, dice, number):
    """A store is not what it was: the application comes up, works, and comes up again."""
    name, (which, damage, left) = list(DAMAGES.items())[number % len(DAMAGES)]
    shutil.rmtree(home.data, ignore_errors=True)
    home.run("--agree", "--seed", number, "--actions", 30, *home.measuring)
    home.run("--agree", "--fill", 5, "--actions", 0, *home.measuring)
    before = home.contents()
    store = home.store(which)
    with contextlib.closing(sqlite3.connect(store)) as database:
        database.execute("PRAGMA journal_mode = DELETE")  # All of it is in the file.
    damage(store)
    if which == "measurement":
        home.run("--actions", 0, *home.measuring)
    if left and (now := home.contents()) != left(before):
        raise Fault(f"{name}: of {before} is left {now}")
    for run in range(2):
        lines = home.run("--agree", "--seed", number + run, "--actions", 20, *home.measuring)
    if left is None and not [each for each in store.parent.iterdir() if ".unreadable" in each.name]:
        raise Fault(f"{name}: nothing was set aside")
    if which == "measurement" and damage != folder_instead and lines.count("withdrawn") == 0:
        told = {line.split()[1] for line in lines if line.startswith("measured")}
        if not told <= home.events() | home.collector.names:
            raise Fault(f"{name}: nothing is measured any more")


def taken_away(home, dice, number):
    """The folder goes while the application runs."""
    process = home.start("--agree", "--seed", number, "--actions", 1000)
    home.is_up(process)
    time.sleep(dice.uniform(0, 0.3))
    away = home.folder / f"away-{number}"
    home.data.rename(away)
    if process.poll() is not None:
        raise Fault("it ended before its folder went")
    home.end(process)
    home.run("--agree", "--actions", 5)
    shutil.rmtree(away, ignore_errors=True)


def twice(home, dice, number):
    """The second start lets the first go on and ends. Where the first cannot answer, both go on and none loses what it adds."""
    shutil.rmtree(home.data, ignore_errors=True)
    home.run("--agree", "--fill", 3, "--actions", 1)
    before = set(home.stored())
    cannot_answer = number % 2 == 1
    first = home.start("--agree", "--seed", number, "--actions", 300)
    if not home.is_up(first):
        raise Fault("the first start runs already")
    if cannot_answer:
        first.send_signal(signal.SIGSTOP)
    second = home.start("--agree", "--seed", number + 1, "--actions", 100)
    if home.is_up(second) != cannot_answer:
        raise Fault(f"the second start {'ended' if cannot_answer else 'came up'}")
    first.send_signal(signal.SIGCONT)
    told = [records(home.end(process)) for process in (first, second)]
    # What either of them has deleted may be gone.
    deleted = {name for states in told for old, new in zip(states, states[1:]) for name in set(old) - set(new)}
    added = {name for states in told if states for name in states[-1]} - before
    is_cleared = any([] in states for states in told)  # And then of what the other one has added, too.
    if (lost := added - deleted - set(home.stored())) and not is_cleared:
        raise Fault(f"{len(lost)} records of one of two processes are lost")
    return bool(added)


LANGUAGES = ["en", "de", "fr", "es", "id", "pt", "ja", "zh", "hi", "ko", "ru"]


def monkey(home, dice, number):
    """The same for a user of each language, who finds another one at the next start."""
    lines = home.run("--agree", "--quiet", "--seed", number, "--actions", 100, "--language",
                     LANGUAGES[number % len(LANGUAGES)])
    inspect(home, lines)


def inspect(home, lines):
    if home.complained():
        raise Fault(f"said: {home.complained()[:1000]}")
    untold = [line for line in lines if line.startswith("not in the vocabulary")]
    if untold:
        raise Fault(untold[0])


def long_monkey(home, actions):
    """Nothing is said, nothing ends, and memory settles."""
    lines = home.run("--agree", "--quiet", "--seed", 7, "--actions", actions, patience=actions / 20 + PATIENCE)
    inspect(home, lines)
    settled, end = next(map(int, line.split()[1:]) for line in lines if line.startswith("memory"))
    grown = (end - settled) / 1024
    # The sanitizers keep what was freed; a short run has not opened everything in its half.
    if home.is_judged and actions >= 20_000 and grown > 8:
        raise Fault(f"memory grew by {grown:.1f} MB")
    return f"{actions} actions, memory {grown:+.1f} MB over the most of the first {min(10_000, actions // 2):,}"


# What the services say when they mean well.
TEXTS = {
    "apps": {"apps": [{"appIdentifiers": ["a"], "appName": {"en": "Fractions", "de": "Brüche"}, "appURL": "a:", "appURLPro": "b:",
                       "ratingURL": "https://a.invalid", "ratingURLPro": "", "storeURL": "https://b.invalid",
                       "storeURLPro": "", "isMultiApp": True, "shouldShow": True, "calculationsUntilInterstitial": 2}] * 3},
    "ads": {"QRX": [{"imageName": "summer", "linkingString": "https://c.invalid", "discountNumber": "10"}], "e": []},
    "umpReferenceData": {"purposeConsents": "1", "purposeLegitimateInterests": "2", "vendorConsents": "3",
                         "vendorLegitimateInterests": "4", "isConsentOrPayActivated": False},
    "videoTutorials": {"QRX": {"en": ["https://video.invalid/watch?v=abcdefghijk"] * 2, "de": []}},
}
MEASURED = "measurement"
SCALARS = [None, True, False, 0, -1, 1e308, -0.5, 2**63, 17, "", "x", "\0", "http://", "javascript:alert(1)",
           "file:///etc/passwd", "ü" * 300, "https://video.invalid/watch?v=" + "a" * 20, "<b>%1 %2</b>"]
KEYS = ["en", "de", "QRX", "apps", "imageName", "partialSuccess", "rejectedLogRecords"]


def anything(dice, depth=0):
    kind = dice.randrange(6 if depth < 5 else 4)
    if kind < 4:
        return dice.choice(SCALARS)
    if kind == 4:
        return [anything(dice, depth + 1) for _ in range(dice.randrange(4))]
    return {dice.choice(KEYS): anything(dice, depth + 1) for _ in range(dice.randrange(4))}


def mutated(dice, value):
    """The value with something else at one place."""
    if not isinstance(value, (dict, list)) or not value or dice.random() < 0.15:
        return anything(dice)
    if isinstance(value, list):
        value = list(value)
        place = dice.randrange(len(value))
    else:
        value = dict(value)
        place = dice.choice(sorted(value))
        if dice.random() < 0.1:
            value[dice.choice(KEYS)] = value.pop(place)
            return value
    value[place] = mutated(dice, value[place])
    return value


def hostile_answer(dice, which):
    """One of the texts, or what the collector says, is not as it should be, or its bytes are not."""
    def answer(path, _):
        is_victim = path.startswith("/v1/logs") == (which == MEASURED)
        well_meant = {} if path.startswith("/v1/logs") else TEXTS
        texts = {key: json.dumps(mutated(dice, text) if key == which else text) for key, text in well_meant.items()}
        body = json.dumps(texts if path.startswith("/values") else mutated(dice, {"partialSuccess": {"rejectedLogRecords": 0}}))
        if dice.random() < 0.1:
            body = json.dumps(anything(dice))
        body = bytearray(body.encode(errors="surrogatepass"))
        headers, status = {"Content-Type": "application/json"}, 200
        if is_victim and dice.random() < 0.3:
            place = dice.randrange(len(body))
            body[place:place + 1] = dice.choice([b"", b"\0", b"\xff", b"}", b"[" * 5000, b"x" * 2_000_000])
        if is_victim and dice.random() < 0.3:
            status = dice.choice([204, 301, 400, 429, 500, 503])
            headers["Location"] = "http://127.0.0.1:9/"
            headers["Retry-After"] = dice.choice(["0", "-5", "1e9", "999999999999999999999", "soon"])
        if is_victim and dice.random() < 0.2:
            body = gzip.compress(body)
            headers["Content-Encoding"] = "gzip"
        headers["Content-Length"] = str(len(body) + dice.choice([0, 0, 0, 50]) * is_victim)
        return status, headers, body[: dice.choice([len(body)] * 3 + [len(body) // 2])] if is_victim else body
    return answer


def hostile(home, dice, number):
    """A service answers as an enemy would. What came is used now or from the next start on."""
    which = [*TEXTS, MEASURED][number % 5]
    services = Services(hostile_answer(random.Random(number), which))
    try:
        for run in range(2):
            home.events()
            home.run("--agree", "--measure", "--settings", services.settings(home.folder / "hostile"), "--seed",
                     number + run, "--actions", 40)
    finally:
        services.close()
    home.store("remote_config").unlink()


def long_history(home, count):
    """A history of so many records is read, opened, scrolled, searched and changed without a wait that is seen."""
    home.run("--agree", "--actions", 0)
    with contextlib.closing(sqlite3.connect(home.store())) as database, database:
        [(record,)] = database.execute("SELECT value FROM elements WHERE key = 'Calculations' LIMIT 1").fetchall()
        database.executemany("INSERT INTO elements(key, value) VALUES('Calculations', ?)", [(record,)] * (count - 1))
    waits = {}
    for _ in range(3 if home.is_judged else 1):  # The least counts, as other builds take the processor meanwhile.
        output = subprocess.run([home.build / "bin/tavi-tour", "--measure", "history"], env=home.environment(), text=True,
                                stdout=subprocess.PIPE, timeout=600 + PATIENCE, check=True).stdout
        for name, wait in (line.rsplit("=", 1) for line in output.splitlines()):
            waits[name] = min(waits.get(name, float("inf")), float(wait))
    longest = max(waits, key=waits.get)
    if home.is_judged and waits[longest] > 100:
        raise Fault(f"{longest} takes {waits[longest]:.0f} ms")
    return f"longest wait {waits[longest]:.1f} ms: {longest}"


# Each with its part of the time, and how often it is tried at least and at most.
PARTS = [
    ("killed with -9", killed, 0.35, 8, 1000),
    ("a disk that refuses", refused, 0.12, 6, 300),
    ("a damaged store", damaged, 0.12, len(DAMAGES), 8 * len(DAMAGES)),
    ("a folder taken away", taken_away, 0.04, 2, 50),
    ("two starts at once", twice, 0.08, 2, 50),
    ("hostile services", hostile, 0.12, 5, 300),
    ("a monkey, each language", monkey, 0.05, 3, 11 * 5),
]


def campaign(minutes, build):
    """All parts against one build, a line of the table each; whether nothing was found."""
    seconds = minutes * 60
    is_clean = True

    def row(name, run):
        nonlocal is_clean
        with tempfile.TemporaryDirectory() as folder:
            home = Home(build, folder, minutes > 0)
            times, outcome = [0], ""
            try:
                outcome = run(home, times) or "clean"
            except Exception as fault:  # The other parts go on, whatever it is.
                is_clean, outcome = False, f"FAULT: {fault if isinstance(fault, Fault) else repr(fault)}"
            home.close()
        print(f"{home.build.name:<10} {name:<24} {times[0]:>6}  {outcome}", flush=True)

    def again_and_again(part, dice, least, most, portion):
        def run(home, times):
            end, changes = time.monotonic() + seconds * portion, set()
            while times[0] < least or (times[0] < most and time.monotonic() < end):
                changes.add(part(home, dice, times[0]))
                times[0] += 1
            if changes == {False}:
                raise Fault("the history never changed, so that nothing was compared")
        return run

    def once(part, argument):
        def run(home, times):
            times[0] = 1
            return part(home, argument)
        return run

    for name, part, portion, least, most in PARTS:
        row(name, again_and_again(part, random.Random(name), least, most, portion))
    for count in (10_000, 100_000):
        row(f"{count:,} records", once(long_history, count))
    # Sixty actions a second are few, so that this part keeps its share of the time on a slow machine, too. An hour has
    # room for all of them.
    is_whole = minutes >= 60 and pathlib.Path(build).name == "release"
    row("a monkey", once(long_monkey, 100_000 if is_whole else max(300, min(100_000, int(seconds * 0.12 * 60)))))
    return is_clean


if __name__ == "__main__":
    minutes, builds = float(sys.argv[1]), sys.argv[2:]
    print(f"{'build':<10} {'fault':<24} {'times':>6}  outcome", flush=True)
    with concurrent.futures.ProcessPoolExecutor(len(builds)) as side_by_side:
        are_clean = list(side_by_side.map(campaign, [minutes] * len(builds), builds))
    sys.exit(0 if all(are_clean) else 1)
