"""Hard use of everything for as long as is wanted: the fuzzers beside all the rest. See hard.sh.

Every subject gets the same share of the time that is left and is repeated, each time with other random numbers, until its
share is over; once it is done in any case. What is found ends its subject, not the run.
"""

import argparse
import contextlib
import datetime
import http.client
import json
import os
import pathlib
import random
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
KEY = "Camera fov"
# What saves can meet: input and output, a full disk, a quota, a disk that is read-only, rights; and a kill, which is 0.
ERRORS = [0, 5, 28, 122, 30, 13]
SUBJECTS = (("random_operations", "operations"), ("loads_and_unloads", "cycles"), ("two_hosts_and_the_tool", "minutes"),
            ("damage_kills_and_full_disks", "rounds"), ("faults_at_each_call_of_a_save", "calls"),
            ("two_viewers_the_tool_and_an_attack_on_the_web_server", "connections"))


class Finding(Exception):
    """What went wrong, in words."""


class HardUse:
    def __init__(self, programs, folder, seed):
        self.programs, self.folder = programs, folder
        self.random = random.Random(seed)
        self.store = folder / "store" / "preferences.db"
        self.environment = {**os.environ, "HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config"),
                            "XDG_RUNTIME_DIR": str(folder), "TMPDIR": str(folder)}

    def run(self, program, *arguments, allowed=(0,), **more):
        """Runs a program to its end, which must be one that is allowed. A run without an end is stopped by an exception."""
        command = [str(self.programs / program), *map(str, arguments)]
        done = subprocess.run(command, env={**self.environment, **more}, capture_output=True, timeout=3600,
                              encoding="utf-8", errors="replace", check=False)
        if done.returncode not in allowed or re.search("Sanitizer|runtime error", done.stderr):
            raise Finding(f"{' '.join(command)} ended with {done.returncode} {more}\n{done.stdout}{done.stderr}")
        return done

    def tool(self, *arguments, **options):
        return self.run("orlo-prefs", "--yes", "--store", self.store, *arguments, **options)

    def test(self, program, tests, **environment):
        self.run(program, f"--gtest_filter={tests}", QT_QPA_PLATFORM="offscreen", **environment)
        return 1

    # One round of each subject, with the number of what it did.

    def fuzz(self, reader, seconds):
        fuzzed = self.run(ROOT / "fuzz.sh", "--seconds", seconds, reader)
        return int(re.search(r"executed_units:\s*(\d+)", fuzzed.stdout)[1])

    def random_operations(self):
        self.run("model-tests", "--seed", self.random.randrange(2**31), "--operations", 2000)
        return 2000

    def loads_and_unloads(self):
        return 100 * self.test("plugins-tests", "LoadCycles.*")

    def two_hosts_and_the_tool(self):
        """All end with the same values, and nothing is lost."""
        return self.test("plugins-tests", "TwoHosts.*", ORLO_TEST_SECONDS="60")

    def damage_kills_and_full_disks(self):
        return self.test("host-tests", "Store*:Following.*")

    def faults_at_each_call_of_a_save(self):
        """The store holds the old value or the new one, and what is said to be saved is."""
        self.tool("set", KEY, 50)
        self.tool("profile", "save", "all")
        count = self.folder / "count"
        shim = {"LD_PRELOAD": str(self.programs / "failing_calls.so"), "FAILING_FOLDER": str(self.store.parent),
                "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0:detect_leaks=0"}
        old, tried, error = 50, 0, self.random.choice(ERRORS)
        for command, check in ((["set", KEY], ["check"]),
                               (["profile", "save", "all"], ["profile", "apply", "all", "--dry-run"])):
            call, calls = 0, 1
            while call <= calls:
                new = old % 90 + 10 if command[0] == "set" else old
                failing = {"FAILING_CALL": str(call), "FAILING_ERROR": str(error)} if call else {}
                status = self.tool(*command, *[new][:command[0] == "set"], allowed=(0, 2) if error else (0, -9),
                                   FAILING_COUNT=str(count), **shim, **failing).returncode
                now = json.loads(self.tool("get", KEY).stdout)
                if now not in (old, new) or (status == 0 and now != new):
                    raise Finding(f"{command}: call {call} with error {error}: status {status}, {old} became {now}")
                self.tool(*check)
                if call == 0 and (calls := int(count.read_text())) < 3:
                    raise Finding(f"{command} was seen to make {calls} calls")
                old, call = now, call + 1
            tried += calls
        return tried

    @contextlib.contextmanager
    def viewer(self, *arguments):
        # The graphics driver keeps memory of its own to the end.
        environment = {**self.environment, "ASAN_OPTIONS": os.environ["ASAN_OPTIONS"] + ":detect_leaks=0"}
        with tempfile.TemporaryFile("w+", encoding="utf-8", errors="replace") as log:
            viewer = subprocess.Popen([self.programs / "orlo", "--store", self.store, *arguments], env=environment,
                                      stdout=log, stderr=log)
            fault = ""
            try:
                yield
            except Exception as finding:
                fault = f"{type(finding).__name__} {finding}"
            finally:
                ended = viewer.poll()
                viewer.send_signal(self.random.choice([signal.SIGTERM, signal.SIGKILL]))
                viewer.wait(60)
            log.seek(0)
            text = log.read()
        if fault or ended is not None or re.search("Sanitizer|runtime error", text):
            raise Finding(f"{fault}\na viewer, ended by itself with {ended}:\n{text}")

    @staticmethod
    def wait_for(port, expected):
        """The web server answers in the end, with this value."""
        end, found = time.monotonic() + 120, "no answer"
        while found != expected:
            if time.monotonic() > end:
                raise Finding(f"the web server should tell {expected}, and says: {found}")
            time.sleep(0.1)
            with contextlib.suppress(OSError, ValueError, http.client.HTTPException):
                connection = http.client.HTTPConnection("127.0.0.1", port, timeout=10)
                connection.request("GET", "/settings.json")
                found = json.load(connection.getresponse())[KEY]["value"]
                connection.close()

    def two_viewers_the_tool_and_an_attack_on_the_web_server(self):
        """Idle, slow, many and malformed connections, while the tool sets what the server is to tell."""
        with socket.socket() as finder:
            finder.bind(("127.0.0.1", 0))
            port = finder.getsockname()[1]
        self.tool("set", "WebInterface port", port)
        self.tool("set", "WebInterface enable web server2", "true")
        requests = [b"GET /settings.json HTTP/1.1\r\nHost: localhost\r\n\r\n", b"GET /" + b"a" * 70000, b"\0" * 100,
                    b"POST / HTTP/1.1\r\nContent-Length: 999999999999\r\n\r\n", self.random.randbytes(300)]
        made = 0
        with self.viewer("--sample"), self.viewer("--preferences"), contextlib.ExitStack() as others:
            for value in range(20, 50):
                connections = []
                for _ in range(self.random.randrange(100)):
                    with contextlib.suppress(OSError):
                        connections.append(socket.create_connection(("127.0.0.1", port), timeout=5))
                        others.callback(connections[-1].close)
                for connection in connections:
                    request = self.random.choice(requests)
                    with contextlib.suppress(OSError):
                        connection.sendall(request[:self.random.randrange(len(request) + 1)])
                self.tool("set", KEY, value)
                self.wait_for(port, value)
                made += len(connections)
        self.tool("check")
        return made


def main():
    parser = argparse.ArgumentParser(prog="hard.sh")
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("fuzz", type=pathlib.Path)
    parser.add_argument("--minutes", type=float, default=60)
    parser.add_argument("--seed", type=int, default=int(time.time()), help="of the random numbers")
    parser.add_argument("--only", default="", metavar="WORD", help="the subjects with the word in their names")
    given = parser.parse_args()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    kept = given.build / "hard"
    shutil.rmtree(kept, ignore_errors=True)
    kept.mkdir()
    rows, findings = [], []
    begin = time.monotonic()

    def repeat(lane):
        """Each subject of a lane in turn, with its share of the time."""
        lane = [row for row in lane if given.only in row[0]]
        for index, (name, unit, subject) in enumerate(lane):
            share = (begin + given.minutes * 60 - time.monotonic()) / (len(lane) - index)
            end, done = time.monotonic() + share, 0
            try:
                while not done or time.monotonic() < end:
                    done += subject(share)
            except Exception as finding:  # a subject that cannot be done is a finding, too
                findings.append(name)
                (kept / f"{name}.txt").write_text(f"{type(finding).__name__} {finding}")
                print(f"hard.sh: {name}: {str(finding)[-4000:]}", flush=True)
            rows.append(f"| {name} | {done:,} {unit} |")
            print(f"hard.sh: {name}: {done} {unit}", flush=True)

    with tempfile.TemporaryDirectory(prefix="orlo-hard-") as folder:
        use = HardUse(given.build.resolve() / "bin", pathlib.Path(folder), given.seed)
        readers = sorted(path.name.partition("-")[2] for path in given.fuzz.glob("bin/fuzz-*"))
        beside = threading.Thread(target=repeat, args=([
            (f"fuzzer of {reader}", "inputs", lambda share, reader=reader: use.fuzz(reader, max(1, int(share))))
            for reader in readers],))
        beside.start()
        repeat([(name.replace("_", " "), unit, lambda _, name=name: getattr(use, name)()) for name, unit in SUBJECTS])
        beside.join()

    print(f"\n{datetime.date.today()}, {(time.monotonic() - begin) / 60:.0f} minutes, --seed {given.seed}\n\n| subject | done |\n|---|---:|")
    print("\n".join(rows) + f"\n\nFound: {', '.join(findings) or 'nothing'}.")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
