"""A test case that searches an index of its own."""

from __future__ import annotations

import json
from typing import Any

from lxml import etree

import documents
import inquiries
from documents import NAMES, PREFIXES
from simulator_case import SimulatorCase

from lejis.namespaces import SEARCH_PATH

SEARCH_HEADERS = {"SOAPAction": NAMES.search_action, "Content-Type": "text/xml;charset=utf-8"}


def card(activity_id: str = "2007-000123", ori: str = "PA0123400",
         **texts: str) -> etree._Element:
    """The full card with other texts, by local name with '_' for '.', wherever they stand."""
    element = documents.card(activity_id)
    documents.find(element, "card:LejisIndexUid/j:OrganizationORIID/j:ID").text = ori
    for name, text in texts.items():
        documents.find(element, f".//*[local-name()='{name}']").text = text
    return element


class SearchCase(SimulatorCase):
    """Seeds the index by control and asks over the wire."""

    def seed(self, *cards: etree._Element) -> dict[str, int]:
        """Puts cards into the index."""
        root = etree.fromstring(documents.submission(*cards))
        body = etree.tostring(documents.payload(root))
        status, answer = self.call("POST", "/control/index", body)
        self.assertEqual(200, status, answer)
        return json.loads(answer)

    def search_raw(self, body: bytes = inquiries.FULL, **headers: str) -> tuple[int, bytes]:
        """Sends a search; further headers replace the right ones, '_' standing for '-'."""
        changed = {name.replace("_", "-"): value for name, value in headers.items()}
        return self.call("POST", SEARCH_PATH, body, {**SEARCH_HEADERS, **changed})

    def answer(self, body: bytes) -> etree._Element:
        """The lejis:LEJISIndexInquiryResponse to a search that succeeds."""
        status, answer = self.search_raw(body)
        self.assertEqual(200, status, answer)
        (response,) = etree.fromstring(answer).find("soap:Body", PREFIXES)
        self.assertEqual(f"{{{NAMES.service}}}LEJISIndexInquiryResponse", response.tag)
        return response

    def hits(self, **asked: Any) -> tuple[int, list[str]]:
        """The count and the incident numbers of the cards that a search brings."""
        response = self.answer(inquiries.search(**asked))
        numbers = response.xpath("lejis:RMSIncidentIndexCard/card:LejisIndexUid/j:ActivityID/j:ID",
                                 namespaces=PREFIXES)
        return (int(response.findtext("lejis:incidentcount", namespaces=PREFIXES)),
                [number.text for number in numbers])

    def found(self, **asked: Any) -> list[str]:
        """The incident numbers of a search that neither limits nor refusals cut short."""
        count, numbers = self.hits(**asked)
        self.assertEqual(count, len(numbers))
        return numbers
