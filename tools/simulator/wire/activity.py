"""Whether anybody still uses the server."""

from __future__ import annotations

import threading
import time
from collections.abc import Callable, Iterator
from contextlib import contextmanager


class Activity:
    """Knows how long no exchange has been under way and nobody has watched. An open, silent connection
    is no activity."""

    def __init__(self) -> None:
        self._lock = threading.Lock()
        self._busy = self._watching = 0
        self._last = time.monotonic()

    @contextmanager
    def exchange(self) -> Iterator[Callable[[], None]]:
        """The span of one exchange. What it gives is called when the exchange turns out to be
        somebody who watches and has no answer to wait for."""
        watches = False

        def watch() -> None:
            nonlocal watches
            if not watches:
                watches = True
                with self._lock:
                    self._busy -= 1
                    self._watching += 1

        with self._lock:
            self._busy += 1
        try:
            yield watch
        finally:
            with self._lock:
                if watches:
                    self._watching -= 1
                else:
                    self._busy -= 1
                self._last = time.monotonic()

    @property
    def idle_seconds(self) -> float:
        """Seconds since the last exchange ended, 0 while one is under way or somebody watches."""
        with self._lock:
            return 0 if self._busy or self._watching else time.monotonic() - self._last

    @property
    def is_answering(self) -> bool:
        """Whether somebody has an answer to wait for."""
        with self._lock:
            return self._busy > 0
