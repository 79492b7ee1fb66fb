"""lejis check: what the formatter and the validator say."""
import unittest

from lejis_case import DONE, REFUSED, LejisCase, card

WARNING = ("  \u2022 Main record: Charge NCIC code '9999' is not a valid NCIC offense code. "
           "Will submit a blank code instead.\n")
ERROR = ("  ! Main record: '1709' is not a valid ZIP code. ZIP codes submitted to LEJIS must be 5 digits long, "
         "or left blank.\n")


class CheckTest(LejisCase):
    def test_a_clean_incident(self):
        self.write("a.xml", card())
        self.assertEqual(self.expect(DONE, "check", "a.xml"), "a.xml  fit for submission\n")

    def test_warnings_do_not_refuse(self):
        self.write("a.xml", card(charge="9999"))
        self.assertEqual(self.expect(DONE, "check", "a.xml"), f"a.xml  fit for submission with 1 warning\n{WARNING}")

    def test_errors_and_warnings_are_all_told(self):
        self.write("a.xml", card(zip_code="1709", charge="9999", ori="PA09"))
        self.assertEqual(self.expect(REFUSED, "check", "a.xml"),
                         "a.xml  refused: 2 errors, 1 warning\n"
                         "  ! 'PA09' is not a valid ORI number. An ORI number must be 9 characters long. "
                         f"Check Agency settings in Administration.\n{ERROR}{WARNING}")

    def test_empty_identifiers_are_the_validators_business(self):
        self.write("a.xml", card(incident_id=""))
        self.assertEqual(self.expect(REFUSED, "check", "a.xml"), "a.xml  refused\n  ! ID is required.\n")

    def test_what_is_checked_is_the_shaped_copy(self):
        self.write("a.xml", card(zip_code="170991234"))
        self.assertEqual(self.expect(DONE, "check", "a.xml"),
                         "a.xml  fit for submission with 1 warning\n"
                         "  \u2022 Main record: 9-digit ZIP code '170991234' will be sent as '17099'\n")

    def test_results_are_aligned_and_summed_up(self):
        self.write("a.xml", card())
        self.write("longer.xml", card(charge="9999"))
        self.write("c.xml", card(zip_code="1709"))
        self.assertEqual(self.expect(REFUSED, "check", "a.xml", "longer.xml", "c.xml"),
                         f"a.xml       fit for submission\nlonger.xml  fit for submission with 1 warning\n{WARNING}"
                         f"c.xml       refused\n{ERROR}\n3 files: 2 fit for submission (1 with warnings), 1 refused.\n")

    def test_results_of_many_files_are_numbered(self):
        for number in range(12):
            self.write(f"{number:02}.xml", card())
        lines = self.expect(DONE, "check", "*.xml").splitlines()
        self.assertEqual(lines[0], "[ 1/12] 00.xml  fit for submission")
        self.assertEqual(lines[11], "[12/12] 11.xml  fit for submission")


if __name__ == "__main__":
    unittest.main()
