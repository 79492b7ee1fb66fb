"""Standing between a client and a far side, whatever either of them does."""

import socket
import threading
import time
import unittest
from unittest import mock

import documents
from recorder_case import RecorderCase, read_all, reset
from simulator_case import GOOD_HEADERS, SimulatorCase

from lejis.namespaces import SUBMISSION_PATH
from recording import passage
from recording.far_side import FarSide
from recording.response_frame import ResponseFrame
from wire.http_request import HttpRequest

OK = b"HTTP/1.1 200 Fine\r\n"
WHOLE = OK + b"x-Odd:  Value \r\nContent-Length: 5\r\nConnection: close\r\n\r\n\xff\x00<b>"


class PassingOnTest(RecorderCase):
    """Both directions go through unchanged and are on the disk as they were."""

    def test_everything_but_the_host_goes_through(self) -> None:
        self.assertEqual(WHOLE, self.exchange(WHOLE))
        host = f"Host: 127.0.0.1:{self.far_side.port}\r\n".encode()
        head, body = self.REQUEST.split(b"\r\n\r\n", 1)
        first, _, *rest = head.split(b"\r\n")
        expected = b"\r\n".join([first, host.rstrip(), *rest]) + b"\r\n\r\n" + body
        self.assertEqual([expected], self.far_side.requests)
        self.assertEqual(self.REQUEST, self.kept(1, "request"))
        self.assertEqual(WHOLE, self.kept(1, "response"))
        entry = self.last_exchange()
        told = [entry[key] for key in ("method", "path", "status", "note", "checks")]
        self.assertEqual(["POST", "/some/where?x=%20y", 200, "", {}], told)

    def test_any_method_and_any_answer(self) -> None:
        for number, (request, answer, status) in enumerate((
                (b"GET /a?wsdl HTTP/1.1\r\nx: END", WHOLE, 200),
                (b"BREW / HTTP/1.1\r\nx: END", b"HTTP/1.1 418 \r\nConnection: close\r\n"
                                             b"Content-Length: 0\r\n\r\n", 418),
                (b"HEAD /a HTTP/1.1\r\nx: END", OK + b"Content-Length: 5\r\n"
                                              b"Connection: close\r\n\r\n", 200),
                (b"POST /a HTTP/1.1\r\nContent-Length: 0\r\nx: END", OK + b"\r\nto the end", 200),
                (b"GET /a HTTP/1.0\r\nx: END", b"HTTP/1.0 204 \n\n", 204)), 1):
            with self.subTest(request=request, answer=answer):
                # The far side reads up to the end of the head, which these requests end with.
                with mock.patch.object(self.far_side, "_request",
                                       lambda connection: connection.recv(65536)):
                    path = request.replace(b" / ", b" /b ")
                    self.assertEqual(answer, self.exchange(answer, path + b"\r\n\r\n"))
                self.assertEqual(answer, self.kept(number, "response"))
                self.assertEqual((status, ""), (self.last_exchange()["status"],
                                                self.last_exchange()["note"]))

    def test_several_exchanges_on_one_connection(self) -> None:
        for answer in (OK + b"Content-Length: 2\r\n\r\nab",
                       OK + b"Transfer-Encoding: chunked\r\n\r\n2;x\r\nab\r\n0\r\nT: r\r\n\r\n"):
            self.far_side.play = lambda connection, answer=answer: connection.sendall(answer)
            client = self.connect()
            for _ in range(3):
                client.sendall(self.REQUEST)
                got = b""
                while len(got) < len(answer):
                    got += client.recv(65536)
                self.assertEqual(answer, got)
        self.assertEqual(6, len(self.control("exchanges")))

    def test_chunks_of_a_request(self) -> None:
        raw = (b"POST /a HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n"
               b"3;x=y\r\nabc\r\n0\r\nTrailer: x\r\n\r\nEND")[:-3]
        with mock.patch.object(self.far_side, "_request",
                               lambda connection: connection.recv(65536)):
            self.assertEqual(WHOLE, self.exchange(WHOLE, raw))
        self.assertTrue(self.far_side.requests[0].endswith(raw.partition(b"\r\n\r\n")[2]))
        self.assertEqual(raw, self.kept(1, "request"))

    def test_requests_that_cannot_be_passed_on(self) -> None:
        for request in (b"hello\r\n\r\n", b"POST / HTTP/1.1\r\nContent-Length: x\r\n\r\n",
                        b"POST /a HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\nx\r\n"):
            with self.subTest(request=request):
                self.assertTrue(self.exchange(b"", request).startswith(b"HTTP/1.1 400 "))
                self.assertIn("recorder refused", self.last_exchange()["note"])
        self.assertEqual([], self.far_side.requests)

    def test_an_answer_is_handed_on_as_it_comes(self) -> None:
        goes_on = threading.Event()

        def play(connection: socket.socket) -> None:
            connection.sendall(WHOLE[:-1])
            goes_on.wait(10)
            connection.sendall(WHOLE[-1:])

        self.far_side.play = play
        client = self.connect()
        client.sendall(self.REQUEST)
        got = b""
        while len(got) < len(WHOLE) - 1:
            got += client.recv(65536)
        self.assertEqual(WHOLE[:-1], self.kept(1, "response"))
        goes_on.set()
        self.assertEqual(WHOLE, got + read_all(client))

    def test_an_exchange_is_listed_before_the_client_has_all_of_it(self) -> None:
        for number in range(1, 6):
            self.exchange(WHOLE)
            entries = (self.data / "exchanges" / "exchanges.jsonl").read_text().splitlines()
            self.assertEqual(number, len(entries))


class FarSideThatFailsTest(RecorderCase):
    """The client sees the same failure; the record has every byte and a note."""

    def failed(self, play: object, received: bytes, note: str) -> None:
        self.far_side.play = play
        client = self.connect()
        client.sendall(self.REQUEST)
        try:
            got = read_all(client)
        except ConnectionResetError:
            got = None
        self.assertIn(note, self.last_exchange()["note"])
        self.assertEqual(received, self.kept(1, "response"))
        self.got = got

    def test_answers_that_are_cut_off(self) -> None:
        for cut, note in ((0, "end of the headers"), (10, "end of the headers"),
                          (len(WHOLE) - 1, "end of the body")):
            with self.subTest(cut=cut):
                self.assertEqual(WHOLE[:cut], self.exchange(WHOLE[:cut]))
                entry = self.last_exchange()
                self.assertIn(note, entry["note"])
                self.assertEqual(200 if "body" in note else 0, entry["status"])
                self.assertEqual(WHOLE[:cut], self.kept(entry["number"], "response"))

    def test_chunks_that_are_cut_off(self) -> None:
        answer = OK + b"Transfer-Encoding: chunked\r\n\r\n5\r\nab"
        self.assertEqual(answer, self.exchange(answer))
        self.assertIn("end of the body", self.last_exchange()["note"])

    def test_answers_that_are_no_http(self) -> None:
        for answer in (b"garbage\x00\xff", b"SSH-2.0-x\r\n", b"HTTP/1.1 abc\r\n\r\n",
                       OK + b"Content-Length: -5\r\n\r\nbody",
                       OK + b"Transfer-Encoding: chunked\r\n\r\nxyz\r\nbody"):
            with self.subTest(answer=answer):
                self.assertEqual(answer, self.exchange(answer))
                self.assertEqual(answer, self.kept(self.last_exchange()["number"], "response"))

    def test_reset(self) -> None:
        self.failed(reset, b"", "reset the connection")
        self.assertIsNone(self.got)

    def test_reset_in_the_middle(self) -> None:
        def play(connection: socket.socket) -> None:
            connection.sendall(WHOLE[:-1])
            time.sleep(0.3)
            reset(connection)

        self.failed(play, WHOLE[:-1], "reset the connection")

    def test_nobody_listens(self) -> None:
        self.serve(1)
        self.failed(None, b"", "could not be reached: Connection refused")
        self.assertIsNone(self.got)
        self.assertEqual(0, self.last_exchange()["status"])
        self.assertEqual(self.REQUEST, self.kept(1, "request"))

    def test_answer_before_the_request_is_read(self) -> None:
        early = b"HTTP/1.1 413 Too large\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"
        with mock.patch.object(self.far_side, "_request", lambda connection: connection.recv(10)):
            request = b"POST /a HTTP/1.1\r\nContent-Length: 9\r\n\r\n123456789"
            self.assertIn(self.exchange(early, request)[:12], (b"HTTP/1.1 413", b""))


class ClientThatGoesAwayTest(RecorderCase):
    """The far side learns of it, and nothing hangs."""

    def test_before_the_answer(self) -> None:
        closed = []
        self.far_side.play = lambda connection: closed.append(connection.recv(1))
        client = self.connect()
        client.sendall(self.REQUEST)
        while not self.far_side.requests:
            time.sleep(0.01)
        client.close()
        while not self.control("exchanges"):
            time.sleep(0.01)
        self.assertEqual([b""], closed)

    def test_a_client_that_only_stops_sending_gets_its_answer(self) -> None:
        self.far_side.play = lambda connection: (connection.recv(1), connection.sendall(WHOLE))
        client = self.connect()
        client.sendall(self.REQUEST)
        client.shutdown(socket.SHUT_WR)
        self.assertEqual(WHOLE, read_all(client))

    def test_a_far_side_that_never_answers_it(self) -> None:
        ended = threading.Event()
        self.addCleanup(ended.set)
        self.far_side.play = lambda connection: ended.wait(10)
        with mock.patch.object(passage, "_PATIENCE_SECONDS", 0.2):
            client = self.connect()
            client.sendall(self.REQUEST)
            client.close()
            while not self.control("exchanges"):
                time.sleep(0.01)
        self.assertIn("client went away", self.last_exchange()["note"])


class BeforeTheSimulatorTest(SimulatorCase):
    """Has a far side that does what a LEJIS Interface does."""

    def setUp(self) -> None:
        super().setUp()
        self.recorder = RecorderCase()
        self.addCleanup(self.recorder.doCleanups)
        self.recorder.data = self.data / "recorder"
        self.recorder.serve(self.port)
        self.far_port, self.port = self.port, self.recorder.server.server_port

    def test_submission(self) -> None:
        self.assertIn("1 added", self.submit()[1])
        entry = self.last_exchange()
        self.assertEqual((True, "PA0123400 2007-000123"), (entry["valid"], entry["about"]))
        self.submit(documents.FULL.replace(b">17000<", b">1<"))
        self.assertIn("not valid", self.last_exchange()["checks"]["schema"])
        self.assertEqual(500, self.last_exchange()["status"])

    def test_chunked_submissions_are_judged_by_what_they_say(self) -> None:
        lines = [f"POST {SUBMISSION_PATH} HTTP/1.1", "Transfer-Encoding: chunked",
                 *(f"{name}: {value}" for name, value in GOOD_HEADERS.items())]
        size = b"\r\n\r\n%x\r\n" % len(documents.FULL)
        self.raw("\r\n".join(lines).encode() + size + documents.FULL + b"\r\n0\r\n\r\n")
        entry = self.last_exchange()
        self.assertEqual((True, 411), (entry["valid"], entry["status"]))

    def test_addresses_lead_to_the_far_side(self) -> None:
        answer = self.call("GET", SUBMISSION_PATH + "?wsdl")[1]
        self.assertIn(f"http://127.0.0.1:{self.far_port}/".encode(), answer)

    def test_nothing_is_simulated(self) -> None:
        address = f"http://127.0.0.1:{self.far_port}"
        self.assertEqual(address, self.control("GET", "status")["far_side"])
        for path in ("faults", "index"):
            self.assertEqual(404, self.call("GET", "/control/" + path)[0])
        self.assertEqual(200, self.call("GET", "/")[0])
        self.assertEqual([], self.control("GET", "exchanges"))


class ResponseFrameTest(unittest.TestCase):
    """The end is found wherever the bytes are cut."""

    WHOLE = {
        "length": (OK + b"Content-Length: 3\r\n\r\nabc", True),
        "no body": (b"HTTP/1.1 304 \r\nContent-Length: 3\r\n\r\n", True),
        "chunks": (OK + b"transfer-encoding: Chunked\r\n\r\na;x\r\n0123456789\r\n0\r\nT: x\r\n\r\n",
                   True),
        "interim": (b"HTTP/1.1 100 Continue\r\n\r\n" + OK + b"Content-Length: 0\r\n\r\n", True),
        "newlines alone": (b"HTTP/1.1 200 OK\nContent-Length: 1\n\na", True),
        "close": (OK + b"Connection: close\r\nContent-Length: 0\r\n\r\n", False),
        "old": (b"HTTP/1.0 200 OK\r\nContent-Length: 0\r\n\r\n", False),
        "old and open": (b"HTTP/1.0 200 OK\r\nConnection: Keep-Alive\r\nContent-Length: 0\r\n\r\n",
                         True),
    }

    def test_end_and_what_follows(self) -> None:
        for name, (raw, keeps_open) in self.WHOLE.items():
            for size in (1, 2, 3, 7, len(raw)):
                with self.subTest(name=name, size=size):
                    frame = ResponseFrame("POST")
                    for at in range(0, len(raw), size):
                        self.assertFalse(frame.is_complete, raw[:at])
                        frame.feed(raw[at:at + size])
                    self.assertEqual((True, keeps_open, ""),
                                     (frame.is_complete, frame.keeps_open, frame.lacks))

    def test_every_beginning_lacks_something(self) -> None:
        for name, (raw, _) in self.WHOLE.items():
            for cut in range(len(raw)):
                with self.subTest(name=name, cut=cut):
                    frame = ResponseFrame("POST")
                    frame.feed(raw[:cut])
                    self.assertIn(frame.lacks, ("head", "body"))

    def test_what_ends_with_its_connection(self) -> None:
        for raw in (b"garbage\r\n", OK + b"\r\nbody", b"x" * 1_000_001, b"HTTP/1.1 2_0 x\r\n",
                    b"HTTP/1.1\r\n", b"\r\n", OK + b"Content-Length: 1 1\r\n\r\n"):
            with self.subTest(raw=raw[:40]):
                frame = ResponseFrame("POST")
                frame.feed(raw)
                frame.feed(b"more")
                self.assertEqual((False, ""), (frame.is_complete, frame.lacks))


class FarSideTest(unittest.TestCase):
    """Its address, and the request that it gets."""

    def test_addresses(self) -> None:
        for address in ("http://lejis:8080", "http://lejis/", "http://127.0.0.1", "http://[::1]:8"):
            with self.subTest(address=address):
                self.assertEqual(address.rstrip("/"), FarSide(address).address)
        for address in ("lejis:8080", "https://lejis", "http://", "http://a/services", "http://a?b",
                        "http://a b", "http://u:p@a", "http://a:99999", "http://a:x", "ftp://a"):
            with self.subTest(address=address), self.assertRaises(ValueError):
                FarSide(address)

    def test_itself(self) -> None:
        self.assertTrue(FarSide("http://localhost:8080").is_reached_at("127.0.0.1", 8080))
        self.assertFalse(FarSide("http://localhost:8081").is_reached_at("127.0.0.1", 8080))
        self.assertFalse(FarSide("http://lejis:8080").is_reached_at("127.0.0.1", 8080))

    def test_only_host_and_expect_are_other(self) -> None:
        head = (b"POST /hOst:x HTTP/1.1\r\nA: b\r\nhost : recorder\r\n\tfolded\r\n"
                b"EXPECT: 100-continue\r\nX-Host: y\r\nZ: Host: q\r\n\r\n")
        request = HttpRequest(head=head, body=b"Host: z\n")
        given = FarSide("http://lejis:8080").request_bytes(request)
        self.assertEqual(b"POST /hOst:x HTTP/1.1\r\nHost: lejis:8080\r\nA: b\r\nX-Host: y\r\n"
                         b"Z: Host: q\r\n\r\nHost: z\n", given)


if __name__ == "__main__":
    unittest.main()
