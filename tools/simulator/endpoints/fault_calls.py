"""The control calls that concern faults."""

from __future__ import annotations

from typing import Any

from faults.fault import TARGETS, Fault
from faults.fault_kinds import FAULT_KINDS
from faults.fault_queue import FaultQueue
from wire.http_response import HttpResponse

from .control_call import ControlCall
from .control_endpoint import Calls, forgotten


class FaultCalls:
    """What can be ordered, what has been, and the order itself."""

    def __init__(self, faults: FaultQueue) -> None:
        self._faults = faults
        self.table: Calls = {
            ("GET", "faults"): lambda call: HttpResponse.json(faults.list()),
            ("POST", "faults"): self._add_fault,
            ("DELETE", "faults"): lambda call: forgotten(faults.clear()),
            ("GET", "faults/kinds"): lambda call: HttpResponse.json(_kinds()),
        }

    def _add_fault(self, call: ControlCall) -> HttpResponse:
        fault = Fault.from_json(call.value)
        listed = fault.to_json()
        self._faults.add(fault)
        return HttpResponse.json(listed)


def _kinds() -> list[dict[str, Any]]:
    return [{"kind": name,
             "meaning": kind.meaning,
             "targets": [kind.target] if kind.target else list(TARGETS),
             "parameters": {key: parameter.default for key, parameter in kind.parameters.items()}}
            for name, kind in FAULT_KINDS.items()]
