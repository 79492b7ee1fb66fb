"""lejis submit against the simulator."""
import os
import unittest

from lejis_case import (BOTH, DONE, IN_VAIN, NOTHING_SENT, NOTHING_SENT_IN_VAIN, REFUSED, SEND_AGAIN, TRY_AGAIN,
                        SimulatorCase, card)

UNEXPECTED = """  ! The LEJIS server returned an unexpected error.\u0020

    Check that the correct JNET User ID is configured for your user account in Administration and that the machine \
where the LEJIS Interface is running has a valid LEJIS certificate installed and configured.

    If the issue persists, check the LEJISRedirector log on your LEJIS Interface machine/server.
"""

TRANSIENT = [
    ({"kind": "response-code", "text": "100 core offline"},
     "  ! LEJIS server is up, but LEJIS core system is offline.\n"),
    ({"kind": "response-code", "text": "7 bad card"},
     "  ! Unexpected error returned from LEJIS: 7 bad card\n"),
    ({"kind": "http-status", "status": 502}, UNEXPECTED),
    ({"kind": "not-xml"},
     "  ! The LEJIS core server appears to be partially offline. It returned a 200 HTTP status code "
     "but did not return a valid SOAP XML response.\n"),
    ({"kind": "no-response-element"}, "  ! The server did not return a submissionResponse code.\n"),
]

FATAL = [
    ({"kind": "soap-fault", "status": 500, "message": "The agency is not known here."},
     "  ! The agency is not known here.\n"),
    ({"kind": "http-status", "status": 403, "reason": "No certificate"}, "  ! No certificate\n"),
]


class SubmitTest(SimulatorCase):
    def submit(self, code, *files, url=None, **options):
        return self.expect(code, "submit", *files, "--url", self.url if url is None else url, **options)

    def test_an_incident_reaches_the_index(self):
        self.write("a.xml", card("2024-7"))
        self.assertEqual(self.submit(DONE, "a.xml"), "a.xml  submitted\n")
        self.assertEqual(self.indexed(), ["2024-7"])
        self.assertEqual([exchange["valid"] for exchange in self.exchanges()], [True])

    def test_the_address_may_follow_an_equals_sign_and_precede_the_files(self):
        self.write("a.xml", card("2024-7"))
        self.assertEqual(self.expect(DONE, "submit", f"--url={self.url}", "a.xml"), "a.xml  submitted\n")
        self.assertEqual(self.indexed(), ["2024-7"])

    def test_warnings_are_told(self):
        self.write("a.xml", card(charge="9999"))
        self.assertEqual(self.submit(DONE, "a.xml"),
                         "a.xml  submitted with 1 warning\n"
                         "  \u2022 Main record: Charge NCIC code '9999' is not a valid NCIC offense code. "
                         "Will submit a blank code instead.\n")
        self.assertEqual(len(self.index()), 1)

    def test_what_the_validator_refuses_is_not_sent(self):
        self.write("a.xml", card(zip_code="1709"))
        self.assertEqual(self.submit(REFUSED, "a.xml"),
                         "a.xml  refused\n  ! Main record: '1709' is not a valid ZIP code. ZIP codes submitted to "
                         f"LEJIS must be 5 digits long, or left blank.\n{IN_VAIN}")
        self.assertEqual(self.exchanges(), [])

    def test_unreadable_files_are_not_sent(self):
        self.write("a.xml", "<a>")
        self.assertIn("a.xml  not sent\n  ! Line 1: ", self.submit(REFUSED, "a.xml"))
        self.assertEqual(self.exchanges(), [])

    def test_transient_failures(self):
        self.write("a.xml", card())
        for fault, text in TRANSIENT:
            with self.subTest(fault):
                self.play(**fault)
                self.assertEqual(self.submit(TRY_AGAIN, "a.xml"), f"a.xml  unknown\n{text}{SEND_AGAIN}")
        self.assertEqual(self.index(), [])

    def test_fatal_failures(self):
        self.write("a.xml", card())
        for fault, text in FATAL:
            with self.subTest(fault):
                self.play(**fault)
                self.assertEqual(self.submit(REFUSED, "a.xml"), f"a.xml  refused\n{text}{IN_VAIN}")
        self.assertEqual(self.index(), [])

    def test_addresses_that_lead_nowhere(self):
        self.write("a.xml", card())
        self.assertEqual(self.submit(TRY_AGAIN, "a.xml", url="http://127.0.0.1:1/submission"),
                         "a.xml  not sent\n  ! The LEJIS Interface service is down. It may need to be restarted."
                         f"\n{NOTHING_SENT}")
        for url in ("no address", ""):
            self.assertEqual(self.submit(REFUSED, "a.xml", url=url),
                             f"a.xml  not sent\n  ! Invalid URL '{url}'\n{NOTHING_SENT_IN_VAIN}")

    def test_what_an_answer_says_to_terminals_is_not_passed_on(self):
        self.write("a.xml", card())
        self.play(kind="soap-fault", status=500, message="Not\u009b2J known.\nCall us.")
        self.assertEqual(self.submit(REFUSED, "a.xml"), f"a.xml  refused\n  ! Not 2J known.\n    Call us.\n{IN_VAIN}")

    def test_mixed_outcomes(self):
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2", charge="9999"))
        self.write("c.xml", card("2024-3", zip_code="1"))
        self.write("d.xml", "<a>")
        self.write("e.xml", card("2024-5"))
        self.play(kind="http-status", status=502)
        output = self.submit(BOTH, "*.xml")
        results = [line for line in output.splitlines() if line.startswith("[")]
        self.assertEqual(results, ["[1/5] a.xml  unknown", "[2/5] b.xml  submitted with 1 warning",
                                   "[3/5] c.xml  refused", "[4/5] d.xml  not sent", "[5/5] e.xml  submitted"])
        self.assertTrue(output.endswith(
            "\n\n5 files: 2 submitted (1 with warnings), 1 refused, 1 not sent, 1 unknown.\n"), output)
        self.assertEqual(self.indexed(), ["2024-2", "2024-5"])

    def test_only_transient_failures_among_successes(self):
        self.write("a.xml", card("2024-1"))
        self.write("b.xml", card("2024-2"))
        self.play(kind="http-status", status=502)
        output = self.submit(TRY_AGAIN, "a.xml", "b.xml")
        self.assertTrue(output.endswith("\n\n2 files: 1 submitted, 1 unknown.\n"), output)
        self.assertEqual(self.indexed(), ["2024-2"])


class ValidateSchemaTest(SimulatorCase):
    def submit(self, code):
        # Wine takes one schema's reference to another as relative to the current folder.
        return self.expect(code, "submit", self.write("a.xml", card()), "--url", self.url, "--validate-schema",
                           folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])

    def asked_for_wsdl(self):
        return any(exchange["path"].lower().endswith("?wsdl") for exchange in self.exchanges())

    def test_the_schema_is_asked_for(self):
        self.assertIn("a.xml  submitted\n", self.submit(DONE))
        self.assertTrue(self.asked_for_wsdl())
        self.assertEqual(self.indexed(), ["2024-1"])

    def test_a_request_that_the_schema_refuses_is_not_sent(self):
        self.play(kind="wrong-schema", target="wsdl")
        output = self.submit(REFUSED)
        self.assertIn("a.xml  refused\n", output)
        self.assertIn("Schema validation error: ", output)
        self.assertEqual(self.index(), [])

    def test_without_the_option_nobody_asks(self):
        self.expect(DONE, "submit", self.write("a.xml", card()), "--url", self.url)
        self.assertFalse(self.asked_for_wsdl())


if __name__ == "__main__":
    unittest.main()
