"""Sends a recorded request once more, over the wire, as its client did."""

from __future__ import annotations

import contextlib
import socket
import threading
from collections.abc import Callable

Connect = Callable[[], socket.socket]


def send_again(connect: Connect, request: bytes) -> None:
    """Does not wait for the answer, which the record will hold."""
    threading.Thread(target=_exchange, args=(connect, request), daemon=True).start()


def _exchange(connect: Connect, request: bytes) -> None:
    with contextlib.suppress(OSError), connect() as connection:
        connection.sendall(request)
        connection.shutdown(socket.SHUT_WR)
        while connection.recv(65536):
            pass
