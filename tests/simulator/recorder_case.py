"""A test case with a recorder before a far side that says whatever a test wants."""

from __future__ import annotations

import json
import socket
import struct
import tempfile
import threading
import unittest
from collections.abc import Callable
from pathlib import Path
from typing import Any

from documents import NAMES
from serving import serve

from recorder import Recorder
from recording.far_side import FarSide


class ScriptedFarSide:
    """Takes one connection after the other. `play` gets each, with the request that came."""

    def __init__(self) -> None:
        self.requests: list[bytes] = []
        self.play: Callable[[socket.socket], None] = lambda connection: None
        self._listener = socket.create_server(("127.0.0.1", 0))
        self.port = self._listener.getsockname()[1]
        self._thread = threading.Thread(target=self._serve)
        self._thread.start()

    def end(self) -> None:
        """Nobody listens any longer."""
        self._listener.shutdown(socket.SHUT_RDWR)
        self._listener.close()
        self._thread.join()

    def _serve(self) -> None:
        while True:
            try:
                connection, _ = self._listener.accept()
            except OSError:
                return
            with connection:
                connection.settimeout(10)
                self.requests.append(self._request(connection))
                self.play(connection)

    @staticmethod
    def _request(connection: socket.socket) -> bytes:
        """All bytes up to the mark that the tests put at the end of their bodies."""
        data = b""
        while not data.endswith(b"END") and (part := connection.recv(65536)):
            data += part
        return data


def reset(connection: socket.socket) -> None:
    """Ends the connection the rude way."""
    connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))


class RecorderCase(unittest.TestCase):
    """Speaks in bytes on both sides."""

    REQUEST = (b"POST /some/where?x=%20y HTTP/1.1\r\nHost: recorder\r\nx-Odd:  Value \r\n"
               b"SOAPAction: a\r\nContent-Length: 10\r\n\r\n\xff\x00<b>\r\nEND")

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.data = Path(folder.name)
        self.far_side = ScriptedFarSide()
        self.addCleanup(self.far_side.end)
        self.serve(self.far_side.port)

    def serve(self, far_port: int) -> None:
        """Starts a recorder before that port."""
        recorder = Recorder(self.data, NAMES, lambda: None,
                            FarSide(f"http://127.0.0.1:{far_port}"))
        self.server = serve(self, recorder)

    def connect(self) -> socket.socket:
        """A client's connection."""
        client = socket.create_connection(("127.0.0.1", self.server.server_port), timeout=10)
        self.addCleanup(client.close)
        return client

    def exchange(self, answer: bytes, request: bytes = b"") -> bytes:
        """What the client gets when the far side says this and closes."""
        self.far_side.play = lambda connection: connection.sendall(answer)
        client = self.connect()
        client.sendall(request or self.REQUEST)
        return read_all(client)

    def control(self, path: str) -> Any:
        """The JSON answer of a control call."""
        client = self.connect()
        client.sendall(f"GET /control/{path} HTTP/1.1\r\nConnection: close\r\n\r\n".encode())
        return json.loads(read_all(client).partition(b"\r\n\r\n")[2])

    def kept(self, number: int, side: str) -> bytes:
        """The bytes on the disk."""
        return (self.data / "exchanges" / f"{number:06}-{side}.http").read_bytes()

    def last_exchange(self) -> dict[str, Any]:
        """What the record says about the latest exchange."""
        return self.control("exchanges?last=1")[0]


def read_all(client: socket.socket) -> bytes:
    """Everything up to the end of the connection."""
    data = b""
    while part := client.recv(65536):
        data += part
    return data
