"""What the parameters of a fault may be. Each check gives the value or raises ValueError."""

from __future__ import annotations

from collections.abc import Callable
from typing import Any

MAX_SECONDS = 600


def text(value: Any) -> str:
    """Any text that fits into XML."""
    if not isinstance(value, str) or any(ord(character) < 32 and character not in "\t\r\n"
                                         for character in value):
        raise ValueError("must be a text without control characters")
    value.encode("utf-8")  # a lone surrogate is a ValueError, too
    return value


def line(value: Any) -> str:
    """A text that fits into a header."""
    if not isinstance(value, str) or not value.isprintable() or not _is_latin(value):
        raise ValueError("must be one line of Latin text")
    return value


def optional_line(value: Any) -> str | None:
    """A line or nothing."""
    return None if value is None else line(value)


def seconds(value: Any) -> float:
    """A span that a test could want to wait."""
    if isinstance(value, bool) or not isinstance(value, (int, float)) \
            or not 0 <= value <= MAX_SECONDS:
        raise ValueError(f"must be a number of seconds from 0 to {MAX_SECONDS}")
    return value


def whole_number(most: int) -> Callable[[Any], int]:
    """The check of a number from 0 up to some end."""
    def check(value: Any) -> int:
        if isinstance(value, bool) or not isinstance(value, int) or not 0 <= value <= most:
            raise ValueError(f"must be a whole number from 0 to {most}")
        return value
    return check


def status(value: Any) -> int:
    """A final HTTP status."""
    if isinstance(value, bool) or not isinstance(value, int) or not 200 <= value <= 999:
        raise ValueError("must be an HTTP status from 200 to 999")
    return value


def _is_latin(value: str) -> bool:
    try:
        value.encode("latin-1")
    except UnicodeEncodeError:
        return False
    return True
