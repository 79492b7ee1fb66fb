"""One exchange on its way through the recorder."""

from __future__ import annotations

import contextlib
import select
import socket
import time
from collections.abc import Callable

from wire.exchange_log import OpenExchange

from .response_frame import ResponseFrame

_PIECE_BYTES = 65536
# How long the far side may still answer a client that has closed or half closed its connection.
_PATIENCE_SECONDS = 30


class Passage:
    """Hands every byte on as it comes, after it is on the disk; `note` tells how it went wrong.

    What the far side does to its connection is done to the client's: a close is a close, a reset
    is a reset. A far side that cannot be reached is a reset, too.
    """

    def __init__(self, exchange: OpenExchange, frame: ResponseFrame,
                 connect: Callable[[], socket.socket], request: bytes,
                 finish: Callable[[str], None]) -> None:
        self._exchange = exchange
        self._frame = frame
        self._connect, self._request = connect, request
        self._finish_exchange = finish
        self._is_finished = False
        self.resets = False

    @property
    def keeps_open(self) -> bool:
        """Whether the client may go on with the same connection."""
        return self._frame.keeps_open

    def run(self, client: socket.socket) -> None:
        """Returns when the exchange is over; it is listed before the client has its last byte."""
        try:
            far_side = self._connect()
        except OSError as error:
            self.resets = True
            self._finish(f"The far side could not be reached: {error.strerror or error}.")
            return
        with far_side:
            self._send(far_side)
            try:
                self._hand_on(far_side, client)
            except OSError as error:
                self._finish(f"The exchange broke off: {error.strerror or error}.")

    def _send(self, far_side: socket.socket) -> None:
        try:
            far_side.sendall(self._request)
        except OSError:
            pass  # It may have answered all the same, before it had read everything.

    def _hand_on(self, far_side: socket.socket, client: socket.socket) -> None:
        while not self._frame.is_complete:
            try:
                data = self._next_piece(far_side, client)
            except ConnectionResetError:
                self.resets = True
                self._finish("The far side reset the connection.")
                return
            if not data:
                self._finish(_END_NOTES[self._frame.lacks])
                return
            self._exchange.received(data)
            self._frame.feed(data)
            if self._frame.is_complete:
                self._finish("")
            _send_to(client, data)

    def _next_piece(self, far_side: socket.socket, client: socket.socket) -> bytes:
        watched, until = [far_side, client], None
        while True:
            patience = None if until is None else max(0.0, until - time.monotonic())
            readable, _, _ = select.select(watched, [], [], patience)
            if far_side in readable:
                return far_side.recv(_PIECE_BYTES)
            if not readable:
                raise OSError("the client went away and no answer came")
            watched = [far_side]
            if _has_closed(client):
                until = time.monotonic() + _PATIENCE_SECONDS
                with contextlib.suppress(OSError):
                    far_side.shutdown(socket.SHUT_WR)

    def _finish(self, note: str) -> None:
        if not self._is_finished:
            self._is_finished = True
            self._finish_exchange(note)


def _has_closed(client: socket.socket) -> bool:
    """Its side of the connection at least; else it has begun its next request already."""
    try:
        return not client.recv(1, socket.MSG_PEEK)
    except OSError:
        raise OSError("the client went away") from None


def _send_to(client: socket.socket, data: bytes) -> None:
    try:
        client.sendall(data)
    except OSError:
        raise OSError("the client went away") from None


_END_NOTES = {
    "": "",
    "head": "The far side closed the connection before the end of the headers.",
    "body": "The far side closed the connection before the end of the body.",
}
