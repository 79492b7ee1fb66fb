"""The control calls that concern the server as a whole."""

from __future__ import annotations

from collections.abc import Callable

from lejis.namespaces import CONTROL_PATH
from wire.http_response import HttpResponse

from .changes import Changes
from .control_call import ControlCall
from .control_endpoint import Calls

CHANGES_PATH = CONTROL_PATH + "changes"


class ServerCalls:
    """`far_side` is the address that exchanges are passed on to, None where they are simulated."""

    def __init__(self, changes: Changes, stop: Callable[[], None],
                 far_side: str | None = None) -> None:
        self._changes, self._stop = changes, stop
        self.table: Calls = {
            ("GET", "changes"): self._wait_for_change,
            ("GET", "status"): lambda call: HttpResponse.json({"far_side": far_side}),
            ("POST", "stop"): self._stop_server,
        }

    def _wait_for_change(self, call: ControlCall) -> HttpResponse:
        """At once when the caller knows another number, or none, than the present one."""
        known = call.number("after")
        count = self._changes.count if known is None else self._changes.wait(known)
        return HttpResponse.json({"changes": count})

    def _stop_server(self, _: ControlCall) -> HttpResponse:
        self._stop()
        return HttpResponse.text(200, "Stopping.")
