"""A server that is well-behaved nine times out of ten."""

from __future__ import annotations

import random
import threading
from collections import Counter
from dataclasses import replace

from lejis import soap
from lejis.namespaces import Namespaces

import documented
import plays
import wine_version
from behaviour import Behaviour, Exchange, Play
from behaviours import BEHAVIOURS, GIVEN_UP, RIGHT
from fault_server import WELL_BEHAVED

FAULT_SHARE = 0.1
# These would only cost time.
_LEFT_OUT = frozenset(behaviour.name for behaviour in GIVEN_UP)
_LARGE = "MB"
_WINE = wine_version.major()


def _code(text: str, outcome: str) -> Behaviour:
    """A submission response with this text."""
    body = soap.submission_response(Namespaces(), text)
    return Behaviour("Code", f"code '{text}'", RIGHT, plays.status(200, body), exceptions={"submit": outcome})


_NOT_UNDERSTOOD = f"fatal: Internal error {documented.SOME}"
# More often than its share in the table, for it is what leaves doubts.
CODES = (
    _code("100 core offline", "transient: …"),
    _code("7 try again", "transient: …"),
    *(_code("", _NOT_UNDERSTOOD) for _ in range(8)),
    *(_code("40000 out of range", _NOT_UNDERSTOOD) for _ in range(8)),
)


def is_refusal(behaviour: Behaviour) -> bool:
    """Whether the server says no, so that it cannot have acted."""
    (outcome,) = behaviour.documented("submit", _WINE)[:1]
    return outcome.startswith("fatal: ") and not outcome.startswith("fatal: Internal error")


def _fits(behaviour: Behaviour) -> bool:
    return (behaviour.scripted is None and behaviour.is_listening and not behaviour.twice
            and behaviour.name not in _LEFT_OUT and _LARGE not in behaviour.name)


FAULTS = tuple(behaviour for behaviour in BEHAVIOURS if _fits(behaviour)) + CODES


class Moods:
    """Draws a behaviour for each connection, the same ones for the same seed.

    A fault that leaves open what has been done is played as often by a server that has acted as by
    one that has not.
    """

    def __init__(self, seed: int) -> None:
        self._random = random.Random(seed)
        self._lock = threading.Lock()
        self.played: Counter[str] = Counter()

    def draw(self) -> Behaviour:
        """The behaviour for the next connection."""
        with self._lock:
            if self._random.random() >= FAULT_SHARE:
                return WELL_BEHAVED
            behaviour = self._random.choice(FAULTS)
            acts = self._random.random() < 0.5
            self.played[behaviour.name] += 1
        if acts and behaviour.play and not is_refusal(behaviour):
            return replace(behaviour, play=acting(behaviour.play))
        return behaviour


def acting(play: Play) -> Play:
    """Acts on the request before it misbehaves."""
    def act(exchange: Exchange) -> None:
        answer = exchange.answer()
        play(replace(exchange, answer=lambda: answer))
    return act
