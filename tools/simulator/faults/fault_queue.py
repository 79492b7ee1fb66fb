"""The misbehaviour that is still to come."""

from __future__ import annotations

import threading

from .fault import Fault


class FaultQueue:
    """Faults for the next requests are used up in the order given; then the latest lasting one."""

    def __init__(self) -> None:
        self._lock = threading.Lock()
        self._faults: list[Fault] = []

    def add(self, fault: Fault) -> None:
        """Puts a fault behind those that wait already."""
        with self._lock:
            self._faults.append(fault)

    def take(self, target: str) -> Fault | None:
        """The fault that the request now at this target has to suffer, if any."""
        with self._lock:
            waiting = [fault for fault in self._faults if fault.concerns(target)]
            passing = [fault for fault in waiting if fault.remaining is not None]
            if not passing:
                return waiting[-1] if waiting else None
            fault = passing[0]
            fault.remaining -= 1
            self._faults = [other for other in self._faults if other.remaining != 0]
            return fault

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
