"""Which requests a fault is meant for."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any

from endpoints.subject import Subject

TARGETS = ("submission", "search", "wsdl", "schema", "any")
_PARTS = ("agency", "incident", "user")


@dataclass(frozen=True)
class Concern:
    """A target, and an agency, an incident or a user where only theirs are meant."""

    target: str
    agency: str = ""
    incident: str = ""
    user: str = ""

    @classmethod
    def taken_from(cls, order: dict[str, Any], kind: str, bound: str | None) -> Concern:
        """Takes its part out of an order; `bound` is the only target that the kind has, if any."""
        target = order.pop("target", bound or "submission")
        if not isinstance(target, str) or target not in TARGETS:
            raise ValueError(f"'target' must be one of: {', '.join(TARGETS)}.")
        if bound not in (None, target):
            raise ValueError(f"The kind '{kind}' needs the target '{bound}'.")
        parts = {part: _text(order.pop(part, ""), part) for part in _PARTS}
        return cls(target, **parts)

    def to_json(self) -> dict[str, str]:
        """The concern as lists show it: without what it leaves open."""
        parts = {part: getattr(self, part) for part in _PARTS}
        return {"target": self.target, **{part: text for part, text in parts.items() if text}}

    def includes(self, target: str, subject: Subject) -> bool:
        """Whether a request to the target is meant; a user's name is compared without regard to
        case, as LEJIS does."""
        if self.target not in (target, "any"):
            return False
        if self.user and self.user.casefold() != subject.user.strip().casefold():
            return False
        return not (self.agency or self.incident) or any(
            self.agency in ("", ori) and self.incident in ("", number)
            for ori, number in subject.incidents)


def _text(value: Any, what: str) -> str:
    if not isinstance(value, str) or len(value) > 200 or not value.isprintable():
        raise ValueError(f"'{what}' must be one line of at most 200 characters.")
    return value.strip()
