"""lejis doctor: what it finds when all is well, and when the server is in trouble."""
import os
import unittest

from doctor_case import LOCAL, DoctorCase
from lejis_case import BOTH, DONE, REFUSED, TRY_AGAIN, WRONG_USAGE
from registration import BITS

LIBRARIES = {"32-bit library", "64-bit library"}
OWN = {f"{BITS}-bit library", f"{BITS}-bit classes"}


class DoctorTest(DoctorCase):
    def test_a_whole_road(self):
        found = self.in_schemas(DONE, "--url", self.url, "--search-url", self.search_url)
        services = {f"{service} {what}" for service in ("Submission", "Search")
                    for what in ("server", "WSDL", "host", "schemas")}
        # The doctor warns of the host, because this library is made for a simulator.
        expected = (LOCAL | OWN | services) - {"LEJIS host"}
        self.assertLessEqual(expected, {subject for subject, (health, _) in found.items() if health == "ok"}, found)
        version = self.expect(DONE, "--version").splitlines()
        self.assertEqual(found[f"{BITS}-bit library"][1],
                         f"{version[1].split()[1]} for lejis.example, {version[2]}")

    def test_it_sends_nothing_but_questions_for_descriptions(self):
        self.in_schemas(DONE, "--url", self.url, "--search-url", self.search_url)
        self.assertEqual({exchange["method"] for exchange in self.exchanges()}, {"GET"})
        self.assertEqual(self.index(), [])

    def test_without_addresses_it_looks_at_this_machine_alone(self):
        found = set(self.findings(DONE))
        self.assertEqual(found - {"32-bit classes", "64-bit classes"}, LOCAL | LIBRARIES)
        self.assertEqual(self.exchanges(), [])

    def test_a_server_that_is_not_there_may_come(self):
        found = self.findings(TRY_AGAIN, "--url", "http://127.0.0.1:1/submission")
        self.expect_failure(found, "Submission server",
                            "takes no connection at this port\nSee that the LEJIS Interface runs")
        self.assertEqual([found[f"Submission {what}"][0] for what in ("WSDL", "host", "schemas")], ["skipped"] * 3)

    def test_what_may_pass_and_what_does_not_are_told_apart_and_together(self):
        nobody = "http://127.0.0.1:1/search"
        found = self.findings(BOTH, "--url", "nonsense", "--search-url", nobody)
        self.assertEqual([found[f"{service} server"][0] for service in ("Submission", "Search")], ["failed"] * 2)
        self.findings(BOTH, "--url", nobody, "--search-url", "nonsense")
        self.findings(TRY_AGAIN, "--search-url", nobody)
        self.findings(REFUSED, "--search-url", "nonsense")

    def test_an_invalid_address(self):
        for address in ("nonsense", "ftp://127.0.0.1/x", "http://", ""):
            with self.subTest(address):
                found = self.findings(REFUSED, "--url", address)
                self.assertIn("is no address of the web\nWrite it as in http://", found["Submission server"][1])

    def test_an_address_that_ends_in_wsdl(self):
        for end in ("?wsdl", "?WSDL"):
            with self.subTest(end):
                found = self.findings(REFUSED, "--url", self.url + end, "--search-url", self.search_url + end)
                for subject in ("Submission server", "Search server"):
                    self.expect_failure(found, subject, rf"ends in \?wsdl.*\nLeave \{end} away")

    def test_a_path_that_leads_to_no_service(self):
        found = self.findings(REFUSED, "--url", os.environ["LEJIS_SIMULATOR_URL"] + "/nothing")
        self.assertEqual(found["Submission server"][0], "ok")
        self.assertRegex(found["Submission WSDL"][1], r"status 404\nCorrect the path")

    def test_a_server_in_trouble(self):
        self.play(kind="http-status", status=503, target="wsdl")
        found = self.findings(TRY_AGAIN, "--url", self.url)
        self.assertRegex(found["Submission WSDL"][1], r"status 503\n")

    def test_something_else_than_a_wsdl(self):
        for kind in ("not-xml", "doctype"):
            self.play(kind=kind, target="wsdl")
            found = self.findings(REFUSED, "--url", self.url)
            self.assertRegex(found["Submission WSDL"][1], r"is no WSDL\nCorrect the address")

    def test_schemas_that_a_request_does_not_pass(self):
        self.play(kind="wrong-schema", target="wsdl", count=2)
        found = self.in_schemas(DONE, "--url", self.url)
        self.assertEqual(found["Submission schemas"][0], "warning")
        self.assertIn("\nLeave ValidateSchema off", found["Submission schemas"][1])

    def test_schemas_that_describe_no_request(self):
        self.play(kind="no-types", target="wsdl", count=3)
        health, text = self.in_schemas(DONE, "--url", self.url)["Submission schemas"]
        self.assertEqual(health, "warning")
        self.assertRegex(text, "a spoilt request passes them too: they do not describe requests\nDo not rely on")

    def test_a_time_limit_that_makes_no_sense(self):
        for limit in ("0", "3601", "soon", ""):
            run = self.lejis("doctor", "--timeout", limit)
            self.assertEqual((run.code, run.complaint.splitlines()[0]),
                             (WRONG_USAGE, f"lejis: --timeout: '{limit}' is not a whole number from 1 to 3600"))


if __name__ == "__main__":
    unittest.main()
