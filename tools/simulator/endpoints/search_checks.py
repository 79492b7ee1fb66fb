"""What a search has to be."""

from __future__ import annotations

from lxml import etree

from lejis import soap
from lejis.inquiry import Inquiry
from lejis.namespaces import Namespaces
from lejis.schema_set import SchemaSet
from lejis.search_fields import GROUPS
from wire.http_request import HttpRequest

from .request_checks import RequestChecks
from .subject import Subject


class SearchChecks(RequestChecks):
    """`user` holds the name in the security header and `payload` the lejis:LEJISIndexInquiry, each
    as soon as there is one. Who the user is, is no matter of these checks."""

    def __init__(self, request: HttpRequest, namespaces: Namespaces, schemas: SchemaSet) -> None:
        self.user: str | None = None
        self.payload: etree._Element | None = None
        self._namespaces = namespaces
        self._schemas = schemas
        super().__init__(request, namespaces.search_action, {
            "well_formed": soap.parse,
            "envelope": self._open,
            "schema": self._validate,
            "blocks": self._demand_content,
        })

    @property
    def subject(self) -> Subject:
        """What is searched for, in the words of who searches."""
        about = "" if self.payload is None else Inquiry(self.payload, self._namespaces).asked
        return Subject("search", about, user=self.user or "")

    def _open(self, root: etree._Element) -> None:
        header, body = soap.parts(root, "Header", "Body")
        self.user = soap.username(header)
        self.payload = soap.payload(body, f"{{{self._namespaces.service}}}LEJISIndexInquiry")

    def _validate(self, _: None) -> None:
        errors = self._schemas.errors(self.payload)
        if errors:
            raise ValueError(f"The inquiry is not valid: {errors[0]}")

    def _demand_content(self, _: None) -> None:
        """What schemas cannot say: a block, and a plate within it, is there only if it says
        something. Blanks say nothing for a block but something for a plate."""
        prefixes = self._namespaces.prefixes
        for path in [f"lejis:{group.block}" for group in GROUPS]:
            block = self.payload.find(path, prefixes)
            if block is not None and not any(text.strip(" ") for text in _texts(block)):
                raise ValueError(f"The {path} says nothing and should have been left out.")
        plate = self.payload.find(".//j:VehicleLicensePlateID", prefixes)
        if plate is not None and not any(_texts(plate)):
            raise ValueError("The j:VehicleLicensePlateID says nothing "
                             "and should have been left out.")


def _texts(element: etree._Element) -> list[str]:
    return [leaf.text or "" for leaf in element.iterdescendants(etree.Element) if not len(leaf)]
