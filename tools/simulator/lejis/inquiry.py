"""What one search asks of the index."""

from __future__ import annotations

from collections.abc import Iterator

from lxml import etree

from .namespaces import Namespaces
from .search_fields import GROUPS, PROPERTY, SERIAL, Field, Group

_QUERY = "lejis:AdHocInquiryArguments/lejis:queryString"

Criteria = list[tuple[Field, str]]


class Inquiry:
    """A view of a schema-valid lejis:LEJISIndexInquiry. Blank elements ask for nothing."""

    def __init__(self, element: etree._Element, namespaces: Namespaces) -> None:
        self._element = element
        self._prefixes = namespaces.prefixes
        self.criteria: dict[Group, Criteria] = {
            group: found for group in GROUPS if (found := list(self._criteria_of(group)))}

    @property
    def words(self) -> list[str]:
        """The words of a free search, each of which has to stand somewhere on the card."""
        return self._text(_QUERY).casefold().split()

    @property
    def asked(self) -> str:
        """The criteria and words as the client wrote them, for people."""
        texts = [f"{field.column.replace('_', ' ')} {self._asked_of(group, field).strip()}"
                 for group, criteria in self.criteria.items() for field, _ in criteria]
        return ", ".join(texts + self._text(_QUERY).split())

    @property
    def most(self) -> int | None:
        """How many cards the client wants at most, if it says so."""
        text = self._text("lejis:InquiryControls/lejis:maxincidents")
        return int(text) if text else None

    @property
    def excluded(self) -> list[str]:
        """ORIs of the agencies whose incidents are not wanted."""
        path = "lejis:InquiryControls/lejis:excludedOriid"
        return [(found.text or "").strip()
                for found in self._element.findall(path, self._prefixes)]

    @property
    def is_refused(self) -> bool:
        """Asks for nothing at all, or for property without its serial number."""
        if not self.criteria and not self.words:
            return True
        asked = [field for field, _ in self.criteria.get(PROPERTY, [])]
        return bool(asked) and SERIAL not in asked

    def _text(self, path: str) -> str:
        return self._element.findtext(path, default="", namespaces=self._prefixes)

    def _asked_of(self, group: Group, field: Field) -> str:
        return self._text(f"lejis:{group.block}/{field.asked_at}")

    def _criteria_of(self, group: Group) -> Iterator[tuple[Field, str]]:
        for field in group.fields:
            text = field.compare.prepared(self._asked_of(group, field))
            if text:
                yield field, text
