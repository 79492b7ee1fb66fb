"""The other side of the simulator: looking inside, ordering faults, stopping."""

from __future__ import annotations

import re
from collections.abc import Callable

from lejis.namespaces import CONTROL_PATH
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .control_call import ControlCall
from .router import wrong_method

# The actions by method and by a pattern of the path below /control/.
Calls = dict[tuple[str, str], Callable[[ControlCall], HttpResponse]]


class ControlEndpoint:
    """Tables of calls: neither recorded nor subject to faults."""

    def __init__(self, *tables: Calls) -> None:
        self._calls = [(method, re.compile(CONTROL_PATH + path), call) for table in tables
                       for (method, path), call in table.items()]

    def handle(self, request: HttpRequest) -> HttpResponse:
        """The answer of the call; 400 with a sentence for arguments that make no sense."""
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


def forgotten(count: int) -> HttpResponse:
    """The answer to every call that drops something."""
    return HttpResponse.json({"forgotten": count})
