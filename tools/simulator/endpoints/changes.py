"""Tells those who watch what there is new to see."""

from __future__ import annotations

import threading
import time
from collections import deque
from collections.abc import Iterable
from typing import Any

LONGEST_WAIT_SECONDS = 20
# A page that has missed more changes than these has to load everything again.
_REMEMBERED = 20_000


class Changes:
    """A number that rises whenever an exchange, a fault or the index has changed, and which of them
    it was."""

    def __init__(self) -> None:
        self._changed = threading.Condition()
        # Not from 0: a page that has seen an earlier run must not take this one for seen.
        self._count = int(time.time()) % 100_000_000
        self._recent: deque[tuple[int | None, tuple[str, ...]]] = deque(maxlen=_REMEMBERED)
        self._ended = False

    @property
    def count(self) -> int:
        """The number as it is now."""
        return self._count

    def note(self, *what: str, exchange: int | None = None) -> None:
        """Something has changed: an exchange was listed, or what the words name."""
        with self._changed:
            self._count += 1
            self._recent.append((exchange, what))
            self._changed.notify_all()

    def end(self) -> None:
        """Nobody waits any longer, now or later."""
        with self._changed:
            self._ended = True
            self._changed.notify_all()

    def wait(self, known: int) -> int:
        """The number as soon as it is not the known one any more, or after a while."""
        with self._changed:
            self._changed.wait_for(lambda: self._ended or self._count != known,
                                   LONGEST_WAIT_SECONDS)
            return self._count

    def since(self, known: int | None) -> dict[str, Any]:
        """The number as it is now, and what has changed since the known one: the numbers of
        exchanges as ranges, other things by name; all of it is "everything" where that is unknown."""
        with self._changed:
            missed = None if known is None else self._count - known
            if missed is None or not 0 <= missed <= len(self._recent):
                return {"changes": self._count, "exchanges": [], "what": ["everything"]}
            recent = [self._recent[-at] for at in range(missed, 0, -1)]
            numbers = [number for number, _ in recent if number is not None]
            return {"changes": self._count, "exchanges": ranges(sorted(numbers)),
                    "what": sorted({name for _, what in recent for name in what})}


def ranges(numbers: Iterable[int]) -> list[list[int]]:
    """Rising numbers as pairs of the first and the last of those that follow each other."""
    found: list[list[int]] = []
    for number in numbers:
        if found and number == found[-1][1] + 1:
            found[-1][1] = number
        else:
            found.append([number, number])
    return found
