"""The page and the schemas of the incident format tell the same, and what the library's readers look for."""
import re
import sys
import unittest
from pathlib import Path

from lxml import etree

PROJECT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tests" / "support"))

from incident_format import NAMESPACES, PAGE, SCHEMAS, sections, values

LIBRARY = PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library"
SAMPLES = sorted((PROJECT / "samples" / "incidents").glob("*.xml"))
# A reader's call gives a path alone, a writer's a value as well.
READ = re.compile(r'(?:(?:\.|->)(?:Text|TextIfAny|Child|Children)\(|RequiredChild\(\w+, )L"([^"]+)"\)')
XSD = "{http://www.w3.org/2001/XMLSchema}"

# What is put into a person, and is not right there.
WRONG = {
    "a misspelt element": "<j:PersonSurname>x</j:PersonSurname>",
    "an element in the wrong place": "<j:PropertyTypeText>x</j:PropertyTypeText>",
    "an element that is there already": "<j:PersonSexCode>F</j:PersonSexCode>",
    "an unknown attribute": '<j:SubjectCautionInformationCode lang="fr"/>',
    "a text between elements": "text",
    "an empty birth date": "<j:PersonBirthDate/>",
    "a birth date that does not exist": "<j:PersonBirthDate>1990-02-30</j:PersonBirthDate>",
    "a birth date with a time zone": "<j:PersonBirthDate>1990-02-28Z</j:PersonBirthDate>",
    "a flag that is neither true nor false": "<ext:CautionIndicatorFlag>yes</ext:CautionIndicatorFlag>",
    "a height that is not a number": "<j:PersonHeightMeasure>5 ft</j:PersonHeightMeasure>",
    "a height out of range": "<j:PersonHeightMeasure>40000</j:PersonHeightMeasure>",
    "another unit": '<j:PersonHeightMeasure j:personHeightUnitCode="cm">510</j:PersonHeightMeasure>',
}
RIGHT = {
    "empty values": "<j:PersonHeightMeasure/><ext:CautionIndicatorFlag/><j:PersonSSNID/><j:Residence/>",
    "white space around values": "<j:PersonBirthDate>\n 1990-02-28\n</j:PersonBirthDate>"
                                 "<ext:CautionIndicatorFlag> true </ext:CautionIndicatorFlag>",
}


def name_of(qualified):
    prefix, local = qualified.split(":")
    return f"{{{NAMESPACES[prefix]}}}{local}"


def incident(person="", more="", number="<j:ID>1</j:ID>"):
    declared = " ".join(f'xmlns:{prefix}="{uri}"' for prefix, uri in NAMESPACES.items())
    return etree.fromstring(f"""<lejis:RMSIncidentIndexCard {declared}>
        <card:RMSPersonIndexCards><j:PersonSexCode>M</j:PersonSexCode>{person}</card:RMSPersonIndexCards>{more}
        <card:LejisIndexUid><j:OrganizationORIID><j:ID>PA0990100</j:ID></j:OrganizationORIID>
        <j:ActivityID>{number}</j:ActivityID></card:LejisIndexUid><card:RMSPersonIndexCards/>
        <j:SubmissionSubmitter.Organization><j:OrganizationName>x</j:OrganizationName>
        </j:SubmissionSubmitter.Organization></lejis:RMSIncidentIndexCard>""")


class SchemaTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.schema = etree.XMLSchema(etree.parse(SCHEMAS / "incident.xsd"))

    def passes(self, document):
        passed = self.schema.validate(document)
        return passed, str(self.schema.error_log)

    def test_samples_pass(self):
        self.assertGreater(len(SAMPLES), 5)
        for path in SAMPLES:
            with self.subTest(path.name):
                self.assertEqual(self.passes(etree.parse(path)), (True, ""))

    def test_the_example_of_the_page_passes(self):
        example = re.search(r"```xml\n(<\?xml.*?)```", PAGE.read_text(encoding="utf-8"), re.DOTALL)[1]
        self.assertEqual(self.passes(etree.fromstring(example.encode())), (True, ""))

    def test_what_is_right_in_any_order_passes(self):
        for case, person in RIGHT.items():
            with self.subTest(case):
                self.assertEqual(self.passes(incident(person)), (True, ""))

    def test_what_is_not_read_does_not_pass(self):
        for case, person in WRONG.items():
            with self.subTest(case):
                self.assertFalse(self.passes(incident(person))[0])

    def test_the_incident_has_its_identifiers_once_and_its_values_once_at_most(self):
        self.assertFalse(self.passes(incident(number=""))[0])
        for row in sections()["Incident"].rows:
            if row.section or "/" in row.path:
                continue
            value = f"<{row.path}>{'2024-03-09' if row.kind == 'date' else ''}</{row.path}>"
            with self.subTest(row.path):
                self.assertEqual(self.passes(incident(more=value)), (True, ""))
                self.assertFalse(self.passes(incident(more=value * 2))[0])


class AgreementTest(unittest.TestCase):
    def test_the_page_names_what_each_reader_looks_for(self):
        self.assertEqual(len(sections()), 5)
        for title, section in sections().items():
            source = (LIBRARY / "model" / f"{section.reader}.cpp").read_text(encoding="utf-8")
            read = {name for path in READ.findall(source) for name in path.split("/")}
            told = {name for row in section.rows if row.kind != "nothing" for name in row.path.split("/")}
            with self.subTest(title):
                self.assertGreater(len(read), 6)
                self.assertEqual(told, read)

    def test_the_page_names_members_of_the_readers(self):
        for section in sections().values():
            reference = (PROJECT / "docs" / "reference" / f"{section.reader}.md").read_text(encoding="utf-8")
            for row in section.rows:
                self.assertTrue(row.kind == "nothing" or f"| `{row.member}` |" in reference, row)

    def test_the_schemas_have_the_elements_of_the_page_and_no_others(self):
        elements = {}
        for path in SCHEMAS.glob("*.xsd"):
            root = etree.parse(path).getroot()
            for element in root.iterchildren(f"{XSD}element"):
                elements[f"{{{root.get('targetNamespace')}}}{element.get('name')}"] = element
        found, unused = set(), set(elements)

        def walk(name, path):
            unused.discard(name)
            held = [element for element in elements[name].iter(f"{XSD}element") if element.get("ref")]
            for element in held:
                child = name_of(element.get("ref"))
                walk(child, [*path, child])
            if not held:
                found.add("/".join(path))

        walk(name_of("lejis:RMSIncidentIndexCard"), [])
        self.assertEqual(found, {"/".join(map(name_of, path.split("/"))) for path in values()})
        self.assertEqual(unused, set())


if __name__ == "__main__":
    unittest.main()
