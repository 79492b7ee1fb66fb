"""What a SOAP request has to be, one check after the other."""

from __future__ import annotations

from collections.abc import Callable
from typing import Any

from wire.http_request import HttpRequest

_CONTENT_TYPE = "text/xml;charset=utf-8"
_NOT_REACHED = "not reached"


class RequestChecks:
    """Runs every check that can be run, whatever the others found.

    `verdicts` holds "ok" or a sentence for each. The headers are checked independently; each of
    the steps gets what the one before it gave, the first one the body.
    """

    def __init__(self, request: HttpRequest, action: str,
                 steps: dict[str, Callable[[Any], Any]]) -> None:
        self.verdicts = {
            "soap_action": _soap_action(request, action),
            "content_type": _content_type(request),
            **dict.fromkeys(steps, _NOT_REACHED),
        }
        found: Any = request.body
        for name, step in steps.items():
            try:
                found = step(found)
            except ValueError as error:
                self.verdicts[name] = str(error)
                break
            self.verdicts[name] = "ok"

    @property
    def objection(self) -> str | None:
        """The first verdict that is not "ok", or nothing."""
        return next((verdict for verdict in self.verdicts.values() if verdict != "ok"), None)


def _soap_action(request: HttpRequest, action: str) -> str:
    given = request.header("SOAPAction")
    if given == action:
        return "ok"
    return f"The SOAPAction is '{given or ''}' where '{action}' is expected, without quotes."


def _content_type(request: HttpRequest) -> str:
    given = request.header("Content-Type") or ""
    if "".join(given.split()).lower() == _CONTENT_TYPE:
        return "ok"
    return f"The Content-Type is '{given}' where '{_CONTENT_TYPE}' is expected."
