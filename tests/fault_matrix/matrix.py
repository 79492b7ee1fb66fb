"""Runs the fault matrix: every behaviour of a server times every operation of a client."""

from __future__ import annotations

import queue
import threading
from pathlib import Path
from typing import NamedTuple

from behaviour import OPERATIONS, Behaviour
from fault_client import FaultClient, Told
from fault_server import FaultServer

TIME_LIMIT_SECONDS = 20
_CLIENTS = 8


# What each operation was told under each behaviour.
Outcomes = dict[tuple[Behaviour, str], str]


class Cell(NamedTuple):
    """One operation under one behaviour, and what has become of it on both sides.

    `asked` and `served` count the requests that the server has seen and acted on; `card` is what it
    holds afterwards of the incident, `next_card` what it holds of the next one.
    """

    behaviour: Behaviour
    operation: str
    told: Told
    asked: int
    served: int
    card: str | None
    next_card: str | None


def run(behaviours: tuple[Behaviour, ...], program: str, data: Path) -> list[Cell]:
    """Every cell, in the order of the table; several clients share the work."""
    server = FaultServer(behaviours, data)
    try:
        clients = [FaultClient(program, data / "schemas") for _ in range(_CLIENTS)]
        _seed(server, clients[0])
        orders = [(behaviour, operation) for behaviour in behaviours for operation in OPERATIONS]
        cells = _shared_out(server, clients, orders)
        return [cells[index] for index in range(len(orders))]
    finally:
        server.close()


def _seed(server: FaultServer, client: FaultClient) -> None:
    told = client.tell(60, "seed", server.address("submit"), "", "found")
    if told.outcome != "success":
        raise RuntimeError(f"The incident that the searches look for was not taken: {told}")


def _shared_out(server: FaultServer, clients: list[FaultClient],
                orders: list[tuple[Behaviour, str]]) -> dict[int, Cell]:
    waiting: queue.SimpleQueue = queue.SimpleQueue()
    for order in enumerate(orders):
        waiting.put(order)
    cells: dict[int, Cell] = {}

    def work(client: FaultClient) -> None:
        while True:
            try:
                index, (behaviour, operation) = waiting.get_nowait()
            except queue.Empty:
                break
            cells[index] = _cell(server, client, behaviour, operation, f"{index}")
        client.close()

    threads = [threading.Thread(target=work, args=(client,)) for client in clients]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    return cells


def _cell(server: FaultServer, client: FaultClient, behaviour: Behaviour, operation: str, number: str) -> Cell:
    told = client.tell(TIME_LIMIT_SECONDS, _manner(behaviour, operation), server.address(operation, behaviour),
                       server.address("search" if operation == "search" else ""), number)
    return Cell(behaviour, operation, told, server.asked(operation, behaviour), server.served(operation, behaviour),
                server.card(number), server.card(f"{number}-next"))


def _manner(behaviour: Behaviour, operation: str) -> str:
    """The operation in the client's words."""
    if behaviour.gives_up and operation == "search":
        return f"{operation}-{behaviour.gives_up}"
    return f"{operation}-twice" if behaviour.twice else operation
