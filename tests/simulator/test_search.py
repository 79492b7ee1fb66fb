"""What each criterion of a search finds and what it does not."""

import unittest

from lxml import etree

import documents
import inquiries
from documents import PREFIXES, find
from search_case import SearchCase, card

STATE = "/j:IDJurisdictionCode.ncicLSTA"
SERIAL = "j:PropertySerialID/j:ID"

# Block, element: texts that find the full card, and texts that do not.
ROWS = {
    ("person", "j:PersonSurName"): (["PUBLIC", "pub", "P", " Public "], ["UBLIC", "PUBLICS", "%"]),
    ("person", "j:PersonGivenName"): (["john", "Jo"], ["OHN", "JOHNNY", "J_HN"]),
    ("person", "j:PersonMiddleName"): (["Q", "q"], ["QU", "J"]),
    ("person", "j:PersonSSNID/j:ID"): (["123456789"], ["123456780", "12345678", "123-45-6789"]),
    ("person", "j:PersonDriverLicenseID/j:ID"): (["24681357"], ["2468135", "24681358"]),
    ("person", "j:PersonDriverLicenseID" + STATE): (["PA"], ["pa", "P", "OH"]),
    ("person", "j:PersonBirthDate"): (["1970-01-31"], ["1970-01-30"]),
    ("person", "j:PersonSexCode"): (["M"], ["F", "m"]),
    ("person", "j:PersonRaceCode"): (["W"], ["B", "w"]),
    ("person", "j:PersonHeightMeasure"): (["510"], ["509", "51", "5100"]),
    ("person", "j:PersonWeightMeasure"): (["180"], ["181", "18"]),
    ("location", "j:StreetFullText"): (["12 N Main St", "n main", "ST"], ["Main  St", "13 N"]),
    ("location", "j:StreetName"): (["Main", "mA"], ["ain", "Maine"]),
    ("location", "j:LocationCityName"): (["Millbrook", "MILLBROOK"], ["Mill", "Millbrooks"]),
    ("location", "j:LocationStateCode.ncicLSTA"): (["PA"], ["pa", "OH"]),
    ("location", "j:LocationPostalCodeID/j:ID"): (["17000"], ["17001", "1700"]),
    ("property", SERIAL): (["S-1"], ["s-1", "S-", "S-11"]),
    ("vehicle", "j:VehicleID/j:ID"): (["1FTZX1722XKA76091"], ["1FTZX", "1ftzx1722xka76091"]),
    ("vehicle", "j:VehicleLicensePlateID/j:ID"): (["ABC1234"], ["ABC", "abc1234"]),
    ("vehicle", "j:VehicleLicensePlateID" + STATE): (["PA"], ["pa", "OH"]),
    ("vehicle", "ext:VehicleMakeText"): (["FORD", "ford"], ["FOR", "FORDS"]),
    ("vehicle", "j:VehicleModelCodeText"): (["F150", "f150"], ["F1", "F1500"]),
    ("vehicle", "j:VehicleModelYearDate"): (["2004"], ["2005", "204"]),
    ("vehicle", "ext:VehicleStyleText"): (["PK", "pk"], ["P", "4D"]),
    ("vehicle", "j:VehicleColorPrimaryText"): (["RED", "Red"], ["RE", "BLU"]),
}

# The same for what only narrows a search by serial number.
PROPERTY_ROWS = {
    "j:PropertyCategoryText": (["Firearm", "FIREARM"], ["Fire", "Jewelry", "13"]),
    "j:PropertyMakeName": (["Acme", "acme"], ["Ac", "Acmes"]),
    "j:PropertyModelName": (["M1", "m1"], ["M", "M16"]),
}

WORDS = (["assault", "SIMPLE", "dented", "MILLBROOK 17000", "simple assault", "john public",
          "2007-000123", "saul", "Call", "S-1"],
         ["arson", "assault arson", "true", "simpleassault"])


def person_named(surname: str, given: str) -> etree._Element:
    """A person card."""
    element = find(documents.card(), "card:RMSPersonIndexCards")
    find(element, "j:PersonSurName").text = surname
    find(element, "j:PersonGivenName").text = given
    return element


class CriteriaTest(SearchCase):
    """Every row by itself, against an index that holds the full card and an empty one."""

    def setUp(self) -> None:
        super().setUp()
        self.seed(documents.card(), documents.bare_card("bare"))

    def check(self, expected: list[str], **asked: object) -> None:
        with self.subTest(**asked):
            self.assertEqual((len(expected), expected), self.hits(**asked))

    def test_hits_and_misses(self) -> None:
        for (block, path), (hits, misses) in ROWS.items():
            for value in hits:
                self.check(["2007-000123"], **{block: {path: value}})
            for value in misses:
                self.check([], **{block: {path: value}})

    def test_property_beside_its_serial_number(self) -> None:
        for path, (hits, misses) in PROPERTY_ROWS.items():
            for value in hits:
                self.check(["2007-000123"], property={SERIAL: "S-1", path: value})
            for value in misses:
                self.check([], property={SERIAL: "S-1", path: value})

    def test_free_words(self) -> None:
        for value in WORDS[0]:
            self.check(["2007-000123"], words=value)
        for value in WORDS[1]:
            self.check([], words=value)

    def test_every_criterion_has_a_row(self) -> None:
        inquiry = inquiries.payload(inquiries.envelope())
        rows = [*ROWS, *(("property", path) for path in PROPERTY_ROWS)]
        covered = {find(inquiry, f"lejis:{block.capitalize()}InquiryArguments/{path}")
                   for block, path in rows}
        leaves = {leaf for block in inquiry[:4] for leaf in block.iter("*") if not len(leaf)}
        self.assertEqual(leaves, covered)

    def test_the_full_inquiry_finds_the_full_card(self) -> None:
        response = self.answer(inquiries.FULL)
        self.assertEqual("1", response.findtext("lejis:incidentcount", namespaces=PREFIXES))

    def test_texts_are_no_sql(self) -> None:
        self.check([], words="' OR 1=1 --")
        self.check([], person={"j:PersonSurName": "' OR 1=1 --"})

    def test_umlauts_have_two_cases_too(self) -> None:
        self.seed(card("umlaut", PersonSurName="M\u00dcLLER", LocationCityName="K\u00f6ln"))
        self.check(["umlaut"], person={"j:PersonSurName": "m\u00fcl"})
        self.check(["umlaut"], location={"j:LocationCityName": "K\u00d6LN"})
        self.check(["umlaut"], words="m\u00fcller k\u00d6LN")
        self.seed(card("sharp s", PersonSurName="GRO\u00df"))
        self.check(["sharp s"], person={"j:PersonSurName": "gross"})

    def test_identifiers_with_letters_have_one_case(self) -> None:
        for block, path, value in (("person", "j:PersonSSNID/j:ID", "Ab3456789"),
                                   ("person", "j:PersonDriverLicenseID/j:ID", "Ab345"),
                                   ("location", "j:LocationPostalCodeID/j:ID", "Ab345")):
            lettered = documents.card("lettered")
            find(lettered, f".//{path}").text = value
            self.seed(lettered)
            self.check(["lettered"], **{block: {path: value}})
            self.check([], **{block: {path: value.upper()}})


class CombinationsTest(SearchCase):
    """Criteria narrow each other down."""

    def test_all_criteria_of_a_block_must_hold(self) -> None:
        self.seed(documents.card(), card("other", PersonGivenName="MARY"))
        self.assertEqual(["other"], self.found(person={
            "j:PersonSurName": "PUBLIC", "j:PersonGivenName": "MARY"}))
        self.assertEqual([], self.found(person={
            "j:PersonSurName": "PUBLIC", "j:PersonGivenName": "ANN"}))

    def test_for_one_and_the_same_person(self) -> None:
        two = documents.card("two")
        for element in two.findall("card:RMSPersonIndexCards", PREFIXES):
            element.addnext(person_named("DOE", "JANE"))
        self.seed(two)
        self.assertEqual(["two"], self.found(person={
            "j:PersonSurName": "DOE", "j:PersonGivenName": "JANE"}))
        self.assertEqual([], self.found(person={
            "j:PersonSurName": "DOE", "j:PersonGivenName": "JOHN"}))

    def test_all_blocks_must_hold(self) -> None:
        self.seed(documents.card())
        right = {"person": {"j:PersonSurName": "PUBLIC"},
                 "location": {"j:LocationCityName": "Millbrook"},
                 "property": {SERIAL: "S-1"}, "vehicle": {"ext:VehicleMakeText": "FORD"},
                 "words": "assault"}
        wrong = {"person": {"j:PersonSurName": "DOE"}, "location": {"j:LocationCityName": "Erie"},
                 "property": {SERIAL: "S-2"}, "vehicle": {"ext:VehicleMakeText": "AUDI"},
                 "words": "arson"}
        self.assertEqual(["2007-000123"], self.found(**right))
        for block, value in wrong.items():
            with self.subTest(block=block):
                self.assertEqual([], self.found(**{**right, block: value}))

    def test_residences_are_locations_too(self) -> None:
        home = documents.card("home")
        residence = find(home, ".//j:Residence/j:LocationAddress")
        find(residence, ".//j:StreetName").text = "Elm"
        find(residence, "j:LocationCityName").text = "Erie"
        self.seed(home, documents.card())
        self.assertEqual(["home"], self.found(location={"j:StreetName": "elm",
                                                        "j:LocationCityName": "erie"}))
        self.assertEqual([], self.found(location={"j:StreetName": "Elm",
                                                  "j:LocationCityName": "Millbrook"}))

    def test_blank_criteria_are_none(self) -> None:
        self.seed(documents.card())
        self.assertEqual(["2007-000123"], self.found(
            person={"j:PersonSurName": "PUBLIC", "j:PersonMiddleName": " ",
                    "j:PersonSSNID/j:ID": "  "}))

    def test_cards_come_as_they_were_stored_and_in_order(self) -> None:
        self.submit(documents.submission(documents.card("b"), documents.card("a")))
        response = self.answer(inquiries.search(words="assault"))
        found = response.findall("lejis:RMSIncidentIndexCard", PREFIXES)
        self.assertEqual([self.canonical(documents.card(name)) for name in "ab"],
                         [self.canonical(one) for one in found])

    def test_answers_are_valid(self) -> None:
        self.seed(documents.card(), documents.bare_card("bare"))
        schema = etree.XMLSchema(file=str(self.data / "schemas" / "lejis-service.xsd"))
        for words in ("assault", "nothing", "Millbrook"):
            schema.assertValid(self.answer(inquiries.search(words=words)))

    def test_what_is_replaced_or_withdrawn_is_found_no_more(self) -> None:
        self.submit()
        self.submit(documents.submission(card(PersonSurName="DOE", VehicleMakeText="AUDI")))
        self.assertEqual([], self.found(person={"j:PersonSurName": "PUBLIC"}))
        self.assertEqual([], self.found(words="public"))
        self.assertEqual(["2007-000123"], self.found(person={"j:PersonSurName": "DOE"}))
        self.submit(documents.submission(documents.bare_card()))
        self.assertEqual([], self.found(person={"j:PersonSurName": "DOE"}))
        self.assertEqual([], self.found(words="doe"))

    def test_a_forgotten_index_finds_nothing(self) -> None:
        self.seed(documents.card())
        self.control("DELETE", "index")
        self.assertEqual([], self.found(person={"j:PersonSurName": "PUBLIC"}))

    @staticmethod
    def canonical(element: etree._Element) -> bytes:
        return etree.tostring(element, method="c14n", exclusive=True, with_tail=False)


if __name__ == "__main__":
    unittest.main()
