"""What the tests of orlo-prefs share: the tool, run with a store and a home of its own."""

import argparse
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

SECONDS = 60

REFUSALS = json.loads(pathlib.Path(__file__).with_name("refusals.json").read_text("utf-8"))


class ToolTest(unittest.TestCase):
    program = ""
    foreign = ""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.store = self.folder / "store.db"
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith(("ORLO_", "MRVN_", "XDG_"))}
        self.environment.update(HOME=str(self.folder), LC_ALL="C.UTF-8")
        # Nothing may need a display, not even one that is there.
        self.environment.pop("DISPLAY", None)

    def command(self, *arguments, plugin="", options=()):
        given = ["--plugin", plugin] if plugin else []
        return [self.program, *given, *options, *(each if isinstance(each, bytes) else str(each) for each in arguments)]

    def execute(self, command, input=None):
        return subprocess.run(command, input=input, cwd=self.folder, env=self.environment, capture_output=True,
                              encoding="utf-8", timeout=SECONDS, check=False)

    def tool(self, *arguments, plugin="", options=(), input=None):
        return self.execute(self.command(*arguments, plugin=plugin, options=options), input)

    def stored(self, *arguments, **keywords):
        """The tool with the test's own store."""
        return self.tool(*arguments, options=["--store", str(self.store)], **keywords)

    def site(self, settings):
        """Makes a site's file of them, which only counts where root has written it, and returns its name."""
        if os.geteuid() != 0:
            self.skipTest("a site's file counts only where it is root's")
        self.environment["XDG_CONFIG_DIRS"] = str(self.folder / "site")
        file = self.folder / "site/orlo/site.json"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps(settings))
        return file

    def refusals(self):
        """What every door refuses at a site with a lock: kind, key, type, value and words."""
        self.site({"Powerwall width": {"locked": True, "reason": "One wall for all."}})
        return [(refusal["kind"], refusal["key"], refusal["type"],
                 refusal.get("value", "x" * refusal.get("length", 0)), refusal["words"]) for refusal in REFUSALS]

    def assert_printed(self, result, text):
        self.assertEqual((result.stdout, result.stderr, result.returncode), (text, "", 0))

    def assert_refused(self, result, message):
        self.assertEqual((result.stdout, result.stderr, result.returncode), ("", message + "\n", 2))


def main():
    parser = argparse.ArgumentParser(add_help=False)
    parser.add_argument("--tool", required=True)
    parser.add_argument("--foreign", default="")
    arguments, rest = parser.parse_known_args()
    ToolTest.program = str(pathlib.Path(arguments.tool).resolve())
    ToolTest.foreign = arguments.foreign
    unittest.main(argv=[sys.argv[0], *rest])
