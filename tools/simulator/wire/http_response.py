"""One HTTP response before it is sent."""

from __future__ import annotations

import json
from dataclasses import dataclass
from email.utils import formatdate
from http import HTTPStatus
from typing import Any

_WITHOUT_BODY = (204, 304)


def standard_reason(status: int) -> str:
    """The reason phrase that goes with a status, empty for an unregistered one."""
    try:
        return HTTPStatus(status).phrase
    except ValueError:
        return ""


@dataclass(frozen=True)
class HttpResponse:
    """Status, body and what describes them. `reason` None stands for the standard phrase."""

    status: int
    body: bytes = b""
    content_type: str = "text/plain; charset=utf-8"
    reason: str | None = None
    headers: tuple[tuple[str, str], ...] = ()

    @classmethod
    def text(cls, status: int, sentence: str, **more: Any) -> HttpResponse:
        """An answer for people."""
        return cls(status, (sentence + "\n").encode(), **more)

    @classmethod
    def json(cls, value: Any) -> HttpResponse:
        """An answer for programs."""
        return cls(200, (json.dumps(value, indent=1) + "\n").encode(), "application/json")

    @classmethod
    def compact_json(cls, value: Any) -> HttpResponse:
        """The same for answers that are asked for often."""
        return cls(200, (json.dumps(value, separators=(",", ":")) + "\n").encode(),
                   "application/json")

    @classmethod
    def xml(cls, body: bytes, status: int = 200) -> HttpResponse:
        """An XML document in UTF-8."""
        return cls(status, body, "text/xml; charset=utf-8")

    def head(self, closing: bool) -> bytes:
        """Status line and headers, up to and including the blank line."""
        reason = standard_reason(self.status) if self.reason is None else self.reason
        lines = [f"HTTP/1.1 {self.status} {reason}", f"Date: {formatdate(usegmt=True)}"]
        lines += [f"{name}: {value}" for name, value in self.headers]
        if self.status not in _WITHOUT_BODY:
            if self.content_type:
                lines.append(f"Content-Type: {self.content_type}")
            lines.append(f"Content-Length: {len(self.body)}")
        if closing:
            lines.append("Connection: close")
        return ("\r\n".join(lines) + "\r\n\r\n").encode("latin-1")

    def to_bytes(self, closing: bool = False, with_body: bool = True) -> bytes:
        """The whole response. An answer to HEAD goes without its body."""
        body = self.body if with_body and self.status not in _WITHOUT_BODY else b""
        return self.head(closing) + body
