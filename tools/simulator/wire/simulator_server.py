"""The listening socket and what all connections share."""

from __future__ import annotations

import os
import socket
import socketserver
import ssl
import sys
import threading
import time
import traceback
from http.server import ThreadingHTTPServer
from typing import Any, Protocol

from .activity import Activity
from .connection_handler import ConnectionHandler
from .delivery import Delivery
from .http_request import HttpRequest
from .http_response import HttpResponse
from .own_connection import connect_to
from .takeover import Takeover

_LAST_ANSWERS_SECONDS = 1


class Application(Protocol):
    """What stands behind the wire."""

    def answer(self, request: HttpRequest, peer: str) -> Delivery | Takeover:
        """The response to a request and the manner of sending it."""

    def refuse(self, request: HttpRequest, response: HttpResponse) -> Delivery:
        """Takes note of a request that the wire itself has refused."""

    def needs_length(self, method: str, target: str) -> bool:
        """Whether such a request has to say how long its body is."""

    def takes_chunks(self, target: str) -> bool:
        """Whether a request there may have a body of which nobody knows the length."""

    def is_watching(self, request: HttpRequest) -> bool:
        """Whether such a request only waits for something to happen."""


class SimulatorServer(ThreadingHTTPServer):
    """Serves each connection on a thread of its own; none of them can hold up the end."""

    daemon_threads = True
    # On Windows two programs could listen on one port then, and each would get some of the requests.
    allow_reuse_address = os.name == "posix"
    request_queue_size = 128

    def __init__(self, host: str, port: int, application: Application,
                 tls: ssl.SSLContext | None = None) -> None:
        self.address_family = socket.AF_INET6 if ":" in host else socket.AF_INET
        self.activity = Activity()
        self.stopping = threading.Event()
        self._application, self.tls = application, tls
        super().__init__((host, port), ConnectionHandler)

    def server_bind(self) -> None:
        """Binds without asking the name service who we are, which can take seconds."""
        socketserver.TCPServer.server_bind(self)
        self.server_name, self.server_port = self.server_address[:2]

    @property
    def scheme(self) -> str:
        """How the server is spoken to."""
        return "https" if self.tls else "http"

    @property
    def address(self) -> str:
        """Where clients find the server."""
        host = f"[{self.server_name}]" if ":" in self.server_name else self.server_name
        return f"{self.scheme}://{host}:{self.server_port}"

    def connect(self) -> socket.socket:
        """A connection to the server itself."""
        host = {"0.0.0.0": "127.0.0.1", "::": "::1"}.get(self.server_name, self.server_name)
        return connect_to(host, self.server_port, self.tls is not None)

    def wait(self, seconds: float) -> None:
        """Lets time pass, but not the server's end."""
        if seconds > 0:
            self.stopping.wait(seconds)

    def end(self) -> None:
        """Takes no more connections, and gives the answers now under way a moment to get out."""
        self.stopping.set()
        self.shutdown()
        until = time.monotonic() + _LAST_ANSWERS_SECONDS
        while self.activity.is_answering and time.monotonic() < until:
            time.sleep(0.01)

    def needs_length(self, method: str, target: str) -> bool:
        """Whether such a request has to say how long its body is."""
        return self._application.needs_length(method, target)

    def takes_chunks(self, target: str) -> bool:
        """Whether a request there may have a body of which nobody knows the length."""
        return self._application.takes_chunks(target)

    def is_watching(self, request: HttpRequest) -> bool:
        """Whether such a request only waits for something to happen."""
        return self._application.is_watching(request)

    def refuse(self, request: HttpRequest, response: HttpResponse) -> Delivery:
        """The answer to a request that broke off or is not HTTP."""
        return self._guarded(lambda: self._application.refuse(request, response))

    def answer(self, request: HttpRequest, peer: str) -> Delivery | Takeover:
        """The answer to a whole request."""
        return self._guarded(lambda: self._application.answer(request, peer))

    def handle_error(self, request: Any, client_address: Any) -> None:
        """A connection's failure ends that connection and is told, not more; a handshake that fails
        is the client's failure."""
        if isinstance(sys.exc_info()[1], OSError):
            return
        traceback.print_exc(file=sys.stderr)

    @staticmethod
    def _guarded(answer: Any) -> Delivery:
        """A mistake of the simulator's own must not look like an answer of LEJIS, nor kill it."""
        try:
            return answer()
        except Exception:  # whatever it is, the client gets to know and the server lives on
            traceback.print_exc(file=sys.stderr)
            return Delivery(HttpResponse.text(500, "The simulator itself has failed; "
                                                   "its error output says how."), closes=True)
