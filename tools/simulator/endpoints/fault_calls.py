"""The control calls that concern faults."""

from __future__ import annotations

from typing import Any

from faults.concern import TARGETS
from faults.fault import Fault
from faults.fault_kinds import FAULT_KINDS
from faults.fault_queue import FaultQueue
from faults.presets import PRESETS, preset
from wire.http_response import HttpResponse

from .control_call import ControlCall
from .control_endpoint import Calls, forgotten


class FaultCalls:
    """What can be ordered, what has been, and the order itself."""

    def __init__(self, faults: FaultQueue) -> None:
        self._faults = faults
        self.table: Calls = {
            ("GET", "faults"): lambda call: HttpResponse.json(faults.list()),
            ("POST", "faults"): self._order,
            ("DELETE", "faults"): lambda call: forgotten(faults.clear()),
            ("GET", "faults/kinds"): lambda call: HttpResponse.json(_kinds()),
            ("GET", "faults/presets"): lambda call: HttpResponse.json(_presets()),
        }

    def _order(self, call: ControlCall) -> HttpResponse:
        """One fault; or those of a preset, which answers with a list."""
        value = call.value
        if isinstance(value, dict) and "preset" in value:
            common = dict(value)
            orders = preset(common.pop("preset")).orders
            faults = [Fault.from_json({**order, **common}) for order in orders]
            listed: Any = [fault.to_json() for fault in faults]
        else:
            faults = [Fault.from_json(value)]
            listed = faults[0].to_json()
        self._faults.add(faults)
        return HttpResponse.json(listed)


def _kinds() -> list[dict[str, Any]]:
    return [{"kind": name,
             "group": kind.group,
             "meaning": kind.meaning,
             "targets": [kind.target] if kind.target else list(TARGETS),
             "parameters": {key: parameter.default for key, parameter in kind.parameters.items()}}
            for name, kind in FAULT_KINDS.items()]


def _presets() -> list[dict[str, Any]]:
    return [{"name": one.name, "group": one.group, "meaning": one.meaning, "faults": len(one.orders)}
            for one in PRESETS]
