"""What a submission has to be, one check after the other."""

from __future__ import annotations

from lxml import etree

from lejis import soap
from lejis.namespaces import Namespaces
from lejis.schema_set import SchemaSet
from wire.http_request import HttpRequest

_CONTENT_TYPE = "text/xml;charset=utf-8"
_NOT_REACHED = "not reached"


class SubmissionChecks:
    """Runs every check that can be run, whatever the others found.

    `verdicts` holds "ok" or a sentence for each; `payload` the lejis:SubmitRmsIndex element as
    soon as there is one.
    """

    def __init__(self, request: HttpRequest, namespaces: Namespaces, schemas: SchemaSet) -> None:
        self.payload: etree._Element | None = None
        self.verdicts = {
            "soap_action": _soap_action(request, namespaces),
            "content_type": _content_type(request),
            "well_formed": _NOT_REACHED,
            "envelope": _NOT_REACHED,
            "schema": _NOT_REACHED,
        }
        self._read(request.body, namespaces, schemas)

    @property
    def objection(self) -> str | None:
        """The first verdict that is not "ok", or nothing."""
        return next((verdict for verdict in self.verdicts.values() if verdict != "ok"), None)

    def _read(self, body: bytes, namespaces: Namespaces, schemas: SchemaSet) -> None:
        step = "well_formed"
        try:
            root = soap.parse(body)
            self.verdicts[step], step = "ok", "envelope"
            self.payload = soap.payload(root, f"{{{namespaces.service}}}SubmitRmsIndex")
            self.verdicts[step], step = "ok", "schema"
            errors = schemas.errors(self.payload)
            if errors:
                raise ValueError(f"The submission is not valid: {errors[0]}")
            self.verdicts[step] = "ok"
        except ValueError as error:
            self.verdicts[step] = str(error)


def _soap_action(request: HttpRequest, namespaces: Namespaces) -> str:
    given = request.header("SOAPAction")
    if given == namespaces.submit_action:
        return "ok"
    return (f"The SOAPAction is '{given or ''}' "
            f"where '{namespaces.submit_action}' is expected, without quotes.")


def _content_type(request: HttpRequest) -> str:
    given = request.header("Content-Type") or ""
    if "".join(given.split()).lower() == _CONTENT_TYPE:
        return "ok"
    return f"The Content-Type is '{given}' where '{_CONTENT_TYPE}' is expected."
