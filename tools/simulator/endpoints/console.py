"""What people and tests see of the program itself: its page and its control calls."""

from __future__ import annotations

from dataclasses import replace

from lejis.namespaces import CONTROL_PATH
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .callers import Callers
from .changes import Changes
from .control_endpoint import Calls, ControlEndpoint
from .page_endpoint import PageEndpoint, is_page
from .server_calls import CHANGES_PATH

# A body that a client has sent is shown to a browser as it is; in a sandbox it can run nothing.
_SANDBOX = ("Content-Security-Policy", "default-src 'none'; sandbox")
_PRIVATE = (
    ("Cache-Control", "no-store"),
    ("X-Content-Type-Options", "nosniff"),
    ("Referrer-Policy", "no-referrer"),
    ("Cross-Origin-Resource-Policy", "same-origin"),
)


class Console:
    """Answers callers of its own alone, and tells those who watch of what a call has changed."""

    def __init__(self, callers: Callers, changes: Changes, *tables: Calls) -> None:
        self._callers, self._changes = callers, changes
        self._page = PageEndpoint()
        self._control = ControlEndpoint(*tables)

    @staticmethod
    def concerns(target: str) -> bool:
        """Whether a request to this target is the console's."""
        path = target.partition("?")[0]
        return path.startswith(CONTROL_PATH) or is_page(path)

    @staticmethod
    def is_watching(request: HttpRequest) -> bool:
        """Whether the request only waits for something to happen."""
        return request.path == CHANGES_PATH

    def handle(self, request: HttpRequest, peer: str) -> HttpResponse:
        """The answer, which no browser keeps, guesses about or hands to another site."""
        response = self._answer(request, peer)
        return replace(response, headers=response.headers + _PRIVATE)

    def _answer(self, request: HttpRequest, peer: str) -> HttpResponse:
        objection = self._callers.objection(request, peer)
        if objection is not None:
            return HttpResponse.text(403, objection)
        if is_page(request.path):
            return self._page.handle(request)
        response = self._control.handle(request)
        if request.method != "GET":
            # What it was about is the first name below /control/; exchanges that are added are told
            # by number.
            name = request.path.removeprefix(CONTROL_PATH).partition("/")[0]
            is_told = name == "exchanges" and request.method != "DELETE"
            self._changes.note(*(() if is_told else (name,)))
        return replace(response, headers=response.headers + (_SANDBOX,))
