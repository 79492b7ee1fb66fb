"""What lejis tells of an incident is true, whatever the library says and wherever it fails."""
import subprocess
import unittest

from lejis_case import REFUSED, RUNNER, SEND_AGAIN, TIME_LIMIT, TRY_AGAIN, SimulatorCase, card
from registration import BITS, BUILT, class_key, reg, regsvr32, windows_path
from small_server import RedirectingServer

NOBODY = "http://127.0.0.1:1/submission"


class OutcomesTest(SimulatorCase):
    def setUp(self):
        super().setUp()
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2"))

    def submit(self, code, *arguments, url=None):
        return self.expect(code, "submit", *arguments, "--url", url or self.url)

    def remove_class(self, name):
        self.addCleanup(regsvr32, windows_path(BUILT))
        reg("delete", class_key(name), "/f", f"/reg:{BITS}")

    def test_a_class_that_is_missing_is_told_of_each_incident(self):
        self.remove_class("LejisIncidentFormatter")
        output = self.expect(REFUSED, "check", "a.xml", "b.xml")
        self.assertEqual(output.count("; register it again, as administrator"), 2, output)

    def test_without_the_class_of_the_service_nothing_is_sent(self):
        self.remove_class("LejisSubmissionWebService")
        output = self.submit(REFUSED, "a.xml", "b.xml")
        self.assertIn("2 files: 0 submitted, 2 not sent.\n", output)

    def test_words_of_the_server_are_not_taken_for_those_of_the_library(self):
        for words in ("Invalid URL 'x'", "Host not found.", "The LEJIS Interface service is down. ", "Internal error 7",
                      "Internal error in the court's system", "Internal error -1: Error in DoSubmit (line 1): no"):
            with self.subTest(words):
                self.play(kind="soap-fault", message=words)
                self.assertIn("a.xml  refused\n", self.submit(REFUSED, "a.xml"))

    def test_a_redirect_to_nowhere_leaves_open_what_was_done(self):
        for place in ("http://127.0.0.1:1/", "foreign://127.0.0.1/"):
            with self.subTest(place), RedirectingServer(place) as server:
                output = self.submit(TRY_AGAIN, "a.xml", url=server.url + "/submission")
                self.assertTrue(output.startswith("a.xml  unknown\n"), output)
                self.assertTrue(output.endswith(SEND_AGAIN), output)

    def test_where_nobody_listens_the_service_is_not_called(self):
        output = self.submit(TRY_AGAIN, "a.xml", "--validate-schema", url=NOBODY)
        self.assertIn("  ! The LEJIS Interface service is down. It may need to be restarted.\n", output)

    def test_where_nobody_listens_the_checks_refuse_all_the_same(self):
        self.write("bad.xml", card(zip_code="1709"))
        self.assertTrue(self.submit(REFUSED, "bad.xml", url=NOBODY).startswith("bad.xml  refused\n"))

    def test_what_could_not_be_read_in_time_was_not_sent(self):
        command = [RUNNER, self.lejis_program(), "submit", "-", "--url", self.url, "--timeout", "2"]
        with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE) as process:
            output = process.stdout.read().decode().replace("\r\n", "\n")
            process.stdin.close()
            self.assertEqual(process.wait(TIME_LIMIT), TRY_AGAIN)
        self.assertTrue(output.startswith("-  not sent\n  ! It could not be got ready for sending within 2 seconds.\n"),
                        output)
        self.assertEqual(self.indexed(), [])


if __name__ == "__main__":
    unittest.main()
