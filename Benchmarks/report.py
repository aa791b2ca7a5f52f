"""Runs the measurements side by side and prints each beside its goal."""

import argparse
import json
import math
import re
import statistics
import subprocess
import sys
from pathlib import Path

import models

SCALARS = ("bool", "int", "float", "double")
TYPES = SCALARS + ("text",)
FRAME = 0.016  # seconds
GROWTH_STEPS = ("load", "fill", "take back", "apply")


class Figures:
    """The results of one group: all its repetitions, taken in a random order."""

    def __init__(self, command, repetitions):
        command = [*command, "--benchmark_format=json", "--benchmark_enable_random_interleaving=true",
                   f"--benchmark_repetitions={repetitions}", "--benchmark_min_time=0.05"]
        ran = subprocess.run(command, capture_output=True, text=True)
        if ran.returncode != 0:
            sys.exit(f"bench: {Path(command[0]).name} failed: {ran.stderr.strip()}")
        answer = json.loads(ran.stdout)
        self.context = answer["context"]
        self.runs = {}
        for run in answer["benchmarks"]:
            if run["run_type"] == "iteration":
                name = re.sub(r"/(iterations:\d+|manual_time)", "", run["run_name"])
                self.runs.setdefault(name, []).append(run)

    def seconds(self, name):
        return statistics.median(self.time(run) for run in self.runs[name])

    @staticmethod
    def time(run):
        # Whoever measures by hand says what the time is; else the processor's counts, not the clock's.
        measured = run["real_time" if "manual_time" in run["name"] else "cpu_time"]
        return measured * {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}[run["time_unit"]]

    def ratio(self, name, other):
        return self.seconds(name) / self.seconds(other)

    def counter(self, name, counter):
        return statistics.median(run[counter] for run in self.runs[name])

    def least(self, name, counter):
        # What else the machine has to do only ever adds to a time.
        return min(run[counter] for run in self.runs[name])


def at_most(name, value, goal):
    return {"name": name, "value": round(value, 3), "goal": f"<= {goal}", "holds": value <= goal}


def at_least(name, value, goal):
    return {"name": name, "value": round(value, 3), "goal": f">= {goal}", "holds": value >= goal}


def record(program):
    figures = Figures([program, "record"], 15)

    def all_types(name):
        return sum(figures.seconds(f"{name}/{type}") for type in TYPES)

    def allocations(name):
        return max(figures.counter(f"{name}/{type}", "allocations") for type in SCALARS)

    least = {other: min(figures.ratio(f"{other} unchanged/{type}", f"set unchanged/{type}") for type in TYPES)
             for other in ("QSettings", "KConfigGroup")}
    return [
        at_most("typed read / bare find and checked cast", all_types("read") / all_types("bare read"), 1.1),
        at_most("typed read of a scalar: allocations", allocations("read"), 0),
        at_most("compare-and-set, unchanged / typed read", all_types("set unchanged") / all_types("read"), 1.15),
        at_most("compare-and-set of a scalar: allocations", allocations("set unchanged"), 0),
        at_least("QSettings in memory / compare-and-set", least["QSettings"], 1.5),
        at_least("KConfigGroup / compare-and-set", least["KConfigGroup"], 4),
    ]


def construction(program):
    figures = Figures([program, "construction"], 9)
    memory = figures.counter("memory", "modules") / figures.counter("memory", "forms")
    return [
        at_most("construction of 32 modules / bare setupUi", figures.ratio("construct modules", "construct forms"), 1.2),
        at_most("memory of 32 modules with pages / bare forms", memory, 1.15),
    ]


def loading(program):
    figures = Figures([program + "-load"], 15)
    return [
        at_most("loading the library / an empty plug-in", figures.ratio("load plug-in", "load empty plug-in"), 3),
        at_most("loading with all functions bound / an empty plug-in",
                figures.ratio("load plug-in bound", "load empty plug-in bound"), 3),
    ]


def pages(program):
    figures = Figures([program, "pages"], 15)
    # KConfigDialogManager does without the settings that it knows no property for, so one setting is the measure.
    more = int(figures.context["settings"]) / int(figures.context["settings of KConfigDialogManager"])
    rows = [at_most(f"{step} of all 32 pages / one frame", figures.seconds(name) / FRAME, 1)
            for step, name in (("fill", "fill"), ("take back", "take back"), ("apply, nothing changed,", "apply"))]
    return rows + [at_least("fill by KConfigDialogManager / fill", more * figures.ratio("KConfigDialogManager fill", "fill"),
                            2)]


def library(folder):
    plugin = str(folder / "libKernelPreferences.so")

    def output(*command):
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout

    exported = [line for line in output("nm", "-D", "--defined-only", plugin).splitlines() if " T " in line]
    stripped = folder / "stripped.so"
    output("strip", "--strip-unneeded", "-o", str(stripped), plugin)
    size = stripped.stat().st_size / 1024
    stripped.unlink()
    return [
        at_most("exported functions of the library", len(exported), 1),
        at_most("stripped size of the library in KiB", size, 900),
    ]


def growth(program):
    """How the cost of one module grows: the power of the number of modules that it follows, 0 for linear steps."""
    figures = Figures([program, "growth"], 5)
    sizes = sorted((int(name.split("/")[1]) for name in figures.runs))

    def power(step):
        xs = [math.log(size) for size in sizes]
        ys = [math.log(figures.least(f"grow/{size}", step)) for size in sizes]
        mean_x, mean_y = statistics.mean(xs), statistics.mean(ys)
        return 1 + (sum((x - mean_x) * (y - mean_y) for x, y in zip(xs, ys)) / sum((x - mean_x) ** 2 for x in xs))

    rows = [at_most(f"growth of {step}, 32 to 512 modules: power", power(step), 1.1) for step in GROWTH_STEPS]
    return rows + [at_most("growth of memory, 32 to 512 modules: power", power("memory"), 1.1)]


def dialog(program):
    figures = Figures([program, "dialog"], 9)
    searches = Figures([program, "search"], 9)
    slowest = max(searches.seconds(name) for name in searches.runs)
    rows = [at_most(f"{opening} opening of the dialog / KConfigDialog with the same forms",
                     figures.ratio(f"dialog/{opening}", f"KConfigDialog/{opening}"), 0.5) for opening in ("first", "second")]
    for name, what in (("dialog", "dialog, host and modules"), ("KConfigDialog", "KConfigDialog with the same forms")):
        print(f"{what}: {figures.counter(f'{name}/first', 'memory') / 2**20:.1f} MiB, first opening "
              f"{1000 * figures.seconds(f'{name}/first'):.1f} ms, second {1000 * figures.seconds(f'{name}/second'):.1f} ms")
    return rows + [at_most("search over all pages / one frame", slowest / FRAME, 1)]


def save(program):
    figures = Figures([program, "save"], 15)
    return [
        at_most("save of one changed setting / QSettings and fsync of file and folder",
                figures.ratio("save", "QSettings save"), 2),
        at_most("save of nothing: write calls", figures.counter("save nothing", "writes"), 0),
    ]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder", type=Path)
    parser.add_argument("--json", type=Path)
    parser.add_argument("--strict", action="store_true")
    options = parser.parse_args()
    program = str(options.folder / "orlo-bench")

    rows = []
    for group in (record, pages, construction, loading, growth, dialog, save):
        rows += group(program)
    rows += library(options.folder)
    rows += [at_most(*row) for row in models.rows(options.folder)]

    width = max(len(row["name"]) for row in rows)
    for row in rows:
        print(f"{row['name']:{width}}  {row['value']:>9g}  {row['goal']:>8}  {'holds' if row['holds'] else 'falls short'}")
    if options.json:
        options.json.write_text(json.dumps(rows, indent=1) + "\n")
    sys.exit(1 if options.strict and not all(row["holds"] for row in rows) else 0)


main()
