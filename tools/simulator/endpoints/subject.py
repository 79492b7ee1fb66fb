"""What a request is about, as far as it can be read."""

from __future__ import annotations

from dataclasses import dataclass

KINDS = ("submission", "deletion", "search", "wsdl", "schema", "other")


@dataclass(frozen=True)
class Subject:
    """`incidents` holds agency and number of each incident; `user` is who searches."""

    kind: str = "other"
    about: str = ""
    incidents: tuple[tuple[str, str], ...] = ()
    user: str = ""

    @property
    def listed(self) -> dict[str, str]:
        """How the record sums it up: of several incidents it names the first."""
        ori, incident = self.incidents[0] if self.incidents else ("", "")
        return {"kind": self.kind, "about": self.about, "ori": ori, "incident": incident,
                "user": self.user}
