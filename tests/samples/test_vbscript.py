import unittest

from sample_case import DONE, PROCESSOR, REFUSED, SAMPLES, SEARCH, SUBMISSION, TRY_AGAIN, SampleCase

FOLDER = SAMPLES / "vbscript"

# Wine's cscript connects no events, and that of Wine 8 cannot sleep, so no event can reach a script. The script's
# search is sent all the same; then the sleep is replaced by asking once more and handing the answer, as the library
# reads it, to the handler.
CONNECT = 'WScript.ConnectObject service, "service_"\n'
SLEEP = "    WScript.Sleep 50\n"
ASK = """    Dim post, answer
    Set post = WScript.CreateObject("MSXML2.XMLHTTP.6.0")
    post.open "POST", service.URL, False
    post.setRequestHeader "SOAPAction", "http://lejis.example/lejis/1.0/service/jxdm/searchIndex"
    post.setRequestHeader "Content-Type", "text/xml;charset=utf-8"
    post.send "<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'><soap:Header><wsse:Security " & _
        "xmlns:wsse='http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd'>" & _
        "<wsse:UsernameToken><wsse:Username>" & service.Username & "</wsse:Username></wsse:UsernameToken>" & _
        "</wsse:Security></soap:Header><soap:Body>" & request.ToXmlDocument().documentElement.xml & _
        "</soap:Body></soap:Envelope>"
    Set answer = CreateObject("TVLejisCore.LejisInquiryResponse")
    answer.FromXmlDocument post.responseXML
    service_SearchCompleted answer.IncidentIndexCards
"""


class BitnessTest(SampleCase):
    def test_the_scripts_run_in_the_bitness_of_the_library(self):
        path = self.folder / "bitness.vbs"
        path.write_text('WScript.Echo WScript.CreateObject("WScript.Shell").ExpandEnvironmentStrings('
                        '"%PROCESSOR_ARCHITECTURE%")\n')
        self.assertEqual(self.script(path).output, f"{PROCESSOR}\n")


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
        for own, stand_in in ((CONNECT, ""), (SLEEP, ASK)):
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
