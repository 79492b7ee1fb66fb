"""Takes incidents into the index and withdraws them."""

from __future__ import annotations

from collections import Counter

from lejis import soap
from lejis.incident_index import IncidentIndex
from lejis.namespaces import Namespaces
from lejis.schema_set import SchemaSet
from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

from .endpoint import Decision, Outcome
from .submission_checks import SubmissionChecks

# What became of a card, in the words of the answer and in the order of the answer.
_SENTENCES = {
    "added": "added",
    "replaced": "replaced",
    "deleted": "deleted",
    "not held": "to be deleted, of which nothing was held",
}


class SubmissionEndpoint:
    """POST of a SOAP envelope with a lejis:SubmitRmsIndex."""

    target = "submission"

    def __init__(self, namespaces: Namespaces, schemas: SchemaSet, index: IncidentIndex) -> None:
        self._namespaces = namespaces
        self._schemas = schemas
        self._index = index

    def handle(self, request: HttpRequest, has_effect: Decision) -> Outcome:
        """A SOAP fault for the first check that fails, else code 0 and what was done."""
        checks = SubmissionChecks(request, self._namespaces, self._schemas)
        subject = checks.subject
        effective = has_effect(subject)
        if checks.objection is not None:
            fault = soap.fault("soap:Client", checks.objection)
            return Outcome(HttpResponse.xml(fault, 500), checks.verdicts, subject)
        done = self._index.apply(checks.cards) if effective else Counter()
        answer = soap.submission_response(self._namespaces, _answer_text(done))
        return Outcome(HttpResponse.xml(answer), checks.verdicts, subject)


def _answer_text(done: Counter[str]) -> str:
    parts = [f"{done[what]} {words}" for what, words in _SENTENCES.items() if done[what]]
    return f"0 Accepted. Incidents: {', '.join(parts) or 'none'}."
