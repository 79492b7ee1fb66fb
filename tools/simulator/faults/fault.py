"""One request to misbehave."""

from __future__ import annotations

from collections import deque
from dataclasses import dataclass, field
from typing import Any

from endpoints.subject import Subject

from .concern import Concern
from .fault_kind import FaultKind
from .fault_kinds import FAULT_KINDS

MAX_COUNT = 10_000
_LATEST_HITS = 10


# Two equal orders are two faults.
@dataclass(eq=False)
class Fault:
    """What to do, where, and how often: `remaining` is None for every time, or one in so many."""

    name: str
    concern: Concern
    values: dict[str, Any]
    remaining: int | None
    one_in: int = 1
    hits: int = 0
    exchanges: deque[int] = field(default_factory=lambda: deque(maxlen=_LATEST_HITS))
    _seen: int = 0

    @property
    def kind(self) -> FaultKind:
        """The row of the table that does it."""
        return FAULT_KINDS[self.name]

    def concerns(self, target: str, subject: Subject) -> bool:
        """Whether a request to the target calls this fault up."""
        return self.concern.includes(target, subject)

    def is_due(self) -> bool:
        """Whether it is the turn of the request at hand, which counts."""
        self._seen += 1
        return self._seen % self.one_in == 0

    def to_json(self) -> dict[str, Any]:
        """The fault as lists show it. A kind's own parameter 'count' hides the number of requests."""
        when = {"when": "every"} if self.remaining is None else {"when": "next",
                                                                 "count": self.remaining}
        if self.one_in > 1:
            when["one_in"] = self.one_in
        return {**when, **self.concern.to_json(), "kind": self.name, "hits": self.hits,
                "exchanges": list(self.exchanges), **self.values}

    @classmethod
    def from_json(cls, value: Any) -> Fault:
        """From the words of a client; ValueError says in a sentence what is wrong with them."""
        if not isinstance(value, dict):
            raise ValueError("A fault is a JSON object.")
        rest = dict(value)
        one_in = _whole(rest.pop("one_in", 1), "one_in")
        when = _one_of(rest.pop("when", "every" if one_in > 1 else "next"), "when",
                       ("next", "every"))
        if one_in > 1 and when == "next":
            raise ValueError("'one_in' goes with 'every', not with 'next'.")
        name = _one_of(rest.pop("kind", None), "kind", tuple(FAULT_KINDS))
        concern = Concern.taken_from(rest, name, FAULT_KINDS[name].target)
        # Some kinds mean something else by their count; such a fault is ordered once at a time.
        has_own_count = "count" in FAULT_KINDS[name].parameters
        count = 1 if has_own_count else _whole(rest.pop("count", 1), "count")
        return cls(name, concern, _values(name, rest), count if when == "next" else None, one_in)


def _one_of(value: Any, what: str, allowed: tuple[str, ...]) -> str:
    if not isinstance(value, str) or value not in allowed:
        raise ValueError(f"'{what}' must be one of: {', '.join(allowed)}.")
    return value


def _whole(value: Any, what: str) -> int:
    if isinstance(value, bool) or not isinstance(value, int) or not 1 <= value <= MAX_COUNT:
        raise ValueError(f"'{what}' must be a whole number from 1 to {MAX_COUNT}.")
    return value


def _values(name: str, given: dict[str, Any]) -> dict[str, Any]:
    parameters = FAULT_KINDS[name].parameters
    for unknown in given.keys() - parameters.keys():
        raise ValueError(f"The kind '{name}' has no parameter '{unknown}'.")
    values = {}
    for key, parameter in parameters.items():
        try:
            values[key] = parameter.check(given.get(key, parameter.default))
        except ValueError as error:
            raise ValueError(f"'{key}' {error}.") from None
    return values
