"""The LEJIS Interface behind the wire: its parts put together."""

from __future__ import annotations

import time
from collections.abc import Callable
from pathlib import Path
from typing import Any

from endpoints.callers import Callers
from endpoints.changes import Changes
from endpoints.console import Console
from endpoints.endpoint import Outcome
from endpoints.exchange_calls import ExchangeCalls
from endpoints.fault_calls import FaultCalls
from endpoints.har_calls import HarCalls
from endpoints.index_calls import IndexCalls
from endpoints.index_seed import IndexSeed
from endpoints.judge import Judge
from endpoints.router import Router
from endpoints.schema_endpoint import SchemaEndpoint
from endpoints.search_endpoint import DEFAULT_BROAD_LIMIT, SearchEndpoint
from endpoints.server_calls import ServerCalls
from endpoints.subject import Subject
from endpoints.submission_endpoint import SubmissionEndpoint
from endpoints.wsdl_endpoint import WsdlEndpoint
from faults.fault import Fault
from faults.fault_kind import Setting
from faults.fault_queue import FaultQueue
from lejis.incident_index import IncidentIndex
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH, Namespaces
from lejis.schema_set import SEARCH_WSDL, SUBMISSION_WSDL, SchemaSet
from views.message_view import MessageView
from views.outcome import outcome_of
from wire.delivery import Delivery
from wire.exchange_log import ExchangeLog
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse


class Simulator:
    """Answers requests, plays the faults ordered, and records all of it in one folder."""

    def __init__(self, data: Path, namespaces: Namespaces, stop: Callable[[], None],
                 broad_limit: int = DEFAULT_BROAD_LIMIT, callers: Callers = Callers(),
                 keep: int | None = None) -> None:
        schemas = SchemaSet(data / "schemas", namespaces)
        self._namespaces, self._callers = namespaces, callers
        self._index = IncidentIndex(data / "index.sqlite")
        self._log = ExchangeLog(data / "exchanges", keep)
        self._faults = FaultQueue()
        self._changes = Changes()
        self._console = Console(
            callers, self._changes,
            FaultCalls(self._faults).table,
            IndexCalls(self._index, IndexSeed(namespaces, schemas, self._index), namespaces).table,
            ExchangeCalls(self._log, MessageView(namespaces, schemas), namespaces).table,
            HarCalls(self._log, Judge(namespaces, schemas), self._changes).table,
            ServerCalls(self._changes, stop, {
                "far_side": None, "lejis_host": namespaces.host, "data": str(data.resolve()),
                "keep": keep, "services": {"submission": SUBMISSION_PATH, "search": SEARCH_PATH},
            }, self._news).table)
        services = {
            SUBMISSION_PATH: (SubmissionEndpoint(namespaces, schemas, self._index),
                              WsdlEndpoint(schemas, SUBMISSION_WSDL)),
            SEARCH_PATH: (SearchEndpoint(namespaces, schemas, self._index, broad_limit),
                          WsdlEndpoint(schemas, SEARCH_WSDL)),
        }
        self._router = Router(services, SchemaEndpoint(schemas))

    def close(self) -> None:
        """Lets go of the files and of those who watch."""
        self._changes.end()
        self._log.close()
        self._index.close()

    def stop_watching(self) -> None:
        """Nobody waits for news any longer."""
        self._changes.end()

    def _news(self) -> dict[str, Any]:
        first, last, count = self._log.span
        return {"listed": {"first": first, "last": last, "count": count},
                "incidents": self._index.count}

    def needs_length(self, method: str, target: str) -> bool:
        """Control calls without a body may be sent by hand, without a length."""
        return method in ("POST", "PUT") and not Console.concerns(target)

    def takes_chunks(self, target: str) -> bool:
        """No client of LEJIS sends its body in chunks."""
        return False

    def is_watching(self, request: HttpRequest) -> bool:
        """A page that is open keeps the simulator running, but does not hold up its end."""
        return Console.is_watching(request)

    def answer(self, request: HttpRequest, peer: str) -> Delivery:
        """The answer, wrong in the way ordered if one is."""
        if Console.concerns(request.target):
            return Delivery(self._console.handle(request, peer))
        if not self._callers.may_use_services(peer):
            return Delivery(HttpResponse.text(
                403, "This machine may not use the services; start the simulator with --allow."))
        endpoint = self._router.find(request)
        started = time.time()
        if isinstance(endpoint, HttpResponse):
            return self._recorded(request, Outcome(endpoint), Delivery(endpoint), started)
        faults: list[Fault] = []

        def has_effect(subject: Subject) -> bool:
            fault = self._faults.take(endpoint.target, subject)
            if fault is not None:
                faults.append(fault)
            return fault is None or fault.kind.honest

        outcome = endpoint.handle(request, has_effect)
        if not faults:
            return self._recorded(request, outcome, Delivery(outcome.response), started)
        setting = Setting(endpoint.target, self._namespaces)
        delivery = faults[0].kind.play(outcome.response, faults[0].values, setting)
        return self._recorded(request, outcome, delivery, started, faults[0])

    def refuse(self, request: HttpRequest, response: HttpResponse) -> Delivery:
        """Records what cannot be read as a request."""
        return self._recorded(request, Outcome(response), Delivery(response, closes=True),
                              time.time())

    def _recorded(self, request: HttpRequest, outcome: Outcome, delivery: Delivery,
                  started: float, fault: Fault | None = None) -> Delivery:
        """Recorded before it is sent, so that a client that has its answer finds the record. What a
        fault makes the client wait is known before it has passed."""
        kind = outcome.subject.kind
        waited = time.time() - started + delivery.pause + delivery.spread
        number = self._log.record(
            request, delivery.to_bytes(request.method != "HEAD"), delivery.status, outcome.checks,
            fault.name if fault else None, **outcome.subject.listed, at=int(started * 1000),
            milliseconds=round(waited * 1000, 1),
            outcome=outcome_of(kind, delivery.status, delivery.response.body, delivery.is_whole))
        changed = ("index",) if kind in ("submission", "deletion") else ()
        if fault:
            self._faults.note_exchange(fault, number)
            changed += ("faults",)
        self._changes.note(*changed, exchange=number)
        return delivery
