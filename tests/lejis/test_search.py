"""lejis search against the simulator: what is asked and what is found."""
import csv
import io
import json
import os
import re
import unittest
import xml.etree.ElementTree as ElementTree

from lejis_case import DONE, PROJECT
from lejis_case import card as incident_card
from search_case import HELD, SAMPLES, SearchCase

BURGLARY, INTERNATIONAL, THEFT = "2024-001873", "2024-000612", "24-H-00519"

TABLE = """\
Agency     Incident    Date        Charge                       Place
PA0990200  24-H-00519  2024-05-16  2404 Theft of motor vehicle  1200 Commerce Ave, lot C, Harlow PA 17098
    ABERNATHY LUIS (VICTIM)
    REESE TAMARA (WITNESS)
    2021 BLU FORD F150 PK, plate ZYX4471 PA, VIN 1FTFW1E50MFA23817
    2009 SIL HONDA CIVIC 4D, plate 0KRM88 OH

1 incident found.
"""

# The options that one element of the request carries, with the local name of the element that holds each value.
BLOCKS = {
    "PersonInquiryArguments": {
        "--surname": ("PersonSurName", "REESE"), "--given": ("PersonGivenName", "TAMARA"),
        "--middle": ("PersonMiddleName", "J"), "--dob": ("PersonBirthDate", "1995-09-30"),
        "--ssn": ("PersonSSNID/ID", "123456789"), "--licence": ("PersonDriverLicenseID/ID", "88120934"),
        "--licence-state": ("PersonDriverLicenseID/IDJurisdictionCode.ncicLSTA", "OH"),
        "--sex": ("PersonSexCode", "F"), "--race": ("PersonRaceCode", "B"),
        "--height": ("PersonHeightMeasure", "509"), "--weight": ("PersonWeightMeasure", "176")},
    "VehicleInquiryArguments": {
        "--vin": ("VehicleID/ID", "1FTFW1E50MFA23817"), "--plate": ("VehicleLicensePlateID/ID", "ZYX4471"),
        "--plate-state": ("VehicleLicensePlateID/IDJurisdictionCode.ncicLSTA", "PA"),
        "--vehicle-make": ("VehicleMakeText", "FORD"), "--vehicle-model": ("VehicleModelCodeText", "F150"),
        "--vehicle-year": ("VehicleModelYearDate", "2021"), "--vehicle-style": ("VehicleStyleText", "PK"),
        "--vehicle-color": ("VehicleColorPrimaryText", "BLU")},
    "PropertyInquiryArguments": {
        "--serial": ("PropertySerialID/ID", "S-1 & <2>"), "--property-category": ("PropertyCategoryText", "Tool"),
        "--property-make": ("PropertyMakeName", "Stahl"), "--property-model": ("PropertyModelName", "M3")},
    "LocationInquiryArguments": {
        "--street-full": ("StreetFullText", "1200 Commerce"), "--street": ("StreetName", "Commerce"),
        "--city": ("LocationCityName", "Harlow"), "--state": ("LocationStateCode.ncicLSTA", "PA"),
        "--zip": ("LocationPostalCodeID/ID", "17098")},
    "AdHocInquiryArguments": {"--text": ("queryString", "Nouvelle-Écosse 𠮷田")},
}


def with_local_names(text):
    root = ElementTree.fromstring(text.encode())
    for element in root.iter():
        element.tag = element.tag.rpartition("}")[2]
    return root


class CriteriaTest(SearchCase):
    def test_every_option_goes_where_it_belongs(self):
        for block, options in BLOCKS.items():
            self.find(*(word for option, (_, value) in options.items() for word in (option, value)))
            request = with_local_names(self.last_request())
            self.assertEqual([name for name in BLOCKS if request.find(f".//{name}") is not None], [block])
            for option, (place, value) in options.items():
                with self.subTest(option):
                    self.assertEqual(request.findtext(f".//{block}/{place}"), value)
        self.assertTrue(all(exchange["valid"] for exchange in self.exchanges()))

    def test_the_user_is_named(self):
        self.find("--zip=17098", user="jmiller")
        self.assertIn(">jmiller<", self.last_request())

    def test_hits_of_each_kind(self):
        for arguments, incidents in {
                ("--surname", "reese"): [THEFT], ("--plate=ZYX4471",): [THEFT], ("--zip", "17099"): [BURGLARY],
                ("--text", "Nouvelle-Écosse"): [INTERNATIONAL], ("--dob", "1978-02-14"): [THEFT],
                ("--state", "PA"): [INTERNATIONAL, BURGLARY, THEFT]}.items():
            with self.subTest(arguments):
                self.assertEqual(sorted(self.found(*arguments)), incidents)

    def test_all_criteria_must_apply(self):
        self.assertEqual(self.found("--surname", "reese", "--zip", "17098"), [THEFT])
        self.assertEqual(self.found("--surname", "reese", "--zip", "17099"), [])

    def test_max(self):
        self.assertEqual(len(self.found("--state", "PA", "--max", "2")), 2)
        self.assertEqual(len(self.found("--state", "PA", "--max", "3")), 3)

    def test_excluded_agencies(self):
        excluded = ("--exclude-ori", "PA0990100")
        self.assertEqual(sorted(self.found("--state", "PA", *excluded)), [INTERNATIONAL, THEFT])
        self.assertEqual(self.found("--state", "PA", *excluded, "--exclude-ori=PA0990200"), [INTERNATIONAL])

    def test_the_schema_is_asked_for_when_wanted(self):
        folder = os.environ["LEJIS_SIMULATOR_SCHEMAS"]
        for options, asked in (((), False), (("--validate-schema",), True)):
            self.control("DELETE", "exchanges")
            self.assertEqual(self.found("--plate", "ZYX4471", *options, folder=folder), [THEFT])
            paths = [exchange["path"].lower() for exchange in self.exchanges()]
            self.assertEqual(any(path.endswith("?wsdl") for path in paths), asked)


class FoundTest(SearchCase):
    def test_the_table(self):
        self.assertEqual(self.find("--plate", "ZYX4471"), TABLE)

    def test_names_in_every_script(self):
        output = self.find("--zip", "17096")
        for name in ("NÚÑEZ IBÁÑEZ JOSÉ (VICTIM)", "ШЕВЧЕНКО ОЛЕНА (WITNESS)", "\U00020bb7田 太郎 (SUSPECT)"):
            self.assertIn(f"    {name}\n", output)

    def test_what_a_text_says_to_terminals_is_not_passed_on(self):
        text = (SAMPLES / "vehicle-theft.xml").read_text(encoding="utf-8")
        self.hold(self.write("a.xml", text.replace(">REESE<", ">RE&#x9B;2J&#10;SE<").replace("24-H-00519", "24-H-1")))
        self.assertIn("\n    RE 2J SE TAMARA (WITNESS)\n", self.find("--plate", "ZYX4471"))

    def test_nothing(self):
        self.assertEqual(self.find("--zip", "00000"), "Nothing was found.\n")

    def test_many(self):
        self.play(kind="cards", count=600)
        output = self.find("--zip", "17098")
        self.assertTrue(output.endswith("\n\n600 incidents found.\n"), output[-200:])


class XmlTest(SearchCase):
    def found_xml(self, *arguments, count):
        run = self.search("--xml", *arguments)
        self.assertEqual((run.code, run.complaint), (DONE, count), run)
        return with_local_names(run.output)

    def test_the_cards_are_whole(self):
        root = self.found_xml("--state", "PA", count="3 incidents found.\n")
        self.assertEqual((root.tag, [card.tag for card in root]), ("incidents", ["RMSIncidentIndexCard"] * 3))
        self.assertEqual(sorted(card.findtext("LejisIndexUid/ActivityID/ID") for card in root),
                         [INTERNATIONAL, BURGLARY, THEFT])
        for name in HELD:
            sample = with_local_names((SAMPLES / f"{name}.xml").read_text(encoding="utf-8"))
            uid = sample.findtext("LejisIndexUid/ActivityID/ID")
            card, = (card for card in root if card.findtext("LejisIndexUid/ActivityID/ID") == uid)
            for place in ("RMSPersonIndexCards/PersonSurName", "RMSVehicleIndexCards/VehicleMakeText",
                          "RMSPropertyIndexCards/PropertyTypeText"):
                self.assertEqual([element.text for element in card.findall(place)],
                                 [element.text for element in sample.findall(place)])

    def test_nothing_is_a_document_too(self):
        root = self.found_xml("--zip", "00000", count="Nothing was found.\n")
        self.assertEqual((root.tag, len(root)), ("incidents", 0))


IDL = PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library" / "model"


def members_of(interface):
    """The fields of a card as its description declares them, in that order."""
    text = (IDL / f"{interface}.idl").read_text(encoding="utf-8")
    return re.findall(r"^ {4}(?:FIELD|READ_ONLY)\(\d+, \w+\*?, (\w+), ", text, re.MULTILINE)


class WholeCardsTest(SearchCase):
    def cards(self, *arguments):
        return [incident["card"] for incident in json.loads(self.find(*arguments, "--json"))["incidents"]]

    def test_json_has_every_field_of_a_card_by_its_own_name(self):
        (card,) = self.cards("--plate", "ZYX4471")
        self.assertEqual(list(card), members_of("LejisIncidentIndexCard"))
        for collection in ("Person", "Vehicle", "Property"):
            for part in card[f"{collection}IndexCards"]:
                self.assertEqual(list(part), members_of(f"Lejis{collection}IndexCard"))
        self.assertEqual(list(card["Location"]), members_of("LejisStreetAddress"))

    def test_json_has_values_of_their_kinds(self):
        (card,) = self.cards("--plate", "ZYX4471")
        self.assertEqual((card["OrganizationORI"], card["ActivityID"], card["Location"]["ZIP"]),
                         ("PA0990200", THEFT, "17098"))
        self.assertRegex(card["ActivityDateTime"], r"^2024-05-16T\d\d:\d\d:\d\d$")
        person = next(person for person in card["PersonIndexCards"] if person["SurName"] == "ABERNATHY")
        self.assertEqual(person["BirthDate"], "1978-02-14T00:00:00")
        # The number 0 would be equal to it.
        self.assertIs(person["CautionIndicator"], False)
        self.assertIsInstance(person["Height"], int)
        self.write("a.xml", incident_card("2024-9", zip_code="15556"))
        self.hold("a.xml")
        (bare,) = self.cards("--zip", "15556")
        self.assertEqual((bare["ActivityDateTime"], bare["PersonIndexCards"]), (None, []))

    def test_csv_has_a_row_for_each_person(self):
        run = self.search("--plate", "ZYX4471", "--csv")
        self.assertEqual((run.code, run.complaint), (DONE, "1 incident found.\n"))
        # By its byte order mark Excel knows UTF-8.
        self.assertTrue(run.output.startswith("\ufeffAgency,"), run.output[:20])
        rows = list(csv.DictReader(io.StringIO(run.output[1:])))
        self.assertEqual([(row["Incident"], row["SurName"], row["GivenName"]) for row in rows],
                         [(THEFT, "ABERNATHY", "LUIS"), (THEFT, "REESE", "TAMARA")])
        self.assertEqual(rows[0]["Place"], "1200 Commerce Ave, lot C, Harlow PA 17098")
        self.assertEqual(rows[0]["BirthDate"], "1978-02-14T00:00:00")
        self.assertIn("address.City", rows[0])

    def test_csv_holds_no_formulas_for_a_spreadsheet(self):
        text = (SAMPLES / "vehicle-theft.xml").read_text(encoding="utf-8")
        for number, name in enumerate(('=HYPERLINK("x")', "+1", "-1", "@SUM(A1)", "REE-SE")):
            self.hold(self.write("a.xml", text.replace(">REESE<", f">{name}<").replace("24-H-00519", f"24-H-{number}")
                                 .replace("ZYX4471", "ZYX4472")))
        rows = list(csv.DictReader(io.StringIO(self.search("--plate", "ZYX4472", "--csv").output)))
        names = {row["SurName"] for row in rows if row["GivenName"] == "TAMARA"}
        self.assertEqual(names, {"'=HYPERLINK(\"x\")", "'+1", "'-1", "'@SUM(A1)", "REE-SE"})

    def test_csv_of_an_incident_without_persons_has_one_row(self):
        self.write("a.xml", incident_card("2024-9", zip_code="15555"))
        self.hold("a.xml")
        rows = list(csv.DictReader(io.StringIO(self.search("--zip", "15555", "--csv").output)))
        self.assertEqual([(row["Incident"], row["SurName"]) for row in rows], [("2024-9", "")])

    def test_a_search_that_got_as_many_as_it_may_says_so(self):
        self.assertTrue(self.find("--state", "PA", "--max", "2").endswith(
            "2 incidents found, as many as --max allows; LEJIS may have more.\n"))
        self.assertTrue(self.find("--state", "PA", "--max", "4").endswith("3 incidents found.\n"))
        for most, may in (("2", True), ("4", False)):
            answer = json.loads(self.find("--state", "PA", "--max", most, "--json"))
            self.assertEqual(answer["mayHaveMore"], may)
        # LEJIS may have a limit of its own.
        self.assertIsNone(json.loads(self.find("--state", "PA", "--json"))["mayHaveMore"])


if __name__ == "__main__":
    unittest.main()
