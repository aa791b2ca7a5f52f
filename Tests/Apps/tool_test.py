"""What the tests of orlo-prefs share: the tool, run with a store and a home of its own."""

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

SECONDS = 60


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
        return [self.program, *given, *options, *map(str, arguments)]

    def tool(self, *arguments, plugin="", options=(), input=None):
        return subprocess.run(self.command(*arguments, plugin=plugin, options=options), input=input,
                              env=self.environment, capture_output=True, encoding="utf-8", timeout=SECONDS, check=False)

    def stored(self, *arguments, **keywords):
        """The tool with the test's own store."""
        return self.tool(*arguments, options=["--store", str(self.store)], **keywords)

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
