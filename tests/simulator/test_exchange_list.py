"""The list of exchanges: what it says of each, its pages, filters and picture over time."""

import json
import tempfile
import unittest
from pathlib import Path
from typing import Any
from unittest import mock
from urllib.parse import quote

import documents
import inquiries
from search_case import SEARCH_HEADERS
from simulator_case import SimulatorCase

from endpoints import exchange_calls, exchange_search
from endpoints.exchange_filter import ExchangeFilter
from endpoints.timeline import timeline
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH
from views.outcome import outcome_of
from wire.exchange_log import ExchangeLog
from wire.http_request import HttpRequest


class ListCase(SimulatorCase):
    """Has an exchange of each kind."""

    def search(self, **asked: Any) -> None:
        self.call("POST", SEARCH_PATH, inquiries.search(**asked), SEARCH_HEADERS)

    def fill(self) -> None:
        """1 submission, 2 deletion, 3 refused, 4 search, 5 too broad, 6 WSDL, 7 cut off."""
        self.submit(documents.submission(documents.card("2007-1")))
        self.submit(documents.submission(documents.bare_card("2007-1")))
        self.submit(b"<no>")
        self.search(words="Main STREET")
        self.order("count-without-cards", count=5)
        self.search(words="everybody")
        self.call("GET", SUBMISSION_PATH + "?wsdl")
        self.order("close")
        with self.assertRaises(OSError):
            self.submit(documents.submission(documents.card("2007-2")))

    def numbers(self, text: str, path: str = "") -> list[int]:
        """The numbers of the exchanges that the filter lets through."""
        found = self.control("GET", f"exchanges/matches?filter={quote(text)}{path}")
        return [number for first, last in found["ranges"] for number in range(first, last + 1)]


class EntryTest(ListCase):
    """What the list says of an exchange."""

    def test_kinds_and_outcomes(self) -> None:
        self.fill()
        entries = self.control("GET", "exchanges")
        self.assertEqual(["submission", "deletion", "submission", "search", "search", "wsdl",
                          "submission"], [entry["kind"] for entry in entries])
        self.assertEqual(["accepted", "accepted", "refused", "accepted", "too broad", "accepted",
                          "cut off"], [entry["outcome"] for entry in entries])

    def test_duration_size_and_time(self) -> None:
        self.order("slow", seconds=0.3)
        self.submit()
        entry = self.last_exchange()
        self.assertGreaterEqual(entry["milliseconds"], 300)
        self.assertLess(entry["milliseconds"], 3000)
        kept = self.data / "exchanges" / "000001-response.http"
        self.assertEqual(kept.stat().st_size, entry["response_bytes"])
        self.assertEqual(entry["at"] // 1000 % 60, int(entry["time"][17:19]))

    def test_a_search_is_shown_as_it_was_asked(self) -> None:
        self.search(words="Main STREET")
        self.assertEqual("Main, STREET", self.last_exchange()["about"])
        self.search(person={"j:PersonSurName": "McADAM"})
        self.assertEqual("surname McADAM", self.last_exchange()["about"])

    def test_the_previous_exchange_of_the_same_incident(self) -> None:
        for number in ("a", "b", "a"):
            self.submit(documents.submission(documents.card(number)))
        self.assertEqual([None, None, 1], [self.control("GET", f"exchanges/{number}")["previous"]
                                           for number in (1, 2, 3)])


class OutcomeTest(unittest.TestCase):
    """The outcome follows from the answer alone."""

    def test_outcomes(self) -> None:
        end = b"</soap:Body></soap:Envelope>"
        response = b"<l:submissionResponse>%s</l:submissionResponse>" + end
        count = b"<l:incidentcount>%d</l:incidentcount>" + end
        for expected, kind, status, body in (
                ("accepted", "submission", 200, response % b"0 Accepted"),
                ("fault", "submission", 200, response % b"100 offline"),
                ("refused", "submission", 200, response % b"7 no"),
                ("refused", "submission", 200, response % b""),
                ("unreadable", "submission", 200, b"words"),
                ("unreadable", "submission", 200, b""),
                ("unreadable", "submission", 200, response % b"0" + b"<unclosed>"),
                ("unreadable", "search", 200, b"<!DOCTYPE a>" + count % 0),
                ("accepted", "search", 200, count % 0),
                ("too broad", "search", 200, count % 3),
                ("accepted", "search", 200, b"<RMSIncidentIndexCard/>" + count % 3),
                ("refused", "search", 403, b""),
                ("fault", "wsdl", 503, b""),
                ("refused", "submission", 500, b"<faultcode>soap:Client</faultcode>" + end),
                ("fault", "submission", 500, b"<faultcode>soap:Server</faultcode>" + end),
                ("cut off", "submission", 0, b"")):
            with self.subTest(status=status, body=body):
                self.assertEqual(expected, outcome_of(kind, status, body, True))
        self.assertEqual("cut off", outcome_of("submission", 200, response % b"0", False))


class FilterTest(ListCase):
    """Filters as people type them."""

    def test_filters(self) -> None:
        self.fill()
        for text, expected in (
                ("", [1, 2, 3, 4, 5, 6, 7]), ("kind:deletion", [2]), ("-kind:submission", [2, 4, 5, 6]),
                ("outcome:cut-off", [7]), ("outcome:too", [5]), ('outcome:"too broad"', [5]),
                ("status:500", [3]), ("status:5xx", [3]), ("status:none", [7]),
                ("kind:submission outcome:accepted", [1]), ("agency:pa0123400", [1, 2, 7]),
                ("incident:2007-1", [1, 2]), ("fault:close", [7]), ("is:faulted", [5, 7]),
                ("number:2..3", [2, 3]), ("number:4", [4]), ("number:6..", [6, 7]),
                ("user:jdoe", [4, 5]), ("slower:100000", []), ("time:2000-01-01T00:00..", [1, 2, 3, 4, 5, 6, 7]),
                ("time:..2000-01-01T00:00:00", []), ("everybody", [5]), ("EVERYBODY", [5]),
                ('"main, street"', [4]), ("nothing:like-it", []), ("-everybody kind:search", [4])):
            with self.subTest(text=text):
                self.assertEqual(expected, self.numbers(text))

    def test_texts_of_the_bodies(self) -> None:
        self.submit(documents.submission(documents.card("1", charge="Théft & <fraud>")))
        self.submit(documents.submission(documents.card("2", charge="Zonked out")))
        for text, expected in (("THÉFT", [1]), ('"théft & <fraud>"', [1]), ('"zonked OUT"', [2]),
                               ('-"zonked out"', [1]), ("accepted. kind:submission", [1, 2])):
            with self.subTest(text=text):
                self.assertEqual(expected, self.numbers(text))

    def test_a_long_search_goes_on_from_where_it_ended(self) -> None:
        for number in range(4):
            self.submit(documents.submission(documents.card(str(number))))
        with mock.patch.object(exchange_search, "_BUDGET_SECONDS", -1):
            found, last = [], 4
            for _ in range(4):
                answer = self.control("GET", f"exchanges/matches?filter=assault&from=1&to={last}")
                found += answer["ranges"]
                self.assertEqual(last, answer["reached"])
                last -= 1
        self.assertEqual([[4, 4], [3, 3], [2, 2], [1, 1]], found)

    def test_what_makes_no_sense_is_told(self) -> None:
        for text in ("kind:x", "status:abc", "number:x", "time:now", "time:x..", "slower:much", "is:odd"):
            with self.subTest(text=text):
                status, answer = self.call("GET", f"/control/exchanges/matches?filter={text}")
                self.assertEqual(400, status)
                self.assertRegex(answer.decode(), r"^['A-Z].*\.\n$")


class PagesTest(ListCase):
    def test_pages_by_number(self) -> None:
        self.fill()
        entries = self.control("GET", "exchanges?numbers=1-2,5,6-99")
        self.assertEqual([1, 2, 5, 6, 7], [entry["number"] for entry in entries])
        for wrong in ("x", "1-", "1,,2", "1-2-3"):
            self.assertEqual(400, self.call("GET", f"/control/exchanges?numbers={wrong}")[0])

    def test_a_page_has_a_limit(self) -> None:
        for _ in range(3):
            self.submit(documents.FULL)
        with mock.patch.object(exchange_calls, "MOST_ENTRIES", 2):
            entries = self.control("GET", "exchanges?numbers=1-1,2-3")
        self.assertEqual([1, 2], [entry["number"] for entry in entries])

    def test_timeline(self) -> None:
        self.fill()
        line = self.control("GET", "exchanges/timeline?buckets=50")
        self.assertLessEqual(line["count"], 50)
        outcomes: dict[str, int] = {}
        for bucket in line["buckets"]:
            self.assertLess(bucket["at"], line["count"])
            for outcome, count in bucket["outcomes"].items():
                outcomes[outcome] = outcomes.get(outcome, 0) + count
        self.assertEqual({"accepted": 4, "refused": 1, "too broad": 1, "cut off": 1}, outcomes)
        line = self.control("GET", "exchanges/timeline?filter=kind:deletion")
        self.assertEqual([{"accepted": 1}], [one["outcomes"] for one in line["buckets"]])
        self.assertEqual([], self.control("GET", "exchanges/timeline?filter=kind:schema")["buckets"])

    def test_a_timeline_has_a_step_that_people_expect(self) -> None:
        for span, step in ((300, 10), (30_000, 1000), (3_600_000, 120_000), (10 * 86_400_000, 6 * 3_600_000)):
            with self.subTest(span=span), tempfile.TemporaryDirectory() as folder:
                log = ExchangeLog(Path(folder))
                self.addCleanup(log.close)
                for at in (1772366400000, 1772366400000 + span):
                    log.record(HttpRequest(), b"", 200, {}, None, at=at)
                line = timeline(log, ExchangeFilter(""), 50)
                self.assertEqual((step, span // step + 1), (line["step"], line["count"]))
                self.assertEqual([0, span // step], [bucket["at"] for bucket in line["buckets"]])

    def test_pages_of_the_index(self) -> None:
        for number in ("b", "a", "c"):
            self.submit(documents.submission(documents.card(number, charge=f"Charge-{number}")))
        page = self.control("GET", "index?from=1&count=1")
        self.assertEqual((3, ["b"]), (page["total"], [card["id"] for card in page["cards"]]))
        page = self.control("GET", f"index?count=9&text={quote('CHARGE-c')}")
        self.assertEqual((1, ["c"]), (page["total"], [card["id"] for card in page["cards"]]))


class KeepTest(unittest.TestCase):
    """The record on the disk."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def log(self, keep: int | None = None) -> ExchangeLog:
        log = ExchangeLog(self.folder, keep)
        self.addCleanup(log.close)
        return log

    def record(self, log: ExchangeLog, times: int) -> None:
        for _ in range(times):
            log.record(HttpRequest(), b"answer", 200, {}, None)

    def numbers(self, log: ExchangeLog) -> list[int]:
        return [entry["number"] for entry in log.entries()]

    def test_the_oldest_go_first(self) -> None:
        log = self.log(keep=3)
        self.record(log, 5)
        self.assertEqual([3, 4, 5], self.numbers(log))
        self.assertEqual(["000003-request.http", "000003-response.http", "000004-request.http",
                          "000004-response.http", "000005-request.http", "000005-response.http",
                          "exchanges.jsonl"], sorted(file.name for file in self.folder.iterdir()))
        self.assertIsNone(log.raw(2, "request"))
        self.assertEqual([4, 5], self.numbers(self.log(keep=2)))
        self.assertEqual([4, 5], self.numbers(self.log())[-2:])

    def test_the_list_on_the_disk_does_not_grow_for_ever(self) -> None:
        log = self.log(keep=10)
        self.record(log, 1200)
        lines = (self.folder / "exchanges.jsonl").read_text().splitlines()
        self.assertLess(len(lines), 300)
        self.assertEqual(list(range(1191, 1201)), self.numbers(log))
        self.record(log, 1)
        again = self.log()
        self.assertEqual(1201, self.numbers(again)[-1])

    def test_a_line_that_was_cut_off_harms_nothing(self) -> None:
        self.record(self.log(), 2)
        with open(self.folder / "exchanges.jsonl", "ab") as lines:
            lines.write(b'{"number": 3, "ti')
        log = self.log()
        self.assertEqual([1, 2], self.numbers(log))
        self.record(log, 1)
        self.assertEqual([1, 2, 3], self.numbers(self.log()))

    def test_numbers_of_seven_digits(self) -> None:
        self.record(self.log(), 1)
        (self.folder / "1234567-request.http").touch()
        self.assertEqual(1234568, self.log().record(HttpRequest(), b"", 200, {}, None))

    def test_lines_of_earlier_versions(self) -> None:
        old = {"number": 1, "time": "2026-03-01T12:00:00+0000", "method": "POST",
               "path": SUBMISSION_PATH, "soap_action": None, "content_type": None,
               "request_bytes": 0, "checks": {}, "valid": None, "status": 200, "fault": None}
        (self.folder / "exchanges.jsonl").write_text(json.dumps(old) + "\n")
        (entry,) = self.log().entries()
        self.assertEqual(("submission", "accepted", 1772366400000),
                         (entry["kind"], entry["outcome"], entry["at"]))


if __name__ == "__main__":
    unittest.main()
