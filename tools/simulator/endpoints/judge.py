"""What can be said of a request that is only looked at."""

from __future__ import annotations

from dataclasses import replace

from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH, Namespaces
from lejis.schema_set import SchemaSet
from views.raw_message import RawMessage
from wire.http_request import HttpRequest

from .search_checks import SearchChecks
from .subject import Subject
from .submission_checks import SubmissionChecks

_CHECKS = {SUBMISSION_PATH: SubmissionChecks, SEARCH_PATH: SearchChecks}


class Judge:
    """Runs the simulator's checks, for the record only."""

    def __init__(self, namespaces: Namespaces, schemas: SchemaSet) -> None:
        self._namespaces, self._schemas = namespaces, schemas

    def __call__(self, request: HttpRequest) -> tuple[dict[str, str], Subject]:
        """The verdicts, none for what is not checked, and what the request is about."""
        kind = _CHECKS.get(request.path) if request.method == "POST" else None
        if kind is None:
            return {}, _published(request)
        message = replace(request, body=RawMessage(request.head + request.body).body)
        checks = kind(message, self._namespaces, self._schemas)
        return checks.verdicts, checks.subject


def _published(request: HttpRequest) -> Subject:
    if request.method == "GET" and "wsdl" in request.query:
        return Subject("wsdl")
    return Subject("schema" if request.path.endswith(".xsd") else "other")
