"""lejis show: the request that would be sent."""
import json
import re
import unittest

from lejis_case import DONE, NAMESPACES, REFUSED, SAMPLES, WRONG_USAGE, LejisCase, SimulatorCase, card

MISSPELT = card().replace("j:ChargeNCICCode", "j:ChargeNcicCode")
LOSS = "Line 16: j:ChargeNcicCode is not read; did you mean j:ChargeNCICCode?"


def on_the_wire(shown):
    """The document without what is there for readers alone."""
    return re.sub(r">\n *<", "><", shown).rstrip("\n")


class RequestTest(SimulatorCase):
    def test_it_is_the_request_that_submit_sends(self):
        for name in ("burglary", "international", "many-warnings", "vehicle-theft"):
            with self.subTest(name):
                shown = self.lejis("show", SAMPLES / f"{name}.xml").output
                self.control("DELETE", "exchanges")
                self.expect(DONE, "submit", SAMPLES / f"{name}.xml", "--url", self.url)
                sent = self.control("GET", "exchanges/1/request")
                self.assertGreater(len(sent), 5000)
                self.assertTrue(on_the_wire(shown) == sent.rstrip("\n"), "the request is another one")

    def test_nothing_is_sent(self):
        self.expect(DONE, "show", SAMPLES / "burglary.xml")
        self.assertEqual(self.exchanges(), [])


class ShowTest(LejisCase):
    def test_each_element_has_a_line_and_texts_stay_as_they_are(self):
        self.write("a.xml", card().replace("Millbrook", "Smith &amp; Sons\n  &lt;West&gt; \u00e9\U00020bb7"))
        lines = self.expect(DONE, "show", "a.xml").split("\n")
        self.assertEqual([re.sub(" xmlns.*?\".*?\"", "", line) for line in lines[:5]],
                         ["<soap:Envelope>", "  <soap:Body>", "    <lejis:SubmitRmsIndex>",
                          "      <lejis:RMSIncidentIndexCard>", "        <card:LejisIndexUid>"])
        place = next(number for number, line in enumerate(lines) if "<j:OrganizationName" in line)
        self.assertTrue(lines[place].endswith(">Smith &amp; Sons"), lines[place])
        self.assertEqual(lines[place + 1], "  &lt;West&gt; \u00e9\U00020bb7</j:OrganizationName>")

    def test_what_differs_from_the_file_is_told_beside_the_request(self):
        self.write("a.xml", MISSPELT.replace("17099", "170991234"))
        run = self.lejis("show", "a.xml")
        self.assertEqual((run.code, run.complaint),
                         (DONE, f"This differs from the file:\n  \u2022 {LOSS}\n  \u2022 Main record: 9-digit ZIP code "
                          "'170991234' will be sent as '17099'\n"))
        self.assertIn(">17099<", run.output)
        self.assertNotIn("2202", run.output)

    def test_a_request_that_would_be_refused_says_so(self):
        self.write("a.xml", card(ori="PA09"))
        run = self.lejis("show", "a.xml")
        self.assertEqual(run.code, REFUSED)
        self.assertIn(">PA09<", run.output)
        self.assertTrue(run.complaint.startswith("This would not be sent:\n  ! 'PA09' is not a valid ORI"), run)

    def test_what_is_no_incident(self):
        self.write("a.xml", f"<lejis:RMSIncidentIndexCard{NAMESPACES}/>")
        for name, reason in (("a.xml", "The incident card lacks "), ("b.xml", "There is no such file."),
                             ("*.txt", "No file matches this pattern.")):
            run = self.lejis("show", name)
            self.assertEqual((run.code, run.output), (REFUSED, ""))
            self.assertTrue(run.complaint.startswith(f"Unreadable:\n  ! {reason}"), run)

    def test_one_file_alone_is_shown(self):
        for name in ("a.xml", "b.xml"):
            self.write(name, card())
        for arguments, reason in (((), "no file given"), (("a.xml", "b.xml"), "unexpected argument b.xml"),
                                  (("*.xml",), "show takes one file, and here are 2"),
                                  (("a.xml", "--url", "u"), "unknown option --url")):
            self.assertEqual(self.lejis("show", *arguments),
                             (WRONG_USAGE, "", f"lejis: {reason}\nTry lejis show --help\n"))
        self.assertEqual(self.expect(DONE, "show", "a*.xml"), self.expect(DONE, "show", "a.xml"))

    def test_json(self):
        self.write("a.xml", MISSPELT)
        document = json.loads(self.expect(DONE, "show", "a.xml", "--json"))
        self.assertEqual(document["request"], self.lejis("show", "a.xml").output)
        self.assertEqual((document["command"], document["name"], document["errors"], document["warnings"]),
                         ("show", "a.xml", [], [LOSS]))
        none = json.loads(self.expect(REFUSED, "show", "b.xml", "--json"))
        self.assertEqual((none["request"], none["errors"]), (None, ["There is no such file."]))


if __name__ == "__main__":
    unittest.main()
