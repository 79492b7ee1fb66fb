"""Finds the exchanges that a filter lets through, as many as can be looked at in a moment."""

from __future__ import annotations

import time
from collections.abc import Iterator
from typing import Any
from xml.sax.saxutils import escape

from views.raw_message import RawMessage
from wire.exchange_log import SIDES, ExchangeLog

from .changes import ranges
from .exchange_filter import ExchangeFilter

# A client asks again from where this ended, so that nobody else has to wait for long.
_BUDGET_SECONDS = 0.1
_AT_ONCE = 500


class ExchangeSearch:
    """Goes from the latest exchange to the oldest."""

    def __init__(self, log: ExchangeLog) -> None:
        self._log = log

    def matches(self, chosen: ExchangeFilter, first: int, last: int) -> dict[str, Any]:
        """Numbers as ranges, rising; all from `reached` to `last` have been looked at."""
        if chosen.selects_all:
            lowest, highest, count = self._log.span
            if count == highest - lowest + 1:
                within = [max(first, lowest), min(last, highest)]
                return {"ranges": [within] if within[0] <= within[1] else [], "reached": first}
        if not chosen.words:
            rows = self._log.table.rows(
                f"SELECT number FROM exchange WHERE {chosen.condition} "
                "AND number BETWEEN ? AND ? ORDER BY number", [*chosen.values, first, last])
            return {"ranges": ranges(number for (number,) in rows), "reached": first}
        return self._searched(chosen, first, last)

    def numbers(self, chosen: ExchangeFilter, most: int) -> list[int]:
        """The latest exchanges that the filter lets through, rising; takes its time."""
        found: list[int] = []
        for number, words in self._candidates(chosen, 0, 2**53):
            if self._fits(chosen, number, words):
                found.append(number)
            if len(found) == most:
                break
        return found[::-1]

    def _searched(self, chosen: ExchangeFilter, first: int, last: int) -> dict[str, Any]:
        found, reached = [], last + 1
        until = time.monotonic() + _BUDGET_SECONDS
        for number, words in self._candidates(chosen, first, last):
            if self._fits(chosen, number, words):
                found.append(number)
            reached = number
            if time.monotonic() > until:
                break
        else:
            reached = first
        return {"ranges": ranges(reversed(found)), "reached": reached}

    def _candidates(self, chosen: ExchangeFilter, first: int, last: int) -> Iterator[tuple[int, str]]:
        while rows := self._log.table.rows(
                f"SELECT number, words FROM exchange WHERE {chosen.condition} "
                "AND number BETWEEN ? AND ? ORDER BY number DESC LIMIT ?",
                [*chosen.values, first, last, _AT_ONCE]):
            yield from rows
            last = rows[-1][0] - 1

    def _fits(self, chosen: ExchangeFilter, number: int, words: str) -> bool:
        missing = [(excludes, word) for excludes, word in chosen.words if word not in words]
        if any(excludes for excludes, word in chosen.words if word in words):
            return False
        if not missing:
            return True
        messages = [self._text(number, side) for side in SIDES]
        return all(_stands_in(word, messages) != excludes for excludes, word in missing)

    def _text(self, number: int, side: str) -> bytes:
        raw = self._log.raw(number, side) or b""
        head = raw[:8192].lower()
        if b"content-encoding: gzip" in head or b"transfer-encoding: chunked" in head:
            message = RawMessage(raw)
            raw = message.head.encode() + message.body
        return raw


def _stands_in(word: str, messages: list[bytes]) -> bool:
    """Finds the text without regard to case, and as markup writes it, too."""
    written = {word, escape(word)}
    if word.isascii():
        return any(one.encode() in message.lower() for message in messages for one in written)
    texts = [message.decode("utf-8", "replace").lower() for message in messages]
    return any(one in text for text in texts for one in written)
