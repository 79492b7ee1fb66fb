import unittest

from sample_case import SAMPLES, SampleCase
from sample_tests import SearchTests, SubmissionTests

FOLDER = SAMPLES / "jscript"

# As in test_vbscript.py: no event can reach a script of Wine's.
CONNECT = 'WScript.ConnectObject(service, "service_");\n'
SLEEP = "    WScript.Sleep(50);\n"
ASK = """    var post = new ActiveXObject("MSXML2.XMLHTTP.6.0");
    post.open("POST", service.URL, false);
    post.setRequestHeader("SOAPAction", "http://lejis.example/lejis/1.0/service/jxdm/searchIndex");
    post.setRequestHeader("Content-Type", "text/xml;charset=utf-8");
    post.send("<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'><soap:Header><wsse:Security " +
        "xmlns:wsse='http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd'>" +
        "<wsse:UsernameToken><wsse:Username>" + service.Username + "</wsse:Username></wsse:UsernameToken>" +
        "</wsse:Security></soap:Header><soap:Body>" + request.ToXmlDocument().documentElement.xml +
        "</soap:Body></soap:Envelope>");
    var answer = new ActiveXObject("TVLejisCore.LejisInquiryResponse");
    answer.FromXmlDocument(post.responseXML);
    service_SearchCompleted(answer.IncidentIndexCards);
"""


class SampleTest(SampleCase):
    def submit(self, *arguments):
        return self.script(FOLDER / "submit.js", *arguments)

    def search(self, *arguments):
        return self.script(self.adapted(FOLDER / "search.js", {CONNECT: "", SLEEP: ASK}), *arguments)


class SubmitTest(SubmissionTests, SampleTest):
    pass


class SearchTest(SearchTests, SampleTest):
    pass


if __name__ == "__main__":
    unittest.main()
