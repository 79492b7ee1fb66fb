"""What the router expects of everything that answers at an address."""

from __future__ import annotations

from collections.abc import Callable
from dataclasses import dataclass, field
from typing import Protocol

from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .subject import Subject


@dataclass(frozen=True)
class Outcome:
    """An answer, the verdict of each check of the request ("ok" or a sentence), and what the request
    was about."""

    response: HttpResponse
    checks: dict[str, str] = field(default_factory=dict)
    subject: Subject = Subject()


# Whether a request about this subject may change anything.
Decision = Callable[[Subject], bool]


class Endpoint(Protocol):
    """`target` is the name under which faults are ordered for it."""

    target: str

    def handle(self, request: HttpRequest, has_effect: Decision) -> Outcome:
        """Answers a request. Asks once, when it knows what the request is about, whether it has its
        effect; without effect it answers the same way but changes nothing."""
