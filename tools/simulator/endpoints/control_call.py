"""The arguments of one control call."""

from __future__ import annotations

import json
from dataclasses import dataclass
from typing import Any

from wire.http_request import HttpRequest


@dataclass(frozen=True)
class ControlCall:
    """The request, and the parts of its path that the table of calls leaves open."""

    request: HttpRequest
    parts: tuple[str, ...]

    @property
    def value(self) -> Any:
        """The JSON body. Raises ValueError when the body is not JSON."""
        try:
            return json.loads(self.request.body)
        except (ValueError, RecursionError):
            raise ValueError("The body is not JSON.") from None

    def argument(self, name: str) -> str:
        """An argument that the query must have."""
        if name not in self.request.query:
            raise ValueError(f"The argument '{name}' is missing.")
        return self.request.query[name]

    @property
    def last(self) -> int | None:
        """How many entries are wanted; nothing means all."""
        return self.number("last")

    def number(self, name: str) -> int | None:
        """An argument that is a whole number; nothing where it is left out."""
        text = self.request.query.get(name)
        if text is None:
            return None
        if not (text.isascii() and text.isdigit() and len(text) < 10):
            raise ValueError(f"The argument '{name}' must be a whole number.")
        return int(text)
