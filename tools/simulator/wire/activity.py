"""Whether anybody still uses the server."""

from __future__ import annotations

import threading
import time
from collections.abc import Callable, Iterator
from contextlib import contextmanager


class Activity:
    """Knows how long no exchange has been under way. An open, silent connection is no activity."""

    def __init__(self) -> None:
        self._lock = threading.Lock()
        self._busy = 0
        self._last = time.monotonic()

    @contextmanager
    def exchange(self) -> Iterator[Callable[[], None]]:
        """The span of one exchange. What it gives is called when the exchange turns out to be no
        use of the server: it counts no longer, and not afterwards."""
        counts = True

        def disregard() -> None:
            nonlocal counts
            if counts:
                counts = False
                with self._lock:
                    self._busy -= 1

        with self._lock:
            self._busy += 1
        try:
            yield disregard
        finally:
            with self._lock:
                if counts:
                    self._busy -= 1
                    self._last = time.monotonic()

    @property
    def idle_seconds(self) -> float:
        """Seconds since the last exchange ended, 0 while one is under way."""
        with self._lock:
            return 0 if self._busy else time.monotonic() - self._last
