"""Changes one place of one source at a time and tells which changes no test notices.

    tools/mutate.sh FOLDER... [--count N] [--seed S] [--again]

A place is a condition, a number, a text such as a key, a call left out, or two calls swapped; of a form what it says of
a control. N of them (30) are drawn by the seed (1), as many of each kind as there are. Each is changed in a copy of the
sources as committed, under build/mutate; there the copy is built, and its tests that can see the folders are run, the
likely ones first. Where no test fails, the change has survived: a test is missing, or nobody could notice it; these are
listed in Tests/survivors.md. A change that does not compile counts for nothing, and another one is drawn.

What came out stands in build/mutate/FOLDERS-S.json. The same command goes on where it was stopped. With --again it
tries those that survived once more, for when the tests have become sharper, and then with the tests that take long,
too: they would take most of the time where many changes survive the others. The environment may name a command that building
and testing is run through (MUTATE_RUN="nice -n 5") and options for configuring the copy (MUTATE_CMAKE).
"""

import argparse
import json
import os
import random
import re
import shlex
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutate"
COPY = WORK / "copy"

# The programs whose tests can see a folder; of any other folder it is all of them. Left out is the view, which takes
# long and sees of a setting what the calls before it say.
SEES = {
    "Plugins": ["orlo-prefs", "plugins-tests", "model-tests"],
    "Sdk": ["orlo-prefs", "sdk-tests", "host-tests", "plugins-tests", "model-tests", "forms-tests"],
    "Host": ["orlo-prefs", "host-tests", "plugins-tests", "model-tests", "forms-tests"],
}
# How a source is laid out says nothing of what it does, what is packed, built or shown at one more scale nothing new,
# and how memory grows hardly anything.
BLIND = ("check_format", "check_packaging", "build_plugin_alone", "LoadCycles.", "at_scale_1.5", "at_scale_2")
QUICK_SECONDS = 3.0
HUNG_SECONDS = 120

OPPOSITES = {"==": "!=", "!=": "==", "<": ">=", ">": "<=", "<=": ">", ">=": "<", "&&": "||", "||": "&&",
             "true": "false", "false": "true", "!": "", "if (": "if (!"}
CONDITION = re.compile(r"(?<= )(?:==|!=|<=|>=|<|>|&&|\|\|)(?= )|\b(?:true|false)\b|(?<=[( ])!(?=[\w(])|\bif \((?=\w)")
NUMBER = re.compile(r"(?<![\w.\"'<])\d+(?:\.\d+)?(?=[fu]?[^\w.\"'])")
TEXT = re.compile(r'"((?:[^"\\]|\\.)+)"')
CALL = re.compile(r"^\s+(?!(?:return|delete|using|throw|case) )[\w:.>()*-]+\(.*\);$")
SETTER = re.compile(r"\s+(?:(.+?)(?:->|\.))?(set[A-Z]\w*|connect)\(")
IN_FORM = re.compile(r"<(number|double|bool|string|set)(?: [^>]*)?>([^<]+)<")


def alike(line, following):
    """Whether both set properties of one object, or the same one of two, where their order hardly ever matters."""
    one, other = SETTER.match(line), SETTER.match(following)
    return one and other and (one[1] == other[1] or one[2] == other[2])


def increased(number):
    return str(float(number) + 1) if "." in number else str(int(number) + 1)


def changes_of_form(line):
    for found in IN_FORM.finditer(line):
        kind, text = found.groups()
        other = {"number": increased, "double": increased, "bool": OPPOSITES.get, "string": lambda text: text + "x",
                 "set": lambda text: text.partition("|")[0] if "|" in text else None}[kind](text.lstrip("-"))
        if other:
            yield "form", line[:found.start(2)] + other + line[found.end(2):]


def changes_of_code(lines, at, isHeader):
    """What a line can become. Where two calls are swapped, it becomes the next one, too."""
    line = lines[at]
    code = line.partition("//")[0]
    if code.lstrip().startswith(("#", "static_assert", "Q_ASSERT")):
        return
    for found in CONDITION.finditer(code):
        yield "condition", line[:found.start()] + OPPOSITES[found.group()] + line[found.end():]
    for found in NUMBER.finditer(code):
        yield "number", line[:found.start()] + increased(found.group()) + line[found.end():]
    for found in TEXT.finditer(code):
        yield "text", line[:found.end(1)] + "x" + line[found.end(1):]
    # What stands less deep in a header is declared there.
    isCall = CALL.match(code) and (not isHeader or code.startswith(8 * " "))
    if isCall and lines[at - 1].endswith((";", "{", "}", ")", ":", "else")):
        indent = line[:len(line) - len(line.lstrip())]
        yield "call left out", indent + ";"
        following = lines[at + 1]
        if CALL.match(following) and following != line and following.startswith(indent) and not alike(line, following):
            yield "calls swapped", following + "\n" + line


def drawn(folders, seed):
    """All places in the order in which they are tried: one of each kind, then the next one of each."""
    kinds = {}
    for path in sorted(path for folder in folders for path in (COPY / folder).rglob("*")):
        name = str(path.relative_to(COPY))
        lines = path.read_text().split("\n") if path.suffix in (".cpp", ".h", ".ui") else []
        for at, line in enumerate(lines):
            found = changes_of_form(line) if path.suffix == ".ui" else changes_of_code(lines, at, path.suffix == ".h")
            for kind, other in found:
                place = {"file": name, "line": at + 1, "kind": kind, "was": line, "is": other}
                kinds.setdefault(kind, []).append(place)
    chance = random.Random(seed)
    for kind in sorted(kinds):
        chance.shuffle(kinds[kind])
    while any(kinds.values()):
        yield from (kinds[kind].pop() for kind in sorted(kinds) if kinds[kind])


class Copy:
    """The sources as they are committed, built and tested without getting in anyone's way."""

    def __init__(self, folders, hasTime):
        self.hasTime = hasTime
        seen = [SEES.get(folder.partition("/")[0], []) for folder in folders]
        self.programs = sorted(set(sum(seen, []))) if all(seen) else []
        if not COPY.exists():
            self.git("clone", "--quiet", "--no-checkout", ROOT, COPY)
        self.git("-C", COPY, "fetch", "--quiet", ROOT, "HEAD")
        # Files that are the same keep their times, so that only what changed is built.
        self.git("-C", COPY, "checkout", "--quiet", "--force", "--detach", "FETCH_HEAD")
        # No change of ours is one of what a library offers, so what links it need not be linked again.
        self.run("cmake", "-S", COPY, "-B", COPY / "build", "-G", "Ninja", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                 *shlex.split(os.environ.get("MUTATE_CMAKE", "")))
        if not self.builds():
            sys.exit("the unchanged sources do not build")
        self.numbers = self.tests()
        # What noticed a change in some run did not fail on the unchanged sources.
        self.trusted = {place["verdict"] for kept in WORK.glob("*.json") for place in json.loads(kept.read_text())}

    @staticmethod
    def git(*command):
        return subprocess.run(["git", *map(str, command)], text=True, stdout=subprocess.PIPE, check=True).stdout

    @staticmethod
    def name(folders):
        return "-".join(folder.strip("/").replace("/", "-") for folder in folders)

    def slow(self):
        """The numbers of the tests that took long so far."""
        costs = COPY / "build/Testing/Temporary/CTestCostData.txt"
        lines = costs.read_text().partition("---")[0].splitlines() if costs.exists() else []
        # Names of tests may have blanks in them.
        known = {name: float(cost) for name, _, cost in (line.rsplit(" ", 2) for line in lines)}
        return {number for name, number in self.numbers.items() if known.get(name, 0) > QUICK_SECONDS}

    @staticmethod
    def run(*command):
        through = shlex.split(os.environ.get("MUTATE_RUN", ""))
        return subprocess.run([*through, *map(str, command)], cwd=COPY, text=True, capture_output=True, check=False)

    def builds(self, source=Path("form.ui")):
        # That a header made of a form is new is seen the second time.
        return all(self.run("ninja", "-C", "build", "-j", os.cpu_count(), *self.programs).returncode == 0
                   for _ in range(2 if source.suffix == ".ui" else 1))

    def tests(self):
        shown = self.run("ctest", "--test-dir", "build", "--show-only=json-v1").stdout
        numbers = {}
        for number, test in enumerate(json.loads(shown)["tests"], 1):
            command = " ".join(test.get("command", ["NOT_BUILT"]))
            isSeen = not any(name in test["name"] + command for name in BLIND) and \
                (any(f"/bin/{program}" in f"{command} " for program in self.programs) or "/lint/" in command)
            if (isSeen or not self.programs) and '"slow"' not in json.dumps(test):
                numbers[test["name"]] = number
        return numbers

    def failures(self, numbers, *options):
        done = self.run("ctest", "--test-dir", "build", "-I", "0,0,0," + ",".join(map(str, numbers)), *options,
                        # Many of them mostly wait.
                        "--timeout", HUNG_SECONDS, "--parallel", 3 * os.cpu_count())
        return re.findall(r"^\s+\d+ - (.+) \(", done.stdout, re.MULTILINE)

    def failure(self, numbers):
        """The name of a test that fails twice, or nothing."""
        while numbers and (failed := self.failures(numbers, "--stop-on-failure")):
            again = [number for name, number in self.numbers.items() if name in failed]
            if not again or self.failures(again):
                return failed[0]
            numbers = [number for number in numbers if number not in again]
        return None

    def likely(self, source, counted):
        """Tests that noticed other changes of the source or are called as it is, then those that noticed any."""
        name = re.sub("^(ol|QOL)", "", source.stem).lower()
        of_source = {place["verdict"] for place in counted if place["file"].rpartition(".")[0].endswith(source.stem)}
        near = {test for test in self.numbers
                if test in of_source or test.partition(".")[0].lower() in name or name in test.lower()}
        for tests in (near, {place["verdict"] for place in counted} - near):
            yield [self.numbers[test] for test in sorted(tests) if test in self.numbers]

    def verdict(self, place, counted):
        """The test that noticed the change, "" where none did, nothing where it did not compile or its line is gone."""
        while (failed := self.noticed(place, counted)) and failed not in self.trusted:
            # One that fails on the unchanged sources, too, notices nothing: say, because it measures time on a machine
            # that is busy.
            self.builds(COPY / place["file"])
            if not self.failures([self.numbers[failed]]):
                self.trusted.add(failed)
            else:
                print(f"left out, as it fails on the unchanged sources: {failed}", flush=True)
                del self.numbers[failed]
        return failed

    def noticed(self, place, counted):
        source = COPY / place["file"]
        text = source.read_text() if source.exists() else ""
        lines = text.split("\n")
        at = place["line"] - 1
        if place["was"] not in lines[at:at + 1]:
            if place["was"] not in lines:
                return None
            at = lines.index(place["was"])
        lines[at:at + place["is"].count("\n") + 1] = place["is"].split("\n")
        source.write_text("\n".join(lines))
        try:
            if not self.builds(source):
                return None
            done, slow = set(), self.slow()
            quick = [number for number in self.numbers.values() if number not in slow]
            for stage in (*self.likely(source, counted), quick, sorted(slow)):
                if not self.hasTime:
                    stage = [number for number in stage if number not in slow]
                if failed := self.failure([number for number in stage if number not in done]):
                    return failed
                done.update(stage)
            return ""
        finally:
            source.write_text(text)


def main():
    parser = argparse.ArgumentParser(prog="tools/mutate.sh", description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folders", nargs="+")
    parser.add_argument("--count", type=int, default=30)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--again", action="store_true")
    arguments = parser.parse_args()

    kept = WORK / f"{Copy.name(arguments.folders)}-{arguments.seed}.json"
    WORK.mkdir(parents=True, exist_ok=True)
    tried = json.loads(kept.read_text()) if kept.exists() else []
    known = {(place["file"], place["was"], place["is"]) for place in tried}
    counted = [place for place in tried if place["verdict"] is not None]
    copy = Copy(arguments.folders, arguments.again)
    waiting = [place for place in counted if place["verdict"] == ""] if arguments.again else \
        (place for place in drawn(arguments.folders, arguments.seed)
         if (place["file"], place["was"], place["is"]) not in known)
    for place in waiting:
        if not arguments.again and len(counted) >= arguments.count:
            break
        place["verdict"] = copy.verdict(place, counted)
        if not arguments.again:
            tried.append(place)
            counted += [place] if place["verdict"] is not None else []
        kept.write_text(json.dumps(tried, indent=1))
        print(f"{len(counted)}: {place['file']}:{place['line']} ({place['kind']}): "
              f"{'no such change' if place['verdict'] is None else place['verdict'] or 'SURVIVED'}", flush=True)

    survived = [place for place in counted if place["verdict"] == ""]
    print(f"{len(counted)} changes, {len(survived)} survived")
    for place in survived:
        print(f"{place['file']}:{place['line']} ({place['kind']})\n-{place['was']}\n+{place['is']}")
    sys.exit(1 if survived else 0)


try:
    main()
except KeyboardInterrupt:
    sys.exit("stopped; the same command goes on")
