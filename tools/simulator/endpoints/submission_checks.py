"""What a submission has to be."""

from __future__ import annotations

from lxml import etree

from lejis import soap
from lejis.namespaces import Namespaces
from lejis.schema_set import SchemaSet
from wire.http_request import HttpRequest

from .request_checks import RequestChecks


class SubmissionChecks(RequestChecks):
    """`payload` holds the lejis:SubmitRmsIndex element as soon as there is one."""

    def __init__(self, request: HttpRequest, namespaces: Namespaces, schemas: SchemaSet) -> None:
        self.payload: etree._Element | None = None
        self._namespaces = namespaces
        self._schemas = schemas
        super().__init__(request, namespaces.submit_action, {
            "well_formed": soap.parse,
            "envelope": self._open,
            "schema": self._validate,
        })

    def _open(self, root: etree._Element) -> None:
        (body,) = soap.parts(root, "Body")
        self.payload = soap.payload(body, f"{{{self._namespaces.service}}}SubmitRmsIndex")

    def _validate(self, _: None) -> None:
        errors = self._schemas.errors(self.payload)
        if errors:
            raise ValueError(f"The submission is not valid: {errors[0]}")
