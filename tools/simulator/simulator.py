"""The LEJIS Interface behind the wire: its parts put together."""

from __future__ import annotations

from collections.abc import Callable
from pathlib import Path

from endpoints.control_endpoint import ControlEndpoint
from endpoints.endpoint import Outcome
from endpoints.index_seed import IndexSeed
from endpoints.router import Router
from endpoints.schema_endpoint import SchemaEndpoint
from endpoints.search_endpoint import DEFAULT_BROAD_LIMIT, SearchEndpoint
from endpoints.submission_endpoint import SubmissionEndpoint
from endpoints.wsdl_endpoint import WsdlEndpoint
from faults.fault import Fault
from faults.fault_kind import Setting
from faults.fault_queue import FaultQueue
from lejis.incident_index import IncidentIndex
from lejis.namespaces import CONTROL_PATH, SEARCH_PATH, SUBMISSION_PATH, Namespaces
from lejis.schema_set import SEARCH_WSDL, SUBMISSION_WSDL, SchemaSet
from wire.delivery import Delivery
from wire.exchange_log import ExchangeLog
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse


class Simulator:
    """Answers requests, plays the faults ordered, and records all of it in one folder."""

    def __init__(self, data: Path, namespaces: Namespaces, stop: Callable[[], None],
                 broad_limit: int = DEFAULT_BROAD_LIMIT) -> None:
        schemas = SchemaSet(data / "schemas", namespaces)
        self._namespaces = namespaces
        self._index = IncidentIndex(data / "index.sqlite")
        self._log = ExchangeLog(data / "exchanges")
        self._faults = FaultQueue()
        seed = IndexSeed(namespaces, schemas, self._index)
        self._control = ControlEndpoint(self._index, seed, self._faults, self._log, stop)
        services = {
            SUBMISSION_PATH: (SubmissionEndpoint(namespaces, schemas, self._index),
                              WsdlEndpoint(schemas, SUBMISSION_WSDL)),
            SEARCH_PATH: (SearchEndpoint(namespaces, schemas, self._index, broad_limit),
                          WsdlEndpoint(schemas, SEARCH_WSDL)),
        }
        self._router = Router(services, SchemaEndpoint(schemas))

    def close(self) -> None:
        """Lets go of the files."""
        self._index.close()

    def needs_length(self, method: str, target: str) -> bool:
        """Control calls without a body may be sent by hand, without a length."""
        return method in ("POST", "PUT") and not target.startswith(CONTROL_PATH)

    def answer(self, request: HttpRequest, peer: str) -> Delivery:
        """The answer, wrong in the way ordered if one is."""
        if request.path.startswith(CONTROL_PATH):
            return Delivery(self._control.handle(request, peer))
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
                         outcome.checks, fault.name if fault else None)
        return delivery
