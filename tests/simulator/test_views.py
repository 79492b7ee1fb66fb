"""What people read of cards and messages."""

import gzip
import http.client
import unittest
from unittest import mock

from lxml import etree

import documents
from documents import NAMES
from simulator_case import SimulatorCase

from views import raw_message
from views.card_view import CardView
from views.message_view import MAX_SHOWN
from views.raw_message import RawMessage

OK = b"HTTP/1.1 200 OK\r\n"


class CardViewTest(unittest.TestCase):
    """A card in words."""

    def view(self, card: etree._Element) -> dict:
        return CardView(etree.tostring(card, encoding="unicode", with_tail=False), NAMES).to_json()

    def test_full_card(self) -> None:
        view = self.view(documents.card())
        self.assertEqual(("2007-000123", "PA0123400"), (view["id"], view["ori"]))
        titles = [(one["title"], one["role"], one["caution"]) for one in view["sections"]]
        self.assertEqual([("Incident", "", True), ("Person: PUBLIC, JOHN Q", "SUSPECT", True),
                          ("Vehicle: 2004 FORD F150", "", False), ("Property", "", False)], titles)
        incident, person, vehicle, things = (dict(one["rows"]) for one in view["sections"])
        self.assertEqual("12 N Main St, Apt 4, Millbrook, PA 17000", incident["Place"])
        for label, text in {"SSN": "123-45-6789", "Height": "5 ft 10 in", "Weight": "180 lb",
                            "Sex": "Male (M)", "Race": "White (W)", "Caution": "Resists"}.items():
            self.assertEqual(text, person[label])
        self.assertEqual("ABC1234", vehicle["Licence plate"])
        self.assertEqual("S-1", things["Serial number"])

    def test_every_text_of_the_card_is_shown(self) -> None:
        card = documents.card()
        number = 0
        for element in card.iter(etree.Element):
            name = etree.QName(element).localname
            if len(element) or name.endswith("Flag") or name.startswith("Street"):
                continue
            number += 1
            element.text = f"text-{number:03}"
        view = self.view(card)
        shown = [view["id"], view["ori"]] + [
            text for one in view["sections"]
            for text in (one["title"], one["role"], *(text for _, text in one["rows"]))]
        for one in range(1, number + 1):
            self.assertTrue(any(f"text-{one:03}" in text for text in shown), one)

    def test_what_is_missing_or_odd(self) -> None:
        sections = self.view(documents.bare_card())["sections"]
        self.assertEqual(["Incident"], [one["title"] for one in sections])
        self.assertNotIn("Place", dict(sections[0]["rows"]))
        card = documents.card()
        for name in ("PersonSurName", "PersonGivenName", "PersonMiddleName", "VehicleMakeText",
                     "VehicleModelCodeText", "VehicleModelYearDate"):
            documents.find(card, f".//*[local-name()='{name}']").text = " "
        for name, text in (("PersonHeightMeasure", "tall"), ("PersonWeightMeasure", ""),
                           ("PersonSexCode", "Q")):
            documents.find(card, f".//*[local-name()='{name}']").text = text
        sections = self.view(card)["sections"]
        self.assertEqual(["Person: no name", "Vehicle: no make"],
                         [one["title"] for one in sections[1:3]])
        person = dict(sections[1]["rows"])
        self.assertEqual(("tall", "Q", None),
                         (person["Height"], person["Sex"], person.get("Weight")))


class RawMessageTest(unittest.TestCase):
    """Messages in any state."""

    def body(self, raw: bytes) -> tuple[bytes, int]:
        message = RawMessage(raw)
        return message.body, len(message.notes)

    def test_plain(self) -> None:
        message = RawMessage(OK + b"X: y\r\n\r\nbody\r\n\r\nmore")
        self.assertEqual((b"body\r\n\r\nmore", "y"), (message.body, message.headers["x"]))
        self.assertEqual((b"body", 0), self.body(OK.replace(b"\r", b"") + b"\nbody"))

    def test_what_is_no_message(self) -> None:
        for raw, body in ((b"", b""), (b"words\r\n\r\nwords", b""), (OK + b"Conte", b""),
                          (b"\x00\xff", b"\x00\xff"), (b"<html>", b"<html>")):
            with self.subTest(raw=raw):
                if raw.startswith(b"words"):
                    body = b"words"
                self.assertEqual((body, 0), self.body(raw))

    def test_interim_responses_are_head(self) -> None:
        raw = b"HTTP/1.1 100 Continue\r\n\r\n" + OK + b"A: b\r\n\r\nbody"
        message = RawMessage(raw)
        self.assertEqual((b"body", "b"), (message.body, message.headers["A"]))
        self.assertIn("100 Continue", message.head)

    def test_chunks(self) -> None:
        head = OK + b"Transfer-Encoding: chunked\r\n\r\n"
        for chunks, body in ((b"3\r\nabc\r\n2;x=y\r\nde\r\n0\r\n\r\n", b"abcde"),
                             (b"0\r\n\r\n", b""), (b"3\r\nab", b"ab"), (b"x\r\nab", b""), (b"", b""),
                             (b"3\r\nabc\r\n-1\r\n", b"abc")):
            with self.subTest(chunks=chunks):
                self.assertEqual((body, 1), self.body(head + chunks))

    def test_packed(self) -> None:
        head = OK + b"Content-Encoding: gzip\r\n\r\n"
        packed = gzip.compress(b"<?xml version='1.0'?><a/>")
        self.assertEqual((b"<?xml version='1.0'?><a/>", 1), self.body(head + packed))
        self.assertEqual((b"no gzip", 1), self.body(head + b"no gzip"))
        with mock.patch.object(raw_message, "MAX_UNPACKED_BYTES", 10):
            self.assertEqual((b"x" * 10, 1), self.body(head + gzip.compress(b"x" * 1000)))


class MessageViewTest(SimulatorCase):
    """Through the control call that the page makes."""

    def response(self, **fault: object) -> dict:
        self.control("DELETE", "faults")
        self.order(**fault)
        try:
            self.submit()
        except (OSError, http.client.HTTPException):
            pass  # Some faults leave no answer to read.
        number = self.last_exchange()["number"]
        return self.control("GET", f"exchanges/{number}")["response"]

    def test_objections_to_an_answer(self) -> None:
        self.assertEqual([], self.response(kind="response-code", text="0 fine")["schema"])
        view = self.response(kind="no-response-element")
        self.assertEqual(1, len(view["schema"]))
        self.assertTrue(view["xml"])
        self.assertIsNone(self.response(kind="soap-fault")["schema"])

    def test_declarations_stand_at_the_top(self) -> None:
        lejis, soap = NAMES.service, "http://schemas.xmlsoap.org/soap/envelope/"
        self.submit(f'<s:Envelope xmlns:s="{soap}"><s:Body><l:a xmlns:l="{lejis}"><l:b xmlns:l='
                    f'"{lejis}"/><l:c xmlns:l="urn:other"/></l:a></s:Body></s:Envelope>'.encode())
        shown = self.control("GET", "exchanges/1")["request"]["body"]
        self.assertEqual(1, shown.count(lejis))
        self.assertIn("<l:b/>", shown)
        self.assertEqual([f"{{{lejis}}}b", "{urn:other}c"],
                         [one.tag for one in etree.fromstring(shown)[0][0]])

    def test_what_does_not_parse_is_shown_as_it_is(self) -> None:
        view = self.response(kind="not-xml")
        self.assertEqual(("This is no XML at all.", False), (view["body"], view["xml"]))
        self.assertIn("The body is not well-formed XML", view["notes"][0])
        view = self.response(kind="doctype")
        self.assertIn("<!ENTITY", view["body"])
        self.assertIn("DOCTYPE", view["notes"][0])

    def test_what_broke_off(self) -> None:
        self.assertTrue(self.response(kind="truncated")["body"].startswith("<?xml"))
        view = self.response(kind="truncated-headers")
        self.assertEqual(("", True), (view["body"], view["head"].startswith("HTTP/1.1 200")))
        view = self.response(kind="close")
        self.assertEqual(("", "", 0), (view["head"], view["body"], view["bytes"]))

    def test_what_is_no_xml_and_says_so(self) -> None:
        view = self.response(kind="http-status", status=503, body="<b>down</b>")
        self.assertEqual(("<b>down</b>", []), (view["body"], view["notes"]))

    def test_length_has_an_end(self) -> None:
        view = self.response(kind="http-status", body="x" * (MAX_SHOWN + 1))
        self.assertEqual(MAX_SHOWN, len(view["body"]))
        self.assertIn("400,000 of 400,001", view["notes"][0])


if __name__ == "__main__":
    unittest.main()
