"""Follows docs/add-a-format.md to the letter in a copy, and has the suite's checks of modules judge the result.

    add_format.py SOURCE COPY apply
    add_format.py SOURCE COPY check --tests PROGRAM --tool PROGRAM --plugin FILE
"""

import argparse
import difflib
import json
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

PLUGIN = "Plugins/KernelPreferences"
TRANSCRIPTS = "--gtest_filter=CallsOfSettings*:Pages*:Reactions*:ShownValues*"
# What is only recorded the host says, which is taken as it is here: its line of the steps is not built.
CHECKS = f"{TRANSCRIPTS}:Contract*:Descriptions*:-CallsOfSettings.ASettingIsOnlyRecorded*"


def insert(file, line, behind):
    """Behind the last line that begins as told."""
    lines = file.read_text().splitlines(keepends=True)
    place = max(number for number, text in enumerate(lines) if text.startswith(behind)) + 1
    file.write_text("".join([*lines[:place], line, *lines[place:]]))


def apply(source, copy):
    shutil.rmtree(copy, ignore_errors=True)
    shutil.copytree(source / PLUGIN, copy / PLUGIN)
    transcripts = [file.relative_to(source) for file in source.glob("Tests/Plugins/*.expected")]
    for name in [*transcripts, "docs/settings-in-the-view.md"]:
        (copy / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source / name, copy / name)

    document = (source / "docs/add-a-format.md").read_text()
    files = re.findall(r"(?s)^`(FileIO/\w+\.(?:h|cpp))`\n\n```cpp\n(.*?)```", document, re.M)
    for name, text in files:
        (copy / PLUGIN / name).write_text(text)
    include, creation = re.search(
        r"(?s)`olKernelPreferences.cpp`.*?```cpp\n(#include.*?)```.*?```cpp\n(    create.*?)```", document).groups()
    insert(copy / PLUGIN / "olKernelPreferences.cpp", include, '#include "FileIO/')
    insert(copy / PLUGIN / "olKernelPreferences.cpp", creation, "    create<olPLMXML")
    explained = copy / "docs/settings-in-the-view.md"
    explained.write_text(explained.read_text().replace("PLM XML, ", "PLM XML, Parasolid, ", 1))


def check(source, copy, options):
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "ORLO_TEST_PLUGIN": options.plugin,
                   "ORLO_TEST_SOURCE": str(copy)}

    def run(*command):
        return subprocess.run(command, env=environment, capture_output=True, encoding="utf-8", check=False)

    # The tests bring the transcripts as they are with the format, which has its lines in them and changes none.
    stale = run(options.tests, TRANSCRIPTS)
    printed = re.findall(r"diff (\S+) with (\S+)", stale.stdout)
    if not printed:
        sys.exit(f"no transcript speaks of the new format:\n{stale.stdout}{stale.stderr}")
    for expected, now in printed:
        before, after = (Path(file).read_text().splitlines() for file in (expected, now))
        changed = [line for line in difflib.ndiff(before, after) if line.startswith("- ")]
        if changed:
            sys.exit(f"{expected} changes for other modules:\n" + "\n".join(changed))
        shutil.move(now, expected)

    listed = run(options.tool, "--store", str(copy / "store.db"), "--plugin", options.plugin, "list", "--json")
    sys.path.insert(0, str(source / "Tests/lint"))
    from check_recorded import unexplained
    faults = list(unexplained(json.loads(listed.stdout), (copy / "docs/settings-in-the-view.md").read_text()))
    judged = run(options.tests, CHECKS)
    if faults or judged.returncode != 0 or "ParasolidOptions" not in listed.stdout:
        sys.exit("\n".join([*faults, listed.stderr, judged.stdout, judged.stderr]))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("source", type=Path)
    parser.add_argument("copy", type=Path)
    parser.add_argument("step", choices=("apply", "check"))
    parser.add_argument("--tests")
    parser.add_argument("--tool")
    parser.add_argument("--plugin")
    options = parser.parse_args()
    if options.step == "apply":
        apply(options.source, options.copy)
    else:
        check(options.source, options.copy, options)


main()
