"""Faults as searches meet them, and those that only searches know."""

import http.client
import json
import time
import unittest

from lxml import etree

import documents
import inquiries
from documents import NAMES, PREFIXES
from search_case import SEARCH_HEADERS, SearchCase

from faults.fault_kinds import FAULT_KINDS
from lejis.namespaces import SCHEMAS_PATH, SEARCH_PATH, SUBMISSION_PATH, XSD

PUBLIC = inquiries.search(person={"j:PersonSurName": "PUBLIC"})


class SearchFaultsTest(SearchCase):
    """The index holds one card; what comes instead is the fault's."""

    def setUp(self) -> None:
        super().setUp()
        self.seed(documents.card())

    def play(self, kind: str, **more: object) -> etree._Element:
        """The response element under a fault with status 200."""
        self.order(kind, target="search", **more)
        response = self.answer(PUBLIC)
        self.assertEqual((kind, True), (self.last_exchange()["fault"],
                                        self.last_exchange()["valid"]))
        return response

    def count(self, response: etree._Element) -> str:
        return response.findtext("lejis:incidentcount", namespaces=PREFIXES)

    def cards(self, response: etree._Element) -> list[etree._Element]:
        return response.findall("lejis:RMSIncidentIndexCard", PREFIXES)

    def errors(self, response: etree._Element) -> str:
        schema = etree.XMLSchema(file=str(self.data / "schemas" / "lejis-service.xsd"))
        schema.validate(response)
        return str(schema.error_log)

    def test_count_without_cards(self) -> None:
        for count in (0, 5, 2**31 - 1):
            response = self.play("count-without-cards", count=count)
            self.assertEqual((str(count), []), (self.count(response), self.cards(response)))
        self.assertEqual("1", self.count(self.play("count-without-cards")))

    def test_cards(self) -> None:
        for count in (0, 1, 12):
            response = self.play("cards", count=count)
            self.assertEqual("", self.errors(response))
            self.assertEqual(str(count), self.count(response))
            self.assertEqual([f"2007-{number:06}" for number in range(1, count + 1)],
                             [one.findtext("card:LejisIndexUid/j:ActivityID/j:ID",
                                           namespaces=PREFIXES) for one in self.cards(response)])
        self.assertEqual(3, len(self.cards(self.play("cards"))))

    def test_20_000_cards(self) -> None:
        began = time.monotonic()
        response = self.play("cards", count=20_000)
        self.assertLess(time.monotonic() - began, 8)
        self.assertEqual(("20000", 20_000), (self.count(response), len(self.cards(response))))
        self.assertEqual("", self.errors(response))

    def test_bad_card(self) -> None:
        response = self.play("bad-card")
        self.assertEqual("3", self.count(response))
        self.assertEqual([1, 0, 1], [len(one.findall("card:LejisIndexUid", PREFIXES))
                                     for one in self.cards(response)])
        self.assertIn("Expected is ( {%s}LejisIndexUid )" % NAMES.card, self.errors(response))

    def test_deep_cards(self) -> None:
        response = self.play("deep-cards")
        self.assertEqual(("2", []), (self.count(response), self.cards(response)))
        self.assertEqual(2, len(response.findall("*/lejis:RMSIncidentIndexCard", PREFIXES)))

    def test_doctype(self) -> None:
        response = self.play("doctype")
        docinfo = response.getroottree().docinfo
        self.assertEqual(("soap:Envelope", "0"), (docinfo.internalDTD.name, self.count(response)))

    def test_no_response_element_and_no_body(self) -> None:
        for kind, inside in (("no-response-element", [f"{{{NAMES.service}}}somethingElse"]),
                             ("no-body", None)):
            self.order(kind, target="search")
            status, answer = self.search_raw(PUBLIC)
            body = etree.fromstring(answer).find("soap:Body", PREFIXES)
            self.assertEqual((200, inside), (
                status, None if body is None else [child.tag for child in body]))

    def test_delays_keep_the_right_answer(self) -> None:
        for kind in ("slow", "trickle"):
            began = time.monotonic()
            response = self.play(kind, seconds=0.2)
            self.assertGreaterEqual(time.monotonic() - began, 0.15)
            self.assertEqual(("1", 1), (self.count(response), len(self.cards(response))))

    def test_other_statuses(self) -> None:
        self.order("http-status", target="search", status=502, body="no")
        self.assertEqual((502, b"no"), self.search_raw(PUBLIC))
        self.order("soap-fault", target="search", message="x & y")
        status, answer = self.search_raw(PUBLIC)
        self.assertEqual((500, "x & y"), (status, etree.fromstring(answer).findtext(
            ".//faultstring")))

    def test_answers_that_are_none(self) -> None:
        self.order("empty", target="search")
        self.assertEqual((200, b""), self.search_raw(PUBLIC))
        for kind in ("not-xml", "invalid-xml"):
            self.order(kind, target="search")
            with self.assertRaises(etree.XMLSyntaxError):
                etree.fromstring(self.search_raw(PUBLIC)[1])
        self.order("truncated", target="search")
        with self.assertRaises(http.client.IncompleteRead):
            self.search_raw(PUBLIC)
        for kind, error in (("close", http.client.RemoteDisconnected),
                            ("reset", ConnectionResetError)):
            self.order(kind, target="search")
            with self.subTest(kind=kind), self.assertRaises(error):
                self.search_raw(PUBLIC)
        self.assertEqual(200, self.search_raw(PUBLIC)[0])

    def test_truncated_headers(self) -> None:
        headers = "".join(f"{name}: {value}\r\n" for name, value in SEARCH_HEADERS.items())
        self.order("truncated-headers", target="search")
        answer = self.raw(f"POST {SEARCH_PATH} HTTP/1.1\r\nHost: x\r\nContent-Length: "
                          f"{len(PUBLIC)}\r\n{headers}\r\n".encode() + PUBLIC)
        self.assertTrue(answer.startswith(b"HTTP/1.1 200 OK\r\n"))
        self.assertNotIn(b"\r\n\r\n", answer)

    def test_each_service_suffers_its_own_faults(self) -> None:
        self.order("http-status", target="search", status=502)
        self.order("http-status", target="submission", status=503)
        self.assertEqual(503, self.submit()[0])
        self.assertEqual(502, self.search_raw()[0])

    def test_faults_for_any_target_play_with_every_answer(self) -> None:
        """An answer for people, which is no XML, included."""
        for kind, row in FAULT_KINDS.items():
            if row.target is not None or kind in ("close", "reset", "truncated",
                                                  "truncated-headers", "slow", "trickle"):
                continue
            with self.subTest(kind=kind):
                self.order(kind, target="any")
                self.search_raw(inquiries.search(user="unknown"))
                self.assertEqual(kind, self.last_exchange()["fault"])

    def test_kinds_for_one_service_only(self) -> None:
        for kind, target in (("response-code", "search"), ("response-code", "any"),
                             ("cards", "submission"), ("count-without-cards", "any"),
                             ("bad-card", "wsdl"), ("deep-cards", "submission")):
            with self.subTest(kind=kind, target=target):
                body = f'{{"kind": "{kind}", "target": "{target}"}}'.encode()
                status, answer = self.call("POST", "/control/faults", body)
                self.assertEqual(400, status)
                self.assertIn(f"'{kind}' needs the target".encode(), answer)

    def test_counts_that_make_no_sense(self) -> None:
        for kind, count in (("cards", 20_001), ("cards", -1), ("cards", "3"), ("cards", True),
                            ("count-without-cards", 2**31), ("count-without-cards", 1.5)):
            with self.subTest(kind=kind, count=count):
                body = json.dumps({"kind": kind, "count": count}).encode()
                status, answer = self.call("POST", "/control/faults", body)
                self.assertEqual(400, status)
                self.assertIn(b"'count' must be a whole number from 0 to ", answer)

    def test_such_a_count_is_no_repetition(self) -> None:
        self.order("cards", count=2)
        self.assertEqual([{"when": "next", "count": 2, "target": "search", "kind": "cards",
                           "hits": 0, "exchanges": []}],
                         self.control("GET", "faults"))
        self.assertEqual(["2", "1"], [self.count(self.answer(PUBLIC)) for _ in "12"])
        self.order("cards", when="every", count=2)
        self.assertEqual(["2", "2"], [self.count(self.answer(PUBLIC)) for _ in "12"])


class SearchDescriptionTest(SearchCase):
    """The WSDL of searches."""

    def wsdl(self) -> etree._Element:
        status, body = self.call("GET", SEARCH_PATH + "?wsdl")
        self.assertEqual(200, status)
        self.assertNotIn(b"@", body)
        return etree.fromstring(body)

    def locations(self, root: etree._Element) -> list[str]:
        return [one.get("schemaLocation") for one in root.iter(f"{{{XSD}}}include")]

    def test_leads_to_the_one_schema_of_the_namespace(self) -> None:
        root = self.wsdl()
        base = f"http://127.0.0.1:{self.port}"
        self.assertEqual([f"{base}{SCHEMAS_PATH}lejis-service.xsd"], self.locations(root))
        self.assertEqual([NAMES.search_action], root.xpath("//@soapAction"))
        self.assertEqual([f"{base}{SEARCH_PATH}"], root.xpath("//@location"))
        self.assertEqual(["lejis:LEJISIndexInquiry", "lejis:LEJISIndexInquiryResponse"],
                         root.xpath("//@element"))

    def test_wrong_schema_refuses_inquiries(self) -> None:
        self.order("wrong-schema")
        (location,) = self.locations(self.wsdl())
        self.assertTrue(location.endswith("/refusing.xsd"))
        refusing = etree.XMLSchema(file=str(self.data / "schemas" / "refusing.xsd"))
        self.assertFalse(refusing.validate(inquiries.payload(inquiries.envelope())))
        self.assertIn("NeverSent", str(refusing.error_log))

    def test_variants(self) -> None:
        for kind, expected in (("no-types", []), ("no-include", []), ("https-include", [
                f"HTTPS://127.0.0.1:{self.port}{SCHEMAS_PATH}lejis-service.xsd"])):
            with self.subTest(kind=kind):
                self.order(kind)
                self.assertEqual(expected, self.locations(self.wsdl()))
        self.order("http-status", target="wsdl", status=404)
        self.assertEqual(404, self.call("GET", SEARCH_PATH + "?wsdl")[0])

    def test_methods(self) -> None:
        for method, path, expected in (("GET", SEARCH_PATH, 405), ("PUT", SEARCH_PATH, 405),
                                       ("HEAD", SEARCH_PATH, 405)):
            self.assertEqual(expected, self.call(method, path, b"")[0])
        status, answer = self.call("GET", "/nowhere")
        self.assertEqual(404, status)
        for path in (SEARCH_PATH, SUBMISSION_PATH):
            self.assertIn(path.encode(), answer)


if __name__ == "__main__":
    unittest.main()
