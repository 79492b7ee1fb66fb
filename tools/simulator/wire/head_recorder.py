"""Keeps the bytes of a request's head while the standard library parses them."""

from __future__ import annotations

from io import BufferedIOBase


class HeadRecorder:
    """A reader that remembers the lines read through it until they are taken."""

    def __init__(self, stream: BufferedIOBase) -> None:
        self._stream = stream
        self._head: list[bytes] = []

    def readline(self, limit: int = -1) -> bytes:
        """The next line; remembered."""
        line = self._stream.readline(limit)
        self._head.append(line)
        return line

    def read_line(self, limit: int) -> bytes:
        """The next line, which belongs to a body; not remembered."""
        return self._stream.readline(limit)

    def read(self, size: int) -> bytes:
        """The next bytes, which belong to a body; not remembered."""
        return self._stream.read(size)

    def take_head(self) -> bytes:
        """Everything remembered since the last call."""
        head = b"".join(self._head)
        self._head.clear()
        return head

    def close(self) -> None:
        """Closes the stream beneath."""
        self._stream.close()
