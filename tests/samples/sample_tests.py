"""What every sample of a submission, and every one of a search, does, in whatever language it is written."""
from sample_case import DONE, REFUSED, SEARCH, SUBMISSION, TRY_AGAIN


class SubmissionTests:
    """For a test that has submit(URL) and is a SampleCase."""

    def test_the_warnings_are_listed(self):
        run = self.submit(SUBMISSION)
        self.assertEqual(run.code, DONE, run)
        first, zip_code, race = run.output.splitlines()
        self.assertEqual(first, "Submitted with 2 warning(s).")
        self.assertIn("'170991234' will be sent as '17099'", zip_code)
        self.assertIn("'X' is not a valid NCIC race code", race)
        self.assertEqual(self.indexed(), ["2007-000123"])

    def test_a_passing_failure_may_be_tried_again(self):
        self.play(kind="response-code", text="100 core offline")
        self.assertEqual(self.submit(SUBMISSION), (
            TRY_AGAIN, "Not sent, try again later: LEJIS server is up, but LEJIS core system is offline.\n"))

    def test_a_refusal_is_final(self):
        self.play(kind="soap-fault", message="The agency is not known here.")
        self.assertEqual(self.submit(SUBMISSION), (REFUSED, "Refused: The agency is not known here.\n"))


class SearchTests:
    """For a test that has submit(URL) and search(URL, USER, SURNAME) and is a SampleCase."""

    def search_for(self, surname="PUBLIC", url=SEARCH):
        return self.search(url, "jdoe", surname)

    def test_the_incidents_found_are_walked(self):
        self.assertEqual(self.submit(SUBMISSION).code, DONE)
        self.assertEqual(self.search_for(), (DONE, "1 incident(s) found.\n"
                                                   "PA0250100 2007-000123 Burglary, forced entry, residence\n"
                                                   "    JOHN PUBLIC (VICTIM)\n"))

    def test_nothing_found_is_an_answer(self):
        self.assertEqual(self.search_for(surname="NOBODY"), (DONE, "0 incident(s) found.\n"))


class SearchFailureTests:
    """The same for samples whose events can come."""

    def test_a_passing_failure_may_be_tried_again(self):
        self.play(target="search", kind="http-status", status=502, reason="")
        self.assertEqual(self.search_for(), (
            TRY_AGAIN,
            "No answer, try again later: The LEJIS server returned HTTP status code 502 (no message text)\n"))

    def test_a_refusal_is_final(self):
        self.play(target="search", kind="soap-fault", message="Not today.")
        self.assertEqual(self.search_for(), (REFUSED, "Refused: Not today.\n"))

    def test_wrong_settings_are_told_apart(self):
        self.assertEqual(self.search_for(url="no address"), (
            REFUSED, "Not set up correctly, tell the administrator: Invalid URL 'no address'.\n"))
