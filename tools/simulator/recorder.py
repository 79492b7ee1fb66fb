"""Stands between a client and a real LEJIS Interface, and keeps what both of them say."""

from __future__ import annotations

from collections.abc import Callable
from pathlib import Path
from typing import Any

from endpoints.callers import Callers
from endpoints.changes import Changes
from endpoints.console import Console
from endpoints.exchange_calls import ExchangeCalls
from endpoints.har_calls import HarCalls
from endpoints.judge import Judge
from endpoints.server_calls import ServerCalls
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH, Namespaces
from lejis.schema_set import SchemaSet
from recording.far_side import FarSide
from recording.passage import Passage
from recording.response_frame import ResponseFrame
from views.message_view import MessageView
from views.outcome import outcome_of
from views.raw_message import RawMessage
from wire.delivery import Delivery
from wire.exchange_log import ExchangeLog, OpenExchange
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse
from wire.takeover import Takeover


class Recorder:
    """Passes on whatever does not concern its own page and control calls. It checks requests as
    the simulator does, but for the record only."""

    def __init__(self, data: Path, namespaces: Namespaces, stop: Callable[[], None],
                 far_side: FarSide, callers: Callers = Callers(),
                 keep: int | None = None) -> None:
        self._namespaces, self._callers = namespaces, callers
        self._schemas = SchemaSet(data / "schemas", namespaces)
        self._far_side = far_side
        self._log = ExchangeLog(data / "exchanges", keep)
        self._changes = Changes()
        self._judge = Judge(namespaces, self._schemas)
        self._console = Console(
            callers, self._changes,
            ExchangeCalls(self._log, MessageView(namespaces, self._schemas), namespaces).table,
            HarCalls(self._log, self._judge, self._changes).table,
            ServerCalls(self._changes, stop, {
                "far_side": far_side.address, "lejis_host": namespaces.host,
                "data": str(data.resolve()), "keep": keep,
                "services": {"submission": SUBMISSION_PATH, "search": SEARCH_PATH},
            }, self._news).table)

    def close(self) -> None:
        """Lets go of the files and of those who watch."""
        self._changes.end()
        self._log.close()

    def stop_watching(self) -> None:
        """Nobody waits for news any longer."""
        self._changes.end()

    def _news(self) -> dict[str, Any]:
        first, last, count = self._log.span
        return {"listed": {"first": first, "last": last, "count": count}}

    def needs_length(self, method: str, target: str) -> bool:
        """Whether a length is needed is for the far side to say."""
        return False

    def takes_chunks(self, target: str) -> bool:
        """Whatever is to be passed on may come in any way."""
        return not Console.concerns(target)

    def is_watching(self, request: HttpRequest) -> bool:
        """A page that is open keeps the recorder running, but does not hold up its end."""
        return Console.is_watching(request)

    def answer(self, request: HttpRequest, peer: str) -> Delivery | Takeover:
        """The console's answer, or the way to the far side's."""
        if Console.concerns(request.target):
            return Delivery(self._console.handle(request, peer))
        if not self._callers.may_use_services(peer):
            return Delivery(HttpResponse.text(
                403, "This machine may not use the recorder; start it with --allow."))
        exchange = self._log.begin(request)
        frame = ResponseFrame(request.method)
        return Passage(exchange, frame, self._far_side.connect,
                       self._far_side.request_bytes(request),
                       lambda note: self._finish(exchange, request, frame.status, note))

    def refuse(self, request: HttpRequest, response: HttpResponse) -> Delivery:
        """Records what cannot be read as a request, and so cannot be passed on."""
        delivery = Delivery(response, closes=True)
        exchange = self._log.begin(request)
        exchange.received(delivery.to_bytes(request.method != "HEAD"))
        self._finish(exchange, request, response.status,
                     "The recorder refused this request; the far side has not seen it.")
        return delivery

    def _finish(self, exchange: OpenExchange, request: HttpRequest, status: int,
                note: str) -> None:
        checks, subject = self._judge(request)
        # Interim responses and codings stand between the raw bytes and what they mean.
        body = RawMessage(self._log.unlisted_response(exchange.number)).body
        if exchange.finish(status, checks, note=note, **subject.listed,
                           outcome=outcome_of(subject.kind, status, body, not note)):
            self._changes.note(exchange=exchange.number)
