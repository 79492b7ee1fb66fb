"""A server with one behaviour for each of its ports. The simulator answers what no behaviour changes.

The first part of a request's path names the operation that the client tries. The behaviour of the
port is played to the request that the operation is about; every other request is served well.
"""

from __future__ import annotations

import json
import socket
import sys
import threading
import traceback
from collections import Counter
from collections.abc import Callable, Iterable
from dataclasses import replace
from pathlib import Path

from lejis.namespaces import DEFAULT_LEJIS_HOST, SEARCH_PATH, SUBMISSION_PATH, Namespaces
from simulator import Simulator
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

import plays
from behaviour import OPERATIONS, Behaviour, Exchange
from connection import Connection, Gone

WELL_BEHAVED = Behaviour("", "well-behaved", play=plays.served)
_LOCAL = "127.0.0.1"
_LOOK_SECONDS = 0.2


class FaultServer:
    """Listens on a free port of this machine for each behaviour until it is closed."""

    def __init__(self, behaviours: Iterable[Behaviour], data: Path) -> None:
        self._simulator = Simulator(data, Namespaces(DEFAULT_LEJIS_HOST), lambda: None)
        self._lock = threading.Lock()
        self._asked: Counter[tuple[str, str]] = Counter()
        self._served: Counter[tuple[str, str]] = Counter()
        self._bodies: list[int] = []
        self._ending = threading.Event()
        self._doors: list[socket.socket] = []
        self._threads: list[threading.Thread] = []
        self._ports = {each.name: self._open(each) for each in (*behaviours, WELL_BEHAVED)}

    def address(self, operation: str, behaviour: Behaviour = WELL_BEHAVED) -> str:
        """Where a client finds the service that the operation needs, under the behaviour."""
        return _address(self._ports[behaviour.name], operation)

    def moody_address(self, operation: str, draw: Callable[[], Behaviour]) -> str:
        """The same under a behaviour that is drawn for each connection."""
        return _address(self._listen(socket.create_server((_LOCAL, 0)), draw), operation)

    def asked(self, operation: str, behaviour: Behaviour) -> int:
        """How many requests the behaviour has been played to."""
        with self._lock:
            return self._asked[operation, behaviour.name]

    def served(self, operation: str, behaviour: Behaviour) -> int:
        """How many of them the service has acted on."""
        with self._lock:
            return self._served[operation, behaviour.name]

    def mean_body(self) -> int:
        """How many bytes the body of a request has had."""
        with self._lock:
            return round(sum(self._bodies) / max(1, len(self._bodies)))

    def card(self, activity_id: str) -> str | None:
        """The card of an incident that is held."""
        response = self._control("GET", f"index/card?ori=PA0250100&id={activity_id}")
        return response.body.decode() if response.status == 200 else None

    def held(self) -> list[str]:
        """The numbers of all incidents that are held."""
        return [entry["id"] for entry in json.loads(self._control("GET", "index").body)]

    def forget_exchanges(self) -> None:
        """Drops the record of what went over the wire."""
        self._control("DELETE", "exchanges")

    def _control(self, method: str, call: str) -> HttpResponse:
        return self._simulator.answer(HttpRequest(method, f"/control/{call}"), _LOCAL).response

    def close(self) -> None:
        """Ends all of it."""
        self._ending.set()
        for thread in self._threads:
            thread.join()
        for door in self._doors:
            door.close()
        self._simulator.close()

    def _open(self, behaviour: Behaviour) -> int:
        if behaviour.is_listening:
            return self._listen(socket.create_server((_LOCAL, 0)), lambda: behaviour)
        # Bound without listening, the port is refused to clients and given to nobody else.
        deaf = socket.socket()
        deaf.bind((_LOCAL, 0))
        self._doors.append(deaf)
        return deaf.getsockname()[1]

    def _listen(self, door: socket.socket, draw: Callable[[], Behaviour]) -> int:
        door.settimeout(_LOOK_SECONDS)
        self._doors.append(door)
        thread = threading.Thread(target=self._accept, args=(door, draw), daemon=True)
        self._threads.append(thread)
        thread.start()
        return door.getsockname()[1]

    def _accept(self, door: socket.socket, draw: Callable[[], Behaviour]) -> None:
        while not self._ending.is_set():
            try:
                peer, _ = door.accept()
            except TimeoutError:
                continue
            threading.Thread(target=self._serve, args=(Connection(peer), draw()), daemon=True).start()

    def _serve(self, connection: Connection, behaviour: Behaviour) -> None:
        try:
            if behaviour.greeting:
                behaviour.greeting(connection)
            else:
                self._exchange(connection, behaviour)
        except Gone:
            pass
        except Exception:  # a mistake of the server's own is told, and shows as a wrong outcome
            traceback.print_exc(file=sys.stderr)
        finally:
            connection.close()

    def _exchange(self, connection: Connection, behaviour: Behaviour) -> None:
        request = connection.read_request()
        operation, request = self._without_operation(request)
        if not _is_about(operation, request):
            behaviour = WELL_BEHAVED
        with self._lock:
            self._asked[operation, behaviour.name] += 1
            self._bodies.append(len(request.body))

        def serve() -> HttpResponse:
            with self._lock:
                self._served[operation, behaviour.name] += 1
            return self._simulator.answer(request, _LOCAL).response

        elsewhere = self.address(operation) + ("?wsdl" if operation == "wsdl" else "")
        behaviour.play(Exchange(connection, request, serve, elsewhere))

    @staticmethod
    def _without_operation(request: HttpRequest) -> tuple[str, HttpRequest]:
        first, _, rest = request.target.removeprefix("/").partition("/")
        if first not in OPERATIONS:
            return "", request
        return first, replace(request, target=f"/{rest}")


def _address(port: int, operation: str) -> str:
    path = SEARCH_PATH if operation == "search" else SUBMISSION_PATH
    prefix = f"/{operation}" if operation else ""
    return f"http://{_LOCAL}:{port}{prefix}{path}"


def _is_about(operation: str, request: HttpRequest) -> bool:
    """Whether the behaviour is for this request: a schema check fetches the description and then submits."""
    return request.method == "GET" if operation == "wsdl" else operation != ""
