"""The control calls that concern the record of exchanges."""

from __future__ import annotations

import re

from lxml import etree

from lejis import soap
from lejis.namespaces import Namespaces
from views.message_view import MessageView
from views.raw_message import RawMessage
from wire.exchange_log import SIDES, ExchangeLog
from wire.http_response import HttpResponse

from .control_call import ControlCall
from .control_endpoint import Calls, forgotten
from .exchange_filter import ExchangeFilter
from .exchange_search import ExchangeSearch
from .send_again import send_again
from .timeline import MOST_BUCKETS, timeline

_ONE = "exchanges/([0-9]{1,9})"
_LARGEST = 999_999_999
# A page of the list.
MOST_ENTRIES = 500


class ExchangeCalls:
    """The list, and each exchange in the shapes for people and for programs."""

    def __init__(self, log: ExchangeLog, view: MessageView, namespaces: Namespaces) -> None:
        self._log, self._view = log, view
        self._card = f"{{{namespaces.service}}}RMSIncidentIndexCard"
        self._search = ExchangeSearch(log)
        self.table: Calls = {
            ("GET", "exchanges"): self._list,
            ("DELETE", "exchanges"): lambda call: forgotten(log.clear()),
            ("GET", "exchanges/matches"): self._matches,
            ("GET", "exchanges/timeline"): self._timeline,
            ("GET", _ONE): self._exchange,
            ("GET", _ONE + "/request"): self._request_body,
            ("GET", _ONE + r"/incident\.xml"): self._incident,
            ("POST", _ONE + "/again"): self._send_again,
            ("GET", _ONE + r"/(request|response)\.http"): self._raw,
        }

    def _list(self, call: ControlCall) -> HttpResponse:
        numbers = call.request.query.get("numbers")
        if numbers is None:
            return _joined(self._log.lines(call.last))
        return _joined(self._log.lines_between(_ranges(numbers), MOST_ENTRIES))

    def _matches(self, call: ControlCall) -> HttpResponse:
        first, last = call.number("from"), call.number("to")
        return HttpResponse.compact_json(self._search.matches(
            _filter(call), first or 0, _LARGEST if last is None else last))

    def _timeline(self, call: ControlCall) -> HttpResponse:
        most = min(call.number("buckets") or MOST_BUCKETS, MOST_BUCKETS)
        return HttpResponse.compact_json(timeline(self._log, _filter(call), most))

    def _exchange(self, call: ControlCall) -> HttpResponse:
        number = int(call.parts[0])
        entry = self._log.entry(number)
        if entry is None:
            return _UNKNOWN
        sides = {side: self._view.to_json(self._log.raw(number, side) or b"") for side in SIDES}
        return HttpResponse.json({**entry, "previous": self._previous(entry), **sides})

    def _previous(self, entry: dict) -> int | None:
        """The exchange before this one that was about the same incident."""
        if not entry["incident"]:
            return None
        rows = self._log.table.rows(
            "SELECT max(number) FROM exchange WHERE number < ? AND ori = ? AND incident = ?",
            (entry["number"], entry["ori"], entry["incident"]))
        return rows[0][0]

    def _request_body(self, call: ControlCall) -> HttpResponse:
        body = self._log.request_body(int(call.parts[0]))
        return _UNKNOWN if body is None else HttpResponse.xml(body)

    def _incident(self, call: ControlCall) -> HttpResponse:
        """The first incident of a request as a file of its own."""
        number = int(call.parts[0])
        body = RawMessage(self._log.raw(number, "request") or b"").body
        card = next(soap.parse(body).iter(self._card), None)
        if card is None:
            raise ValueError("The request holds no incident.")
        etree.cleanup_namespaces(card)
        etree.indent(card, "  ")
        markup = etree.tostring(card, encoding="UTF-8", xml_declaration=True, with_tail=False)
        return HttpResponse(200, markup + b"\n", "text/xml; charset=utf-8", headers=(
            ("Content-Disposition", f'attachment; filename="incident-{number}.xml"'),))

    def _send_again(self, call: ControlCall) -> HttpResponse:
        raw = self._log.raw(int(call.parts[0]), "request")
        if raw is None:
            return _UNKNOWN
        if call.request.server is None or not raw:
            raise ValueError("There is no request to send again.")
        send_again(call.request.server, raw)
        return HttpResponse.json({"sent": len(raw)})

    def _raw(self, call: ControlCall) -> HttpResponse:
        number, side = call.parts
        raw = self._log.raw(int(number), side)
        if raw is None:
            return _UNKNOWN
        name = f"{int(number):06}-{side}.http"
        return HttpResponse(200, raw, "application/octet-stream", headers=(
            ("Content-Disposition", f'attachment; filename="{name}"'),))


def _filter(call: ControlCall) -> ExchangeFilter:
    return ExchangeFilter(call.request.query.get("filter", ""))


def _ranges(text: str) -> list[tuple[int, int]]:
    """"7,10-14" as pairs."""
    if not re.fullmatch(r"\d{1,9}(-\d{1,9})?(,\d{1,9}(-\d{1,9})?)*", text, re.ASCII):
        raise ValueError("The argument 'numbers' must be like 7,10-14.")
    pairs = (part.split("-") for part in text.split(","))
    return [(int(pair[0]), int(pair[-1])) for pair in pairs]


def _joined(lines: list[str]) -> HttpResponse:
    """Lines that are JSON already, as one list."""
    return HttpResponse(200, ("[\n" + ",\n".join(lines) + "\n]\n").encode(), "application/json")


_UNKNOWN = HttpResponse.text(404, "There is no exchange of that number.")
