"""How much a search brings, and to whom."""

import http.client
import unittest

from lxml import etree

import documents
import inquiries
from documents import FULL, find
from search_case import SEARCH_HEADERS, SearchCase, card

from lejis.namespaces import SEARCH_PATH

SERIAL = "j:PropertySerialID/j:ID"
PUBLIC = {"j:PersonSurName": "PUBLIC"}


class LimitsTest(SearchCase):
    """Five incidents of two agencies; more than three hits are too many."""

    broad_limit = 3

    def setUp(self) -> None:
        super().setUp()
        self.seed(*(card(name, ori) for ori, name in (
            ("PA0000001", "a"), ("PA0000001", "b"), ("PA0000002", "c"), ("PA0000002", "d"),
            ("PA0000002", "e"))))

    def test_most(self) -> None:
        for most, expected in ((1, ["a"]), (4, list("abcd")), (5, list("abcde")),
                               (2**31 - 1, list("abcde"))):
            with self.subTest(most=most):
                self.assertEqual((5, expected), self.hits(person=PUBLIC, most=most))

    def test_too_broad(self) -> None:
        self.assertEqual((5, []), self.hits(person=PUBLIC))

    def test_exactly_the_limit_is_not_too_broad(self) -> None:
        self.assertEqual((3, list("cde")), self.hits(person=PUBLIC, excluded=["PA0000001"]))

    def test_excluded_agencies(self) -> None:
        for excluded, expected in ((["PA0000002"], "ab"), (["PA0000002", "PA0000002"], "ab"),
                                   (["PA0000002", ""], "ab"), (["PA0000001", "PA0000002"], ""),
                                   (["pa0000002", "PA000000"], "abcde")):
            with self.subTest(excluded=excluded):
                self.assertEqual((len(expected), list(expected)), self.hits(
                    person=PUBLIC, excluded=excluded, most=9))

    def test_many_excluded_agencies_and_many_words(self) -> None:
        self.assertEqual((2, ["a", "b"]), self.hits(
            words="assault " * 5000, excluded=["PA0000002"] * 5000))

    def test_irrinfo_changes_nothing(self) -> None:
        self.assertEqual((5, ["a"]), self.hits(person=PUBLIC, most=1, irrinfo="true"))

    def test_no_criteria(self) -> None:
        for name, asked in {"nothing": {}, "blanks": {"words": "  "}, "a limit": {"most": 2},
                            "irrinfo": {"irrinfo": "true"}}.items():
            with self.subTest(name=name):
                self.assertEqual((5, []), self.hits(**asked))
        self.assertEqual((2, []), self.hits(excluded=["PA0000002"]))

    def test_property_without_a_serial_number(self) -> None:
        make = {"j:PropertyMakeName": "Acme"}
        self.assertEqual((5, []), self.hits(property=make, most=2))
        self.assertEqual((5, []), self.hits(property={**make, SERIAL: " "}))
        self.assertEqual((5, []), self.hits(property=make, person=PUBLIC, most=2))
        self.assertEqual((5, list("ab")), self.hits(property={**make, SERIAL: "S-1"}, most=2))

    def test_a_refusal_never_counts_0(self) -> None:
        self.assertEqual((1, []), self.hits(property={"j:PropertyMakeName": "Nobody"}))
        self.control("DELETE", "index")
        self.assertEqual((1, []), self.hits())
        self.assertEqual((0, []), self.hits(person=PUBLIC))


class DefaultLimitTest(SearchCase):
    """The simulator runs without the option."""

    def test_500_are_not_too_broad_but_501_are(self) -> None:
        self.seed(*(card(f"{number:03}") for number in range(500)))
        self.assertEqual(500, len(self.found(person=PUBLIC)))
        self.seed(card("one more"))
        self.assertEqual((501, []), self.hits(person=PUBLIC))


class UserTest(SearchCase):
    """The name in the security header."""

    def refused(self, user: str, body: bytes | None = None) -> str:
        """The reason phrase, which must say what to do."""
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(connection.close)
        connection.request("POST", SEARCH_PATH, body or inquiries.search(person=PUBLIC, user=user),
                           SEARCH_HEADERS)
        answer = connection.getresponse()
        self.assertEqual((403, answer.reason + ".\n"), (answer.status, answer.read().decode()))
        return answer.reason

    def test_empty(self) -> None:
        for user in ("", " ", "\n"):
            with self.subTest(user=user):
                self.assertEqual("Your search names no JNET User ID; enter it in the LEJIS "
                                 "settings", self.refused(user))

    def test_unknown(self) -> None:
        for user in ("unknown", "Unknown.clerk", " unknown1", "unknown\u4e2d\nX-Header: y"):
            with self.subTest(user=user):
                self.assertEqual("Your JNET User ID is not known to LEJIS; ask your JNET "
                                 "administrator", self.refused(user))

    def test_everybody_else_may(self) -> None:
        self.seed(documents.card())
        for user in ("jdoe", "someone unknown", "M\u00fcller"):
            with self.subTest(user=user):
                self.assertEqual(["2007-000123"], self.found(person=PUBLIC, user=user))

    def test_the_request_of_an_unknown_user_is_none_the_less_valid(self) -> None:
        self.refused("unknown")
        exchange = self.last_exchange()
        self.assertEqual((True, 403), (exchange["valid"], exchange["status"]))

    def test_an_unknown_user_does_not_learn_what_else_is_wrong(self) -> None:
        body = inquiries.search(user="unknown").replace(b">false<", b">maybe<")
        self.refused("unknown", body)
        self.assertFalse(self.last_exchange()["valid"])


class SearchChecksTest(SearchCase):
    """Every check refuses by itself, with a fault."""

    def refused(self, check: str, sentence: str, body: bytes = inquiries.FULL,
                **headers: str) -> None:
        status, answer = self.search_raw(body, **headers)
        self.assertEqual(500, status, answer)
        root = etree.fromstring(answer)
        self.assertEqual("soap:Client", root.findtext(".//faultcode"))
        self.assertIn(sentence, root.findtext(".//faultstring"))
        exchange = self.last_exchange()
        self.assertFalse(exchange["valid"])
        self.assertEqual([check], [name for name, verdict in exchange["checks"].items()
                                   if verdict not in ("ok", "not reached")])

    def test_a_good_one_passes_every_check(self) -> None:
        self.assertEqual(200, self.search_raw()[0])
        exchange = self.last_exchange()
        self.assertEqual({"soap_action", "content_type", "well_formed", "envelope", "schema",
                          "blocks"}, set(exchange["checks"]))
        self.assertTrue(exchange["valid"])

    def test_headers(self) -> None:
        action = SEARCH_HEADERS["SOAPAction"]
        self.assertEqual("http://lejis.example/lejis/1.0/service/jxdm/searchIndex", action)
        for wrong in (f'"{action}"', "", action.upper(), documents.NAMES.submit_action):
            self.refused("soap_action", f"'{action}' is expected", SOAPAction=wrong)
        self.refused("content_type", "Content-Type", Content_Type="text/xml")

    def test_well_formed(self) -> None:
        self.refused("well_formed", "not well-formed", inquiries.FULL[:-9])
        self.refused("well_formed", "DOCTYPE", b"<!DOCTYPE soap:Envelope>" + inquiries.FULL)

    def test_envelope(self) -> None:
        name = b"<wsse:Username>jdoe</wsse:Username>"
        for old, new, sentence in (
                (b"<soap:Body>", b"<soap:Body/><soap:Body>", "one soap:Header and one soap:Body"),
                (b"soap:Header>", b"soap:Footer>", "one soap:Header and one soap:Body"),
                (b"soap/envelope/", b"soap/other/", "not a SOAP 1.1 envelope"),
                (name, name + b"<wsse:Password>x</wsse:Password>", "The UsernameToken does not"),
                (name, name + name, "The UsernameToken does not"),
                (name, b"jdoe", "text directly inside UsernameToken"),
                (name, b"", "exactly one wsse:Username "),
                (b"jdoe", b"j<b/>doe", "more than text"),
                (b"secext-1.0", b"secext-1.1", "exactly one wsse:Security"),
                (b"</soap:Header>", b"<x/></soap:Header>", "exactly one wsse:Security"),
                (b"</soap:Body>", b"<x/></soap:Body>", "exactly one LEJISIndexInquiry"),
                (b"inq:LEJISIndexInquiry", b"inq:Inquiry", "exactly one LEJISIndexInquiry"),
                (b'xmlns:inq="http://lejis.example/lejis/jxdm/1.0/', b'xmlns:inq="urn:x/',
                 "of the service's namespace")):
            with self.subTest(new=new):
                self.assertIn(old, inquiries.FULL)
                self.refused("envelope", sentence, inquiries.FULL.replace(old, new))

    def test_submissions_go_elsewhere(self) -> None:
        self.refused("envelope", "one soap:Header", FULL)

    def test_schema(self) -> None:
        self.refused("schema", "Element 'lejis:irrinfo'",
                     inquiries.FULL.replace(b">false<", b">FALSE<"))

    def test_blocks_that_say_nothing(self) -> None:
        for path in ("Person", "Location", "Property", "Vehicle"):
            for blank in ("", "  "):
                with self.subTest(path=path, blank=blank):
                    self.refused("blocks", f"lejis:{path}InquiryArguments says nothing",
                                 self.blanked(path, blank))

    def test_plate_that_says_nothing(self) -> None:
        root = inquiries.envelope()
        for half in find(root, ".//j:VehicleLicensePlateID"):
            half.text = ""
        self.refused("blocks", "VehicleLicensePlateID says nothing", documents.text(root))
        find(root, ".//j:VehicleLicensePlateID/j:ID").text = " "
        self.assertEqual(200, self.search_raw(documents.text(root))[0])

    @staticmethod
    def blanked(block: str, blank: str) -> bytes:
        """The full inquiry with as little as the schemas allow in one block."""
        kept = {"Person": "j:PersonSurName", "Location": "j:StreetName",
                "Property": SERIAL, "Vehicle": "j:VehicleModelCodeText"}[block]
        body = inquiries.search(**{block.lower(): {kept: blank}})
        if block == "Location" and not blank:
            body = body.replace(b"<j:StreetName></j:StreetName>", b"")
        return body


if __name__ == "__main__":
    unittest.main()
