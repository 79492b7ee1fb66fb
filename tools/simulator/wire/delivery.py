"""How a response travels."""

from __future__ import annotations

from dataclasses import dataclass

from .http_response import HttpResponse

_TRICKLE_PIECES = 40


@dataclass(frozen=True)
class Delivery:
    """A response and the manner of sending it; the plain manner is at once and whole.

    `pause` seconds pass before the first byte, `spread` seconds between the first and the last.
    `head_share` and `body_share` say which part of head and body goes out at all.
    """

    response: HttpResponse
    pause: float = 0
    spread: float = 0
    head_share: float = 1
    body_share: float = 1
    closes: bool = False
    resets: bool = False

    def to_bytes(self, with_body: bool = True) -> bytes:
        """Exactly what goes over the wire."""
        head = self.response.head(self.closes)
        if self.head_share < 1:
            return head[:int(len(head) * self.head_share)]
        body = self.response.to_bytes(self.closes, with_body)[len(head):]
        return head + body[:int(len(body) * self.body_share)]

    def pieces(self, with_body: bool = True) -> list[bytes]:
        """The bytes in the portions that are sent one by one."""
        raw = self.to_bytes(with_body)
        if not self.spread:
            return [raw] if raw else []
        size = max(1, -(-len(raw) // _TRICKLE_PIECES))
        return [raw[start:start + size] for start in range(0, len(raw), size)]

    @property
    def is_whole(self) -> bool:
        """Whether nothing of the response is held back."""
        return self.head_share == 1 and self.body_share == 1

    @property
    def status(self) -> int:
        """The status that the client gets to see; 0 when it gets none."""
        return self.response.status if self.head_share > 0 else 0
