"""A request that does not get as far as an endpoint."""

from __future__ import annotations

from .http_response import HttpResponse


class RequestRefused(Exception):
    """Carries the answer. What is left of the request is not worth reading: the connection ends."""

    def __init__(self, status: int, sentence: str) -> None:
        super().__init__(sentence)
        self.response = HttpResponse.text(status, sentence)
