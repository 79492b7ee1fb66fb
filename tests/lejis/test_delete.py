"""lejis delete against the simulator."""
import unittest

from lejis_case import DONE, IN_VAIN, REFUSED, SAMPLES, TRY_AGAIN, WITHDRAW_AGAIN, SimulatorCase, card


class DeleteTest(SimulatorCase):
    def setUp(self):
        super().setUp()
        for number in (1, 2, 3):
            self.write(f"{number}.xml", card(f"2024-{number}"))
        self.expect(DONE, "submit", "?.xml", "--url", self.url)
        self.assertEqual(self.indexed(), ["2024-1", "2024-2", "2024-3"])

    def delete(self, code, *arguments):
        return self.expect(code, "delete", *arguments, "--url", self.url)

    def delete_named(self, code, incident, *more):
        return self.delete(code, "--ori", "PA0990100", "--id", incident, "--submitted", "2024-03-11", *more)

    def last_request(self):
        return self.control("GET", f"exchanges/{self.exchanges()[-1]['number']}/request")

    def test_by_files(self):
        self.assertEqual(self.delete(DONE, "1.xml", "3.xml"),
                         "1.xml  withdrawn\n3.xml  withdrawn\n\n2 files: 2 withdrawn.\n")
        self.assertEqual(self.indexed(), ["2024-2"])

    def test_by_identifiers(self):
        self.assertEqual(self.delete_named(DONE, "2024-2"), "PA0990100 2024-2  withdrawn\n")
        self.assertEqual(self.indexed(), ["2024-1", "2024-3"])
        self.assertIn(">2024-03-11</j:SubmissionSubmittedDate>", self.last_request())

    def test_the_agency_may_be_named(self):
        self.delete_named(DONE, "2024-2", "--organization", "Université Heights")
        self.assertEqual(self.indexed(), ["2024-1", "2024-3"])
        self.assertIn(">Université Heights</j:OrganizationName>", self.last_request())

    def test_only_the_identifiers_of_a_file_are_sent(self):
        self.expect(DONE, "submit", SAMPLES / "large.xml", "--url", self.url)
        self.delete(DONE, SAMPLES / "large.xml")
        self.assertEqual(self.indexed(), ["2024-1", "2024-2", "2024-3"])
        self.assertNotIn("ACKERMAN", self.last_request())

    def test_failures(self):
        self.play(kind="response-code", text="100 core offline")
        self.assertEqual(self.delete(TRY_AGAIN, "1.xml"),
                         "1.xml  unknown\n  ! LEJIS server is up, but LEJIS core system is offline.\n"
                         f"{WITHDRAW_AGAIN}")
        self.play(kind="soap-fault", message="Not yours.")
        self.assertEqual(self.delete_named(REFUSED, "2024-1"),
                         f"PA0990100 2024-1  refused\n  ! Not yours.\n{IN_VAIN}")
        self.assertEqual(self.indexed(), ["2024-1", "2024-2", "2024-3"])

    def test_the_rest_of_a_file_need_not_be_right(self):
        person = "<card:RMSPersonIndexCards><j:PersonBirthDate>soon</j:PersonBirthDate></card:RMSPersonIndexCards>"
        street = "<j:LocationStreet><j:StreetNumberText>99999999999</j:StreetNumberText></j:LocationStreet>"
        text = card("2024-1").replace("</lejis:", person + "</lejis:")
        self.write("1.xml", text.replace("<j:LocationPostal", street + "<j:LocationPostal"))
        self.assertEqual(self.delete(DONE, "1.xml"), "1.xml  withdrawn\n")
        self.assertEqual(self.indexed(), ["2024-2", "2024-3"])
        self.assertIn(">2024-03-11</j:SubmissionSubmittedDate>", self.last_request())
        self.assertIn(">Millbrook</j:OrganizationName>", self.last_request())

    def test_without_a_date_nothing_is_sent(self):
        element = "j:SubmissionSubmittedDate"
        lacks = f"The incident card lacks the day on which the incident is submitted ({element})."
        for text, told in {
                card("2024-1").replace("SubmittedDate>", "SubmitedDate>"):
                    f"{lacks}\n    Line 9: j:SubmissionSubmitedDate is not read; did you mean {element}?",
                card("2024-1").replace("<j:SubmissionSubmittedDate>2024-03-11</j:SubmissionSubmittedDate>", ""): lacks,
                card("2024-1").replace("2024-03-11", "2024-03-32"):
                    f"{element} '2024-03-32' cannot be read: it is not a date.",
                card("2024-1").replace("2024-03-11", ""): f"{element} '' cannot be read: it is not a date.",
        }.items():
            self.write("1.xml", text)
            output = self.delete(REFUSED, "1.xml")
            self.assertTrue(output.startswith(f"1.xml  not sent\n  ! {told}\n"), output)
        self.assertEqual(self.indexed(), ["2024-1", "2024-2", "2024-3"])

    def test_a_file_that_is_no_incident(self):
        self.write("a.xml", "<a>")
        self.assertIn("a.xml  not sent\n", self.delete(REFUSED, "a.xml", "2.xml"))
        self.assertEqual(self.indexed(), ["2024-1", "2024-3"])


if __name__ == "__main__":
    unittest.main()
