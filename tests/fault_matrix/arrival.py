"""What reaches the library of what a server has done, whatever went over the wire."""

from __future__ import annotations

from dataclasses import dataclass
from enum import Enum, auto
from http import HTTPStatus


class Content(Enum):
    """What the answer's document turns out to be."""

    RIGHT = auto()             # what the service answers
    NO_XML = auto()            # nothing, or nothing that may be read as XML
    OTHER_XML = auto()         # XML, but no SOAP envelope
    NO_BODY = auto()           # an envelope without soap:Body
    EMPTY_BODY = auto()        # a soap:Body without what the service answers
    FAULT = auto()             # a SOAP fault, whose message is the arrival's text


@dataclass(frozen=True)
class Arrival:
    """The status, or 0 or a WinINet number when no status came, and what came with it.

    `text` is the answer as text, as far as anybody is told it; `reason` None is the usual phrase.
    """

    status: int = 200
    content: Content = Content.RIGHT
    text: str = ""
    reason: str | None = None

    @property
    def phrase(self) -> str:
        """The reason phrase, empty where none came."""
        if self.reason is not None:
            return self.reason
        try:
            return HTTPStatus(self.status).phrase
        except ValueError:
            return ""
