"""One incident index card as the index sees it."""

from __future__ import annotations

from lxml import etree

from .namespaces import GJXDM, Namespaces
from .search_fields import GROUPS, Group


class IncidentCard:
    """A view of a schema-valid card: the key, what lists show, and whether it is bare."""

    def __init__(self, element: etree._Element, namespaces: Namespaces) -> None:
        self._element = element
        self._prefixes = namespaces.prefixes
        self._always_written = {
            f"{{{namespaces.card}}}LejisIndexUid",
            f"{{{GJXDM}}}SubmissionSubmittedDate",
            f"{{{GJXDM}}}SubmissionSubmitter.Organization",
            f"{{{GJXDM}}}IncidentLocation",
            f"{{{GJXDM}}}CaveatText",
            f"{{{namespaces.extension}}}CautionIndicatorFlag",
        }

    def _text(self, path: str) -> str:
        return self._element.findtext(path, default="", namespaces=self._prefixes)

    def _count(self, path: str) -> int:
        return len(self._element.findall(path, namespaces=self._prefixes))

    @property
    def key(self) -> tuple[str, str]:
        """ORI of the agency and its number for the incident."""
        return (self._text("card:LejisIndexUid/j:OrganizationORIID/j:ID"),
                self._text("card:LejisIndexUid/j:ActivityID/j:ID"))

    @property
    def is_bare(self) -> bool:
        """Says nothing but its key, its date and its agency: the withdrawal of an incident."""
        names = {child.tag for child in self._element.iterchildren(tag=etree.Element)}
        location = self._element.find("j:IncidentLocation", self._prefixes)
        return (names == self._always_written
                and not "".join(location.itertext()).strip()
                and not self._text("j:CaveatText")
                and not self.is_flagged)

    @property
    def is_flagged(self) -> bool:
        """Caution is advised for the incident or for something in it."""
        return self._text("ext:CautionIndicatorFlag") == "true"

    @property
    def summary(self) -> dict[str, str | int | bool]:
        """What a list of held incidents shows."""
        ori, activity_id = self.key
        return {
            "ori": ori,
            "id": activity_id,
            "submitted": self._text("j:SubmissionSubmittedDate"),
            "organization": self._text("j:SubmissionSubmitter.Organization/j:OrganizationName"),
            "activity_date": self._text("j:ActivityDate"),
            "persons": self._count("card:RMSPersonIndexCards"),
            "vehicles": self._count("card:RMSVehicleIndexCards"),
            "property": self._count("card:RMSPropertyIndexCards"),
            "caution": self.is_flagged,
        }

    @property
    def markup(self) -> str:
        """The card as a document of its own."""
        return etree.tostring(self._element, encoding="unicode", with_tail=False)

    @property
    def searchable(self) -> dict[Group, list[list[str]]]:
        """What searches compare, a row for each person, place and thing on the card."""
        return {group: [self._row(group, found) for path in group.card_paths
                        for found in self._element.findall(path, self._prefixes)]
                for group in GROUPS}

    @property
    def words(self) -> str:
        """All texts of the card for free searches, without regard to case. Flags are no texts."""
        flag = f"{{{self._prefixes['ext']}}}CautionIndicatorFlag"
        texts = (element.text for element in self._element.iter(etree.Element)
                 if not len(element) and element.tag != flag)
        return "\n".join(text.casefold() for text in texts if text)

    def _row(self, group: Group, element: etree._Element) -> list[str]:
        return [field.compare.prepared(
            element.findtext(field.card_path, default="", namespaces=self._prefixes))
            for field in group.fields]
