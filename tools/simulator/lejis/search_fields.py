"""What can be searched for: where it stands on a card, where in an inquiry, and how it compares."""

from __future__ import annotations

from dataclasses import dataclass


@dataclass(frozen=True)
class Comparison:
    """An SQL condition on a column, and whether upper and lower case are one to it."""

    condition: str
    folds: bool

    def prepared(self, text: str) -> str:
        """The text as it is kept and asked for. White space around it never counts."""
        text = text.strip()
        return text.casefold() if self.folds else text


EXACT = Comparison("{} = ?", folds=False)
ALIKE = Comparison("{} = ?", folds=True)
# Not LIKE, which folds ASCII letters only and gives "%" and "_" a meaning of their own.
PREFIX = Comparison("instr({}, ?) = 1", folds=True)
PART = Comparison("instr({}, ?) > 0", folds=True)


@dataclass(frozen=True)
class Field:
    """A column; `inquiry_path` only where it differs from the path on the card."""

    column: str
    compare: Comparison
    card_path: str
    inquiry_path: str = ""

    @property
    def asked_at(self) -> str:
        """Where an inquiry names the value, below its block."""
        return self.inquiry_path or self.card_path


@dataclass(frozen=True)
class Group:
    """Things of one kind: their table, the block that asks for them, where cards hold them."""

    table: str
    block: str
    card_paths: tuple[str, ...]
    fields: tuple[Field, ...]


_STATE = "/j:IDJurisdictionCode.ncicLSTA"

PERSON = Group("person", "PersonInquiryArguments", ("card:RMSPersonIndexCards",), (
    Field("surname", PREFIX, "j:PersonSurName"),
    Field("given_name", PREFIX, "j:PersonGivenName"),
    Field("middle_name", PREFIX, "j:PersonMiddleName"),
    Field("ssn", EXACT, "j:PersonSSNID/j:ID"),
    Field("licence", EXACT, "j:PersonDriverLicenseID/j:ID"),
    Field("licence_state", EXACT, "j:PersonDriverLicenseID" + _STATE),
    Field("birth_date", EXACT, "j:PersonBirthDate"),
    Field("sex", EXACT, "j:PersonSexCode"),
    Field("race", EXACT, "j:PersonRaceCode"),
    Field("height", EXACT, "j:PersonHeightMeasure"),
    Field("weight", EXACT, "j:PersonWeightMeasure"),
))

PLACE = Group("place", "LocationInquiryArguments", (
    "j:IncidentLocation/j:LocationAddress",
    "card:RMSPersonIndexCards/j:Residence/j:LocationAddress",
), (
    Field("street", PART, "j:LocationStreet/j:StreetFullText", "j:StreetFullText"),
    Field("street_name", PREFIX, "j:LocationStreet/j:StreetName", "j:StreetName"),
    Field("city", ALIKE, "j:LocationCityName"),
    Field("state", EXACT, "j:LocationStateCode.ncicLSTA"),
    Field("zip", EXACT, "j:LocationPostalCodeID/j:ID"),
))

SERIAL = Field("serial", EXACT, "j:PropertySerialID/j:ID")

PROPERTY = Group("property", "PropertyInquiryArguments", ("card:RMSPropertyIndexCards",), (
    Field("category", ALIKE, "j:PropertyTypeText", "j:PropertyCategoryText"),
    Field("make", ALIKE, "j:PropertyMakeName"),
    Field("model", ALIKE, "j:PropertyModelName"),
    SERIAL,
))

VEHICLE = Group("vehicle", "VehicleInquiryArguments", ("card:RMSVehicleIndexCards",), (
    Field("vin", EXACT, "j:VehicleID/j:ID"),
    Field("plate", EXACT, "j:VehicleLicensePlateID/j:ID"),
    Field("plate_state", EXACT, "j:VehicleLicensePlateID" + _STATE),
    Field("make", ALIKE, "ext:VehicleMakeText"),
    Field("model", ALIKE, "j:VehicleModelCodeText"),
    Field("year", EXACT, "j:VehicleModelYearDate"),
    Field("style", ALIKE, "ext:VehicleStyleText"),
    Field("color", ALIKE, "j:VehicleColorPrimaryText"),
))

GROUPS = (PERSON, PLACE, PROPERTY, VEHICLE)
