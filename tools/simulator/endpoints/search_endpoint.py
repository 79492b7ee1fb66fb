"""Looks incidents up in the index."""

from __future__ import annotations

from lejis import soap
from lejis.incident_index import IncidentIndex
from lejis.inquiry import Inquiry
from lejis.namespaces import Namespaces
from lejis.schema_set import SchemaSet
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .endpoint import Decision, Outcome
from .search_checks import SearchChecks

DEFAULT_BROAD_LIMIT = 500

# Fixed sentences: a reason phrase must not repeat what a client could have put into a name.
_NO_USER = "Your search names no JNET User ID; enter it in the LEJIS settings"
_UNKNOWN_USER = "Your JNET User ID is not known to LEJIS; ask your JNET administrator"


class SearchEndpoint:
    """POST of a SOAP envelope with a lejis:LEJISIndexInquiry."""

    target = "search"

    def __init__(self, namespaces: Namespaces, schemas: SchemaSet, index: IncidentIndex,
                 broad_limit: int) -> None:
        self._namespaces = namespaces
        self._schemas = schemas
        self._index = index
        self._broad_limit = broad_limit

    def handle(self, request: HttpRequest, has_effect: Decision) -> Outcome:
        """403 for a user who may not search, whatever the rest of the request is like; a SOAP
        fault for the first check that fails; else what the index holds."""
        checks = SearchChecks(request, self._namespaces, self._schemas)
        subject = checks.subject
        has_effect(subject)
        sentence = None if checks.user is None else _refusal(checks.user)
        if sentence is not None:
            return Outcome(HttpResponse.text(403, sentence + ".", reason=sentence),
                           checks.verdicts, subject)
        if checks.objection is not None:
            fault = soap.fault("soap:Client", checks.objection)
            return Outcome(HttpResponse.xml(fault, 500), checks.verdicts, subject)
        count, cards = self._find(Inquiry(checks.payload, self._namespaces))
        answer = soap.inquiry_response(self._namespaces, cards, count)
        return Outcome(HttpResponse.xml(answer), checks.verdicts, subject)

    def _find(self, inquiry: Inquiry) -> tuple[int, list[str]]:
        """A search that is refused has a count and no cards; so the count is never 0 then."""
        if inquiry.is_refused:
            count, _ = self._index.find(inquiry, 0)
            return max(count, 1), []
        if inquiry.most is not None:
            return self._index.find(inquiry, inquiry.most)
        count, cards = self._index.find(inquiry, self._broad_limit)
        return count, cards if count <= self._broad_limit else []


def _refusal(user: str) -> str | None:
    name = user.strip()
    if not name:
        return _NO_USER
    return _UNKNOWN_USER if name.lower().startswith("unknown") else None
