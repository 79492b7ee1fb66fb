"""What the router expects of everything that answers at an address."""

from __future__ import annotations

from dataclasses import dataclass, field
from typing import Protocol

from wire.http_request import HttpRequest
from wire.http_response import HttpResponse


@dataclass(frozen=True)
class Outcome:
    """An answer, the verdict of each check of the request ("ok" or a sentence), and in a few words
    what the request was about."""

    response: HttpResponse
    checks: dict[str, str] = field(default_factory=dict)
    about: str = ""


class Endpoint(Protocol):
    """`target` is the name under which faults are ordered for it."""

    target: str

    def handle(self, request: HttpRequest, has_effect: bool) -> Outcome:
        """Answers a request. Without effect it answers the same way but changes nothing."""
