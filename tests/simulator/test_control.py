"""Looking inside, and who may."""

import threading
import time
import unittest
from unittest import mock
from urllib.parse import quote

import documents
import inquiries
from search_case import SEARCH_HEADERS
from simulator_case import SimulatorCase

from endpoints.endpoint import Outcome
from lejis.incident_index import IncidentIndex
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH
from wire.exchange_log import ExchangeLog
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse


class ControlTest(SimulatorCase):
    """The calls that are not about faults."""

    def test_index_is_forgotten_on_request(self) -> None:
        self.submit()
        self.assertEqual({"forgotten": 1}, self.control("DELETE", "index"))
        self.assertEqual([], self.held())

    def test_card_by_key(self) -> None:
        self.submit(documents.submission(documents.card("a&b c/d")))
        path = "/control/index/card?ori=PA0123400&id="
        self.assertEqual(200, self.call("GET", path + quote("a&b c/d", safe=""))[0])
        self.assertEqual(404, self.call("GET", path + "a")[0])
        self.assertEqual(400, self.call("GET", "/control/index/card?ori=PA0123400")[0])

    def test_exchanges(self) -> None:
        self.submit()
        self.call("GET", SUBMISSION_PATH + "?wsdl")
        self.call("GET", "/nowhere")
        everything = self.control("GET", "exchanges")
        self.assertEqual([1, 2, 3], [one["number"] for one in everything])
        self.assertEqual([True, None, None], [one["valid"] for one in everything])
        self.assertEqual(everything[1:], self.control("GET", "exchanges?last=2"))
        self.assertEqual(everything, self.control("GET", "exchanges?last=9"))
        self.assertEqual([], self.control("GET", "exchanges?last=0"))
        self.assertEqual(400, self.call("GET", "/control/exchanges?last=-1")[0])

    def test_raw_messages_are_kept(self) -> None:
        self.submit()
        self.assertEqual((200, documents.FULL), self.call("GET", "/control/exchanges/1/request"))
        self.assertEqual(404, self.call("GET", "/control/exchanges/2/request")[0])
        request = (self.data / "exchanges" / "000001-request.http").read_bytes()
        self.assertTrue(request.startswith(f"POST {SUBMISSION_PATH} HTTP/1.1\r\n".encode()))
        self.assertIn(b"\r\nSOAPAction: " + documents.NAMES.submit_action.encode(), request)
        self.assertTrue(request.endswith(b"\r\n\r\n" + documents.FULL))
        response = (self.data / "exchanges" / "000001-response.http").read_bytes()
        self.assertTrue(response.startswith(b"HTTP/1.1 200 OK\r\n"))
        self.assertIn(b"0 Accepted", response)

    def test_exchanges_are_forgotten_on_request(self) -> None:
        self.submit()
        self.assertEqual({"forgotten": 1}, self.control("DELETE", "exchanges"))
        self.assertEqual([], list((self.data / "exchanges").iterdir()))
        self.submit()
        self.assertEqual(1, self.last_exchange()["number"])

    def test_numbers_go_on_after_a_restart(self) -> None:
        self.submit()
        log = ExchangeLog(self.data / "exchanges")
        self.addCleanup(log.close)
        self.assertEqual(2, log.record(HttpRequest(), b"", 400, {}, None))

    def test_index_outlives_a_restart(self) -> None:
        self.submit()
        again = IncidentIndex(self.data / "index.sqlite")
        self.addCleanup(again.close)
        self.assertEqual(self.control("GET", "index"), again.summaries())

    def test_stop(self) -> None:
        self.assertEqual((200, b"Stopping.\n"), self.call("POST", "/control/stop"))
        self.assertEqual(["stop"], self.stops)

    def test_the_end_waits_for_answers_under_way(self) -> None:
        began = threading.Event()

        def handle(*_: object) -> Outcome:
            began.set()
            time.sleep(0.2)
            return Outcome(HttpResponse.text(200, "late"))

        with mock.patch("simulator.SubmissionEndpoint.handle", side_effect=handle):
            client = threading.Thread(target=self.submit)
            client.start()
            began.wait()
            self.server.end()
            self.assertGreater(self.server.activity.idle_seconds, 0)
            client.join()

    def test_wrong_calls(self) -> None:
        for method, path, expected in (("GET", "stop", 405), ("PUT", "faults", 405),
                                       ("PUT", "index", 405), ("GET", "", 404),
                                       ("GET", "exchanges/x/request", 404)):
            with self.subTest(method=method, path=path):
                self.assertEqual(expected, self.call(method, "/control/" + path)[0])
        self.assertEqual([], self.stops)

    def test_one_exchange_as_people_read_it(self) -> None:
        self.submit(documents.FULL.replace(b">17000<", b">1700<").replace(b">M<", b">Q<"))
        shown = self.control("GET", "exchanges/1")
        self.assertEqual("PA0123400 2007-000123", shown["about"])
        self.assertEqual(2, len(shown["request"]["schema"]))
        self.assertTrue(shown["request"]["head"].startswith("POST "))
        self.assertIn("\n  <soap:Body>\n", shown["response"]["body"])
        self.assertEqual(404, self.call("GET", "/control/exchanges/2")[0])

    def test_raw_files(self) -> None:
        self.submit()
        for side in ("request", "response"):
            status, raw = self.call("GET", f"/control/exchanges/1/{side}.http")
            kept = (self.data / "exchanges" / f"000001-{side}.http").read_bytes()
            self.assertEqual((200, kept), (status, raw))
            self.assertEqual(404, self.call("GET", f"/control/exchanges/2/{side}.http")[0])

    def test_what_an_exchange_was_about(self) -> None:
        self.submit(documents.submission(documents.card("a"), documents.card("b")))
        self.assertEqual("PA0123400 a and 1 more", self.last_exchange()["about"])
        self.call("POST", SEARCH_PATH, inquiries.search(words="Main assault"), SEARCH_HEADERS)
        self.assertEqual("Main, assault", self.last_exchange()["about"])
        self.submit(b"<no>")
        self.assertEqual("", self.last_exchange()["about"])

    def test_record_and_index_are_closed_to_others(self) -> None:
        self.submit()
        folder = self.data / "exchanges"
        modes = {path.name: path.stat().st_mode & 0o777 for path in folder.iterdir()}
        self.assertEqual({"000001-request.http": 0o600, "000001-response.http": 0o600,
                          "exchanges.jsonl": 0o600}, modes)
        self.assertEqual(0o700, folder.stat().st_mode & 0o777)
        self.assertEqual(0o600, (self.data / "index.sqlite").stat().st_mode & 0o777)

    def test_an_exchange_that_was_forgotten_under_way_stays_so(self) -> None:
        log = ExchangeLog(self.data / "other")
        self.addCleanup(log.close)
        exchange = log.begin(HttpRequest())
        log.clear()
        exchange.received(b"late")
        exchange.finish(200, {})
        self.assertEqual([], log.entries())


if __name__ == "__main__":
    unittest.main()
