#!/usr/bin/env python3
"""Damages models of a folder in many ways and tries each with the program.

    tools/try-damaged.py FOLDER [--match PATTERN] [--times N] [--seed N] [--keep FOLDER]

Each model below FOLDER whose name matches is damaged N times; the same seed damages in the same way. The program may
read what is left or refuse it, but must end by itself within two minutes. Prints the files that made it end otherwise,
or its reader crash, which --keep keeps, and how often a file was read, was refused, or did one of these."""

import argparse
import collections
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

KINDS = {".step", ".stp", ".iges", ".igs", ".stl", ".obj", ".wrl", ".gltf", ".glb", ".ply", ".3mf", ".dae", ".off"}
PROGRAM = Path(__file__).resolve().parent.parent / "build/bin/orlo"


def one_byte(data, chance):
    data[chance.randrange(len(data))] = chance.randrange(256)


def no_line(data, chance):
    lines = data.split(b"\n")
    del lines[chance.randrange(len(lines))]
    data[:] = b"\n".join(lines)


def number(data, chance):
    """One that stands in the text, or four bytes where there is none."""
    found = list(re.finditer(rb"-?\d+", data))
    if not found:
        return one_byte(data, chance)
    place = chance.choice(found)
    # As long as before, so that formats with columns keep them.
    wanted = chance.choice((b"0", b"9" * len(place[0]), b"-1", str(chance.randrange(10000)).encode()))
    data[place.start():place.end()] = wanted[:len(place[0])].rjust(len(place[0]), b"0")


def cut(data, chance):
    del data[chance.randrange(len(data)):]


def twice(data, chance):
    start = chance.randrange(len(data))
    data[start:start] = data[start:start + chance.randrange(1, 400)]


def swapped(data, chance):
    lines = data.split(b"\n")
    one, other = chance.randrange(len(lines)), chance.randrange(len(lines))
    lines[one], lines[other] = lines[other], lines[one]
    data[:] = b"\n".join(lines)


def attempt(model, out, environment):
    """What came of it, and the first words that were said."""
    command = [PROGRAM, "--store", out / "none.db", "--save", out / "saved.stl", model]
    try:
        ran = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=120)
    except subprocess.TimeoutExpired:
        return "did not end", ""
    said = ran.stderr.decode(errors="replace")
    word = next((line for line in said.splitlines() if line.startswith("orlo: ")), "")
    if ran.returncode not in (0, 1, 2):
        return "went down", f"status {ran.returncode} {word}"
    if "reader crash" in said:
        return "crashed its reader", word
    return ("read" if ran.returncode == 0 else "refused"), word


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=Path)
    parser.add_argument("--match", default="")
    parser.add_argument("--times", type=int, default=10)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--keep", type=Path)
    options = parser.parse_args()
    models = sorted(file for file in options.folder.rglob("*")
                    if file.suffix.lower() in KINDS and re.search(options.match, str(file.relative_to(options.folder))))
    counts = collections.Counter()
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
    for model in models:
        for time in range(options.times):
            chance = random.Random(f"{options.seed} {model.name} {time}")
            with tempfile.TemporaryDirectory() as name:
                work = Path(name)
                # With what lies beside it, which it may refer to.
                shutil.copytree(model.parent, work / "model", copy_function=shutil.copyfile)
                data = bytearray(model.read_bytes())
                damage = chance.choice((one_byte, no_line, number, cut, twice, swapped))
                damage(data, chance)
                damaged = work / "model" / model.name
                damaged.write_bytes(data)
                what, said = attempt(damaged, work, environment)
                counts[what] += 1
                if what in ("read", "refused"):
                    continue
                print(f"{model.relative_to(options.folder)}, {damage.__name__} {time}: {what} {said}", flush=True)
                if options.keep:
                    options.keep.mkdir(parents=True, exist_ok=True)
                    shutil.copyfile(damaged, options.keep / f"{time}-{damage.__name__}-{model.name}")
    print(", ".join(f"{count} {what}" for what, count in sorted(counts.items())))
    sys.exit(1 if counts["went down"] or counts["did not end"] else 0)


main()
