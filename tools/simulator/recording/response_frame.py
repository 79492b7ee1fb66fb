"""Where a response ends, found out while its bytes come in."""

from __future__ import annotations

from collections.abc import Generator

_MAX_LINE_BYTES = 1_000_000

_Reading = Generator[None, None, None]
_LineReading = Generator[None, None, bytes]


class ResponseFrame:
    """Follows the framing and changes nothing. What is no HTTP ends with its connection."""

    def __init__(self, method: str) -> None:
        self.status = 0
        self.is_complete = False
        self._method = method
        self._closes = False
        self._ends_with_connection = False
        self._buffer = bytearray()
        self._reading = self._read()
        next(self._reading)

    @property
    def keeps_open(self) -> bool:
        """Whether another response can follow on the same connection."""
        return self.is_complete and not self._closes

    @property
    def lacks(self) -> str:
        """What is missing if the connection ends now; nothing if that is a good end."""
        if self.is_complete or self._ends_with_connection:
            return ""
        return "body" if self.status else "head"

    def feed(self, data: bytes) -> None:
        """Takes note of some more bytes."""
        self._buffer += data
        if not self.is_complete:
            self.is_complete = next(self._reading, "end") == "end"

    def _read(self) -> _Reading:
        try:
            headers = yield from self._head()
            if self._method == "HEAD" or self.status in (204, 304):
                return
            if "chunked" in headers.get("transfer-encoding", "").lower():
                yield from self._chunks()
                return
            if "content-length" in headers:
                yield from self._skip(_number(headers["content-length"], 10))
                return
        except ValueError:
            pass
        self._ends_with_connection = True
        while True:
            self._buffer.clear()
            yield

    def _head(self) -> Generator[None, None, dict[str, str]]:
        while True:
            version, status, *_ = (yield from self._line()).split(None, 2) + [b"", b""]
            if not version.startswith(b"HTTP/1."):
                raise ValueError
            code = _number(status.decode("latin-1"), 10)
            headers = yield from self._headers()
            # Interim responses announce the one that counts; switched protocols are not followed.
            if not 100 <= code < 200 or code == 101:
                break
        self.status = code
        connection = headers.get("connection", "").lower()
        self._closes = "close" in connection or (
            version == b"HTTP/1.0" and "keep-alive" not in connection)
        return headers

    def _headers(self) -> Generator[None, None, dict[str, str]]:
        headers = {}
        while line := (yield from self._line()):
            name, _, value = line.decode("latin-1").partition(":")
            headers[name.strip().lower()] = value.strip()
        return headers

    def _chunks(self) -> _Reading:
        while size := _number((yield from self._line()).partition(b";")[0].decode("latin-1"), 16):
            yield from self._skip(size)
            yield from self._line()
        yield from self._headers()

    def _line(self) -> _LineReading:
        while (end := self._buffer.find(b"\n")) < 0:
            if len(self._buffer) > _MAX_LINE_BYTES:
                raise ValueError
            yield
        line = bytes(self._buffer[:end])
        del self._buffer[:end + 1]
        return line.rstrip(b"\r")

    def _skip(self, count: int) -> _Reading:
        while count > len(self._buffer):
            count -= len(self._buffer)
            self._buffer.clear()
            yield
        del self._buffer[:count]


def _number(text: str, base: int) -> int:
    """Digits alone: Python's own reading is more generous than HTTP."""
    if not text.strip().isalnum():
        raise ValueError
    return int(text, base)
