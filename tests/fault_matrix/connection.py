"""One connection of a client, in the hands of a server that need not be kind."""

from __future__ import annotations

import socket
import struct
from email.parser import BytesParser

from wire.http_request import HttpRequest

_PATIENCE_SECONDS = 20
_LAST_WORDS_SECONDS = 1
_PART = 65536


class Gone(Exception):
    """The client has gone away."""


class Connection:
    """Bytes in and out, and both endings that a connection can have."""

    def __init__(self, peer: socket.socket) -> None:
        self._peer = peer
        self._peer.settimeout(_PATIENCE_SECONDS)
        self._peer.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        self._unread = b""
        self._is_open = True

    def read_request(self) -> HttpRequest:
        """A whole request; Gone when there is none."""
        while b"\r\n\r\n" not in self._unread:
            self._receive()
        head, _, self._unread = self._unread.partition(b"\r\n\r\n")
        first, _, lines = head.partition(b"\r\n")
        headers = BytesParser().parsebytes(lines + b"\r\n\r\n", headersonly=True)
        length = int(headers.get("Content-Length", 0))
        while len(self._unread) < length:
            self._receive()
        body, self._unread = self._unread[:length], self._unread[length:]
        method, target = first.decode("latin-1").split(" ")[:2]
        return HttpRequest(method, target, head + b"\r\n\r\n", headers, body)

    def send(self, data: bytes) -> None:
        """Sends all of it; Gone when nobody is there to take it."""
        try:
            self._peer.sendall(data)
        except OSError as error:
            raise Gone from error

    def close(self) -> None:
        """Ends in order: takes what still comes, so that the end does not turn into a reset."""
        if not self._is_open:
            return
        self._is_open = False
        try:
            self._peer.shutdown(socket.SHUT_WR)
            self._peer.settimeout(_LAST_WORDS_SECONDS)
            while self._peer.recv(_PART):
                pass
        except OSError:
            pass
        self._peer.close()

    def reset(self) -> None:
        """Ends the rude way: with linger time 0 a close sends RST instead of FIN."""
        self._is_open = False
        self._peer.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self._peer.close()

    def _receive(self) -> None:
        try:
            part = self._peer.recv(_PART)
        except OSError as error:
            raise Gone from error
        if not part:
            raise Gone
        self._unread += part
