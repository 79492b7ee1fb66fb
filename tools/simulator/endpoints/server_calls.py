"""The control calls that concern the server as a whole."""

from __future__ import annotations

from collections.abc import Callable
from typing import Any

from lejis.namespaces import CONTROL_PATH
from wire.http_response import HttpResponse

from .changes import Changes
from .control_call import ControlCall
from .control_endpoint import Calls

CHANGES_PATH = CONTROL_PATH + "changes"


class ServerCalls:
    """`status` says what the server is; `news` goes with every number of changes."""

    def __init__(self, changes: Changes, stop: Callable[[], None], status: dict[str, Any],
                 news: Callable[[], dict[str, Any]]) -> None:
        self._changes, self._stop, self._news = changes, stop, news
        self.table: Calls = {
            ("GET", "changes"): self._wait_for_change,
            ("GET", "status"): lambda call: HttpResponse.json(status),
            ("POST", "stop"): self._stop_server,
        }

    def _wait_for_change(self, call: ControlCall) -> HttpResponse:
        """At once when the caller knows another number, or none, than the present one."""
        known = call.number("after")
        if known is not None:
            self._changes.wait(known)
        return HttpResponse.compact_json({**self._changes.since(known), **self._news()})

    def _stop_server(self, _: ControlCall) -> HttpResponse:
        self._stop()
        return HttpResponse.text(200, "Stopping.")
