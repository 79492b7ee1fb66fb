"""lejis doctor: whose service it is at an address, and how long it waits for one."""
import os
import subprocess
import time
import unittest
import urllib.request

from doctor_case import DoctorCase
from lejis_case import DONE, REFUSED, RUNNER, TIME_LIMIT, TRY_AGAIN
from registration import OTHER_HOST, register_for_other_host
from small_server import PageServer, SilentServer

HOST = b"lejis.example"


class SwappedAddressesTest(DoctorCase):
    def test_they_are_recognised_and_said(self):
        found = self.findings(REFUSED, "--url", self.search_url, "--search-url", self.url)
        self.expect_failure(found, "Submission WSDL",
                            "^this is the address of the search service, not of the submission service\n"
                            "Give it with --search-url")
        self.expect_failure(found, "Search WSDL",
                            "^this is the address of the submission service, not of the search service\n"
                            "Give it with --url")
        self.assertEqual({found[f"{service} {what}"][0] for service in ("Submission", "Search")
                          for what in ("host", "schemas")}, {"skipped"})

    def test_one_is_recognised_too(self):
        found = self.findings(REFUSED, "--search-url", self.url)
        self.expect_failure(found, "Search WSDL", "^this is the address of the submission service")


class DescriptionTest(DoctorCase):
    def wsdl(self, *changes):
        """The description of the submission service, with texts replaced."""
        with urllib.request.urlopen(self.url + "?wsdl", timeout=20) as answer:
            content = answer.read()
        for old, new in changes:
            self.assertIn(old, content)
            content = content.replace(old, new)
        return content

    def look_at(self, code, *changes):
        with PageServer(self.wsdl(*changes)) as server:
            return self.in_schemas(code, "--url", server.url)

    def test_a_service_of_another_lejis_host(self):
        found = self.look_at(REFUSED, (HOST, b"core.lejis.test"))
        self.expect_failure(found, "Submission host",
                            "^the library is made for the LEJIS host lejis.example, but the service's WSDL names "
                            "core.lejis.test\nInstall the library that is")
        self.assertEqual(found["Submission schemas"][0], "skipped")

    def test_another_host_in_the_soap_action_alone(self):
        found = self.look_at(REFUSED, (b'soapAction="http://lejis.example', b'soapAction="http://core.lejis.test'))
        self.expect_failure(found, "Submission host", "lejis.example, but .* names lejis.example and core.lejis.test")

    def test_another_host_in_the_namespaces_alone(self):
        found = self.look_at(REFUSED, (HOST, b"core.lejis.test"),
                             (b'soapAction="http://core.lejis.test', b'soapAction="'))
        self.expect_failure(found, "Submission host", "lejis.example, but .* names core.lejis.test")

    def test_another_soap_action_on_the_same_host(self):
        found = self.look_at(REFUSED, (b"jxdm/1.0/service/submitRmsIndex", b"jxdm/2.0/service/submitRmsIndex"))
        self.expect_failure(found, "Submission host",
                            r"sends the SOAP action \S+1.0/service/submitRmsIndex, but .* names "
                            r"\S+2.0/service/submitRms")

    def test_a_library_of_another_lejis_host(self):
        register_for_other_host(self)
        found = self.findings(REFUSED, "--url", self.url, "--search-url", self.search_url)
        health, text = found["LEJIS host"]
        self.assertEqual(health, "warning")
        self.assertTrue(text.startswith(f"{OTHER_HOST}, but this lejis is made for lejis.example "), text)
        for subject in ("Submission host", "Search host"):
            self.expect_failure(found, subject, f"made for the LEJIS host {OTHER_HOST}, but .* names lejis.example\n")

    def test_a_description_without_a_host(self):
        health, text = self.look_at(DONE, (HOST, b"names.of.others"), (b"/lejis/", b"/other/"))["Submission host"]
        self.assertEqual(health, "warning")
        self.assertIn("names no LEJIS host", text)

    def test_a_description_of_neither_service(self):
        found = self.look_at(DONE, (b"submitRmsIndex\">", b"other\">"),
                             (b"http://lejis.example/lejis/jxdm/1.0/service/submitRmsIndex", b""))
        health, text = found["Submission WSDL"]
        self.assertEqual(health, "warning")
        self.assertIn("names no operation of the submission service", text)


class TimeLimitTest(DoctorCase):
    def test_a_server_that_never_answers(self):
        with SilentServer() as server:
            started = time.monotonic()
            found = self.findings(TRY_AGAIN, "--url", server.url, "--timeout", "2")
        self.assertLess(time.monotonic() - started, TIME_LIMIT / 2)
        self.expect_failure(found, "Submission server",
                            "^no answer within 2 seconds\nSee that the LEJIS Interface runs")
        self.assertEqual(found["Debug dumps"][0], "ok")

    def test_a_server_that_answers_bit_by_bit(self):
        self.play(kind="trickle", seconds=40, target="wsdl")
        found = self.findings(TRY_AGAIN, "--url", self.url, "--timeout", "2")
        self.expect_failure(found, "Submission server", "^no answer within 2 seconds")

    def test_schemas_that_do_not_come(self):
        self.play(kind="slow", seconds=40, target="schema")
        health, text = self.in_schemas(DONE, "--url", self.url, "--timeout", "3")["Submission schemas"]
        self.assertEqual(health, "warning")
        self.assertRegex(text, "^no answer within 3 seconds\nLeave ValidateSchema off")

    def test_each_line_comes_as_soon_as_it_is_known(self):
        with SilentServer() as server, subprocess.Popen(
                [RUNNER, os.environ["LEJIS_EXE"], "doctor", "--url", server.url, "--timeout", "4"],
                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as process:
            times = {line[9:29].strip(): time.monotonic() for line in process.stdout}
        self.assertGreater(times[b"Submission server"] - times[b"Proxy"], 3)


if __name__ == "__main__":
    unittest.main()
