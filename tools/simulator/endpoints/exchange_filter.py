"""Which exchanges a person wants to see, as that person types it."""

from __future__ import annotations

import re
from collections.abc import Callable
from datetime import datetime

from views.outcome import OUTCOMES

from .subject import KINDS

# A word, or a key with a value; blanks stand within quotes; a minus before it excludes.
_TERM = re.compile(r'(-?)(?:([a-z]+):)?("([^"]*)"?|[^\s"]+)')
_HUNDREDS = re.compile(r"([1-9])xx", re.IGNORECASE)

Condition = tuple[str, list]


class ExchangeFilter:
    """`condition` and `values` are SQL about the table of exchanges; `words` have to stand somewhere
    in the summary or in one of the messages, or must not where the first of the pair is true."""

    def __init__(self, text: str) -> None:
        parts: list[str] = []
        self.values: list = []
        self.words: list[tuple[bool, str]] = []
        for sign, key, whole, quoted in _TERM.findall(text):
            value = quoted if whole.startswith('"') else whole
            if key in _KEYS:
                part, values = _KEYS[key](value)
                parts.append(f"NOT ({part})" if sign else part)
                self.values += values
            else:
                word = f"{key}:{value}" if key else value
                self.words.append((bool(sign), word.lower()))
        self.condition = " AND ".join(parts) or "1"

    @property
    def selects_all(self) -> bool:
        """Whether nothing is filtered out."""
        return self.condition == "1" and not self.words


def _named(column: str, names: tuple[str, ...]) -> Callable[[str], Condition]:
    def condition(value: str) -> Condition:
        given = value.lower().replace("-", " ")
        found = [name for name in names if name.startswith(given)]
        if not found:
            raise ValueError(f"'{value}' is not one of: {', '.join(names)}.")
        return f"{column} IN ({', '.join('?' * len(found))})", found
    return condition


def _part_of(column: str) -> Callable[[str], Condition]:
    return lambda value: (f"instr(lower({column}), ?) > 0", [value.lower()])


def _status(value: str) -> Condition:
    if value.lower() == "none":
        return "status = 0", []
    if match := _HUNDREDS.fullmatch(value):
        return "status BETWEEN ? AND ?", [int(match[1]) * 100, int(match[1]) * 100 + 99]
    if not (value.isascii() and value.isdigit() and len(value) == 3):
        raise ValueError("A status is a number such as 503, or 5xx, or none.")
    return "status = ?", [int(value)]


def _number(value: str) -> Condition:
    first, dots, last = value.partition("..")
    ends = (first or "0", (last or "999999999") if dots else first)
    if not all(end.isascii() and end.isdigit() and len(end) < 10 for end in ends):
        raise ValueError("Numbers of exchanges are given as 12 or 12..40.")
    return "number BETWEEN ? AND ?", [int(end) for end in ends]


def _time(value: str) -> Condition:
    first, dots, last = value.partition("..")
    if not dots:
        raise ValueError("A time is a range such as 2026-03-01T14:00..2026-03-01T14:05.")
    return "at BETWEEN ? AND ?", [_moment(first, 0), _moment(last, 2**53)]


def _moment(text: str, otherwise: int) -> int:
    if not text:
        return otherwise
    try:
        return round(datetime.fromisoformat(text).timestamp() * 1000)
    except (ValueError, OverflowError, OSError):
        raise ValueError(f"'{text}' is not a time such as 2026-03-01T14:00.") from None


def _slower(value: str) -> Condition:
    try:
        milliseconds = float(value.lower().removesuffix("ms"))
    except ValueError:
        raise ValueError("'slower' takes a number of milliseconds.") from None
    return "milliseconds > ?", [milliseconds]


_FLAGS: dict[str, Condition] = {"imported": ("imported", []), "faulted": ("fault <> ''", [])}


def _flag(value: str) -> Condition:
    if value not in _FLAGS:
        raise ValueError(f"'is' takes one of: {', '.join(_FLAGS)}.")
    return _FLAGS[value]


_KEYS: dict[str, Callable[[str], Condition]] = {
    "kind": _named("kind", KINDS),
    "outcome": _named("outcome", OUTCOMES),
    "status": _status,
    "agency": _part_of("ori"),
    "incident": _part_of("incident"),
    "user": _part_of("user"),
    "fault": _part_of("fault"),
    "number": _number,
    "time": _time,
    "slower": _slower,
    "is": _flag,
}
