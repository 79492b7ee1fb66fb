"""One way to misbehave."""

from __future__ import annotations

from collections.abc import Callable
from dataclasses import dataclass, field
from typing import Any

from wire.delivery import Delivery
from wire.http_response import HttpResponse
from lejis.namespaces import Namespaces


@dataclass(frozen=True)
class Setting:
    """Where a fault plays: the target of the request and the names in use."""

    target: str
    namespaces: Namespaces


Play = Callable[[HttpResponse, dict[str, Any], Setting], Delivery]


@dataclass(frozen=True)
class Parameter:
    """A parameter's check, which gives the value to use or raises ValueError, and its default."""

    check: Callable[[Any], Any]
    default: Any


@dataclass(frozen=True)
class FaultKind:
    """Turns the right answer into the one that is sent.

    `honest` kinds delay the answer but mean it: the request has its effect. `target` binds a kind
    to the one target where it makes sense. `meaning` says to people what the client gets, and `group` puts
    alike kinds together.
    """

    play: Play
    parameters: dict[str, Parameter] = field(default_factory=dict)
    honest: bool = False
    target: str | None = None
    meaning: str = ""
    group: str = "Answers"
