"""An incident's card as people read it: sections with a title and rows of label and text."""

from __future__ import annotations

from collections.abc import Callable
from typing import Any

from lxml import etree

from lejis.namespaces import Namespaces

_SEXES = {"M": "Male", "F": "Female", "U": "Unknown"}
_RACES = {"A": "Asian or Pacific Islander", "B": "Black", "I": "American Indian or Alaskan Native",
          "U": "Unknown", "W": "White"}


def _plain(text: str) -> str:
    return text


def _named(names: dict[str, str]) -> Callable[[str], str]:
    return lambda code: f"{names[code]} ({code})" if code in names else code


def _ssn(text: str) -> str:
    whole = len(text) == 9 and text.isdigit()
    return f"{text[:3]}-{text[3:5]}-{text[5:]}" if whole else text


def _height(text: str) -> str:
    """NCIC writes feet and inches without anything between them."""
    return f"{text[0]} ft {int(text[1:])} in" if len(text) == 3 and text.isdigit() else text


def _weight(text: str) -> str:
    return f"{int(text)} lb" if text.isdigit() else text


_Rows = tuple[tuple[str, str, Callable[[str], str]], ...]

_INCIDENT: _Rows = (
    ("Agency", "j:SubmissionSubmitter.Organization/j:OrganizationName", _plain),
    ("ORI", "card:LejisIndexUid/j:OrganizationORIID/j:ID", _plain),
    ("Date", "j:ActivityDate", _plain),
    ("Time", "j:ActivityTime", _plain),
    ("Submitted", "j:SubmissionSubmittedDate", _plain),
    ("Offense code", "j:ChargeNCICCode", _plain),
    ("Offense", "j:ChargeDescriptionText", _plain),
    ("Caveat", "j:CaveatText", _plain),
)
_PERSON: _Rows = (
    ("Born", "j:PersonBirthDate", _plain),
    ("Sex", "j:PersonSexCode", _named(_SEXES)),
    ("Race", "j:PersonRaceCode", _named(_RACES)),
    ("Height", "j:PersonHeightMeasure", _height),
    ("Weight", "j:PersonWeightMeasure", _weight),
    ("SSN", "j:PersonSSNID/j:ID", _ssn),
    ("Driver licence", "j:PersonDriverLicenseID/j:ID", _plain),
    ("Licence state", "j:PersonDriverLicenseID/j:IDJurisdictionCode.ncicLSTA", _plain),
    ("Agency", "j:IncidentJurisdictionalOrganization/j:OrganizationName", _plain),
    ("Offense code", "j:ChargeNCICCode", _plain),
    ("Offense", "j:ChargeDescriptionText", _plain),
    ("Caution code", "j:SubjectCautionInformationCode", _plain),
    ("Caution", "j:SubjectCautionInformationCaveat", _plain),
    ("Caveat", "j:CaveatText", _plain),
)
_VEHICLE: _Rows = (
    ("Licence plate", "j:VehicleLicensePlateID/j:ID", _plain),
    ("Plate state", "j:VehicleLicensePlateID/j:IDJurisdictionCode.ncicLSTA", _plain),
    ("VIN", "j:VehicleID/j:ID", _plain),
    ("Style", "ext:VehicleStyleText", _plain),
    ("Colour", "j:VehicleColorPrimaryText", _plain),
    ("Caveat", "j:CaveatText", _plain),
)
_PROPERTY: _Rows = (
    ("Category code", "j:PropertyCategoryCode.nibrsPropertyCategory", _plain),
    ("Category", "j:PropertyTypeText", _plain),
    ("Make", "j:PropertyMakeName", _plain),
    ("Model", "j:PropertyModelName", _plain),
    ("Serial number", "j:PropertySerialID/j:ID", _plain),
    ("Caveat", "j:CaveatText", _plain),
)


class CardView:
    """Reads a card's markup; what the card leaves out or leaves blank is not shown."""

    def __init__(self, markup: str, namespaces: Namespaces) -> None:
        self._element = etree.fromstring(markup)
        self._prefixes = namespaces.prefixes

    def to_json(self) -> dict[str, Any]:
        """The whole card."""
        card = self._element
        incident = self._section("Incident", card, _INCIDENT, "j:IncidentLocation", "Place")
        return {
            "id": self._text(card, "card:LejisIndexUid/j:ActivityID/j:ID"),
            "ori": self._text(card, "card:LejisIndexUid/j:OrganizationORIID/j:ID"),
            "sections": [
                incident,
                *(self._section(self._person(found), found, _PERSON, "j:Residence", "Residence")
                  for found in self._all("card:RMSPersonIndexCards")),
                *(self._section(self._vehicle(found), found, _VEHICLE)
                  for found in self._all("card:RMSVehicleIndexCards")),
                *(self._section("Property", found, _PROPERTY)
                  for found in self._all("card:RMSPropertyIndexCards")),
            ],
        }

    def _section(self, title: str, element: etree._Element, rows: _Rows, place: str = "",
                 place_label: str = "") -> dict[str, Any]:
        shown = [[label, shape(text)] for label, path, shape in rows
                 if (text := self._text(element, path))]
        address = self._address(element.find(place, self._prefixes)) if place else ""
        if address:
            shown.append([place_label, address])
        return {"title": title, "role": self._text(element, "ext:PersonInvolvement"),
                "caution": self._text(element, "ext:CautionIndicatorFlag") == "true",
                "rows": shown}

    def _person(self, element: etree._Element) -> str:
        surname = self._text(element, "j:PersonSurName")
        given = self._joined(element, " ", "j:PersonGivenName", "j:PersonMiddleName")
        return f"Person: {', '.join(filter(None, (surname, given))) or 'no name'}"

    def _vehicle(self, element: etree._Element) -> str:
        return "Vehicle: " + (self._joined(
            element, " ", "j:VehicleModelYearDate", "ext:VehicleMakeText",
            "j:VehicleModelCodeText") or "no make")

    def _address(self, place: etree._Element | None) -> str:
        address = place.find("j:LocationAddress", self._prefixes) if place is not None else None
        if address is None:
            return ""
        region = self._joined(address, " ", "j:LocationStateCode.ncicLSTA",
                              "j:LocationPostalCodeID/j:ID")
        parts = [self._text(address, path) for path in (
            "j:LocationStreet/j:StreetFullText", "j:LocationStreet/j:StreetExtensionText",
            "j:LocationCityName")]
        return ", ".join(filter(None, (*parts, region)))

    def _joined(self, element: etree._Element, between: str, *paths: str) -> str:
        return between.join(filter(None, (self._text(element, path) for path in paths)))

    def _text(self, element: etree._Element, path: str) -> str:
        return element.findtext(path, default="", namespaces=self._prefixes).strip()

    def _all(self, path: str) -> list[etree._Element]:
        return self._element.findall(path, self._prefixes)
