"""Which elements the schemas demand, allow and forbid, and in which order."""

import unittest

from lxml import etree

import documents
import schema_case
from documents import PREFIXES
from schema_case import local

# Everything that may be left out; whatever else the full submission holds is always written.
OPTIONAL = {
    "SubmitRmsIndex": {"RMSIncidentIndexCard"},
    "RMSIncidentIndexCard": {"ChargeNCICCode", "ChargeDescriptionText", "RMSPersonIndexCards",
                             "RMSVehicleIndexCards", "RMSPropertyIndexCards"},
    "LocationAddress": {"LocationStateCode.ncicLSTA", "LocationPostalCodeID"},
    "RMSPersonIndexCards": {
        "PersonSurName", "PersonGivenName", "PersonMiddleName", "PersonSSNID",
        "PersonDriverLicenseID", "PersonBirthDate", "PersonSexCode", "PersonHeightMeasure",
        "PersonWeightMeasure", "PersonRaceCode", "ChargeNCICCode", "ChargeDescriptionText",
        "SubjectCautionInformationCode", "SubjectCautionInformationCaveat", "CaveatText",
        "PersonInvolvement"},
    "RMSVehicleIndexCards": {
        "VehicleMakeText", "VehicleModelCodeText", "VehicleID", "VehicleModelYearDate",
        "VehicleStyleText", "VehicleColorPrimaryText", "VehicleLicensePlateID", "CaveatText"},
    "RMSPropertyIndexCards": {
        "PropertyCategoryCode.nibrsPropertyCategory", "PropertyTypeText", "PropertyMakeName",
        "PropertyModelName", "PropertySerialID", "CaveatText"},
}
REPEATED = {"RMSIncidentIndexCard", "RMSPersonIndexCards", "RMSVehicleIndexCards",
            "RMSPropertyIndexCards"}


class SubmissionStructureTest(schema_case.StructureChecks):
    """Everything about the full submission, and what else a submission may be."""

    messages = documents
    optional = OPTIONAL
    repeated = REPEATED

    def test_activity_date_and_time_go_together(self) -> None:
        root = documents.envelope()
        for name in ("j:ActivityDate", "j:ActivityTime"):
            element = documents.find(root, ".//" + name)
            element.getparent().remove(element)
        self.assertEqual([], self.errors(root))

    def test_bare_card_is_valid_with_and_without_date(self) -> None:
        for date in ("2007-03-10", ""):
            bare = documents.bare_card()
            documents.find(bare, "j:SubmissionSubmittedDate").text = date
            root = etree.fromstring(documents.submission(bare))
            self.assertEqual([], self.errors(root))

    def test_empty_cards_are_valid(self) -> None:
        root = documents.envelope()
        for kind in ("Person", "Vehicle", "Property"):
            card = documents.find(root, f".//card:RMS{kind}IndexCards")
            for child in list(card):
                if local(child) in OPTIONAL[local(card)]:
                    card.remove(child)
        self.assertEqual([], self.errors(root))
        self.assertEqual(1, len(root.findall(".//card:RMSVehicleIndexCards/*", PREFIXES)))


if __name__ == "__main__":
    unittest.main()
