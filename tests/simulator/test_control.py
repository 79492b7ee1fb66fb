"""Looking inside, and who may."""

import threading
import time
import unittest
from unittest import mock
from urllib.parse import quote

import documents
from simulator_case import SimulatorCase

from endpoints.control_endpoint import ControlEndpoint
from endpoints.endpoint import Outcome
from faults.fault_queue import FaultQueue
from lejis.incident_index import IncidentIndex
from lejis.namespaces import SUBMISSION_PATH
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

    def test_only_this_machine_may(self) -> None:
        control = ControlEndpoint(None, None, FaultQueue(), None, lambda: None)
        for peer, expected in (("127.0.0.1", 200), ("127.8.9.1", 200), ("::1", 200),
                               ("::ffff:127.0.0.1", 200), ("10.0.0.1", 403),
                               ("::ffff:10.0.0.1", 403), ("fe80::1%eth0", 403), ("", 403)):
            with self.subTest(peer=peer):
                answer = control.handle(HttpRequest("GET", "/control/faults"), peer)
                self.assertEqual(expected, answer.status)


if __name__ == "__main__":
    unittest.main()
