"""The LEJIS host of the library is told, and a library for trying out sends to this machine alone."""
import socket
import unittest

from lejis_case import DONE, WRONG_USAGE, SimulatorCase, card
from registration import OTHER_HOST, register_for_other_host
from search_case import USER

PATH = "/lejis-core-Rev01/services/submission"
# The last three look like this machine.
OTHER_MACHINES = ("lejis-interface:8080", "192.0.2.1", "[2001:db8::1]:8080", "localhost.example", "127.0.0.1.example",
                  "localhost@lejis-interface")


class LejisHostTest(SimulatorCase):
    def setUp(self):
        super().setUp()
        self.write("a.xml", card())
        self.port = self.url.split(":")[2].partition("/")[0]

    def expect_refusal(self, *arguments):
        run = self.lejis(*arguments)
        self.assertEqual((run.code, run.output), (WRONG_USAGE, ""), run)
        self.assertRegex(run.complaint,
                         "^lejis: nothing was sent: TVLejisCore is made for the LEJIS host lejis.example, ")

    def test_version_names_it(self):
        self.assertEqual(self.expect(DONE, "--version").splitlines()[3], "LEJIS host: lejis.example")
        register_for_other_host(self)
        self.assertEqual(self.expect(DONE, "--version").splitlines()[3], f"LEJIS host: {OTHER_HOST}")

    def test_a_library_for_trying_out_sends_nothing_to_other_machines(self):
        for machine in OTHER_MACHINES:
            with self.subTest(machine):
                self.expect_refusal("submit", "a.xml", "--url", f"http://{machine}{PATH}")

    def test_every_command_that_sends_is_refused(self):
        url = f"http://0.0.0.0:{self.port}{PATH}"
        for arguments in (("submit", "a.xml"), ("delete", "a.xml"), ("search", "--zip", "17098", "--user", USER)):
            with self.subTest(arguments[0]):
                self.expect_refusal(*arguments, "--url", url)
        self.assertEqual(self.exchanges(), [])

    def test_this_machine_is_known_by_its_names(self):
        for name in ("localhost", "LocalHost", "127.0.0.1", "127.0.0.2", "[::1]", socket.gethostname()):
            with self.subTest(name):
                run = self.lejis("submit", "a.xml", "--url", f"http://{name}:1{PATH}")
                self.assertNotEqual(run.code, WRONG_USAGE, run)

    def test_force_sends(self):
        # Not this machine by name, though this system leads there.
        self.expect(DONE, "submit", "a.xml", "--url", f"http://0.0.0.0:{self.port}{PATH}", "--force")
        self.assertEqual(self.indexed(), ["2024-1"])

    def test_a_library_of_a_true_lejis_sends_anywhere(self):
        register_for_other_host(self)
        run = self.lejis("delete", "--ori", "PA0990100", "--id", "2024-1", "--submitted", "2024-03-11", "--url",
                         f"http://0.0.0.0:{self.port}{PATH}")
        self.assertNotEqual(run.code, WRONG_USAGE, run)
        self.assertEqual(len(self.exchanges()), 1)


if __name__ == "__main__":
    unittest.main()
