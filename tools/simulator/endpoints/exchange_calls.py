"""The control calls that concern the record of exchanges."""

from __future__ import annotations

from views.message_view import MessageView
from wire.exchange_log import ExchangeLog
from wire.http_response import HttpResponse

from .control_call import ControlCall
from .control_endpoint import Calls, forgotten

_ONE = "exchanges/([0-9]{1,9})"


class ExchangeCalls:
    """The list, and each exchange in the shapes for people and for programs."""

    def __init__(self, log: ExchangeLog, view: MessageView) -> None:
        self._log, self._view = log, view
        self.table: Calls = {
            ("GET", "exchanges"): lambda call: HttpResponse.json(log.entries(call.last)),
            ("DELETE", "exchanges"): lambda call: forgotten(log.clear()),
            ("GET", _ONE): self._exchange,
            ("GET", _ONE + "/request"): self._request_body,
            ("GET", _ONE + r"/(request|response)\.http"): self._raw,
        }

    def _exchange(self, call: ControlCall) -> HttpResponse:
        number = int(call.parts[0])
        entry = self._log.entry(number)
        if entry is None:
            return _UNKNOWN
        sides = {side: self._view.to_json(self._log.raw(number, side) or b"")
                 for side in ("request", "response")}
        return HttpResponse.json({**entry, **sides})

    def _request_body(self, call: ControlCall) -> HttpResponse:
        body = self._log.request_body(int(call.parts[0]))
        return _UNKNOWN if body is None else HttpResponse.xml(body)

    def _raw(self, call: ControlCall) -> HttpResponse:
        number, side = call.parts
        raw = self._log.raw(int(number), side)
        if raw is None:
            return _UNKNOWN
        name = f"{int(number):06}-{side}.http"
        return HttpResponse(200, raw, "application/octet-stream", headers=(
            ("Content-Disposition", f'attachment; filename="{name}"'),))


_UNKNOWN = HttpResponse.text(404, "There is no exchange of that number.")
