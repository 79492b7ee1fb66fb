"""The messages that the tests send, made from one full submission."""

from __future__ import annotations

import copy
import sys
from pathlib import Path

from lxml import etree

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools" / "simulator"))

from lejis.namespaces import Namespaces  # noqa: E402  (the path comes first)

NAMES = Namespaces()
PREFIXES = NAMES.prefixes
FULL = Path(__file__).with_name("full_submission.xml").read_bytes()

# What a card keeps when it says nothing beyond its key, date and agency.
_BARE = {"LejisIndexUid", "SubmissionSubmittedDate", "SubmissionSubmitter.Organization",
         "IncidentLocation", "CaveatText", "CautionIndicatorFlag"}


def envelope() -> etree._Element:
    """A fresh tree of the full submission, to be changed at will."""
    return etree.fromstring(FULL)


def payload(root: etree._Element) -> etree._Element:
    """The lejis:SubmitRmsIndex of an envelope."""
    return root.find("soap:Body/lejis:SubmitRmsIndex", PREFIXES)


def find(root: etree._Element, path: str) -> etree._Element:
    """The first element on the path, which must exist."""
    found = root.xpath(path, namespaces=PREFIXES)
    if not found:
        raise LookupError(path)
    return found[0]


def text(root: etree._Element) -> bytes:
    """The bytes of a tree."""
    return etree.tostring(root, encoding="utf-8")


def submission(*cards: etree._Element) -> bytes:
    """An envelope with just these incident cards."""
    root = envelope()
    parent = payload(root)
    parent.remove(parent[0])
    for position, one in enumerate(cards):
        parent.insert(position, copy.deepcopy(one))
    return text(root)


def card(activity_id: str = "2007-000123", charge: str = "Simple assault") -> etree._Element:
    """A full incident card."""
    element = payload(envelope())[0]
    find(element, "card:LejisIndexUid/j:ActivityID/j:ID").text = activity_id
    find(element, "j:ChargeDescriptionText").text = charge
    return element


def bare_card(activity_id: str = "2007-000123") -> etree._Element:
    """The card that withdraws an incident."""
    element = card(activity_id)
    for child in list(element):
        if etree.QName(child).localname not in _BARE:
            element.remove(child)
    find(element, "j:CaveatText").text = ""
    find(element, "ext:CautionIndicatorFlag").text = "false"
    address = find(element, "j:IncidentLocation/j:LocationAddress")
    for part in address.xpath("j:LocationStreet/* | j:LocationCityName", namespaces=PREFIXES):
        part.text = ""
    for part in list(address)[2:]:
        address.remove(part)
    return element
