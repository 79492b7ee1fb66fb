"""Commands, options and what does not make sense."""
import json
import re
import subprocess
import unittest

from lejis_case import DONE, PROJECT, REFUSED, RUNNER, TIME_LIMIT, WRONG_USAGE, LejisCase, card

COMMANDS = ("check", "show", "submit", "delete", "search", "ledger", "doctor", "completion", "help")

NAMED = ("delete", "--ori", "PA0990100", "--id", "2024-1")
NO_DAYS = ("2024-02-30", "2023-02-29", "2024-2-3", "20240203", "03/09/2024", "2024-13-01", "0000-01-01", "today", "")

WRONG = [
    ((), "no command given", "lejis --help"),
    (("send", "x.xml"), "unknown command send", "lejis --help"),
    (("--quick",), "unknown option --quick", "lejis --help"),
    (("check",), "no file given", "lejis check --help"),
    (("check", "x.xml", "--url", "u"), "unknown option --url", "lejis check --help"),
    (("doctor", "x.xml"), "unexpected argument x.xml", "lejis doctor --help"),
    (("doctor", "--user", "u"), "unknown option --user", "lejis doctor --help"),
    (("check", "x.xml", "-x"), "unknown option -x", "lejis check --help"),
    (("check", "x.xml", "-q", "--verbose"), "give either --quiet or --verbose", "lejis check --help"),
    (("sumbit", "x.xml"), "unknown command sumbit; did you mean submit?", "lejis --help"),
    (("submit", "x.xml", "--ulr", "u"), "unknown option --ulr; did you mean --url?", "lejis submit --help"),
    (("search", "--surename", "X", "--url", "u"), "unknown option --surename; did you mean --surname?",
     "lejis search --help"),
    (("submit", "x.xml", "--url", "u", "--url", "v"), "--url is given twice", "lejis submit --help"),
    (("search", "--licence", "1", "--license=2", "--url", "u"), "--license is given twice", "lejis search --help"),
    (("check", "x.xml", "-q", "--quiet"), "--quiet is given twice", "lejis check --help"),
    (("--hepl",), "unknown option --hepl; did you mean --help?", "lejis --help"),
    (("hepl",), "unknown command hepl; did you mean help?", "lejis --help"),
    (("help", "check", "submit"), "unexpected argument submit", "lejis help --help"),
    (("show",), "no file given", "lejis show --help"),
    (("show", "x.xml", "y.xml"), "unexpected argument y.xml", "lejis show --help"),
    (("ledger",), "no file given", "lejis ledger --help"),
    (("ledger", "x", "y"), "unexpected argument y", "lejis ledger --help"),
    (("submit", "x.xml", "--url", "u", "--jobs", "33"), "--jobs: '33' is not a whole number from 1 to 32",
     "lejis submit --help"),
    (("help", "sumbit"), "unknown command sumbit; did you mean submit?", "lejis --help"),
    (("submit", "x.xml"), "--url is missing", "lejis submit --help"),
    (("submit", "--url", "u"), "no file given", "lejis submit --help"),
    (("submit", "x.xml", "--url"), "--url needs a value", "lejis submit --help"),
    (("submit", "x.xml", "--url", "--validate-schema"), "--url needs a value", "lejis submit --help"),
    (("submit", "x.xml", "--url", "u", "--validate-schema=no"), "--validate-schema takes no value",
     "lejis submit --help"),
    (("submit", "x.xml", "--url", "u", "--ori", "PA0990100"), "unknown option --ori", "lejis submit --help"),
    (("delete", "x.xml", "--url", "u", "--validate-schema"), "unknown option --validate-schema",
     "lejis delete --help"),
    (("delete", "x.xml", "--id", "1", "--url", "u"), "give either files or the identifiers of an incident",
     "lejis delete --help"),
    (("delete", "--id", "1", "--submitted", "2024-03-09", "--url", "u"), "--ori is missing", "lejis delete --help"),
    (("delete", "--organization", "Millbrook", "--url", "u"), "--ori is missing", "lejis delete --help"),
    (("delete", "--ori", "PA0990100", "--submitted", "2024-03-09", "--url", "u"), "--id is missing",
     "lejis delete --help"),
    ((*NAMED, "--url", "u"), "--submitted is missing", "lejis delete --help"),
    ((*NAMED, "--submitted", "2024-03-09"), "--url is missing", "lejis delete --help"),
    *(((*NAMED, "--submitted", day, "--url", "u"), f"--submitted: '{day}' is not a day; write it as in 2024-03-09",
       "lejis delete --help") for day in NO_DAYS),
]


NOT_REGISTERED = (
    r"^lejis: TVLejisCore is not registered for (32|64)-bit programs here; register it once, as administrator, with: "
    r'\S*regsvr32\S* "[^"\n]*TVLejisCore\.dll"\n$')


class CommandLineTest(LejisCase):
    def test_what_makes_no_sense_is_said_in_one_line_with_a_hint(self):
        for arguments, reason, help_command in WRONG:
            with self.subTest(arguments):
                run = self.lejis(*arguments)
                self.assertEqual(run, (WRONG_USAGE, "", f"lejis: {reason}\nTry {help_command}\n"))

    def test_help_names_every_command_and_exit_code(self):
        for option in ("--help", "-h", "help"):
            text = self.expect(DONE, option)
            for word in (*(f"lejis {command}" for command in COMMANDS), "--version", "--json",
                         "Exit codes:\n\n    0   all done", "   64   "):
                self.assertIn(word, text)

    def test_each_command_has_help_of_its_own_whatever_else_is_given(self):
        words = {"check": "Nothing is sent", "submit": "--validate-schema", "delete": "--submitted YYYY-MM-DD"}
        for command, word in words.items():
            self.assertIn(word, self.expect(DONE, command, "no such file.xml", "--help"))

    def test_the_command_help_is_that_of_the_option(self):
        self.assertEqual(self.expect(DONE, "help"), self.expect(DONE, "--help"))
        for command in COMMANDS:
            self.assertEqual(self.expect(DONE, "help", command), self.expect(DONE, command, "--help"))

    def test_examples_can_be_pasted_into_the_command_prompt(self):
        # Nothing that means something to it but the caret at the end of a line, and one file for the output.
        special = re.compile(r"[&|<>()^%!]")
        for command in COMMANDS:
            for example in self.examples_of(command):
                words = example.partition(" > ")[0].split()
                with self.subTest(example):
                    self.assertNotRegex(" ".join(words), special)
                    self.assertEqual(words[0], "lejis")
                    self.assertIn(words[1], COMMANDS)
                    self.assertNotEqual(self.lejis(*words[1:], *self.OFFLINE.get(words[1], ())).code, WRONG_USAGE)

    # The library of the tests is for no true LEJIS; the machine of the examples is not there.
    OFFLINE = {"submit": ("--force",), "delete": ("--force",), "search": ("--force", "--wait", "1")}

    def examples_of(self, command):
        """As the command prompt takes them: one to a line, or to several of which each but the last ends in a caret."""
        text = self.expect(DONE, command, "--help").partition("Examples:\n\n")[2].partition("\n\n")[0]
        return text.replace("^\n", "").splitlines()

    def test_what_follows_two_hyphens_is_a_file(self):
        self.write("--json", card())
        self.assertEqual(self.expect(DONE, "check", "--", "--json"), "--json  fit for submission\n")

    def test_quiet_tells_what_did_not_go_through(self):
        self.write("a.xml", card())
        self.write("b.xml", "<a>")
        output = self.expect(REFUSED, "check", "a.xml", "b.xml", "-q")
        self.assertTrue(output.startswith("b.xml  unreadable\n"), output)

    def test_the_environment_stands_in_for_options(self):
        self.write("a.xml", card())
        run = self.lejis("submit", "a.xml", environment={"LEJIS_URL": "no address"})
        self.assertIn("Invalid URL 'no address'", run.output)
        run = self.lejis("submit", "a.xml", "--url", "other", environment={"LEJIS_URL": "no address"})
        self.assertIn("Invalid URL 'other'", run.output)
        run = self.lejis("search", "--zip", "1", environment={"LEJIS_SEARCH_URL": "no address", "LEJIS_USER": "u"})
        self.assertIn("Invalid URL 'no address'.", run.complaint)

    def test_help_fits_an_old_console(self):
        for arguments in ((), *((command,) for command in COMMANDS)):
            for line in self.expect(DONE, *arguments, "--help").splitlines():
                self.assertLessEqual(len(line), 87)

    def test_the_help_of_each_command_shows_examples_that_name_it(self):
        for command in COMMANDS:
            examples = self.expect(DONE, command, "--help").partition("Examples:\n")[2]
            self.assertIn(f"  lejis {command}", examples)

    def test_the_readme_has_the_same_exit_codes(self):
        readme = (PROJECT / "tools" / "lejis" / "README.md").read_text(encoding="utf-8")
        codes = re.findall(r"^ {2,4}(\d+)   ", self.expect(DONE, "--help"), re.MULTILINE)
        self.assertEqual(codes, ["0", "1", "2", "3", "64", "130"])
        self.assertEqual(re.findall(r"^\| (\d+) \|", readme, re.MULTILINE), codes)

    def test_version_is_that_of_the_program_and_of_the_library_and_says_where_it_is(self):
        program, version, file, host = self.expect(DONE, "--version").splitlines()
        self.assertRegex(program, r"^lejis \d+\.\d+\.\d+$")
        self.assertRegex(version, r"^TVLejisCore \d+\.\d+\.\d+$")
        self.assertTrue(file.endswith("\\TVLejisCore.dll"), file)
        self.assertEqual(host, "LEJIS host: lejis.example")


class RegistrationTest(LejisCase):
    def setUp(self):
        super().setUp()
        self.dll = self.expect(DONE, "--version").splitlines()[2]

    def regsvr32(self, *arguments):
        subprocess.run([RUNNER, "regsvr32.exe", "/s", *arguments, self.dll], stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=TIME_LIMIT, check=True)

    def test_a_library_that_is_not_registered_is_one_sentence_for_all_files(self):
        self.addCleanup(self.regsvr32)
        self.regsvr32("/u")
        run = self.lejis("check", "a.xml", "b.xml")
        self.assertEqual((run.code, run.output), (REFUSED, ""))
        self.assertRegex(run.complaint, NOT_REGISTERED)
        self.assertEqual(self.lejis("--help").code, DONE)
        document = json.loads(self.expect(REFUSED, "check", "a.xml", "--json"))
        self.assertEqual((document["command"], document["exitCode"], document["error"]["kind"]),
                         ("check", REFUSED, "notRegistered"))

    def test_version_is_told_without_a_library(self):
        version = self.expect(DONE, "--version").splitlines()[0]
        self.addCleanup(self.regsvr32)
        self.regsvr32("/u")
        program, reason = self.expect(DONE, "--version").splitlines()
        self.assertEqual(program, version)
        self.assertRegex(f"lejis: {reason}\n", NOT_REGISTERED)
        self.assertIsNone(json.loads(self.expect(DONE, "--version", "--json"))["library"])

    def test_the_doctor_says_how_to_register_it(self):
        self.addCleanup(self.regsvr32)
        self.regsvr32("/u")
        report = self.expect(REFUSED, "doctor")
        self.assertRegex(report, r"(?m)^failed   Library in use +this lejis is a (32|64)-bit program and finds no "
                                 r"library\n +TVLejisCore is not registered .*regsvr32")


if __name__ == "__main__":
    unittest.main()
