"""Which endpoint answers a request."""

from __future__ import annotations

from http import HTTPStatus

from lejis.namespaces import SCHEMAS_PATH, SEARCH_PATH, SUBMISSION_PATH
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .endpoint import Endpoint


class Router:
    """Services by path, each with its description; schemas below their folder."""

    def __init__(self, services: dict[str, tuple[Endpoint, Endpoint]], schema: Endpoint) -> None:
        self._services = services
        self._schema = schema

    def find(self, request: HttpRequest) -> Endpoint | HttpResponse:
        """The endpoint for the request, or the answer that says why no endpoint takes it."""
        if request.path in self._services:
            return self._in_service(request, *self._services[request.path])
        if request.path.startswith(SCHEMAS_PATH):
            return self._schema if request.method == "GET" else wrong_method("GET")
        return HttpResponse.text(
            HTTPStatus.NOT_FOUND,
            f"Nothing answers at this address. Submissions go to {SUBMISSION_PATH}, "
            f"searches to {SEARCH_PATH}.")

    @staticmethod
    def _in_service(request: HttpRequest, service: Endpoint,
                    wsdl: Endpoint) -> Endpoint | HttpResponse:
        if request.method == "POST":
            return service
        if request.method == "GET" and "wsdl" in request.query:
            return wsdl
        return wrong_method("GET (followed by ?wsdl)", "POST")


def wrong_method(*allowed: str) -> HttpResponse:
    """The answer to a method that an address does not know."""
    methods = ", ".join(method.split()[0] for method in allowed)
    return HttpResponse.text(405, f"This address takes {' and '.join(allowed)}.",
                             headers=(("Allow", methods),))
