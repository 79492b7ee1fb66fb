"""What a submission has to be."""

from __future__ import annotations

from lxml import etree

from lejis import soap
from lejis.incident_card import IncidentCard
from lejis.namespaces import Namespaces
from lejis.schema_set import SchemaSet
from wire.http_request import HttpRequest

from .request_checks import RequestChecks
from .subject import Subject


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

    @property
    def cards(self) -> list[IncidentCard]:
        """The incidents submitted, whatever the checks say."""
        if self.payload is None:
            return []
        name = f"{{{self._namespaces.service}}}RMSIncidentIndexCard"
        return [IncidentCard(element, self._namespaces)
                for element in self.payload.iterchildren(name)]

    @property
    def subject(self) -> Subject:
        """Agency and number of the incidents. What withdraws all of them is a deletion."""
        cards = self.cards
        keys = tuple(card.key for card in cards)
        about = " ".join(keys[0]) if keys else ""
        if len(keys) > 1:
            about += f" and {len(keys) - 1} more"
        is_deletion = bool(cards) and all(card.is_bare for card in cards)
        return Subject("deletion" if is_deletion else "submission", about, keys)

    def _open(self, root: etree._Element) -> None:
        (body,) = soap.parts(root, "Body")
        self.payload = soap.payload(body, f"{{{self._namespaces.service}}}SubmitRmsIndex")

    def _validate(self, _: None) -> None:
        errors = self._schemas.errors(self.payload)
        if errors:
            raise ValueError(f"The submission is not valid: {errors[0]}")
