"""One client's connection: requests in, responses out, until either side has enough."""

from __future__ import annotations

import io
import socket
import struct
import time
from collections.abc import Callable
from email.message import Message
from http.server import BaseHTTPRequestHandler
from typing import TYPE_CHECKING

from .chunked_body import read_chunked
from .delivery import Delivery
from .head_recorder import HeadRecorder
from .http_request import HttpRequest
from .patient_reader import PatientReader
from .request_refused import RequestRefused
from .takeover import Takeover

if TYPE_CHECKING:
    from .simulator_server import SimulatorServer

MAX_BODY_BYTES = 64 * 1024 * 1024
SOCKET_TIMEOUT_SECONDS = 60
WHOLE_REQUEST_SECONDS = 300
_MAX_LINE_BYTES = 65536
_DRAIN_SECONDS = 1


class ConnectionHandler(BaseHTTPRequestHandler):
    """Leaves parsing to the standard library and takes the wire's every byte in its own hands."""

    server: SimulatorServer
    protocol_version = "HTTP/1.1"
    timeout = SOCKET_TIMEOUT_SECONDS
    whole_request_seconds = WHOLE_REQUEST_SECONDS
    disable_nagle_algorithm = True

    def setup(self) -> None:
        """Puts the recorder between the socket and the parser, after the handshake where there is one:
        on the connection's own thread, since a client may take its time over it."""
        if self.server.tls:
            self.request.settimeout(self.timeout)
            self.request = self.server.tls.wrap_socket(self.request, server_side=True)
        super().setup()
        self.rfile.close()
        self._reader = PatientReader(self.connection, self.timeout, self.whole_request_seconds)
        self.rfile = HeadRecorder(io.BufferedReader(self._reader))

    def handle_one_request(self) -> None:
        """Reads a request and sends its answer. A client that goes away is no error."""
        try:
            if self._read_request_line():
                with self.server.activity.exchange() as watch:
                    self._exchange(watch)
        except OSError:
            self.close_connection = True
        finally:
            self.rfile.take_head()

    def send_error(self, code: int, message: str | None = None,
                   explain: str | None = None) -> None:
        """What the parser calls when it gives up on a request."""
        raise RequestRefused(int(code), f"{message or 'The request is not HTTP'}.")

    def handle_expect_100(self) -> bool:
        """Asks for the body only when it will be taken."""
        if not self._is_chunked():
            self._body_length()
        return super().handle_expect_100()

    def _read_request_line(self) -> bool:
        """False when the client has closed or sent nothing in time between two requests."""
        self._reader.expect_request()
        self.command = self.path = ""
        self.headers = Message()
        self.raw_requestline = self.rfile.readline(_MAX_LINE_BYTES + 1)
        self.close_connection = not self.raw_requestline
        return bool(self.raw_requestline)

    def _exchange(self, watch: Callable[[], None]) -> None:
        try:
            request = self._read_request()
        except RequestRefused as refusal:
            delivery = self.server.refuse(self._request(), refusal.response)
            self._send(delivery)
            self._drain()
        else:
            if self.server.is_watching(request):
                watch()
            self._send(self.server.answer(request, self.client_address[0]))

    def _read_request(self) -> HttpRequest:
        if len(self.raw_requestline) > _MAX_LINE_BYTES:
            raise RequestRefused(414, "The request line is too long.")
        self.requestline = ""
        self.request_version = "HTTP/1.1"
        if not self.parse_request():
            raise RequestRefused(400, "The request line is empty.")
        try:
            return self._request(self._read_body())
        except TimeoutError:
            raise RequestRefused(408, "The request's body did not come in time.") from None

    def _read_body(self) -> bytes:
        if self._is_chunked():
            return read_chunked(self.rfile, MAX_BODY_BYTES)
        length = self._body_length()
        body = self.rfile.read(length)
        if len(body) < length:
            raise RequestRefused(400, f"The request ended after {len(body)} of {length} bytes.")
        return body

    def _request(self, body: bytes = b"") -> HttpRequest:
        return HttpRequest(self.command or "", self.path or "", self.rfile.take_head(),
                           self.headers, body, self.server.scheme,
                           self.server.connect)

    def _is_chunked(self) -> bool:
        coding = self.headers.get("Transfer-Encoding")
        if coding and not (coding.lower() == "chunked" and self.server.takes_chunks(self.path)):
            raise RequestRefused(411, "Bodies without a Content-Length are not taken.")
        return bool(coding)

    def _body_length(self) -> int:
        lengths = set(self.headers.get_all("Content-Length", []))
        if not lengths:
            if self.server.needs_length(self.command, self.path):
                raise RequestRefused(411, "The request has no Content-Length.")
            return 0
        text = lengths.pop().strip()
        if lengths or not (text.isascii() and text.isdigit()):
            raise RequestRefused(400, "The request's Content-Length is not one number.")
        if len(text) > 18 or int(text) > MAX_BODY_BYTES:
            raise RequestRefused(413, f"A request may have at most {MAX_BODY_BYTES} bytes.")
        return int(text)

    def _send(self, answer: Delivery | Takeover) -> None:
        if isinstance(answer, Delivery):
            self._deliver(answer)
            return
        answer.run(self.connection)
        if answer.resets:
            self._reset()
        elif not answer.keeps_open:
            self.close_connection = True

    def _deliver(self, delivery: Delivery) -> None:
        self.server.wait(delivery.pause)
        if delivery.resets:
            self._reset()
            return
        pieces = delivery.pieces(with_body=self.command != "HEAD")
        for number, piece in enumerate(pieces):
            if number:
                self.server.wait(delivery.spread / len(pieces))
            self.wfile.write(piece)
        if delivery.closes:
            self.close_connection = True

    def _reset(self) -> None:
        """Ends the connection the rude way: with linger time 0 a close sends RST instead of FIN."""
        self.close_connection = True
        self.connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self.rfile.close()
        self.connection.close()

    def _drain(self) -> None:
        """Takes what is still under way: closing over unread bytes can cost the client the answer."""
        self.connection.shutdown(socket.SHUT_WR)
        self.connection.settimeout(_DRAIN_SECONDS)
        until = time.monotonic() + _DRAIN_SECONDS
        while time.monotonic() < until and self.connection.recv(65536):
            pass
