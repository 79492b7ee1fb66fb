"""lejis search when it fails, takes too long, is interrupted, or makes no sense."""
import os
import signal
import subprocess
import time
import unittest
from pathlib import Path

from lejis_case import DONE, REFUSED, RUNNER, TIME_LIMIT, TRY_AGAIN, WRONG_USAGE, LejisCase
from search_case import USER, SearchCase

INTERRUPTED = 130

AGAIN = "    Trying again later can help; the search is not at fault.\n"
IN_VAIN = "    Trying again does not help until this is put right.\n"

GIVEN = ("--zip", "17098", "--user", USER, "--url", "u")
NUMBER = "is not a whole number from"
WRONG = [
    (("--zip", "1", "--url", "u"), "--user is missing"),
    (("--zip", "1", "--user", USER), "--url is missing"),
    (("--user", USER, "--url", "u"), "nothing to search for"),
    (("--max", "3", "--exclude-ori", "PA0990100", "--user", USER, "--url", "u"), "nothing to search for"),
    (("x.xml", *GIVEN), "unexpected argument x.xml"),
    ((*GIVEN, "--ori", "PA0990100"), "unknown option --ori"),
    ((*GIVEN, "--xml=yes"), "--xml takes no value"),
    ((*GIVEN, "--surname"), "--surname needs a value"),
    ((*GIVEN, "--surname", "--given"), "--surname needs a value"),
    ((*GIVEN, "--dob", "2024-02-30"), "--dob: '2024-02-30' is not a day; write it as in 2024-03-09"),
    *(((*GIVEN, option, value), f"{option}: '{value}' {NUMBER} 0 to 32767")
      for option in ("--height", "--weight", "--vehicle-year") for value in ("-1", "32768", "5'9", "")),
    *(((*GIVEN, "--max", value), f"--max: '{value}' {NUMBER} 1 to 2147483647") for value in ("0", "2147483648", "all")),
    *(((*GIVEN, "--wait", value), f"--wait: '{value}' {NUMBER} 1 to 86400") for value in ("0", "86401", "1.5", "")),
]


class FailureTest(SearchCase):
    def fail_to_find(self, code, **options):
        run = self.search("--zip", "17098", **options)
        self.assertEqual((run.code, run.output), (code, ""), run)
        self.assertTrue(run.complaint.startswith("The search failed.\n  ! "), run.complaint)
        self.assertTrue(run.complaint.endswith(AGAIN if code == TRY_AGAIN else IN_VAIN), run.complaint)
        return run.complaint

    def test_a_user_who_may_not_search_gets_the_servers_words(self):
        self.assertEqual(self.fail_to_find(REFUSED, user="unknown"),
                         "The search failed.\n  ! Your JNET User ID is not known to LEJIS; ask your JNET "
                         f"administrator\n{IN_VAIN}")

    def test_a_refusal_without_words(self):
        self.play(kind="http-status", status=403, reason="")
        self.assertEqual(self.fail_to_find(REFUSED), f"The search failed.\n  ! No reason was given.\n{IN_VAIN}")

    def test_too_many_hits(self):
        self.play(kind="count-without-cards", count=5000)
        complaint = self.fail_to_find(REFUSED)
        self.assertIn("  ! The LEJIS core server could not handle your search request. \n\n    A common", complaint)
        self.assertIn("\n    Try narrowing your search", complaint)

    def test_a_soap_fault(self):
        self.play(kind="soap-fault", message="The index is being rebuilt.")
        self.assertEqual(self.fail_to_find(REFUSED),
                         f"The search failed.\n  ! The index is being rebuilt.\n{IN_VAIN}")

    def test_the_network(self):
        self.play(kind="http-status", status=502)
        self.fail_to_find(TRY_AGAIN)

    def test_a_server_that_is_not_there_can_be_tried_again(self):
        # Wine never tells an asynchronous request that the connection failed; the wait limit does.
        run = self.search("--zip", "17098", "--wait", "3", url="http://127.0.0.1:1/search")
        self.assertEqual((run.code, run.output), (TRY_AGAIN, ""), run)

    def test_a_request_that_the_schema_refuses_is_not_sent(self):
        self.play(kind="wrong-schema", target="wsdl")
        run = self.search("--zip", "17098", "--validate-schema", folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])
        self.assertEqual((run.code, run.output), (REFUSED, ""), run)
        self.assertFalse([exchange for exchange in self.exchanges() if exchange["method"] == "POST"])

    def test_failures_with_xml_print_no_document(self):
        self.play(kind="soap-fault", message="No.")
        run = self.search("--zip", "17098", "--xml")
        self.assertEqual((run.code, run.output), (REFUSED, ""), run)


class SlowAnswerTest(SearchCase):
    def test_an_answer_in_time(self):
        self.play(kind="slow", seconds=2)
        self.assertEqual(len(self.found("--zip", "17096", "--wait", "30")), 1)

    def test_an_answer_that_comes_too_late(self):
        self.play(kind="slow", seconds=20)
        self.assertEqual(self.search("--zip", "17098", "--wait", "1"),
                         (TRY_AGAIN, "", "No answer within 1 second.\n"))

    def program(self):
        """The process of lejis itself: it runs beside the one that started it and waits for it."""
        for folder in Path("/proc").glob("[0-9]*"):
            try:
                arguments = (folder / "cmdline").read_bytes().split(b"\0")
            except OSError:
                continue
            if arguments[0].endswith(b"lejis.exe") and self.url.encode() in arguments:
                return int(folder.name)
        return None

    def await_program(self):
        for _ in range(200):
            program = self.program()
            if program:
                # The search is under way a moment later.
                time.sleep(3)
                return program
            time.sleep(0.1)
        return self.fail("lejis does not run")

    def test_an_interruption_ends_it(self):
        self.play(kind="slow", seconds=30)
        command = [RUNNER, os.environ["LEJIS_EXE"], "search", "--zip", "17098", "--user", USER, "--url", self.url]
        with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE) as process:
            self.addCleanup(process.kill)
            # A search that goes on until its answer comes ends with another code.
            os.kill(self.await_program(), signal.SIGINT)
            output, complaint = process.communicate(timeout=TIME_LIMIT)
        self.assertEqual((process.returncode, output, complaint), (INTERRUPTED, b"", b"Interrupted.\r\n"))


class UsageTest(LejisCase):
    def test_what_makes_no_sense_is_said_in_one_line_with_a_hint(self):
        for arguments, reason in WRONG:
            with self.subTest(arguments):
                run = self.lejis("search", *arguments)
                self.assertEqual(run, (WRONG_USAGE, "", f"lejis: {reason}\nTry lejis search --help\n"))

    def test_options_of_a_search_belong_to_no_other_command(self):
        run = self.lejis("check", "--surname", "REESE")
        self.assertEqual((run.code, run.complaint),
                         (WRONG_USAGE, "lejis: unknown option --surname\nTry lejis check --help\n"))

    def test_help_fits_an_old_console_and_names_the_options(self):
        text = self.expect(DONE, "search", "--help")
        self.assertLessEqual(max(map(len, text.splitlines())), 85)
        for option in ("--surname", "--plate", "--serial", "--city", "--text", "--user", "--max", "--wait", "--xml"):
            self.assertIn(option, text)


if __name__ == "__main__":
    unittest.main()
