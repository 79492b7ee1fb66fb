"""What the submission address makes of what it is sent."""

import unittest

from lxml import etree

import documents
from documents import FULL, PREFIXES
from simulator_case import SimulatorCase

BARE = documents.submission(documents.bare_card())


def with_text(root: etree._Element, path: str, text: str) -> bytes:
    """The envelope with other text in one element."""
    documents.find(root, path).text = text
    return documents.text(root)


class SubmissionTest(SimulatorCase):
    """Adding, replacing, deleting."""

    def test_adds(self) -> None:
        status, answer = self.submit()
        self.assertEqual(200, status)
        root = etree.fromstring(answer.encode())
        response = root.findtext("soap:Body/lejis:submissionResponse", namespaces=PREFIXES)
        self.assertEqual("0 Accepted. Incidents: 1 added.", response)
        self.assertEqual([{
            "ori": "PA0123400", "id": "2007-000123", "submitted": "2007-03-10",
            "organization": "Millbrook Township Police", "activity_date": "2007-03-09",
            "persons": 1, "vehicles": 1, "property": 1, "caution": True,
        }], self.control("GET", "index"))

    def test_keeps_the_whole_card(self) -> None:
        self.submit()
        status, card = self.call("GET", "/control/index/card?ori=PA0123400&id=2007-000123")
        self.assertEqual(200, status)
        self.assertEqual(etree.tostring(documents.card(), method="c14n", exclusive=True,
                                        with_tail=False),
                         etree.tostring(etree.fromstring(card), method="c14n", exclusive=True))

    def test_replaces(self) -> None:
        self.submit()
        _, answer = self.submit(documents.submission(documents.card(charge="Affray")))
        self.assertIn("0 Accepted. Incidents: 1 replaced.", answer)
        self.assertEqual(["2007-000123"], self.held())
        _, card = self.call("GET", "/control/index/card?ori=PA0123400&id=2007-000123")
        self.assertIn(b"Affray", card)

    def test_deletes(self) -> None:
        self.submit()
        self.submit(documents.submission(documents.card("other")))
        status, answer = self.submit(BARE)
        self.assertEqual(200, status)
        self.assertIn("0 Accepted. Incidents: 1 deleted.", answer)
        self.assertEqual(["other"], self.held())

    def test_deleting_what_is_not_held_is_accepted(self) -> None:
        status, answer = self.submit(BARE)
        self.assertEqual(200, status)
        self.assertIn(">0 Accepted. Incidents: 1 to be deleted, of which nothing was held.<",
                      answer)

    def test_one_word_more_makes_a_card_full(self) -> None:
        for path, text in {"j:CaveatText": "x", "ext:CautionIndicatorFlag": "true",
                           ".//j:LocationCityName": "x", ".//j:StreetNumberText": "1"}.items():
            with self.subTest(path=path):
                self.control("DELETE", "index")
                card = documents.bare_card()
                documents.find(card, path).text = text
                self.assertIn("1 added", self.submit(documents.submission(card))[1])

    def test_one_part_more_makes_a_card_full(self) -> None:
        full = documents.card()
        for name in ("j:ActivityDate", "j:ChargeNCICCode", "j:ChargeDescriptionText",
                     "card:RMSPersonIndexCards", "card:RMSVehicleIndexCards",
                     "card:RMSPropertyIndexCards"):
            with self.subTest(name=name):
                self.control("DELETE", "index")
                card = documents.bare_card()
                names = {child.tag for child in card} | {full.find(name, PREFIXES).tag}
                if name == "j:ActivityDate":
                    names.add(full.find("j:ActivityTime", PREFIXES).tag)
                bare_children = {child.tag: child for child in card}
                card[:] = [bare_children.get(child.tag, child) for child in documents.card()
                           if child.tag in names]
                self.assertIn("1 added", self.submit(documents.submission(card))[1])

    def test_many_cards_at_once(self) -> None:
        self.submit()
        cards = [documents.bare_card(), documents.card("a"), documents.card("b"),
                 documents.card("a"), documents.bare_card("never")]
        _, answer = self.submit(documents.submission(*cards))
        self.assertIn("Incidents: 2 added, 1 replaced, 1 deleted, "
                      "1 to be deleted, of which nothing was held.", answer)
        self.assertEqual(["a", "b"], self.held())

    def test_no_card_at_all(self) -> None:
        self.assertIn("0 Accepted. Incidents: none.", self.submit(documents.submission())[1])


class SubmissionChecksTest(SimulatorCase):
    """Every check refuses by itself, with a fault, and the index stays as it was."""

    def refused(self, check: str, sentence: str, body: bytes = FULL, **headers: str) -> None:
        status, answer = self.submit(body, **headers)
        self.assertEqual(500, status, answer)
        root = etree.fromstring(answer.encode())
        self.assertEqual("soap:Client", root.findtext(".//faultcode"))
        self.assertIn(sentence, root.findtext("soap:Body/soap:Fault/faultstring",
                                              namespaces=PREFIXES))
        exchange = self.last_exchange()
        self.assertFalse(exchange["valid"])
        self.assertEqual(check, next(name for name, verdict in exchange["checks"].items()
                                     if verdict != "ok"))
        self.assertEqual([], self.held())

    def test_soap_action(self) -> None:
        right = documents.NAMES.submit_action
        for action in (f'"{right}"', "", right + "s", right.upper(),
                       "http://lejis.example/lejis/1.0/service/jxdm/searchIndex"):
            with self.subTest(action=action):
                self.refused("soap_action", "SOAPAction", SOAPAction=action)

    def test_content_type(self) -> None:
        for given in ("text/xml", "application/soap+xml;charset=utf-8",
                      "text/xml;charset=iso-8859-1", "text/xml;charset=\"utf-8\""):
            with self.subTest(given=given):
                self.refused("content_type", "Content-Type", Content_Type=given)

    def test_content_type_in_other_writing(self) -> None:
        status, _ = self.submit(Content_Type="Text/XML; charset=UTF-8")
        self.assertEqual(200, status)

    def test_well_formed(self) -> None:
        doctype = b"<!DOCTYPE soap:Envelope>"
        entity = b'<!DOCTYPE soap:Envelope [<!ENTITY e SYSTEM "file:///etc/hostname">]>'
        deep = b"<a>" * 5000 + b"</a>" * 5000
        for name, (body, sentence) in {
                "empty": (b"", "not well-formed"), "words": (b"hello", "not well-formed"),
                "cut": (FULL[:-20], "not well-formed"), "deep": (deep, "not well-formed"),
                "control character": (FULL.replace(b"FORD", b"F\x01"), "not well-formed"),
                "latin": (FULL.replace(b"FORD", b"F\xe9"), "not UTF-8"),
                "doctype": (doctype + FULL, "DOCTYPE"), "entity": (entity + FULL, "DOCTYPE"),
        }.items():
            with self.subTest(name=name):
                self.refused("well_formed", sentence, body)

    def test_envelope(self) -> None:
        for name, (old, new, sentence) in {
                "other root": (b"soap:Envelope", b"soap:Letter", "not a SOAP 1.1 envelope"),
                "SOAP 1.2": (b"http://schemas.xmlsoap.org/soap/envelope/",
                             b"http://www.w3.org/2003/05/soap-envelope", "not a SOAP 1.1 envelope"),
                "header": (b"<soap:Body>", b"<soap:Header/><soap:Body>", "exactly one soap:Body"),
                "no body": (b"soap:Body", b"soap:Torso", "exactly one soap:Body"),
                "two bodies": (b"</soap:Body>", b"</soap:Body><soap:Body/>",
                               "exactly one soap:Body"),
                "second payload": (b"</soap:Body>", b"<x/></soap:Body>", "SubmitRmsIndex"),
                "other payload": (b"lejis:SubmitRmsIndex", b"lejis:Other", "SubmitRmsIndex"),
                "text in body": (b"</soap:Body>", b"text</soap:Body>", "directly inside Body"),
                "text in envelope": (b"<soap:Body>", b"text<soap:Body>",
                                     "directly inside Envelope"),
        }.items():
            with self.subTest(name=name):
                self.refused("envelope", sentence, FULL.replace(old, new))

    def test_schema_names_the_first_error(self) -> None:
        root = documents.envelope()
        body = with_text(root, ".//j:PersonRaceCode", "X")
        self.refused("schema", "Element 'j:PersonRaceCode'", body)
        self.refused("schema", "Element 'j:PersonSexCode'",
                     with_text(root, ".//j:PersonSexCode", "X"))

    def test_all_checks_are_recorded(self) -> None:
        self.submit(b"<a/>", SOAPAction="x", Content_Type="y")
        verdicts = self.last_exchange()["checks"]
        self.assertEqual(["ok"], [verdict for verdict in verdicts.values() if verdict == "ok"])
        self.assertEqual("ok", verdicts["well_formed"])
        self.assertEqual("not reached", verdicts["schema"])

    def test_white_space_between_elements(self) -> None:
        for name, body in {
                "none": etree.tostring(etree.fromstring(
                    FULL, etree.XMLParser(remove_blank_text=True))),
                "tabs and line ends": FULL.replace(b"\n", b"\r\n\t"),
                "declaration and byte order mark":
                    b"\xef\xbb\xbf<?xml version=\"1.0\" encoding=\"utf-8\"?>\n" + FULL,
        }.items():
            with self.subTest(name=name):
                self.assertEqual(200, self.submit(body)[0])

    def test_the_good_one_is_recorded_as_valid(self) -> None:
        self.submit()
        exchange = self.last_exchange()
        self.assertTrue(exchange["valid"])
        self.assertEqual({"ok"}, set(exchange["checks"].values()))
        self.assertEqual((1, "POST", 200, None, len(FULL), documents.NAMES.submit_action),
                         tuple(exchange[key] for key in ("number", "method", "status", "fault",
                                                         "request_bytes", "soap_action")))


if __name__ == "__main__":
    unittest.main()
