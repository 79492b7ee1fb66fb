"""The other side of the simulator: looking inside, ordering faults, stopping."""

from __future__ import annotations

import ipaddress
import re
from collections.abc import Callable

from faults.fault import Fault
from faults.fault_queue import FaultQueue
from lejis.incident_index import IncidentIndex
from wire.exchange_log import ExchangeLog
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .control_call import ControlCall
from .index_seed import IndexSeed
from .router import wrong_method


class ControlEndpoint:
    """A table of calls: neither recorded nor subject to faults, and only for this machine."""

    def __init__(self, index: IncidentIndex, seed: IndexSeed, faults: FaultQueue,
                 log: ExchangeLog, stop: Callable[[], None]) -> None:
        self._index, self._seed, self._faults = index, seed, faults
        self._log, self._stop = log, stop
        calls = {
            ("GET", "faults"): lambda call: HttpResponse.json(faults.list()),
            ("POST", "faults"): self._add_fault,
            ("DELETE", "faults"): lambda call: _forgotten(faults.clear()),
            ("GET", "index"): lambda call: HttpResponse.json(index.summaries()),
            ("POST", "index"): self._add_cards,
            ("DELETE", "index"): lambda call: _forgotten(index.clear()),
            ("GET", "index/card"): self._card,
            ("GET", "exchanges"): lambda call: HttpResponse.json(log.entries(call.last)),
            ("DELETE", "exchanges"): lambda call: _forgotten(log.clear()),
            ("GET", "exchanges/([0-9]{1,9})/request"): self._request_body,
            ("POST", "stop"): self._stop_server,
        }
        self._calls = [(method, re.compile("/control/" + path), call)
                       for (method, path), call in calls.items()]

    def handle(self, request: HttpRequest, peer: str) -> HttpResponse:
        """The answer of the call; 400 with a sentence for arguments that make no sense."""
        if not _is_loopback(peer):
            return HttpResponse.text(403, "Control is for this machine only.")
        allowed = []
        for method, path, call in self._calls:
            match = path.fullmatch(request.path)
            if match and method == request.method:
                try:
                    return call(ControlCall(request, match.groups()))
                except ValueError as error:
                    return HttpResponse.text(400, str(error))
            if match:
                allowed.append(method)
        return wrong_method(*allowed) if allowed else HttpResponse.text(
            404, "There is no such control call.")

    def _add_fault(self, call: ControlCall) -> HttpResponse:
        fault = Fault.from_json(call.value)
        listed = fault.to_json()
        self._faults.add(fault)
        return HttpResponse.json(listed)

    def _add_cards(self, call: ControlCall) -> HttpResponse:
        done = self._seed.add(call.request.body)
        return HttpResponse.json({what: done[what] for what in ("added", "replaced")})

    def _card(self, call: ControlCall) -> HttpResponse:
        card = self._index.card(call.argument("ori"), call.argument("id"))
        if card is None:
            return HttpResponse.text(404, "No such incident is held.")
        return HttpResponse.xml(card.encode())

    def _request_body(self, call: ControlCall) -> HttpResponse:
        body = self._log.request_body(int(call.parts[0]))
        if body is None:
            return HttpResponse.text(404, "There is no exchange of that number.")
        return HttpResponse.xml(body)

    def _stop_server(self, _: ControlCall) -> HttpResponse:
        self._stop()
        return HttpResponse.text(200, "Stopping.")


def _forgotten(count: int) -> HttpResponse:
    return HttpResponse.json({"forgotten": count})


def _is_loopback(peer: str) -> bool:
    try:
        address = ipaddress.ip_address(peer.partition("%")[0])
    except ValueError:
        return False
    mapped = getattr(address, "ipv4_mapped", None)
    return (mapped or address).is_loopback
