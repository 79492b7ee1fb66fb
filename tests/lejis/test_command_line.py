"""Commands, options and what does not make sense."""
import subprocess
import unittest

from lejis_case import DONE, REFUSED, TIME_LIMIT, WRONG_USAGE, LejisCase

NAMED = ("delete", "--ori", "PA0990100", "--id", "2024-1")
NO_DAYS = ("2024-02-30", "2023-02-29", "2024-2-3", "20240203", "03/09/2024", "2024-13-01", "0000-01-01", "today", "")

WRONG = [
    ((), "no command given", "lejis --help"),
    (("send", "x.xml"), "unknown command send", "lejis --help"),
    (("--quick",), "unknown option --quick", "lejis --help"),
    (("check",), "no file given", "lejis check --help"),
    (("check", "x.xml", "--url", "u"), "unknown option --url", "lejis check --help"),
    (("check", "x.xml", "-v"), "unknown option -v", "lejis check --help"),
    (("submit", "x.xml"), "--url is missing", "lejis submit --help"),
    (("submit", "--url", "u"), "no file given", "lejis submit --help"),
    (("submit", "x.xml", "--url"), "--url needs a value", "lejis submit --help"),
    (("submit", "x.xml", "--url", "--validate-schema"), "--url needs a value", "lejis submit --help"),
    (("submit", "x.xml", "--url", "u", "--validate-schema=no"), "unknown option --validate-schema",
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
    *(((*NAMED, "--submitted", day, "--url", "u"), f"'{day}' is no day; write it as in 2024-03-09",
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
        for option in ("--help", "-h"):
            text = self.expect(DONE, option)
            for word in ("lejis check", "lejis submit", "lejis delete", "lejis search", "--version", "Exit codes: 0 ", "64"):
                self.assertIn(word, text)

    def test_each_command_has_help_of_its_own_whatever_else_is_given(self):
        words = {"check": "Nothing is sent", "submit": "--validate-schema", "delete": "--submitted YYYY-MM-DD"}
        for command, word in words.items():
            self.assertIn(word, self.expect(DONE, command, "no such file.xml", "--help"))

    def test_help_fits_an_old_console(self):
        for arguments in ((), ("check",), ("submit",), ("delete",), ("search",)):
            for line in self.expect(DONE, *arguments, "--help").splitlines():
                self.assertLessEqual(len(line), 85)

    def test_version_is_that_of_the_library_and_says_where_it_is(self):
        version, file = self.expect(DONE, "--version").splitlines()
        self.assertRegex(version, r"^TVLejisCore \d+\.\d+\.\d+$")
        self.assertTrue(file.endswith("\\TVLejisCore.dll"), file)


class RegistrationTest(LejisCase):
    def setUp(self):
        super().setUp()
        self.library = self.expect(DONE, "--version").splitlines()[1]

    def regsvr32(self, *arguments):
        subprocess.run(["wine", "regsvr32.exe", "/s", *arguments, self.library], stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=TIME_LIMIT, check=True)

    def test_a_library_that_is_not_registered_is_one_sentence_for_all_files(self):
        self.addCleanup(self.regsvr32)
        self.regsvr32("/u")
        for arguments in (("check", "a.xml", "b.xml"), ("--version",)):
            run = self.lejis(*arguments)
            self.assertEqual((run.code, run.output), (REFUSED, ""))
            self.assertRegex(run.complaint, NOT_REGISTERED)
        self.assertEqual(self.lejis("--help").code, DONE)


if __name__ == "__main__":
    unittest.main()
