"""Fills the index without going through the submission service."""

from __future__ import annotations

from collections import Counter

from lxml import etree

from lejis import soap
from lejis.incident_card import IncidentCard
from lejis.incident_index import IncidentIndex
from lejis.namespaces import Namespaces
from lejis.schema_set import SchemaSet


class IndexSeed:
    """Takes a document with one lejis:RMSIncidentIndexCard, or a lejis:SubmitRmsIndex of many."""

    def __init__(self, namespaces: Namespaces, schemas: SchemaSet, index: IncidentIndex) -> None:
        self._card = f"{{{namespaces.service}}}RMSIncidentIndexCard"
        self._many = f"{{{namespaces.service}}}SubmitRmsIndex"
        self._namespaces = namespaces
        self._schemas = schemas
        self._index = index

    def add(self, document: bytes) -> Counter[str]:
        """Adds all cards, or none and ValueError. Counts how many were added and replaced."""
        root = soap.parse(document)
        if root.tag not in (self._card, self._many):
            raise ValueError("The body is neither a lejis:RMSIncidentIndexCard "
                             "nor a lejis:SubmitRmsIndex.")
        errors = self._schemas.errors(root)
        if errors:
            raise ValueError(f"The body is not valid: {errors[0]}")
        return self._index.add([IncidentCard(element, self._namespaces)
                                for element in self._elements(root)])

    def _elements(self, root: etree._Element) -> list[etree._Element]:
        return [root] if root.tag == self._card else root.findall(self._card)
