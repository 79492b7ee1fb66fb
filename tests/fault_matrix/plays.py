"""Ways of answering, from which the table of behaviours is put together."""

from __future__ import annotations

import time
from collections.abc import Callable

from wire.http_response import standard_reason

from behaviour import Exchange, Play
from bodies import Change

XML_TYPE = "text/xml; charset=utf-8"
_CHUNK = 100


def head(status: int, *lines: str, reason: str | None = None, version: str = "HTTP/1.1",
         connection: str = "close") -> bytes:
    """Status line and headers, up to and including the blank line."""
    phrase = standard_reason(status) if reason is None else reason
    return "\r\n".join([f"{version} {status} {phrase}", *lines, f"Connection: {connection}", "", ""]).encode("latin-1")


def status(code: int, body: bytes = b"", content_type: str = XML_TYPE, *lines: str,
           reason: str | None = None) -> Play:
    """An answer of a server that has not done what it was asked."""
    lines = (f"Content-Type: {content_type}", f"Content-Length: {len(body)}", *lines)
    return lambda exchange: exchange.connection.send(head(code, *lines, reason=reason) + body)


def words(data: bytes) -> Play:
    """These bytes and no others."""
    return lambda exchange: exchange.connection.send(data)


def body(change: Change = bytes, *lines: str, content_type: str | None = XML_TYPE, code: int = 200) -> Play:
    """The right answer with a changed body, whose length is stated rightly."""
    types = () if content_type is None else (f"Content-Type: {content_type}",)

    def play(exchange: Exchange) -> None:
        data = change(exchange.answer().body)
        exchange.connection.send(head(code, *types, f"Content-Length: {len(data)}", *lines) + data)
    return play


def served(exchange: Exchange) -> None:
    """What the service answers."""
    response = exchange.answer()
    lines = (f"Content-Type: {response.content_type}", f"Content-Length: {len(response.body)}")
    exchange.connection.send(head(response.status, *lines) + response.body)


def kept(then: Callable[[Exchange], None]) -> Play:
    """The right answer on a connection that is said to be kept, and what becomes of it."""
    def play(exchange: Exchange) -> None:
        data = exchange.answer().body
        lines = (f"Content-Type: {XML_TYPE}", f"Content-Length: {len(data)}")
        exchange.connection.send(head(200, *lines, connection="keep-alive") + data)
        then(exchange)
    return play


def closed_on_the_next(exchange: Exchange) -> None:
    """The next request is read and not answered."""
    exchange.connection.read_request()


def answer(make: Callable[[bytes], bytes]) -> Play:
    """Bytes made from the right body, status line and all."""
    return lambda exchange: exchange.connection.send(make(exchange.answer().body))


def framed(*lines: str, change: Change = bytes) -> Play:
    """The right status with these headers alone, then the changed body."""
    return answer(lambda data: head(200, f"Content-Type: {XML_TYPE}", *lines) + change(data))


def whole(data: bytes) -> bytes:
    """The right answer, as it should be."""
    return head(200, f"Content-Type: {XML_TYPE}", f"Content-Length: {len(data)}") + data


def chunked(data: bytes, size: int = _CHUNK, end: bytes = b"0\r\n\r\n") -> bytes:
    """In the chunked transfer coding."""
    parts = [data[start:start + size] for start in range(0, len(data), size)]
    return b"".join(b"%x\r\n%s\r\n" % (len(part), part) for part in parts) + end


def paused(seconds: float, cut: Callable[[bytes], int], then: Callable[[Exchange, bytes], None]) -> Play:
    """The right answer up to some byte, then silence, then something."""
    def play(exchange: Exchange) -> None:
        data = whole(exchange.answer().body)
        end = cut(data)
        exchange.connection.send(data[:end])
        time.sleep(seconds)
        then(exchange, data[end:])
    return play


def rest(exchange: Exchange, data: bytes) -> None:
    """What has been held back."""
    exchange.connection.send(data)


def nothing(exchange: Exchange, data: bytes) -> None:
    """No more; the connection is closed in order."""


def reset(exchange: Exchange, data: bytes) -> None:
    """No more; the connection is reset."""
    exchange.connection.reset()


def in_the_status_line(data: bytes) -> int:
    return 7


def in_the_headers(data: bytes) -> int:
    return data.index(b"\r\n\r\n") // 2


def after_the_headers(data: bytes) -> int:
    return data.index(b"\r\n\r\n") + 4


def in_the_body(data: bytes) -> int:
    return (after_the_headers(data) + len(data)) // 2


def at_the_start(data: bytes) -> int:
    return 0


def at_the_end(data: bytes) -> int:
    return len(data)


def trickled(pause: float, size: Callable[[bytes], int]) -> Play:
    """The right answer in small pieces, with a pause after each."""
    def play(exchange: Exchange) -> None:
        data = whole(exchange.answer().body)
        step = size(data)
        for start in range(0, len(data), step):
            exchange.connection.send(data[start:start + step])
            time.sleep(pause)
    return play


def redirect(code: int, *locations: str) -> Play:
    """Sends the client elsewhere; "{}" in a location stands for the well-behaved address."""
    def play(exchange: Exchange) -> None:
        lines = [f"Location: {location.format(exchange.elsewhere)}" for location in locations]
        exchange.connection.send(head(code, "Content-Length: 0", *lines))
    return play
