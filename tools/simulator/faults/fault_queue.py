"""The misbehaviour that is still to come."""

from __future__ import annotations

import threading
from collections.abc import Iterable

from endpoints.subject import Subject

from .fault import Fault


class FaultQueue:
    """Faults for the next requests are used up in the order given; then the latest lasting one."""

    def __init__(self) -> None:
        self._lock = threading.Lock()
        self._faults: list[Fault] = []

    def add(self, faults: Iterable[Fault]) -> None:
        """Appends faults to the queue."""
        with self._lock:
            self._faults += faults

    def take(self, target: str, subject: Subject) -> Fault | None:
        """The fault that the request now at this target has to suffer, if any."""
        with self._lock:
            if not self._faults:
                return None
            waiting = [fault for fault in self._faults if fault.concerns(target, subject)]
            fault = next((one for one in waiting if one.remaining is not None), None)
            if fault is not None:
                fault.remaining -= 1
                self._faults = [other for other in self._faults if other.remaining != 0]
            else:
                fault = next((one for one in reversed(waiting) if one.is_due()), None)
            if fault is not None:
                fault.hits += 1
            return fault

    def note_exchange(self, fault: Fault, number: int) -> None:
        """The fault was played in this exchange."""
        with self._lock:
            fault.exchanges.append(number)

    def list(self) -> list[dict]:
        """All that wait, in order."""
        with self._lock:
            return [fault.to_json() for fault in self._faults]

    def clear(self) -> int:
        """Behave from now on; the number of faults dropped."""
        with self._lock:
            dropped = len(self._faults)
            self._faults = []
            return dropped
