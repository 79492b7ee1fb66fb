import unittest

from sample_case import PROCESSOR, SAMPLES, SampleCase
from sample_tests import SearchTests, SubmissionTests

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


class SubmitTest(SubmissionTests, SampleCase):
    def submit(self, *arguments):
        return self.script(FOLDER / "submit.vbs", *arguments)


class SearchTest(SearchTests, SampleCase):
    def submit(self, *arguments):
        return self.script(FOLDER / "submit.vbs", *arguments)

    def search(self, *arguments):
        return self.script(self.adapted(FOLDER / "search.vbs", {CONNECT: "", SLEEP: ASK}), *arguments)


if __name__ == "__main__":
    unittest.main()
