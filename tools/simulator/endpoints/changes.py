"""Tells those who watch that there is something new to see."""

from __future__ import annotations

import threading
import time

LONGEST_WAIT_SECONDS = 20


class Changes:
    """A number that rises whenever an exchange, a fault or the index has changed."""

    def __init__(self) -> None:
        self._changed = threading.Condition()
        # Not from 0: a page that has seen an earlier run must not take this one for seen.
        self._count = int(time.time()) % 100_000_000
        self._ended = False

    @property
    def count(self) -> int:
        """The number as it is now."""
        return self._count

    def note(self) -> None:
        """Something has changed."""
        with self._changed:
            self._count += 1
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
