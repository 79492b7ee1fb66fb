"""The searches that the tests send, made from one full inquiry."""

from __future__ import annotations

from collections.abc import Iterable
from pathlib import Path

from lxml import etree

from documents import PREFIXES, find, text

FULL = Path(__file__).with_name("full_inquiry.xml").read_bytes()

# Written empty when nothing is asked of them; everything else is left out.
_ALWAYS = {"PersonSurName", "PersonGivenName", "PersonMiddleName", "PropertyCategoryText",
           "PropertyMakeName", "PropertyModelName", "PropertySerialID", "VehicleMakeText",
           "VehicleModelCodeText", "VehicleStyleText", "VehicleColorPrimaryText"}
# Written with both halves as soon as one is asked for.
_PAIRED = "j:VehicleLicensePlateID"

Criteria = dict[str, str]


def envelope() -> etree._Element:
    """A fresh tree of the full inquiry, to be changed at will."""
    return etree.fromstring(FULL)


def payload(root: etree._Element) -> etree._Element:
    """The lejis:LEJISIndexInquiry of an envelope."""
    return root.find("soap:Body/lejis:LEJISIndexInquiry", PREFIXES)


def search(person: Criteria | None = None, location: Criteria | None = None,
           property: Criteria | None = None, vehicle: Criteria | None = None,
           words: str = "", most: int | None = None, excluded: Iterable[str] = (),
           user: str = "jdoe", irrinfo: str = "false") -> bytes:
    """An envelope that asks for just this, as a client writes it. Criteria are texts by path."""
    root = envelope()
    find(root, ".//wsse:Username").text = user
    inquiry = payload(root)
    for name, criteria in (("Person", person), ("Location", location), ("Property", property),
                           ("Vehicle", vehicle)):
        block = find(inquiry, f"lejis:{name}InquiryArguments")
        if criteria is None:
            inquiry.remove(block)
        else:
            _fill(block, criteria)
    if words:
        find(inquiry, ".//lejis:queryString").text = words
    else:
        inquiry.remove(find(inquiry, "lejis:AdHocInquiryArguments"))
    _control(find(inquiry, "lejis:InquiryControls"), most, excluded, irrinfo)
    return text(root)


def _fill(block: etree._Element, criteria: Criteria) -> None:
    leaves = {leaf for leaf in block.iter("*") if not len(leaf)}
    for path, value in criteria.items():
        leaf = find(block, path)
        leaf.text = value
        leaves.remove(leaf)
    for leaf in leaves:
        leaf.text = None
    for element in list(block):
        asked = any(leaf not in leaves for leaf in element.iter("*") if not len(leaf))
        if not asked and etree.QName(element).localname not in _ALWAYS:
            block.remove(element)
        elif asked and element.tag != find(envelope(), f".//{_PAIRED}").tag:
            for half in [half for half in element if half in leaves]:
                element.remove(half)


def _control(controls: etree._Element, most: int | None, excluded: Iterable[str],
             irrinfo: str) -> None:
    find(controls, "lejis:irrinfo").text = irrinfo
    limit = find(controls, "lejis:maxincidents")
    if most is None:
        controls.remove(limit)
    else:
        limit.text = str(most)
    template = find(controls, "lejis:excludedOriid")
    controls.remove(template)
    for ori in excluded:
        etree.SubElement(controls, template.tag).text = ori
