#!/usr/bin/env python3
"""Runs scripts through orlo-prefs and compares what they print with the transcripts beside them.

    run_scripts.py --tool build/bin/orlo-prefs Tests/scripts/camera
    run_scripts.py --tool build/bin/orlo-prefs --update Tests/scripts/camera/first-apply.script

NAME.script must print what NAME.expected holds. Beside them may stand
    NAME.stderr   lines that must appear within the standard error stream, in this order; without it, it must be empty
    NAME.status   the exit status, 0 without it
and in the comments that a script begins with
    # options: --edition essentials     options of the tool
    # env: NAME=VALUE OTHER="A B"       variables of the environment
--update writes the transcripts anew from what is printed, for a person to read before they are kept.
"""

import argparse
import difflib
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

SECONDS = 60


def head(script, name):
    """The words behind `# name:` in the comments that the script begins with."""
    words = []
    for line in script.read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            break
        comment = line.lstrip("# ")
        if comment.startswith(name + ":"):
            words += shlex.split(comment[len(name) + 1:])
    return words


def environment(script, home):
    """The caller's without what would change the outcome."""
    variables = {name: value for name, value in os.environ.items()
                 if not name.startswith(("ORLO_", "MRVN_", "XDG_", "LC_", "LANG"))}
    variables.update(LC_ALL="C.UTF-8", HOME=home)
    variables.update(assignment.split("=", 1) for assignment in head(script, "env"))
    return variables


def text(file, otherwise=""):
    return file.read_text(encoding="utf-8") if file.exists() else otherwise


def run(tool, script):
    with tempfile.TemporaryDirectory() as home:
        command = [tool, *head(script, "options"), "script", script.name]
        return subprocess.run(command, cwd=script.parent, env=environment(script, home), capture_output=True,
                              encoding="utf-8", errors="replace", timeout=SECONDS, check=False)


def difference(name, expected, printed):
    return "".join(difflib.unified_diff(expected.splitlines(True), printed.splitlines(True), name, "printed"))


def missing_lines(expected, printed):
    """The expected lines that do not appear, each looked for behind the one before."""
    missing, position = [], 0
    for line in expected.splitlines():
        found = printed.find(line, position)
        if found < 0:
            missing.append(line)
        else:
            position = found + len(line)
    return missing


def faults(script, result):
    """What is wrong with a run; empty when it did as its transcript says."""
    found = []
    expected = script.with_suffix(".expected")
    if not expected.exists():
        found.append(f"there is no {expected.name}; --update writes it\n")
    elif result.stdout != text(expected):
        found.append(difference(expected.name, text(expected), result.stdout))

    status = int(text(script.with_suffix(".status"), "0"))
    if result.returncode != status:
        found.append(f"exit status {result.returncode}, not {status}\n")

    diagnostics = script.with_suffix(".stderr")
    missing = missing_lines(text(diagnostics), result.stderr)
    if missing:
        found.append("not on the standard error stream: " + "\n    ".join(missing) + "\n")
    if result.stderr and (missing or not diagnostics.exists()):
        found.append("standard error stream:\n" + result.stderr)
    return found


def update(script, result):
    script.with_suffix(".expected").write_text(result.stdout, encoding="utf-8")
    status = script.with_suffix(".status")
    if result.returncode:
        status.write_text(f"{result.returncode}\n", encoding="utf-8")
    elif status.exists():
        status.unlink()
    # Diagnostics are kept by hand: they hold call stacks, and only some of their lines matter.
    if result.stderr:
        print(f"{script}: standard error stream:\n{result.stderr}")


def scripts(paths):
    for path in paths:
        yield from [path] if path.is_file() else sorted(path.rglob("*.script"))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tool", required=True, help="the program orlo-prefs")
    parser.add_argument("--update", action="store_true", help="write the transcripts anew")
    parser.add_argument("paths", nargs="+", type=pathlib.Path, help="scripts, or folders of them")
    arguments = parser.parse_args()

    tool = str(pathlib.Path(arguments.tool).resolve())
    count = failed = 0
    for script in scripts(arguments.paths):
        count += 1
        result = run(tool, script)
        if arguments.update:
            update(script, result)
            continue
        found = faults(script, result)
        if found:
            failed += 1
            print(f"FAILED {script}\n" + "".join(found))
    if not count:
        sys.exit("there are no scripts in " + ", ".join(map(str, arguments.paths)))
    print(f"{count} scripts, {failed} failed")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
