"""Reads from a client for as long as is reasonable."""

from __future__ import annotations

import io
import socket
import time
from typing import Any


class PatientReader(io.RawIOBase):
    """`silence` seconds may pass without a byte, `whole` seconds from the first byte of a request to
    its last. A client that sends a byte now and then is not silent, but never comes to an end."""

    def __init__(self, connection: socket.socket, silence: float, whole: float) -> None:
        super().__init__()
        self._connection, self._silence, self._whole = connection, silence, whole
        self._until: float | None = None

    def expect_request(self) -> None:
        """What comes next is the first byte of a request."""
        self._until = None

    def readable(self) -> bool:
        """A stream must say that it can be read."""
        return True

    def readinto(self, buffer: Any) -> int:
        """Some bytes; TimeoutError when the client has had its time."""
        limit = self._silence
        if self._until is not None:
            limit = min(limit, self._until - time.monotonic())
        if limit <= 0:
            raise TimeoutError
        self._connection.settimeout(limit)
        try:
            count = self._connection.recv_into(buffer)
        finally:
            self._connection.settimeout(self._silence)
        if self._until is None:
            self._until = time.monotonic() + self._whole
        return count
