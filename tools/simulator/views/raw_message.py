"""An HTTP message taken apart after the fact, whatever state it is in."""

from __future__ import annotations

import re
import zlib
from email.message import Message
from email.parser import Parser

_HEAD_END = re.compile(rb"\r?\n\r?\n")
_INTERIM = re.compile(rb"HTTP/1\.[01] 1\d\d ")
MAX_UNPACKED_BYTES = 16 * 1024 * 1024


class RawMessage:
    """Head and body. `body` is without the transfer's and the content's coding, as far as it
    goes; what had to be undone, or could not be, is told in `notes`."""

    def __init__(self, raw: bytes) -> None:
        self.notes: list[str] = []
        head, body = _split(raw)
        self.head = head.decode("latin-1")
        self.headers = _headers(self.head)
        if "chunked" in (self.headers.get("Transfer-Encoding") or "").lower():
            body = self._joined(body)
        if "gzip" in (self.headers.get("Content-Encoding") or "").lower():
            body = self._unpacked(body)
        self.body = body

    @property
    def is_xml(self) -> bool:
        """Says so, or looks so."""
        named = "xml" in (self.headers.get("Content-Type") or "").lower()
        return named or self.body.lstrip().startswith(b"<?xml")

    def _joined(self, body: bytes) -> bytes:
        whole = bytearray()
        while True:
            size_line, _, rest = body.partition(b"\r\n")
            size = size_line.partition(b";")[0].strip()
            if not re.fullmatch(rb"[0-9A-Fa-f]{1,8}", size):
                self.notes.append("The chunks of the body break off or make no sense.")
                return bytes(whole)
            length = int(size, 16)
            if not length:
                self.notes.append("The body came in chunks, which are joined here.")
                return bytes(whole)
            whole += rest[:length]
            body = rest[length + 2:]

    def _unpacked(self, body: bytes) -> bytes:
        try:
            unpacked = zlib.decompressobj(wbits=31).decompress(body, MAX_UNPACKED_BYTES)
        except zlib.error:
            self.notes.append("The body says that it is packed, but does not unpack.")
            return body
        self.notes.append("The body came packed and is unpacked here.")
        return unpacked


def _split(raw: bytes) -> tuple[bytes, bytes]:
    """What is no HTTP at all counts as body; interim responses count as head."""
    start = 0
    while match := _HEAD_END.search(raw, start):
        if not _INTERIM.match(raw, start):
            return raw[:match.end()], raw[match.end():]
        start = match.end()
    return (raw, b"") if b"HTTP/1." in raw[:8192] else (b"", raw)


def _headers(head: str) -> Message:
    last = re.split(r"\r?\n\r?\n", head.rstrip())[-1]
    return Parser().parsestr(last.partition("\n")[2], headersonly=True)
