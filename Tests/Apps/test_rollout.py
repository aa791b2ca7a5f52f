"""The recipes for rolling a site's file out, as the documentation has them."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import unittest

import tool_test

DOCUMENT = pathlib.Path(__file__).resolve().parents[2] / "docs/site-defaults.md"


def recipe(language):
    return re.search(rf"(?s)```{language}\n(.*?)```", DOCUMENT.read_text()).group(1)


class Rollout(tool_test.ToolTest):
    @unittest.skipUnless(shutil.which("ansible-playbook") and os.geteuid() == 0, "needs Ansible and root")
    def test_the_playbook_puts_a_sound_file_in_place_and_no_other(self):
        (self.folder / "hosts").write_text("[workstations]\nlocalhost ansible_connection=local\n")
        (self.folder / "playbook.yml").write_text(recipe("yaml"))
        self.environment["PATH"] = f"{pathlib.Path(self.program).parent}:{os.environ['PATH']}"
        self.environment["QT_QPA_PLATFORM"] = "offscreen"
        installed = self.folder / "installed/site.json"
        for fov, status in ((60, 0), ("wide", 2)):
            (self.folder / "site.json").write_text(json.dumps({"Camera fov": {"value": fov, "locked": True}}))
            result = subprocess.run(["ansible-playbook", "-i", "hosts", "-e", f"folder={installed.parent}", "playbook.yml"],
                                    cwd=self.folder, env=self.environment, capture_output=True, encoding="utf-8",
                                    check=False)
            self.assertEqual(result.returncode, status, result.stdout + result.stderr)
            self.assertEqual(json.loads(installed.read_text())["Camera fov"]["value"], 60)
            self.assertEqual(installed.stat().st_mode & 0o777, 0o644)

    @unittest.skipUnless(shutil.which("puppet"), "needs Puppet")
    def test_the_manifest_is_understood(self):
        manifest = self.folder / "orlo.pp"
        manifest.write_text(recipe("puppet"))
        result = self.execute(["puppet", "parser", "validate", manifest])
        self.assertEqual((result.stderr, result.returncode), ("", 0))


if __name__ == "__main__":
    tool_test.main()
