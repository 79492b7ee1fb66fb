"""Which elements the schemas demand, allow and forbid, and in which order."""

import copy
import tempfile
import unittest
from pathlib import Path

from lxml import etree

import documents
from documents import NAMES, PREFIXES

from lejis.schema_set import SchemaSet

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


def local(element: etree._Element) -> str:
    """The name without its namespace."""
    return etree.QName(element).localname


class SchemaStructureTest(unittest.TestCase):
    """Goes through every element of the full submission and changes something about it."""

    @classmethod
    def setUpClass(cls) -> None:
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.schemas = SchemaSet(Path(folder.name), NAMES)

    def check_each(self, change, expected) -> None:
        """Applies `change` to a fresh copy for every element below the payload's root."""
        count = len(list(documents.payload(documents.envelope()).iter("*")))
        for number in range(1, count):
            root = documents.envelope()
            element = list(documents.payload(root).iter("*"))[number]
            should_pass = expected(element)
            if should_pass is None:
                continue
            with self.subTest(element=root.getroottree().getelementpath(element)):
                change(element)
                errors = self.schemas.errors(documents.payload(root))
                self.assertEqual(should_pass, not errors, errors)

    def test_left_out(self) -> None:
        self.check_each(lambda element: element.getparent().remove(element),
                        lambda element: local(element) in OPTIONAL.get(local(element.getparent()),
                                                                       ()))

    def test_twice(self) -> None:
        self.check_each(lambda element: element.addnext(copy.deepcopy(element)),
                        lambda element: local(element) in REPEATED)

    def test_order(self) -> None:
        self.check_each(lambda element: element.getnext().addnext(element),
                        lambda element: None if element.getnext() is None else False)

    def test_other_namespace(self) -> None:
        def move(element: etree._Element) -> None:
            element.tag = "{urn:somewhere}" + local(element)
        self.check_each(move, lambda element: False)

    def test_unknown_element_inside(self) -> None:
        self.check_each(lambda element: etree.SubElement(element, "{urn:somewhere}x"),
                        lambda element: False)

    def test_unknown_attribute(self) -> None:
        self.check_each(lambda element: element.set("x", "y"), lambda element: False)

    def test_activity_date_and_time_go_together(self) -> None:
        root = documents.envelope()
        for name in ("j:ActivityDate", "j:ActivityTime"):
            element = documents.find(root, ".//" + name)
            element.getparent().remove(element)
        self.assertEqual([], self.schemas.errors(documents.payload(root)))

    def test_bare_card_is_valid_with_and_without_date(self) -> None:
        for date in ("2007-03-10", ""):
            bare = documents.bare_card()
            documents.find(bare, "j:SubmissionSubmittedDate").text = date
            root = etree.fromstring(documents.submission(bare))
            self.assertEqual([], self.schemas.errors(documents.payload(root)))

    def test_empty_cards_are_valid(self) -> None:
        root = documents.envelope()
        for kind in ("Person", "Vehicle", "Property"):
            card = documents.find(root, f".//card:RMS{kind}IndexCards")
            for child in list(card):
                if local(child) in OPTIONAL[local(card)]:
                    card.remove(child)
        self.assertEqual([], self.schemas.errors(documents.payload(root)))
        self.assertEqual(1, len(root.findall(".//card:RMSVehicleIndexCards/*", PREFIXES)))


if __name__ == "__main__":
    unittest.main()
