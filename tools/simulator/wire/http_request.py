"""One HTTP request as it came in."""

from __future__ import annotations

import socket
from collections.abc import Callable
from dataclasses import dataclass, field
from email.message import Message
from urllib.parse import parse_qs


@dataclass(frozen=True)
class HttpRequest:
    """Parsed as far as it could be; `head` holds the request line and headers byte for byte."""

    method: str = ""
    target: str = ""
    head: bytes = b""
    headers: Message = field(default_factory=Message)
    body: bytes = b""
    scheme: str = "http"
    # How to connect to the server that got it.
    server: Callable[[], socket.socket] | None = None

    @property
    def path(self) -> str:
        """The target without its query."""
        return self.target.partition("?")[0]

    @property
    def query(self) -> dict[str, str]:
        """The query's arguments, the first of each name; names in lower case."""
        text = self.target.partition("?")[2]
        try:
            pairs = parse_qs(text, keep_blank_values=True, max_num_fields=50)
        except ValueError:
            return {}
        return {name.lower(): values[0] for name, values in pairs.items()}

    def header(self, name: str) -> str | None:
        """The header's value; several of one name are joined, so that they match no single one."""
        values = self.headers.get_all(name)
        return ", ".join(str(value).strip() for value in values) if values else None
