"""The control calls that take the record elsewhere, and take a record from elsewhere."""

from __future__ import annotations

import io
from collections.abc import Callable
from http.client import parse_headers

from views import har
from views.outcome import outcome_of
from views.raw_message import RawMessage
from wire.exchange_log import ExchangeLog
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .changes import Changes
from .control_call import ControlCall
from .control_endpoint import Calls
from .exchange_filter import ExchangeFilter
from .exchange_search import ExchangeSearch
from .subject import Subject

MOST_EXPORTED = 2000
MOST_EXPORTED_BYTES = 64 * 1024 * 1024

# The verdicts of a request's checks, and what it is about.
Judge = Callable[[HttpRequest], tuple[dict[str, str], Subject]]


class HarCalls:
    """HTTP archives: the latest exchanges that a filter lets through, and what others have recorded."""

    def __init__(self, log: ExchangeLog, judge: Judge, changes: Changes) -> None:
        self._log, self._judge, self._changes = log, judge, changes
        self._search = ExchangeSearch(log)
        self.table: Calls = {
            ("GET", r"exchanges\.har"): self._export,
            ("POST", "exchanges/import"): self._import,
        }

    def _export(self, call: ControlCall) -> HttpResponse:
        chosen = ExchangeFilter(call.request.query.get("filter", ""))
        origin = f"{call.request.scheme}://{call.request.header('Host') or 'localhost'}"
        entries, size = [], 0
        for number in reversed(self._search.numbers(chosen, MOST_EXPORTED)):
            entry = self._log.entry(number)
            raw = [self._log.raw(number, side) or b"" for side in ("request", "response")]
            size += sum(map(len, raw))
            if entry is None or size > MOST_EXPORTED_BYTES:
                break
            entries.append(har.written(entry, *raw, origin))
        response = HttpResponse.json(har.archive(entries[::-1]))
        return HttpResponse(200, response.body, response.content_type, headers=(
            ("Content-Disposition", 'attachment; filename="exchanges.har"'),))

    def _import(self, call: ControlCall) -> HttpResponse:
        entries = har.read(call.request.body)
        for entry in entries:
            self._changes.note(exchange=self._keep(entry))
        return HttpResponse.json({"imported": len(entries)})

    def _keep(self, entry: har.HarEntry) -> int:
        request = _parsed(entry.request)
        answer = RawMessage(entry.response)
        checks, subject = self._judge(request)
        return self._log.record(
            request, entry.response, entry.status, checks, None, **subject.listed, at=entry.at,
            milliseconds=entry.milliseconds, imported=True,
            outcome=outcome_of(subject.kind, entry.status, answer.body, bool(entry.response)))


def _parsed(raw: bytes) -> HttpRequest:
    head, gap, body = raw.partition(b"\r\n\r\n")
    words = head.partition(b"\r\n")[0].decode("latin-1").split(" ")
    try:
        headers = parse_headers(io.BytesIO(head.partition(b"\r\n")[2] + b"\r\n\r\n"))
    except Exception:  # whatever is wrong with them, the request is kept without
        headers = HttpRequest().headers
    return HttpRequest(words[0], words[1] if len(words) > 1 else "", head + gap, headers, body)
