"""The LEJIS Interface behind the wire: its parts put together."""

from __future__ import annotations

from collections.abc import Callable
from pathlib import Path

from endpoints.callers import Callers
from endpoints.changes import Changes
from endpoints.console import Console
from endpoints.endpoint import Outcome
from endpoints.exchange_calls import ExchangeCalls
from endpoints.fault_calls import FaultCalls
from endpoints.index_calls import IndexCalls
from endpoints.index_seed import IndexSeed
from endpoints.router import Router
from endpoints.schema_endpoint import SchemaEndpoint
from endpoints.search_endpoint import DEFAULT_BROAD_LIMIT, SearchEndpoint
from endpoints.server_calls import ServerCalls
from endpoints.submission_endpoint import SubmissionEndpoint
from endpoints.wsdl_endpoint import WsdlEndpoint
from faults.fault import Fault
from faults.fault_kind import Setting
from faults.fault_queue import FaultQueue
from lejis.incident_index import IncidentIndex
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH, Namespaces
from lejis.schema_set import SEARCH_WSDL, SUBMISSION_WSDL, SchemaSet
from views.message_view import MessageView
from wire.delivery import Delivery
from wire.exchange_log import ExchangeLog
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse


class Simulator:
    """Answers requests, plays the faults ordered, and records all of it in one folder."""

    def __init__(self, data: Path, namespaces: Namespaces, stop: Callable[[], None],
                 broad_limit: int = DEFAULT_BROAD_LIMIT, callers: Callers = Callers()) -> None:
        schemas = SchemaSet(data / "schemas", namespaces)
        self._namespaces = namespaces
        self._index = IncidentIndex(data / "index.sqlite")
        self._log = ExchangeLog(data / "exchanges")
        self._faults = FaultQueue()
        self._changes = Changes()
        self._console = Console(
            callers, self._changes,
            FaultCalls(self._faults).table,
            IndexCalls(self._index, IndexSeed(namespaces, schemas, self._index), namespaces).table,
            ExchangeCalls(self._log, MessageView(namespaces, schemas)).table,
            ServerCalls(self._changes, stop).table)
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
        self._index.close()

    def needs_length(self, method: str, target: str) -> bool:
        """Control calls without a body may be sent by hand, without a length."""
        return method in ("POST", "PUT") and not Console.concerns(target)

    def takes_chunks(self, target: str) -> bool:
        """No client of LEJIS sends its body in chunks."""
        return False

    def is_watching(self, request: HttpRequest) -> bool:
        """A page that is open somewhere must not keep the simulator from ending."""
        return Console.is_watching(request)

    def answer(self, request: HttpRequest, peer: str) -> Delivery:
        """The answer, wrong in the way ordered if one is."""
        if Console.concerns(request.target):
            return Delivery(self._console.handle(request, peer))
        endpoint = self._router.find(request)
        if isinstance(endpoint, HttpResponse):
            return self._recorded(request, Outcome(endpoint), Delivery(endpoint))
        fault = self._faults.take(endpoint.target)
        has_effect = fault is None or fault.kind.honest
        outcome = endpoint.handle(request, has_effect)
        if fault is None:
            return self._recorded(request, outcome, Delivery(outcome.response))
        setting = Setting(endpoint.target, self._namespaces)
        delivery = fault.kind.play(outcome.response, fault.values, setting)
        return self._recorded(request, outcome, delivery, fault)

    def refuse(self, request: HttpRequest, response: HttpResponse) -> Delivery:
        """Records a request that is no request."""
        return self._recorded(request, Outcome(response), Delivery(response, closes=True))

    def _recorded(self, request: HttpRequest, outcome: Outcome, delivery: Delivery,
                  fault: Fault | None = None) -> Delivery:
        """Recorded before it is sent, so that a client that has its answer finds the record."""
        self._log.record(request, delivery.to_bytes(request.method != "HEAD"), delivery.status,
                         outcome.checks, fault.name if fault else None, outcome.about)
        self._changes.note()
        return delivery
