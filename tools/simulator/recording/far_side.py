"""The real LEJIS Interface, as the recorder reaches it."""

from __future__ import annotations

import re
import socket
from urllib.parse import urlsplit

from wire.http_request import HttpRequest

_AUTHORITY = re.compile(r"([A-Za-z0-9._-]+|\[[0-9A-Fa-f:.]+\])(:[0-9]{1,5})?")
# Host names another server than the client thinks; Expect has been answered on the client's side.
_REPLACED = re.compile(rb"(?im)^(?:host|expect)[ \t]*:.*\r?\n(?:[ \t].*\r?\n)*")


class FarSide:
    """Its address is that of a server alone: the client says which service it wants."""

    def __init__(self, address: str) -> None:
        parts = urlsplit(address)
        if parts.scheme != "http" or not _AUTHORITY.fullmatch(parts.netloc) \
                or parts.path not in ("", "/") or parts.query or parts.fragment:
            raise ValueError(f"'{address}' is no address of a server; it must look like "
                             "http://lejis-interface:8080, without a path.")
        self._host, self._port = parts.hostname, parts.port or 80
        self._authority = parts.netloc.encode("ascii")
        self.address = f"http://{parts.netloc}"

    def is_reached_at(self, host: str, port: int) -> bool:
        """Whether this is the address of a server that listens there."""
        return self._port == port and self._host in (host, "localhost", "127.0.0.1", "::1")

    def connect(self) -> socket.socket:
        """A new connection. Raises OSError when the other side takes no connection."""
        connection = socket.create_connection((self._host, self._port))
        connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        return connection

    def request_bytes(self, request: HttpRequest) -> bytes:
        """What the far side gets: the client's own bytes but for the name of the host."""
        first, newline, rest = request.head.partition(b"\n")
        host = b"Host: " + self._authority + b"\r\n"
        return first + newline + host + _REPLACED.sub(b"", rest) + request.body
