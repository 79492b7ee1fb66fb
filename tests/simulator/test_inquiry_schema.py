"""What the schemas take and refuse of an inquiry."""

import unittest

import inquiries
import schema_case
from documents import find

PERSON = ".//lejis:PersonInquiryArguments/"
PLACE = ".//lejis:LocationInquiryArguments/"
PROPERTY = ".//lejis:PropertyInquiryArguments/"
VEHICLE = ".//lejis:VehicleInquiryArguments/"
CONTROLS = ".//lejis:InquiryControls/"
STATE = "/j:IDJurisdictionCode.ncicLSTA"

# Nothing cuts an inquiry's texts to the limits that cards have.
ANY = ["", " ", "x" * 500], []
FILLED = [" ", "x" * 500], [""]
NUMBERS = ["0", "-32768", "32767", "1"], ["", "32768", "-32769", "01", "+1", "1.5", "x"]

ROWS = {
    PERSON + "j:PersonSurName": ANY,
    PERSON + "j:PersonGivenName": ANY,
    PERSON + "j:PersonMiddleName": ANY,
    PERSON + "j:PersonSSNID/j:ID": FILLED,
    PERSON + "j:PersonDriverLicenseID/j:ID": FILLED,
    PERSON + "j:PersonDriverLicenseID" + STATE: FILLED,
    PERSON + "j:PersonBirthDate": (["1970-01-31", "0100-01-01"],
                                   ["", "1/31/1970", "1970-02-30", "1970-1-31", "1970-01-31Z"]),
    PERSON + "j:PersonSexCode": FILLED,
    PERSON + "j:PersonRaceCode": FILLED,
    PERSON + "j:PersonHeightMeasure": NUMBERS,
    PERSON + "j:PersonWeightMeasure": NUMBERS,
    PLACE + "j:StreetFullText": FILLED,
    PLACE + "j:StreetName": FILLED,
    PLACE + "j:LocationCityName": FILLED,
    PLACE + "j:LocationStateCode.ncicLSTA": FILLED,
    PLACE + "j:LocationPostalCodeID/j:ID": FILLED,
    PROPERTY + "j:PropertyCategoryText": ANY,
    PROPERTY + "j:PropertyMakeName": ANY,
    PROPERTY + "j:PropertyModelName": ANY,
    PROPERTY + "j:PropertySerialID/j:ID": ANY,
    VEHICLE + "j:VehicleID/j:ID": FILLED,
    VEHICLE + "j:VehicleLicensePlateID/j:ID": ANY,
    VEHICLE + "j:VehicleLicensePlateID" + STATE: ANY,
    VEHICLE + "ext:VehicleMakeText": ANY,
    VEHICLE + "j:VehicleModelCodeText": ANY,
    VEHICLE + "j:VehicleModelYearDate": NUMBERS,
    VEHICLE + "ext:VehicleStyleText": ANY,
    VEHICLE + "j:VehicleColorPrimaryText": ANY,
    ".//lejis:AdHocInquiryArguments/lejis:queryString": FILLED,
    CONTROLS + "lejis:irrinfo": (["true", "false"], ["", "True", "FALSE", "1", "0", "yes"]),
    CONTROLS + "lejis:maxincidents": (["1", "25", "2147483647"],
                                      ["", "0", "-5", "2147483648", "025", "+5", "1,000"]),
    CONTROLS + "lejis:excludedOriid": ANY,
}

UNITS = {
    PERSON + "j:PersonHeightMeasure": "personHeightUnitCode",
    PERSON + "j:PersonWeightMeasure": "personWeightUnitCode",
}

# Everything that may be left out; whatever else the full inquiry holds is always written.
OPTIONAL = {
    "LEJISIndexInquiry": {"PersonInquiryArguments", "LocationInquiryArguments",
                          "PropertyInquiryArguments", "VehicleInquiryArguments",
                          "AdHocInquiryArguments"},
    "PersonInquiryArguments": {"PersonSSNID", "PersonDriverLicenseID", "PersonBirthDate",
                               "PersonSexCode", "PersonRaceCode", "PersonHeightMeasure",
                               "PersonWeightMeasure"},
    "PersonDriverLicenseID": {"ID", "IDJurisdictionCode.ncicLSTA"},
    "LocationInquiryArguments": {"StreetFullText", "StreetName", "LocationCityName",
                                 "LocationStateCode.ncicLSTA", "LocationPostalCodeID"},
    "VehicleInquiryArguments": {"VehicleID", "VehicleLicensePlateID", "VehicleModelYearDate"},
    "InquiryControls": {"maxincidents", "excludedOriid"},
}


class InquiryValuesTest(schema_case.ValueChecks):
    """The rows of the inquiry."""

    messages = inquiries
    rows = ROWS
    units = UNITS


class InquiryStructureTest(schema_case.StructureChecks):
    """Which elements an inquiry has, and in which order."""

    messages = inquiries
    optional = OPTIONAL
    repeated = {"excludedOriid"}

    def test_a_licence_has_at_least_one_half(self) -> None:
        root = inquiries.envelope()
        find(root, ".//j:PersonDriverLicenseID")[:] = []
        self.assertNotEqual([], self.errors(root))

    def test_controls_alone(self) -> None:
        root = inquiries.envelope()
        inquiry = inquiries.payload(root)
        inquiry[:] = inquiry[-1:]
        self.assertEqual([], self.errors(root))


if __name__ == "__main__":
    unittest.main()
