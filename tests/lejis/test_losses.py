"""What a file says and the library does not read: lejis check and submit name it, with its line."""
import unittest

from lejis_case import DONE, REFUSED, LejisCase, SimulatorCase, card

# The line of what is put in by this.
PLACE, LINE = "  <j:ChargeNCICCode>", 16


def with_elements(*lines):
    """A card with these lines in it, the first of which is line 16."""
    return card().replace(PLACE, "".join(f"{line}\n" for line in lines) + PLACE)


def person(*lines):
    return with_elements("<card:RMSPersonIndexCards>", *lines, "</card:RMSPersonIndexCards>")


def vehicle(*lines):
    return with_elements("<card:RMSVehicleIndexCards>", *lines, "</card:RMSVehicleIndexCards>")


def place(*lines):
    return with_elements("<card:RMSPersonIndexCards><j:Residence><j:LocationAddress>", *lines,
                         "</j:LocationAddress></j:Residence></card:RMSPersonIndexCards>")


EXT = 'xmlns:ext="http://lejis.example/lejis/jxdm/1.0/card/extra"'

# What is written, and what is said about it.
UNREAD = {
    "a misspelt element": (
        person("<j:PersonSurname>DOE</j:PersonSurname>"),
        "Line 17: j:PersonSurname is not read; did you mean j:PersonSurName?"),
    "an element with the prefix of another namespace": (
        vehicle("<j:VehicleMakeText>FORD</j:VehicleMakeText>"),
        "Line 17: j:VehicleMakeText is not read; did you mean ext:VehicleMakeText?"),
    "a prefix that stands for another namespace": (
        person('<j:PersonSurName xmlns:j="http://www.it.ojp.gov/jxdm/3.0.2">DOE</j:PersonSurName>'),
        "Line 17: j:PersonSurName is not read: its namespace is 'http://www.it.ojp.gov/jxdm/3.0.2', not "
        "'http://www.it.ojp.gov/jxdm/3.0.3'."),
    "an element without a namespace": (
        person("<PersonSurName>DOE</PersonSurName>"),
        "Line 17: PersonSurName is not read; did you mean j:PersonSurName?"),
    "an element like no other": (
        person("<j:PersonEyeColorText>BLUE</j:PersonEyeColorText>"),
        "Line 17: j:PersonEyeColorText is not read."),
    "an empty element": (
        person("<j:PersonSurname/>"),
        "Line 17: j:PersonSurname is not read; did you mean j:PersonSurName?"),
    "an element in the wrong place": (
        with_elements("<j:PersonSurName>DOE</j:PersonSurName>"),
        "Line 16: j:PersonSurName is not read here, only in card:RMSPersonIndexCards."),
    "a person's caveat": (
        person("<j:CaveatText>careful</j:CaveatText>"),
        "Line 17: j:CaveatText is not read here, only in lejis:RMSIncidentIndexCard, card:RMSVehicleIndexCards and "
        "card:RMSPropertyIndexCards."),
    "an element of many other places": (
        person("<j:ID>1</j:ID>"),
        "Line 17: j:ID is not read here."),
    "a misspelt card with all in it": (
        with_elements("<card:RMSPersonIndexCard>", "<j:PersonSurName>DOE</j:PersonSurName>",
                      "<j:PersonGivenName>JOHN</j:PersonGivenName>", "</card:RMSPersonIndexCard>"),
        "Line 16: card:RMSPersonIndexCard is not read; did you mean card:RMSPersonIndexCards? Nor is what stands in "
        "it: 2 elements."),
    "an identifier that is not in its j:ID": (
        person("<j:PersonSSNID>900112222</j:PersonSSNID>"),
        "Line 17: The text '900112222' in j:PersonSSNID is not read."),
    "a text in pieces": (
        person("<j:Residence>", " Smith &amp; <![CDATA[Sons]]>", "<j:LocationAddress/> &lt;", "</j:Residence>"),
        "Line 18: The text 'Smith & Sons  <' in j:Residence is not read."),
    "a text between elements": (
        person("<j:PersonSurName>DOE</j:PersonSurName>", "  and", "<j:PersonGivenName>JOHN</j:PersonGivenName>"),
        "Line 18: The text 'and' in card:RMSPersonIndexCards is not read."),
    "an element in a value": (
        person("<j:PersonSurName>DOE<j:PersonGivenName>JOHN</j:PersonGivenName></j:PersonSurName>"),
        "Line 17: j:PersonGivenName is not read: it stands in j:PersonSurName, and its text is taken for a part of "
        "that."),
    "a second one": (
        person("<j:PersonSurName>DOE</j:PersonSurName>", "<j:PersonSurName>ROE</j:PersonSurName>"),
        "Line 18: j:PersonSurName is not read: only the first one is."),
    "a second location": (
        with_elements("<j:IncidentLocation/>"),
        "Line 16: j:IncidentLocation is not read: only the first one is."),
    "a second identifier": (
        person("<j:PersonSSNID/>", "<j:PersonSSNID><j:ID>900112222</j:ID></j:PersonSSNID>",
               "<j:PersonSSNID><j:ID>900113333</j:ID></j:PersonSSNID>"),
        "Line 19: j:ID is not read: only the first one is."),
    "a name that is there already is not what was meant": (
        person("<j:PersonMiddleName>ANNE</j:PersonMiddleName>", "<j:PersonMiddleNames>ANNE B</j:PersonMiddleNames>"),
        "Line 18: j:PersonMiddleNames is not read."),
    "an attribute": (
        person('<j:PersonSurName lang="fr">DOE</j:PersonSurName>'),
        "Line 17: The attribute lang of j:PersonSurName is not read."),
    "a misspelt attribute": (
        person('<j:PersonHeightMeasure j:personHeightUnit="ncic">510</j:PersonHeightMeasure>'),
        "Line 17: The attribute j:personHeightUnit of j:PersonHeightMeasure is not read; did you mean "
        "j:personHeightUnitCode?"),
    "another unit": (
        person('<j:PersonHeightMeasure j:personHeightUnitCode="cm">178</j:PersonHeightMeasure>'),
        "Line 17: j:personHeightUnitCode 'cm' is not read: j:PersonHeightMeasure is always taken in the unit 'ncic'."),
    "a direction after the name": (
        place("<j:LocationStreet>",
              "<j:StreetPostdirectionalText>NW</j:StreetPostdirectionalText>", "</j:LocationStreet>"),
        "Line 18: j:StreetPostdirectionalText 'NW' is not read: this element is always empty."),
    "an element after a start tag of many lines": (
        person('<j:PersonHeightMeasure', '    j:personHeightUnitCode="ncic"', '  >510</j:PersonHeightMeasure>',
               "<j:PersonSurname/>"),
        "Line 20: j:PersonSurname is not read; did you mean j:PersonSurName?"),
    "an element after comments, instructions and character data": (
        person("<!-- one", "two -->", "<?one", "two?>", "<j:PersonSurName><![CDATA[", "DOE", "]]></j:PersonSurName>",
               "<j:PersonGivenname/>"),
        "Line 24: j:PersonGivenname is not read; did you mean j:PersonGivenName?"),
}

BAD_VALUES = {
    "a date of the incident": (
        with_elements("<j:ActivityDate>yesterday</j:ActivityDate>"),
        "Line 16: j:ActivityDate 'yesterday' is not read: it is not a date."),
    "a time of the incident": (
        with_elements("<j:ActivityDate>2024-03-09</j:ActivityDate>", "<j:ActivityTime>25:00</j:ActivityTime>"),
        "Line 16: j:ActivityDate '2024-03-09' and j:ActivityTime '25:00' are not read: "
        "they are not a date and a time."),
    "a time alone": (
        with_elements("<j:ActivityTime>noon</j:ActivityTime>"),
        "Line 16: j:ActivityTime 'noon' is not read: it is not a time."),
    "a time without its date": (
        with_elements("<j:ActivityTime>22:40:00</j:ActivityTime>"),
        "Line 16: j:ActivityTime '22:40:00' is read as a time of 1899-12-30: there is no date."),
    "a flag": (
        vehicle(f"<ext:CautionIndicatorFlag {EXT}>yes</ext:CautionIndicatorFlag>"),
        "Line 17: ext:CautionIndicatorFlag 'yes' is not read: it is neither true nor false."),
    "a height": (
        person("<j:PersonHeightMeasure>5 ft 10</j:PersonHeightMeasure>"),
        "Line 17: j:PersonHeightMeasure '5 ft 10' is not read: it is not a number."),
    "a height out of range": (
        person("<j:PersonHeightMeasure>99999</j:PersonHeightMeasure>"),
        "Line 17: j:PersonHeightMeasure '99999' is read as 0."),
    "a weight with a fraction": (
        person("<j:PersonWeightMeasure>150.5</j:PersonWeightMeasure>"),
        "Line 17: j:PersonWeightMeasure '150.5' is read as 150."),
    "a year": (
        vehicle("<j:VehicleModelYearDate>2004-01</j:VehicleModelYearDate>"),
        "Line 17: j:VehicleModelYearDate '2004-01' is not read: it is not a year."),
    "a year out of range": (
        vehicle("<j:VehicleModelYearDate>40000</j:VehicleModelYearDate>"),
        "Line 17: j:VehicleModelYearDate '40000' is not read: it is not a year."),
    "a house number": (
        place("<j:LocationStreet>", "<j:StreetNumberText>12A</j:StreetNumberText>", "</j:LocationStreet>"),
        "Line 18: j:StreetNumberText '12A' is not read: it is not a number."),
    "a license without its state": (
        person("<j:PersonDriverLicenseID><j:ID>90214467</j:ID></j:PersonDriverLicenseID>"),
        "Line 17: j:PersonDriverLicenseID/j:ID '90214467' is not sent without "
        "j:PersonDriverLicenseID/j:IDJurisdictionCode.ncicLSTA."),
    "the state of a plate without its number": (
        vehicle("<j:VehicleLicensePlateID>", "<j:ID/>",
                "<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:VehicleLicensePlateID>"),
        "Line 19: j:VehicleLicensePlateID/j:IDJurisdictionCode.ncicLSTA 'PA' is not sent without "
        "j:VehicleLicensePlateID/j:ID."),
    "a long value on several lines": (
        vehicle("<j:VehicleModelYearDate>\n" + "two thousand\nand four " * 9 + "</j:VehicleModelYearDate>"),
        f"Line 17: j:VehicleModelYearDate '{('two thousand and four ' * 9)[:60]}\u2026' is not read: "
        "it is not a year."),
}

# The card would be cut off there.
FATAL_VALUES = {
    "a birth date": (
        person("<j:PersonBirthDate>1990-02-30</j:PersonBirthDate>"),
        "Line 17: j:PersonBirthDate '1990-02-30' cannot be read: it is not a date."),
    "an empty birth date": (
        person("<j:PersonBirthDate/>"),
        "Line 17: j:PersonBirthDate '' cannot be read: it is empty, and not left out."),
    "a house number beyond all bounds": (
        place("<j:LocationStreet>", "<j:StreetNumberText>99999999999</j:StreetNumberText>", "</j:LocationStreet>"),
        "Line 18: j:StreetNumberText '99999999999' cannot be read: it is too large a number."),
}

NOTHING_LOST = {
    "declarations, a schema and white space": card().replace(
        "<lejis:RMSIncidentIndexCard", '<lejis:RMSIncidentIndexCard xml:space="preserve" '
        'xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xsi:schemaLocation="a b" xmlns="urn:x"'),
    "other prefixes": card().replace("j:", "jxdm:").replace("xmlns:j=", "xmlns:jxdm="),
    "the unit": person('<j:PersonHeightMeasure j:personHeightUnitCode="ncic">510</j:PersonHeightMeasure>'),
    "an empty direction after the name": place(
        "<j:LocationStreet><j:StreetPostdirectionalText/></j:LocationStreet>"),
    "empty values": person("<j:PersonHeightMeasure/>", f"<ext:CautionIndicatorFlag {EXT}/>"),
    "white space around values": person("<j:PersonBirthDate>", " 1990-02-28", "</j:PersonBirthDate>",
                                        f"<ext:CautionIndicatorFlag {EXT}> true", "</ext:CautionIndicatorFlag>"),
    "any order, and many cards": with_elements(
        "<card:RMSPropertyIndexCards/>", "<card:RMSPersonIndexCards/>", "<card:RMSVehicleIndexCards/>",
        "<card:RMSPersonIndexCards/>", "<j:ActivityTime>22:40</j:ActivityTime>", "<j:CaveatText>x</j:CaveatText>",
        "<j:ActivityDate>2024-03-09</j:ActivityDate>"),
    "a license in two elements": person(
        "<j:PersonDriverLicenseID><j:ID>90214467</j:ID></j:PersonDriverLicenseID>", "<j:PersonDriverLicenseID>"
        "<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>"),
    "an identifier in the second of its elements": person(
        "<j:PersonSSNID/>", "<j:PersonSSNID><j:ID>900112222</j:ID></j:PersonSSNID>"),
}


def bullets(output):
    return [line[4:] for line in output.splitlines() if line.startswith("  \u2022 ")]


class LossTest(LejisCase):
    def found_in(self, contents, code=DONE):
        """The lines below the result of each, from one run."""
        names = {case: f"{number:02}.xml" for number, case in enumerate(contents)}
        for case, content in contents.items():
            self.write(names[case], content)
        found, lines = {}, None
        for line in self.expect(code, "check", "*.xml").splitlines():
            if ".xml " in line:
                lines = found[line.split("] ")[-1].split(" ")[0]] = []
            elif line.startswith("  "):
                lines.append(line)
        return {case: found[name] for case, name in names.items()}

    def check_warnings(self, cases):
        found = self.found_in({case: content for case, (content, _) in cases.items()})
        for case, (_, warning) in cases.items():
            with self.subTest(case):
                self.assertEqual(found[case], [f"  \u2022 {warning}"])

    def test_what_is_not_read_is_named_with_its_line(self):
        self.check_warnings(UNREAD)

    def test_values_that_are_not_read_are_named_with_their_line(self):
        self.check_warnings(BAD_VALUES)

    def test_an_invalid_submission_date_is_named_beside_the_error_that_it_causes(self):
        self.write("a.xml", card().replace("2024-03-11<", "2024-02-30<"))
        self.assertEqual(self.expect(REFUSED, "check", "a.xml"),
                         "a.xml  refused: 1 error, 1 warning\n  ! Submission date is missing.\n"
                         "  \u2022 Line 9: j:SubmissionSubmittedDate '2024-02-30' is not read: it is not a date.\n")

    def test_values_that_would_cut_off_a_card_make_a_file_unreadable(self):
        found = self.found_in({case: content for case, (content, _) in FATAL_VALUES.items()}, REFUSED)
        for case, (_, error) in FATAL_VALUES.items():
            with self.subTest(case):
                self.assertEqual(found[case], [f"  ! {error}"])

    def test_all_of_them_are_told_at_once(self):
        self.write("a.xml", person("<j:PersonBirthDate/>", "</card:RMSPersonIndexCards><card:RMSPersonIndexCards>",
                                   "<j:PersonBirthDate>x</j:PersonBirthDate>"))
        self.assertEqual(self.expect(REFUSED, "check", "a.xml"),
                         "a.xml  unreadable\n"
                         "  ! Line 17: j:PersonBirthDate '' cannot be read: it is empty, and not left out.\n"
                         "    Line 19: j:PersonBirthDate 'x' cannot be read: it is not a date.\n")

    def test_what_the_library_reads_is_not_named(self):
        for case, found in self.found_in(NOTHING_LOST).items():
            with self.subTest(case):
                self.assertEqual(found, [])

    def test_every_encoding_and_line_end_has_its_lines(self):
        text, warning = UNREAD["a misspelt element"]
        for number, content in enumerate((text.replace("\n", "\r\n").encode(), text.encode("utf-16"),
                                          text.encode("utf-8-sig"),
                                          ('<?xml version="1.0" encoding="ISO-8859-1"?>' + text).encode("latin-1"))):
            self.write("a.xml", content)
            with self.subTest(number):
                self.assertEqual(bullets(self.expect(DONE, "check", "a.xml")), [warning])

    def test_losses_come_in_the_order_of_the_file_before_other_warnings(self):
        text = person("<j:PersonSurname/>", "<j:PersonBirthdate/>", "<j:PersonWeightMeasure>x</j:PersonWeightMeasure>",
                      "<j:Residence>x", "<j:PersonGivenname/>", "</j:Residence>")
        self.write("a.xml", text.replace("2202", "9999").replace(
            "<card:RMSPerson", "<j:ActivityDate>x</j:ActivityDate><card:RMSPerson"))
        self.assertEqual([line.split()[:4] for line in bullets(self.expect(DONE, "check", "a.xml"))],
                         [["Line", "16:", "j:ActivityDate", "'x'"], ["Line", "17:", "j:PersonSurname", "is"],
                          ["Line", "18:", "j:PersonBirthdate", "is"], ["Line", "19:", "j:PersonWeightMeasure", "'x'"],
                          ["Line", "20:", "The", "text"], ["Line", "21:", "j:PersonGivenname", "is"],
                          ["Main", "record:", "Charge", "NCIC"]])


class SubmitTest(SimulatorCase):
    def test_what_is_not_read_is_a_warning_and_the_rest_is_submitted(self):
        text, warning = UNREAD["a misspelt element"]
        self.write("a.xml", text)
        self.assertEqual(self.expect(DONE, "submit", "a.xml", "--url", self.url),
                         f"a.xml  submitted with 1 warning\n  \u2022 {warning}\n")
        self.assertEqual(self.indexed(), ["2024-1"])

    def test_a_withdrawal_uses_the_identifiers_alone_and_has_no_such_warning(self):
        self.write("a.xml", UNREAD["a misspelt element"][0])
        self.assertEqual(self.expect(DONE, "delete", "a.xml", "--url", self.url), "a.xml  withdrawn\n")


if __name__ == "__main__":
    unittest.main()
