"""The table of options: what the help names is taken, and completed by shells.

The script for bash runs in a bash. No PowerShell is there: of its script only the words are looked at.
"""
import os
import re
import subprocess
import unittest

from lejis_case import DONE, PROJECT, RUNNER, TIME_LIMIT, WRONG_USAGE, LejisCase

# The help's names for values that are not texts, each with a valid value.
VALUES = {"N": "1", "SECONDS": "1", "YYYY-MM-DD": "2024-03-09"}
OPTION = re.compile(r"(--[a-z-]+)(?: ([A-Z][A-Z-]*))?")
# Lines of the help with an option, with its short name, and with criteria of a kind or more of them.
ROW = re.compile(r"^  (?:-\w, )?(--[a-z].*)$", re.MULTILINE)
CRITERIA = re.compile(r"^(?:  [A-Z][a-z]+ +| {13})(--[a-z].*)$", re.MULTILINE)
# Runs the script's function as bash itself does when Tab is pressed.
COMPLETE = """
source "$1"; shift
COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
_lejis
[[ -z "${COMPREPLY[*]}" ]] || printf '%s\n' "${COMPREPLY[@]}"
"""


class CompletionCase(LejisCase):
    def help(self, *command):
        return self.expect(DONE, "help", *command)

    def commands(self):
        rows = self.help().partition("With every command")[0]
        return re.findall(r"^  lejis ([a-z]+) ", rows, re.MULTILINE)

    def options(self, command):
        """The options in the help of a command, each with a value that it takes or None."""
        text = self.help(command).partition("\nExamples:")[0]
        options = {}
        for row in ROW.findall(text):
            name, value = OPTION.match(row).groups()
            options[name] = VALUES.get(value, "x") if value else None
        for row in CRITERIA.findall(text) if command == "search" else ():
            options.update((name, VALUES.get(value, "x")) for name, value in OPTION.findall(row))
        return options

    def script(self, shell):
        """As it is, without a change to the ends of its lines."""
        run = subprocess.run([RUNNER, os.environ["LEJIS_EXE"], "completion", shell], stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, timeout=TIME_LIMIT, check=True)
        return run.stdout


class TableTest(CompletionCase):
    def test_every_option_in_the_help_of_a_command_is_taken(self):
        for command in self.commands():
            options = self.options(command)
            self.assertLessEqual({"--json", "--help"}, set(options))
            # With --json the help would be a document.
            words = [word for name, value in options.items() if name not in ("--json", "--help")
                     for word in (name, value) if word]
            with self.subTest(command):
                self.assertEqual(self.expect(DONE, command, *words, "--help"), self.help(command))

    def test_the_page_names_no_command_or_option_that_does_not_exist(self):
        page = (PROJECT / "tools" / "lejis" / "README.md").read_text(encoding="utf-8")
        commands = self.commands()
        options = {option for command in commands for option in self.options(command)} | {"--version"}
        named = set(re.findall(r"(?<![\w-])(--[a-z][a-z-]*)", page))
        self.assertGreater(len(named), 5)
        self.assertEqual(named - options, set())
        self.assertEqual(set(re.findall(r"`lejis ([a-z]+)", page)) - set(commands), set())


class BashTest(CompletionCase):
    def setUp(self):
        super().setUp()
        self.write("completion", self.script("bash"))

    def complete(self, *words):
        run = subprocess.run(["bash", "-c", COMPLETE, "bash", self.folder / "completion", *words], capture_output=True,
                             text=True, timeout=TIME_LIMIT, check=False)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        return run.stdout.splitlines()

    def test_commands(self):
        self.assertEqual(self.complete("lejis", ""), self.commands())
        self.assertEqual(self.complete("lejis", "s"), ["show", "submit", "search"])
        self.assertEqual(self.complete("lejis", "--json", "su"), ["submit"])
        self.assertEqual(self.complete("lejis", "help", "d"), ["delete", "doctor"])

    def test_every_option_of_each_command(self):
        self.assertEqual(sorted(self.complete("lejis", "-")), ["--help", "--json", "--version"])
        for command in self.commands():
            with self.subTest(command):
                self.assertEqual(sorted(self.complete("lejis", command, "--")), sorted(self.options(command)))

    def test_what_comes_after_what(self):
        self.assertEqual(self.complete("lejis", "completion", ""), ["bash", "powershell"])
        self.assertEqual(self.complete("lejis.exe", "submit", "a.xml", "--re"), ["--recurse", "--retry"])
        # Search takes nothing else.
        self.assertIn("--surname", self.complete("lejis", "search", ""))
        # Nothing leaves it to bash, which knows the files.
        self.assertEqual(self.complete("lejis", "submit", ""), [])
        self.assertEqual(self.complete("lejis", "submit", "--ledger", "n"), [])
        # A URL, not an option.
        self.assertEqual(self.complete("lejis", "submit", "--url", "--"), [])

    def test_bash_knows_for_which_programs_it_is(self):
        run = subprocess.run(["bash", "-c", f"source '{self.folder}/completion'; complete -p lejis lejis.exe"],
                             capture_output=True, text=True, check=True, timeout=TIME_LIMIT)
        self.assertEqual(run.stdout, "complete -o default -F _lejis lejis\ncomplete -o default -F _lejis lejis.exe\n")


class PowerShellTest(CompletionCase):
    def test_the_script_names_every_command_and_option_with_its_help(self):
        script = self.script("powershell").decode("ascii")
        lists = dict(re.findall(r"^        '([a-z]*)' = \[ordered\]@\{\n(.*?)^        \}$", script,
                                re.MULTILINE | re.DOTALL))
        words = {command: re.findall(r"^            '([a-z-]+)' = '(?:[^']|'')+'$", entries, re.MULTILINE)
                 for command, entries in lists.items()}
        for command, entries in lists.items():
            self.assertEqual(len(words[command]), len(entries.splitlines()), entries)
        commands = self.commands()
        self.assertEqual(words.pop(""), [*commands, "--json", "--help", "--version"])
        self.assertEqual(list(words), commands)
        for command in commands:
            options = [word for word in words[command] if word.startswith("--")]
            self.assertEqual(sorted(options), sorted(self.options(command)))
        self.assertEqual(words["help"][:len(commands)], commands)
        self.assertEqual(words["completion"][:2], ["bash", "powershell"])


class ShellTest(LejisCase):
    def test_a_shell_that_nobody_knows(self):
        self.assertEqual(self.lejis("completion", "zsh"),
                         (WRONG_USAGE, "", "lejis: unknown shell zsh; there are bash and powershell\n"
                                           "Try lejis completion --help\n"))
        self.assertEqual(self.lejis("completion").complaint, "lejis: no shell given\nTry lejis completion --help\n")


if __name__ == "__main__":
    unittest.main()
