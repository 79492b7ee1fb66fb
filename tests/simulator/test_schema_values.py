"""Which texts and attributes the schemas take and which they refuse, one row an element."""

import re
import unittest

from lxml import etree

import documents
import schema_case
from documents import PREFIXES

INCIDENT = ".//lejis:RMSIncidentIndexCard/"
UID = INCIDENT + "card:LejisIndexUid/"
ADDRESS = INCIDENT + "j:IncidentLocation/j:LocationAddress/"
STREET = ADDRESS + "j:LocationStreet/"
HOME = ".//j:Residence/j:LocationAddress/j:LocationStreet/"
PERSON = ".//card:RMSPersonIndexCards/"
VEHICLE = ".//card:RMSVehicleIndexCards/"
PROPERTY = ".//card:RMSPropertyIndexCards/"
SYSTEM = ".//lejis:ContributingSystem/"

DATES = ["2007-03-09", "2008-02-29", "0100-01-01"], \
    ["2007-02-29", "2007-3-9", "03/09/2007", "2007-03-09Z", "2007-03-09T00:00:00", "07-03-09"]
FLAGS = ["true", "false"], ["", "True", "1", "0", " true"]
FILLED = ["x", " ", "x" * 500], [""]
CODES = ["0101", "8102", "3700", "7399"], ["", "0100", "0107", "1599", "9999", "101", " 0101"]


def limited(least: int, most: int) -> tuple[list[str], list[str]]:
    """Texts at and beyond both ends; the longest is long in characters, not in bytes."""
    refused = ["x" * (most + 1)] + ([""] if least else [])
    return ["x" * least, "\u00e9" * most, " " * most], refused


ROWS = {
    UID + "j:OrganizationORIID/j:ID": (["PA0123400", " A 23456 "], ["", "PA012340", "PA01234000",
                                                                   " " * 9]),
    UID + "j:ActivityID/j:ID": (["1", "x" * 30], ["", "x" * 31, "   "]),
    INCIDENT + "j:SubmissionSubmittedDate": (DATES[0] + [""], DATES[1]),
    INCIDENT + "j:SubmissionSubmitter.Organization/j:OrganizationName": limited(0, 75),
    INCIDENT + "j:ActivityDate": (DATES[0], DATES[1] + [""]),
    INCIDENT + "j:ActivityTime": (["00:00:00", "23:59:59"],
                                  ["", "24:00:00", "14:05", "2:05:00", "02:05:00 PM", "14:60:00",
                                   "14:05:00Z", "14:05:00.5"]),
    STREET + "j:StreetFullText": limited(0, 45),
    STREET + "j:StreetNumberText": (["", "0", "123456", "-1"],
                                    ["1234567", "12A", " 12", "012", "1.5"]),
    STREET + "j:StreetPredirectionalText": limited(0, 9),
    STREET + "j:StreetName": limited(0, 30),
    STREET + "j:StreetTypeText": limited(0, 10),
    STREET + "j:StreetPostdirectionalText": ([""], ["N", " "]),
    STREET + "j:StreetExtensionText": limited(0, 10),
    ADDRESS + "j:LocationCityName": (["", "x" * 500], []),
    ADDRESS + "j:LocationStateCode.ncicLSTA": (["PA", " PA"], ["", "  "]),
    ADDRESS + "j:LocationPostalCodeID/j:ID": (["17000", "ABCDE"],
                                              ["", "1700", "170001234", "17000-1234", "     "]),
    INCIDENT + "j:CaveatText": limited(0, 200),
    INCIDENT + "j:ChargeNCICCode": CODES,
    INCIDENT + "j:ChargeDescriptionText": limited(1, 200),
    INCIDENT + "ext:CautionIndicatorFlag": FLAGS,
    PERSON + "j:IncidentJurisdictionalOrganization/j:OrganizationName": limited(0, 75),
    PERSON + "j:PersonSurName": limited(1, 28),
    PERSON + "j:PersonGivenName": limited(1, 28),
    PERSON + "j:PersonMiddleName": limited(1, 28),
    HOME + "j:StreetName": limited(0, 30),
    PERSON + "j:PersonSSNID/j:ID": (["123456789"], ["", "12345678", "123-45-6789"]),
    PERSON + "j:PersonDriverLicenseID/j:ID": FILLED,
    PERSON + "j:PersonDriverLicenseID/j:IDJurisdictionCode.ncicLSTA": FILLED,
    PERSON + "j:PersonBirthDate": (DATES[0], DATES[1] + [""]),
    PERSON + "j:PersonSexCode": (["M", "F", "U"], ["", "m", "X", "M "]),
    PERSON + "j:PersonHeightMeasure": (["0", "510", "-1", "32767"],
                                       ["", "5.5", "5'10", "32768", "0510", "+5"]),
    PERSON + "j:PersonWeightMeasure": (["0", "999"], ["", "1000", "-5", "180.5", "0180"]),
    PERSON + "j:PersonRaceCode": (["A", "B", "I", "U", "W"], ["", "w", "X", "H"]),
    PERSON + "j:ChargeNCICCode": CODES,
    PERSON + "j:ChargeDescriptionText": limited(1, 200),
    PERSON + "j:SubjectCautionInformationCode": FILLED,
    PERSON + "j:SubjectCautionInformationCaveat": limited(1, 200),
    PERSON + "j:CaveatText": limited(1, 200),
    PERSON + "ext:PersonInvolvement": FILLED,
    PERSON + "ext:CautionIndicatorFlag": FLAGS,
    VEHICLE + "ext:VehicleMakeText": FILLED,
    VEHICLE + "j:VehicleModelCodeText": limited(1, 30),
    VEHICLE + "j:VehicleID/j:ID": FILLED,
    VEHICLE + "j:VehicleModelYearDate": (["1900", "2004", "32767"],
                                         ["", "1899", "2004-01-01", "04", "32768", "02004"]),
    VEHICLE + "ext:VehicleStyleText": FILLED,
    VEHICLE + "j:VehicleColorPrimaryText": limited(1, 30),
    VEHICLE + "j:VehicleLicensePlateID/j:ID": FILLED,
    VEHICLE + "j:VehicleLicensePlateID/j:IDJurisdictionCode.ncicLSTA": FILLED,
    VEHICLE + "j:CaveatText": FILLED,
    VEHICLE + "ext:CautionIndicatorFlag": FLAGS,
    PROPERTY + "j:PropertyCategoryCode.nibrsPropertyCategory": FILLED,
    PROPERTY + "j:PropertyTypeText": limited(1, 35),
    PROPERTY + "j:PropertyMakeName": limited(1, 35),
    PROPERTY + "j:PropertyModelName": limited(1, 35),
    PROPERTY + "j:PropertySerialID/j:ID": FILLED,
    PROPERTY + "j:CaveatText": FILLED,
    PROPERTY + "ext:CautionIndicatorFlag": FLAGS,
    SYSTEM + "ext:companyName": (["", "x" * 500], []),
    SYSTEM + "ext:systemName": (["", "x" * 500], []),
    SYSTEM + "ext:systemVersion": (["", "3.1.27", "0.0.0"], ["3.1", "3.01.2", "3.1.2.4", "v3"]),
}

ATTRIBUTES = {
    PERSON + "j:PersonHeightMeasure": "personHeightUnitCode",
    PERSON + "j:PersonWeightMeasure": "personWeightUnitCode",
}


class SubmissionValuesTest(schema_case.ValueChecks):
    """The rows of the submission."""

    messages = documents
    rows = ROWS
    units = ATTRIBUTES

    def needs_row(self, element: etree._Element) -> bool:
        """A residence is made like the incident's location, which has its rows."""
        residence = f"{{{PREFIXES['j']}}}Residence"
        return super().needs_row(element) and not list(element.iterancestors(residence))

    def test_offense_codes_are_458(self) -> None:
        schema = self.schemas.schema("jxdm.xsd").decode()
        offenses = schema[schema.index('name="OffenseCode"'):]
        pattern = re.compile("|".join(re.findall('pattern value="(.*?)"', offenses)))
        codes = [f"{number:04}" for number in range(10_000) if pattern.fullmatch(f"{number:04}")]
        self.assertEqual((458, "0101", "8102"), (len(codes), codes[0], codes[-1]))


if __name__ == "__main__":
    unittest.main()
