"""What manual pages and completions of the shells tell of both programs."""

import os
import pathlib
import pty
import re
import select
import shutil
import unittest

import tool_test

SOURCE = pathlib.Path(__file__).resolve().parents[2]
COMPLETIONS = SOURCE / "tools/completion"
# What is typed before the tabulator, and the words that stand on the line after it.
TYPED = [("--ed", ["--edition"]), ("--edition de", ["--edition", "design"]), ("list --ma", ["list", "--markdown"]),
         ("reset Camera", ["reset", "Camera fov"]), ("profile apply far", ["profile", "apply", "far away"]),
         ("--edition design set Camera", ["--edition", "design", "set", "Camera fov"])]


class Shells(tool_test.ToolTest):
    def setUp(self):
        super().setUp()
        self.folder_of_programs = pathlib.Path(self.program).parent
        profile = self.folder / ".config/orlo/profiles/far away.json"
        profile.parent.mkdir(parents=True)
        profile.write_text("{}")
        self.environment["PATH"] = f"{self.folder_of_programs}:{os.environ['PATH']}"

    def listed(self, program, *command):
        return self.execute([self.folder_of_programs / program, *command, "--help"]).stdout

    def words_of(self, program):
        """The options and commands that the program's own help tells of, and the options of each command."""
        listed = self.listed(program)
        words = {"".join(found) for found in re.findall(r"(?m)^ .*?(--[a-z-]+)|^  ([a-z]+) ", listed)}
        words |= set(re.findall(r"--[a-z-]+", listed))
        words -= {"--help-all", "model"}
        if program == "orlo-prefs":
            for command in [word for word in words if not word.startswith("--")]:
                words |= set(re.findall(r"--[a-z-]+", self.listed(program, command)))
        return words

    def test_every_option_and_command_is_told_of_everywhere_and_no_other(self):
        for program in ("orlo", "orlo-prefs"):
            words = self.words_of(program)
            self.assertLessEqual({"--edition", "--help", "--version"}, words)
            options = {word for word in words if word.startswith("--")}
            for file, dashes in ((SOURCE / f"docs/{program}.1", "--"), (COMPLETIONS / program, "--"),
                                 (COMPLETIONS / f"_{program}", "--"), (COMPLETIONS / f"{program}.fish", "-l ")):
                text = file.read_text().replace("\\-", "-")
                for word in words:
                    with self.subTest(file=file.name, word=word):
                        self.assertRegex(text, rf"(?<![\w-]){word.replace('--', dashes)}(?![\w-])")
                # In fish -l makes a variable local, too.
                lines = [line for line in text.split("\n") if dashes == "--" or line.startswith("complete ")]
                told = re.findall(rf"[\s'\"(*]{dashes}([a-z][a-z-]+)", "\n".join(lines))
                self.assertLessEqual({f"--{name}" for name in told}, options, file.name)

    @unittest.skipUnless(shutil.which("groff"), "needs groff")
    def test_manual_pages_are_typeset_without_a_warning(self):
        for page in sorted(SOURCE.glob("docs/*.1")):
            self.assert_printed(self.execute(["groff", "-man", "-Tutf8", "-ww", "-z", page]), "")

    def test_bash_completes_commands_options_and_keys(self):
        script = (f"source {COMPLETIONS}/orlo-prefs; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _orlo_prefs\n"
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        cases = [(typed.split(), words[-1].replace(" ", "\\ ")) for typed, words in TYPED]
        for typed, offered in [*cases, (["set", "Camera\\ f"], "Camera\\ fov"), (["reset", '"Camera f'], "Camera fov"),
                               (["get", "Camera\\ fov", ""], ""), (["get", "no such"], "")]:
            with self.subTest(typed):
                result = self.execute(["bash", "-c", script, "bash", "orlo-prefs", *typed])
                self.assertEqual((result.stdout, result.stderr), (offered + "\n", ""))

    @unittest.skipUnless(shutil.which("fish"), "needs fish")
    def test_fish_completes_commands_options_and_keys(self):
        for typed, words in TYPED:
            script = f"source {COMPLETIONS}/orlo-prefs.fish; complete -C 'orlo-prefs {typed}'"
            result = self.execute(["fish", "--no-config", "-c", script])
            with self.subTest(typed):
                offered = [line.split("\t")[0] for line in result.stdout.splitlines()]
                self.assertEqual(offered, words[-1:], result.stderr)

    @unittest.skipUnless(shutil.which("zsh"), "needs zsh")
    def test_zsh_completes_commands_options_and_keys(self):
        for typed, words in TYPED:
            with self.subTest(typed):
                self.assertEqual(self.completed_by_zsh(f"orlo-prefs {typed}"), ["orlo-prefs", *words])

    def completed_by_zsh(self, typed):
        """Types into a shell as a person does, and has it print what then stands on its line."""
        process, terminal = pty.fork()
        if process == 0:
            os.execvpe("zsh", ["zsh", "-f", "-i"], {**self.environment, "TERM": "dumb"})
        try:
            start = f"fpath=({COMPLETIONS} $fpath); autoload -U compinit; compinit -u -D; print READ''Y\n"
            os.write(terminal, start.encode())
            self.read(terminal, "READY")
            # Home, and then a command before what was typed.
            os.write(terminal, f"{typed}\t\x01print -rl -- WORD''S: \x05 EN''D\n".encode())
            printed = self.read(terminal, "\nEND").replace("\r", "")
            return printed[printed.index("WORDS:"):printed.index("\nEND")].split("\n")[1:]
        finally:
            os.close(terminal)
            os.waitpid(process, 0)

    @staticmethod
    def read(terminal, until):
        printed = ""
        while until not in printed.replace("\r", ""):
            if not select.select([terminal], [], [], tool_test.SECONDS)[0]:
                raise AssertionError(f"no {until} in {printed}")
            printed += os.read(terminal, 4096).decode()
        return printed


if __name__ == "__main__":
    tool_test.main()
