"""A test case with a simulator of its own, on a free port of this machine, gone afterwards."""

from __future__ import annotations

import http.client
import json
import socket
import tempfile
import unittest
from pathlib import Path
from typing import Any

import documents
from documents import NAMES
from serving import serve

from endpoints.search_endpoint import DEFAULT_BROAD_LIMIT
from lejis.namespaces import SUBMISSION_PATH
from simulator import Simulator

GOOD_HEADERS = {"SOAPAction": NAMES.submit_action, "Content-Type": "text/xml;charset=utf-8"}


class SimulatorCase(unittest.TestCase):
    """Speaks to the simulator as a client does: over a socket, a new connection a request."""

    broad_limit = DEFAULT_BROAD_LIMIT

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.data = Path(folder.name)
        self.stops: list[str] = []
        simulator = Simulator(self.data, NAMES, lambda: self.stops.append("stop"),
                              self.broad_limit)
        self.server = serve(self, simulator)
        self.port = self.server.server_port

    def call(self, method: str, path: str, body: bytes | None = None,
             headers: dict[str, str] | None = None) -> tuple[int, bytes]:
        """Status and body of one exchange."""
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        try:
            connection.request(method, path, body, headers or {})
            answer = connection.getresponse()
            return answer.status, answer.read()
        finally:
            connection.close()

    def submit(self, body: bytes = documents.FULL, **headers: str) -> tuple[int, str]:
        """Sends a submission; further headers replace the right ones, '_' standing for '-'."""
        changed = {name.replace("_", "-"): value for name, value in headers.items()}
        status, answer = self.call("POST", SUBMISSION_PATH, body, {**GOOD_HEADERS, **changed})
        return status, answer.decode()

    def raw(self, data: bytes, then_close: bool = False) -> bytes:
        """Everything that the server says to these bytes until it closes."""
        with socket.create_connection(("127.0.0.1", self.port), timeout=10) as client:
            client.sendall(data)
            if then_close:
                client.shutdown(socket.SHUT_WR)
            answer = b""
            while part := client.recv(65536):
                answer += part
            return answer

    def control(self, method: str, path: str, value: Any = None) -> Any:
        """The JSON answer of a control call, which must succeed."""
        body = None if value is None else json.dumps(value).encode()
        status, answer = self.call(method, "/control/" + path, body)
        self.assertEqual(200, status, answer)
        return json.loads(answer)

    def order(self, kind: str, **more: Any) -> None:
        """Orders a fault."""
        self.control("POST", "faults", {"kind": kind, **more})

    def held(self) -> list[str]:
        """The numbers of the incidents held."""
        return [entry["id"] for entry in self.control("GET", "index")]

    def last_exchange(self) -> dict[str, Any]:
        """What the record says about the latest exchange."""
        return self.control("GET", "exchanges?last=1")[0]
