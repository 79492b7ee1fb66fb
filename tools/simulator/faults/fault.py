"""One request to misbehave."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any

from .fault_kind import FaultKind
from .fault_kinds import FAULT_KINDS

TARGETS = ("submission", "search", "wsdl", "schema", "any")
MAX_COUNT = 10_000


@dataclass
class Fault:
    """What to do, where, and how often: `remaining` is None for every time."""

    name: str
    target: str
    values: dict[str, Any]
    remaining: int | None

    @property
    def kind(self) -> FaultKind:
        """The row of the table that does it."""
        return FAULT_KINDS[self.name]

    def concerns(self, target: str) -> bool:
        """Whether a request to the target calls this fault up."""
        return self.target in (target, "any")

    def to_json(self) -> dict[str, Any]:
        """As it is listed. A parameter of the kind's own named 'count' covers the other one."""
        when = {"when": "every"} if self.remaining is None else {"when": "next",
                                                                 "count": self.remaining}
        return {**when, "target": self.target, "kind": self.name, **self.values}

    @classmethod
    def from_json(cls, value: Any) -> Fault:
        """From the words of a client; ValueError says in a sentence what is wrong with them."""
        if not isinstance(value, dict):
            raise ValueError("A fault is a JSON object.")
        rest = dict(value)
        when = _one_of(rest.pop("when", "next"), "when", ("next", "every"))
        name = _one_of(rest.pop("kind", None), "kind", tuple(FAULT_KINDS))
        kind = FAULT_KINDS[name]
        target = _one_of(rest.pop("target", kind.target or "submission"), "target", TARGETS)
        if kind.target not in (None, target):
            raise ValueError(f"The kind '{name}' needs the target '{kind.target}'.")
        # Some kinds mean something else by their count; such a fault is ordered once at a time.
        count = 1 if "count" in kind.parameters else rest.pop("count", 1)
        remaining = _count(count) if when == "next" else None
        return cls(name, target, _values(name, rest), remaining)


def _one_of(value: Any, what: str, allowed: tuple[str, ...]) -> str:
    if not isinstance(value, str) or value not in allowed:
        raise ValueError(f"'{what}' must be one of: {', '.join(allowed)}.")
    return value


def _count(value: Any) -> int:
    if isinstance(value, bool) or not isinstance(value, int) or not 1 <= value <= MAX_COUNT:
        raise ValueError(f"'count' must be a whole number from 1 to {MAX_COUNT}.")
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
