import unittest

from sample_case import DONE, REFUSED, SAMPLES, SEARCH, SUBMISSION, TRY_AGAIN, SampleCase

FOLDER = SAMPLES / "vbscript"

# Wine's cscript cannot sleep: a request that is waited for serves the message loop as well.
SLEEP = "    WScript.Sleep 50\n"
WAIT = """    Dim request2
    Set request2 = CreateObject("MSXML2.XMLHTTP.6.0")
    request2.open "GET", "{url}?wsdl", False
    request2.send
    If Not service.results Is Nothing Then service_SearchCompleted service.results
"""
# Nor does it connect events: the handler is called as soon as the service has results.
CONNECT = 'WScript.ConnectObject service, "service_"\n'


class SubmitTest(SampleCase):
    def submit(self):
        return self.script(FOLDER / "submit.vbs", SUBMISSION)

    def test_the_warnings_are_listed(self):
        run = self.submit()
        self.assertEqual(run.code, DONE, run)
        first, zip_code, race = run.output.splitlines()
        self.assertEqual(first, "Submitted with 2 warning(s).")
        self.assertIn("'170991234' will be sent as '17099'", zip_code)
        self.assertIn("'X' is not a valid NCIC race code", race)
        self.assertEqual(self.indexed(), ["2007-000123"])

    def test_a_passing_failure_may_be_tried_again(self):
        self.play(kind="response-code", text="100 core offline")
        run = self.submit()
        self.assertEqual(run.code, TRY_AGAIN, run)
        self.assertEqual(run.output,
                         "Not sent, try again later: LEJIS server is up, but LEJIS core system is offline.\n")

    def test_a_refusal_is_final(self):
        self.play(kind="soap-fault", message="The agency is not known here.")
        self.assertEqual(self.submit(), (REFUSED, "Refused: The agency is not known here.\n"))


class SearchTest(SampleCase):
    def adapted(self):
        text = (FOLDER / "search.vbs").read_text()
        for own, stand_in in ((CONNECT, ""), (SLEEP, WAIT.format(url=SEARCH))):
            self.assertEqual(text.count(own), 1, own)
            text = text.replace(own, stand_in)
        path = self.folder / "search.vbs"
        path.write_text(text)
        return path

    def test_the_incidents_found_are_walked(self):
        self.assertEqual(self.script(FOLDER / "submit.vbs", SUBMISSION).code, DONE)
        run = self.script(self.adapted(), SEARCH, "jdoe", "PUBLIC")
        self.assertEqual(run, (DONE, "1 incident(s) found.\n"
                                     "PA0250100 2007-000123 Burglary, forced entry, residence\n"
                                     "    JOHN PUBLIC (VICTIM)\n"))

    def test_nothing_found_is_an_answer(self):
        self.assertEqual(self.script(self.adapted(), SEARCH, "jdoe", "NOBODY"), (DONE, "0 incident(s) found.\n"))


if __name__ == "__main__":
    unittest.main()
