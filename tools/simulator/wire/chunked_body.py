"""Bodies that come in chunks."""

from __future__ import annotations

import re
from typing import Protocol

from .request_refused import RequestRefused

_SIZE = re.compile(rb"([0-9A-Fa-f]{1,8})[ \t]*(;.*)?\r?\n")
_MAX_LINE_BYTES = 65536


class Stream(Protocol):
    """Where the chunks come from."""

    def read(self, size: int) -> bytes:
        """So many bytes, fewer only at the end."""

    def read_line(self, limit: int) -> bytes:
        """A line with its end."""


def read_chunked(stream: Stream, most: int) -> bytes:
    """The body as it comes over the wire, sizes and all."""
    raw = bytearray()
    size = 1
    while size:
        line = stream.read_line(_MAX_LINE_BYTES)
        match = _SIZE.fullmatch(line)
        if not match:
            raise RequestRefused(400, "The chunks of the request break off or make no sense.")
        size = int(match[1], 16)
        if len(raw) + size > most:
            raise RequestRefused(413, f"A request may have at most {most} bytes.")
        raw += line
        if size:
            raw += stream.read(size) + stream.read_line(_MAX_LINE_BYTES)
    while True:
        line = stream.read_line(_MAX_LINE_BYTES)
        raw += line
        if line in (b"\r\n", b"\n", b""):
            return bytes(raw)
