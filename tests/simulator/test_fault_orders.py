"""How faults are ordered, listed, used up and dropped."""

import unittest

import documents
import inquiries
from search_case import SEARCH_HEADERS
from simulator_case import SimulatorCase

from faults.fault_kinds import FAULT_KINDS
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH


class FaultOrdersTest(SimulatorCase):
    """Mostly seen through the HTTP status that a fault leads to."""

    def statuses(self, times: int) -> list[int]:
        return [self.submit()[0] for _ in range(times)]

    def test_next_ones_are_used_once_and_in_order(self) -> None:
        for status in (502, 503):
            self.order("http-status", when="next", status=status)
        self.assertEqual([502, 503, 200], self.statuses(3))

    def test_equal_ones_count_one_each(self) -> None:
        for status in (502, 503, 502):
            self.order("http-status", status=status)
        self.assertEqual([502, 503, 502, 200], self.statuses(4))

    def test_count(self) -> None:
        self.order("http-status", status=502, count=2)
        self.assertEqual([502, 502, 200], self.statuses(3))

    def test_every_goes_on_after_next_until_cleared(self) -> None:
        self.order("http-status", when="every", status=502)
        self.order("http-status", when="next", status=503)
        self.assertEqual([503, 502, 502], self.statuses(3))
        self.assertEqual({"forgotten": 1}, self.control("DELETE", "faults"))
        self.assertEqual([200], self.statuses(1))

    def test_latest_every_wins(self) -> None:
        for status in (502, 503):
            self.order("http-status", when="every", status=status)
        self.assertEqual([503, 503], self.statuses(2))

    def test_targets(self) -> None:
        self.order("http-status", target="wsdl", status=502)
        self.order("http-status", target="any", status=503)
        self.assertEqual([503, 200], self.statuses(2))
        self.assertEqual(502, self.call("GET", SUBMISSION_PATH + "?wsdl")[0])

    def test_unknown_addresses_use_no_fault_up(self) -> None:
        self.order("http-status", target="any", status=502)
        self.assertEqual(404, self.call("GET", "/nowhere")[0])
        self.assertEqual(405, self.call("GET", SUBMISSION_PATH)[0])
        self.assertEqual([502], self.statuses(1))

    def test_list(self) -> None:
        self.order("slow", seconds=2, count=3)
        self.order("no-types", when="every")
        self.assertEqual([
            {"when": "next", "count": 3, "target": "submission", "kind": "slow", "seconds": 2,
             "hits": 0, "exchanges": []},
            {"when": "every", "target": "wsdl", "kind": "no-types", "hits": 0, "exchanges": []},
        ], self.control("GET", "faults"))

    def test_one_in_so_many(self) -> None:
        self.order("http-status", one_in=3, status=502)
        self.assertEqual([200, 200, 502, 200, 200, 502], self.statuses(6))

    def test_one_in_so_many_lets_the_earlier_one_play(self) -> None:
        self.order("http-status", when="every", status=503)
        self.order("http-status", one_in=2, status=502)
        self.assertEqual([503, 502, 503, 502], self.statuses(4))

    def submitted(self, number: str) -> int:
        return self.submit(documents.submission(documents.card(number)))[0]

    def test_for_one_incident(self) -> None:
        self.order("http-status", incident="2007-2", status=502)
        self.assertEqual([200, 502, 200], [self.submitted(number) for number in
                                           ("2007-1", "2007-2", "2007-2")])

    def test_for_one_agency(self) -> None:
        self.order("http-status", when="every", agency="PA0999999", status=502)
        self.order("http-status", when="every", agency="PA0123400", incident="2007-3", status=503)
        self.assertEqual([200, 503], [self.submitted(number) for number in ("2007-1", "2007-3")])

    def test_for_one_user(self) -> None:
        self.order("http-status", when="every", target="search", user="JDoe", status=502)
        statuses = [self.call("POST", SEARCH_PATH, inquiries.search(user=user, words="x"),
                              SEARCH_HEADERS)[0] for user in ("jdoe", "msmith")]
        self.assertEqual([502, 200], statuses)
        self.assertEqual(200, self.submitted("2007-1"))

    def test_what_was_hit(self) -> None:
        self.order("http-status", when="every", incident="b", status=502)
        for number in "abab":
            self.submitted(number)
        (fault,) = self.control("GET", "faults")
        self.assertEqual((2, [2, 4], "b"), (fault["hits"], fault["exchanges"], fault["incident"]))

    def test_every_preset_can_be_ordered(self) -> None:
        presets = self.control("GET", "faults/presets")
        for one in presets:
            with self.subTest(preset=one["name"]):
                listed = self.control("POST", "faults", {"preset": one["name"]})
                self.assertEqual(one["faults"], len(listed))
        self.assertEqual(sum(one["faults"] for one in presets), len(self.control("GET", "faults")))

    def test_a_preset_for_one_incident(self) -> None:
        self.control("POST", "faults", {"preset": "LEJIS core is offline", "incident": "b"})
        self.assertIn("0 Accepted", self.submit(documents.submission(documents.card("a")))[1])
        self.assertIn("100 The LEJIS core", self.submit(documents.submission(documents.card("b")))[1])
        self.assertEqual("fault", self.last_exchange()["outcome"])

    def test_orders_that_make_no_sense(self) -> None:
        for body in (b"", b"[]", b'"slow"', b"[" * 100_000, b'{"kind": "slow", "when": "later"}',
                     b"{}", b'{"kind": "unheard-of"}', b'{"kind": ["slow"]}',
                     b'{"kind": "slow", "target": "moon"}', b'{"kind": "slow", "seconds": "1"}',
                     b'{"kind": "slow", "seconds": 1e9}', b'{"kind": "slow", "seconds": NaN}',
                     b'{"kind": "slow", "seconds": true}', b'{"kind": "slow", "minutes": 1}',
                     b'{"kind": "slow", "count": 0}', b'{"kind": "http-status", "status": 100}',
                     b'{"kind": "http-status", "status": "404"}',
                     b'{"kind": "http-status", "reason": "a\\r\\nX: y"}',
                     b'{"kind": "http-status", "content_type": "\\u4e2d"}',
                     b'{"kind": "response-code", "text": "\\u0001"}',
                     b'{"kind": "no-types", "target": "submission"}', b'{"preset": "unheard-of"}',
                     b'{"preset": ["Bad line"]}', b'{"preset": "Bad line", "odd": 1}',
                     b'{"kind": "slow", "one_in": 0}', b'{"kind": "slow", "agency": 1}',
                     b'{"kind": "slow", "user": "a\\nb"}',
                     b'{"kind": "slow", "when": "next", "one_in": 2}'):
            with self.subTest(body=body[:60]):
                status, answer = self.call("POST", "/control/faults", body)
                self.assertEqual(400, status)
                self.assertRegex(answer.decode(), r"^['A-Z].*\.\n$")
        self.assertEqual([], self.control("GET", "faults"))

    def test_every_kind_can_be_ordered_with_its_defaults(self) -> None:
        for kind in FAULT_KINDS:
            self.order(kind)
        self.assertEqual(list(FAULT_KINDS), [one["kind"] for one in self.control("GET", "faults")])


if __name__ == "__main__":
    unittest.main()
