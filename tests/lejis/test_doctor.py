"""lejis doctor: what it finds on a road that is whole, and on one that is not."""
import os
import subprocess
import unittest

from lejis_case import DONE, REFUSED, TIME_LIMIT, TRY_AGAIN, SimulatorCase

FLAGS = r"HKCU\Software\VB and VBA Program Settings\TalvexSuite\Flags"


class DoctorTest(SimulatorCase):
    def setUp(self):
        super().setUp()
        self.search_url = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services/search"

    def findings(self, code, *arguments, **options):
        """The health and the text by the subject; the cure stands in the text's second line."""
        found = {}
        for line in self.expect(code, "doctor", *arguments, **options).splitlines():
            if line.startswith(" "):
                found[subject] = (found[subject][0], found[subject][1] + "\n" + line.strip())
            else:
                subject = line[9:29].rstrip()
                found[subject] = (line[:9].rstrip(), line[29:])
        return found

    def test_a_whole_road(self):
        found = self.findings(DONE, "--url", self.url, "--search-url", self.search_url,
                              folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])
        self.assertEqual({subject for subject, (health, _) in found.items() if health == "ok"}, {
            "32-bit library", "64-bit library", "Library in use", "Submission server", "Submission WSDL",
            "Submission schemas", "Search server", "Search WSDL", "Search schemas", "Debug dumps"})
        bits = "64-bit" if "/x64/" in os.environ["LEJIS_EXE"] else "32-bit"
        version = self.expect(DONE, "--version").splitlines()
        self.assertEqual(found[f"{bits} library"][1], f"{version[1].split()[1]}, {version[2]}")

    def test_it_sends_nothing_but_questions_for_descriptions(self):
        self.findings(DONE, "--url", self.url, "--search-url", self.search_url,
                      folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])
        self.assertEqual({exchange["method"] for exchange in self.exchanges()}, {"GET"})
        self.assertEqual(self.index(), [])

    def test_without_addresses_it_looks_at_this_machine_alone(self):
        self.assertEqual(set(self.findings(DONE)),
                         {"32-bit library", "64-bit library", "Library in use", "Debug dumps"})

    def test_a_server_that_is_not_there_may_come(self):
        found = self.findings(TRY_AGAIN, "--url", "http://127.0.0.1:1/submission")
        self.assertEqual(found["Submission server"][0], "failed")
        self.assertIn("takes no connection at this port\nSee that the LEJIS Interface runs",
                      found["Submission server"][1])
        self.assertEqual([found[f"Submission {what}"][0] for what in ("WSDL", "schemas")], ["skipped", "skipped"])

    def test_an_address_that_is_none(self):
        for address in ("nonsense", "ftp://127.0.0.1/x", "http://", ""):
            with self.subTest(address):
                found = self.findings(REFUSED, "--url", address)
                self.assertIn("is no address of the web\nWrite it as in http://", found["Submission server"][1])

    def test_a_path_that_leads_to_no_service(self):
        found = self.findings(REFUSED, "--url", os.environ["LEJIS_SIMULATOR_URL"] + "/nothing")
        self.assertEqual(found["Submission server"][0], "ok")
        self.assertRegex(found["Submission WSDL"][1], r"status 404\nCorrect the path")

    def test_a_server_in_trouble(self):
        self.play(kind="http-status", status=503, target="wsdl")
        found = self.findings(TRY_AGAIN, "--url", self.url)
        self.assertRegex(found["Submission WSDL"][1], r"status 503\n")

    def test_something_else_than_a_wsdl(self):
        self.play(kind="not-xml", target="wsdl")
        found = self.findings(REFUSED, "--url", self.url)
        self.assertRegex(found["Submission WSDL"][1], r"is no WSDL\nCorrect the address")

    def test_schemas_that_a_request_does_not_pass(self):
        self.play(kind="wrong-schema", target="wsdl", count=2)
        found = self.findings(DONE, "--url", self.url, folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])
        self.assertEqual(found["Submission schemas"][0], "warning")
        self.assertIn("\nLeave ValidateSchema off", found["Submission schemas"][1])

    def test_the_debug_flag(self):
        def reg(*arguments):
            subprocess.run(["wine", "reg", *arguments, "/f"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, timeout=TIME_LIMIT, check=True)
        self.addCleanup(reg, "delete", FLAGS, "/v", "DebugLejis")
        reg("add", FLAGS, "/v", "DebugLejis", "/d", "Y")
        health, text = self.findings(DONE)["Debug dumps"]
        self.assertEqual(health, "warning")
        self.assertRegex(text, r"personal data, are written to C:\\.*\\TalvexSuite\\Diagnostics\nSet DebugLejis to ")


if __name__ == "__main__":
    unittest.main()
