"""Publishes the XML schemas."""

from __future__ import annotations

from lejis.namespaces import SCHEMAS_PATH
from lejis.schema_set import SchemaSet
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .endpoint import Decision, Outcome
from .subject import Subject


class SchemaEndpoint:
    """GET of one schema by its file name."""

    target = "schema"

    def __init__(self, schemas: SchemaSet) -> None:
        self._schemas = schemas

    def handle(self, request: HttpRequest, has_effect: Decision) -> Outcome:
        """The schema's file as it lies on the disk."""
        subject = Subject("schema")
        has_effect(subject)
        body = self._schemas.schema(request.path.removeprefix(SCHEMAS_PATH))
        if body is None:
            return Outcome(HttpResponse.text(404, "There is no schema of that name."),
                           subject=subject)
        return Outcome(HttpResponse.xml(body), subject=subject)
