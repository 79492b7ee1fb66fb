"""Publishes the description of a service."""

from __future__ import annotations

from lejis.schema_set import SchemaSet
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .addresses import own_address, schemas_address
from .endpoint import Decision, Outcome
from .subject import Subject


class WsdlEndpoint:
    """GET of a service's address followed by '?wsdl'."""

    target = "wsdl"

    def __init__(self, schemas: SchemaSet, name: str) -> None:
        self._schemas = schemas
        self._name = name

    def handle(self, request: HttpRequest, has_effect: Decision) -> Outcome:
        """The description, with addresses under the name that the client uses for the server."""
        subject = Subject("wsdl")
        has_effect(subject)
        own = own_address(request)
        if own is None:
            return Outcome(HttpResponse.text(400, "The request has no usable Host header."),
                           subject=subject)
        body = self._schemas.description(self._name, own + request.path, schemas_address(own))
        return Outcome(HttpResponse.xml(body), subject=subject)
