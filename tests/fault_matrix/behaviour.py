"""One way in which a server behaves."""

from __future__ import annotations

from collections.abc import Callable
from dataclasses import dataclass, field

from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

import documented
from arrival import Arrival
from connection import Connection

OPERATIONS = ("submit", "delete", "search", "wsdl")
# The major versions of Wine that the outcomes were seen under. One between them counts as the older.
WINES = (8, 10)


@dataclass(frozen=True)
class Exchange:
    """What a behaviour has to play with.

    `answer` lets the service act on the request and gives what it would answer; a behaviour that
    does not call it is that of a server that has done nothing. `elsewhere` is the address where a
    well-behaved server serves the same request.
    """

    connection: Connection
    request: HttpRequest
    answer: Callable[[], HttpResponse]
    elsewhere: str


Play = Callable[[Exchange], None]


@dataclass(frozen=True, eq=False)
class Behaviour:
    """A row of the matrix: how the server plays it, and what arrives of it at the library.

    `greeting` is played to the bare connection, before any request is read; a server that is not
    listening has no connections. `exceptions` holds what is documented for an operation where the
    platform makes something else of the behaviour than for the other ones; several outcomes are
    those of a race that the platform loses now one way, now the other. `gives_up` is how the
    client ends a search that nothing else ends. `scripted` names the tests of the services that
    play the row, because the platform under the tests never completes it or reports it differently.
    `from_wine_10` is what arrives from that version on, where it is not what arrives before.
    `twice`: the client has had one such exchange before. `note` says what the platform has to do with it.
    """

    group: str
    name: str
    arrives: Arrival = Arrival()
    play: Play | None = None
    greeting: Callable[[Connection], None] | None = None
    is_listening: bool = True
    exceptions: dict[str, str | tuple[str, ...]] = field(default_factory=dict)
    gives_up: str | None = None
    twice: bool = False
    scripted: str | None = None
    from_wine_10: Arrival | None = None
    note: str = ""

    @property
    def asked(self) -> int:
        """How many requests the server gets to see."""
        return 1 + self.twice if self.play else 0

    def documented(self, operation: str, wine: int) -> tuple[str, ...]:
        """What the client of the operation has to be told under this version of Wine: one of these."""
        arrives = self.from_wine_10 if self.from_wine_10 and wine >= 10 else self.arrives
        outcome = self.exceptions.get(operation, documented.RULES[operation](arrives))
        return (outcome,) if isinstance(outcome, str) else outcome
