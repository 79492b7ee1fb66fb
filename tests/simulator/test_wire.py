"""What comes over the wire when clients are careless, slow, broken or hostile."""

import contextlib
import http.client
import socket
import threading
import time
import unittest
from unittest import mock

import documents
from simulator_case import GOOD_HEADERS, SimulatorCase

from lejis.namespaces import SUBMISSION_PATH
from wire.connection_handler import MAX_BODY_BYTES, ConnectionHandler

POST = f"POST {SUBMISSION_PATH} HTTP/1.1\r\nHost: x\r\n".encode()


class WireTest(SimulatorCase):
    """After every misdeed the server still takes a submission."""

    def tearDown(self) -> None:
        self.assertEqual(200, self.submit()[0])

    def answered(self, status: int, data: bytes, then_close: bool = False) -> None:
        answer = self.raw(data, then_close)
        self.assertTrue(answer.startswith(b"HTTP/1.1 %d " % status), answer)
        self.assertIn(b"\r\nConnection: close\r\n", answer)
        self.assertEqual(status, self.last_exchange()["status"])

    def test_keep_alive(self) -> None:
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(connection.close)
        connection.connect()
        used = connection.sock
        for _ in range(3):
            connection.request("POST", SUBMISSION_PATH, documents.FULL, GOOD_HEADERS)
            self.assertIn(b"0 Accepted", connection.getresponse().read())
            self.assertIs(used, connection.sock)
        self.assertEqual(3, len(self.control("GET", "exchanges")))

    def test_two_requests_in_one_piece(self) -> None:
        one = b"GET /nowhere HTTP/1.1\r\nHost: x\r\n\r\n"
        last = b"GET /nowhere HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n"
        self.assertEqual(2, self.raw(one + last).count(b"HTTP/1.1 404 Not Found"))

    def test_garbage(self) -> None:
        for name, data in {
                "words": b"hello there you all\r\n\r\n", "empty line": b"\r\n\r\n",
                "one word": b"hello\r\n\r\n", "bytes": bytes(range(128, 256)) + b"\r\n\r\n",
                "TLS": b"\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03\r\n",
                "version": b"GET / HTTP/x.y\r\n\r\n"}.items():
            with self.subTest(name=name):
                self.answered(400, data)

    def test_too_long_or_too_many(self) -> None:
        self.answered(414, b"GET /" + b"x" * 70_000 + b" HTTP/1.1\r\n\r\n")
        self.answered(431, b"GET / HTTP/1.1\r\nX: " + b"x" * 70_000 + b"\r\n\r\n")
        self.answered(431, b"GET / HTTP/1.1\r\n" + b"X: y\r\n" * 200 + b"\r\n")

    def test_newer_version(self) -> None:
        self.answered(505, b"GET / HTTP/2.0\r\n\r\n")

    def test_length(self) -> None:
        for header, status in ((b"", 411), (b"Transfer-Encoding: chunked", 411),
                               (b"Content-Length: -1", 400), (b"Content-Length: +1", 400),
                               (b"Content-Length: many", 400), (b"Content-Length: ", 400),
                               (b"Content-Length: 1\r\nContent-Length: 2", 400),
                               (b"Content-Length: %d" % (MAX_BODY_BYTES + 1), 413),
                               (b"Content-Length: " + b"9" * 5000, 413)):
            with self.subTest(header=header[:40]):
                self.answered(status, POST + header + b"\r\n\r\nbody")

    def test_refusal_reaches_a_client_that_goes_on_sending(self) -> None:
        head = POST + b"Content-Length: %d\r\n\r\n" % (MAX_BODY_BYTES + 1)
        self.answered(413, head + bytes(20_000_000))

    def test_large_body_is_refused_before_it_is_asked_for(self) -> None:
        answer = self.raw(POST + b"Expect: 100-continue\r\nContent-Length: 99999999999\r\n\r\n")
        self.assertTrue(answer.startswith(b"HTTP/1.1 413 "), answer)

    def test_body_is_asked_for(self) -> None:
        answer = self.raw(POST + b"Expect: 100-continue\r\nConnection: close\r\n"
                                 b"Content-Length: 4\r\n\r\n<a/>")
        self.assertTrue(answer.startswith(b"HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 500 "), answer)

    def test_body_that_breaks_off(self) -> None:
        self.answered(400, POST + b"Content-Length: 10\r\n\r\nbody", then_close=True)

    def test_body_that_does_not_come(self) -> None:
        with mock.patch.object(ConnectionHandler, "timeout", 0.1):
            self.answered(408, POST + b"Content-Length: 10\r\n\r\nbody")

    def test_a_client_that_takes_too_long_over_a_request(self) -> None:
        with mock.patch.object(ConnectionHandler, "whole_request_seconds", 0.5), \
                socket.create_connection(("127.0.0.1", self.port), timeout=10) as client:
            client.sendall(b"POST /x HTTP/1.1\r\nContent-Length: 1000\r\n\r\n")
            began = time.monotonic()
            answer = b""
            client.settimeout(0.1)
            # Never silent for long.
            while not answer and time.monotonic() - began < 5:
                client.sendall(b"x")
                with contextlib.suppress(TimeoutError):
                    answer = client.recv(1000)
            self.assertIn(b" 408 ", answer)
            self.assertLess(time.monotonic() - began, 2)

    def test_the_time_of_a_request_begins_with_its_first_byte(self) -> None:
        with mock.patch.object(ConnectionHandler, "whole_request_seconds", 0.3), \
                socket.create_connection(("127.0.0.1", self.port), timeout=10) as client:
            for _ in range(2):
                time.sleep(0.5)
                client.sendall(b"GET /control/faults HTTP/1.1\r\n\r\n")
                self.assertIn(b" 200 ", client.recv(1000))

    def test_head_that_does_not_come(self) -> None:
        with mock.patch.object(ConnectionHandler, "timeout", 0.1):
            self.assertEqual(b"", self.raw(POST))
            self.assertEqual(b"", self.raw(b""))

    def test_clients_that_go_away(self) -> None:
        for data in (b"", b"POST", POST + b"Content-Length: 5\r\n\r\n", POST):
            socket.create_connection(("127.0.0.1", self.port)).close()
            with socket.create_connection(("127.0.0.1", self.port)) as client:
                client.sendall(data)

    def test_answer_to_head_has_no_body(self) -> None:
        answer = self.raw(b"HEAD /nowhere HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n")
        self.assertTrue(answer.startswith(b"HTTP/1.1 404 "))
        self.assertTrue(answer.endswith(b"\r\n\r\n"))

    def test_a_slow_answer_holds_nobody_up(self) -> None:
        self.order("slow", seconds=30)
        waiting = threading.Thread(target=self.submit)
        waiting.start()
        while self.control("GET", "faults"):
            time.sleep(0.01)
        began = time.monotonic()
        self.assertEqual(200, self.submit()[0])
        self.server.stopping.set()
        waiting.join()
        self.assertLess(time.monotonic() - began, 5)

    def test_a_failure_of_its_own_is_told_as_such(self) -> None:
        with mock.patch("simulator.SubmissionEndpoint.handle", side_effect=KeyError("x")), \
                mock.patch("traceback.print_exc") as told:
            status, answer = self.submit()
        self.assertEqual(500, status)
        self.assertIn("simulator itself", answer)
        told.assert_called_once()

    def test_many_at_once(self) -> None:
        results = []
        threads = [threading.Thread(target=lambda number=number: results.append(
            self.submit(documents.submission(documents.card(str(number))))[0]))
            for number in range(20)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual([200] * 20, results)
        self.assertEqual(20, len(self.held()))
        self.assertEqual(list(range(1, 21)),
                         [one["number"] for one in self.control("GET", "exchanges")])


if __name__ == "__main__":
    unittest.main()
