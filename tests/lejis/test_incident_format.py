"""The library reads each element of docs/incident-format.md, where the page says, and none beside it."""
import re
import sys
import unittest
from xml.etree import ElementTree

from lejis_case import DONE, PROJECT, LejisCase

sys.path.insert(0, str(PROJECT / "tests" / "support"))

from incident_format import NAMESPACES, PAGE, values

ROOT = "lejis:RMSIncidentIndexCard"
REQUIRED = {
    "card:LejisIndexUid/j:OrganizationORIID/j:ID": "PA0990100",
    "card:LejisIndexUid/j:ActivityID/j:ID": "2024-1",
    "j:SubmissionSubmitter.Organization/j:OrganizationName": "Millbrook",
}
# What passes the library's checks, by how a path ends; other texts are made up.
TEXTS = {"j:ChargeNCICCode": "2202", "j:PersonSexCode": "F", "j:PersonRaceCode": "W",
         "j:LocationPostalCodeID/j:ID": "17099", "j:PersonSSNID/j:ID": "900112222"}
KINDS = {"date": "1990-02-28", "time": "22:40:00", "flag": "true", "number": "510", "year": "2004",
         "street number": "418"}


def values_of_format():
    """A value for each path; no two made-up texts are the same."""
    found = {}
    for number, (path, kind) in enumerate(values().items()):
        if kind == "nothing":
            continue
        text = next((text for end, text in TEXTS.items() if path.endswith(end)), f"text{number}")
        found[path] = REQUIRED.get(path) or KINDS.get(kind, text)
    return found


def qualified(name):
    prefix, local = name.split(":")
    return f"{{{NAMESPACES[prefix]}}}{local}"


def document(texts):
    """An incident with these texts in their places. What has the same parents stands in the same parents."""
    root = ElementTree.Element(qualified(ROOT))
    for path, text in texts.items():
        element = root
        for name in path.split("/"):
            child = element.find(qualified(name))
            element = child if child is not None else ElementTree.SubElement(element, qualified(name))
        element.text = text
    for prefix, uri in NAMESPACES.items():
        ElementTree.register_namespace(prefix, uri)
    ElementTree.indent(root)
    return ElementTree.tostring(root, encoding="utf-8")


class FormatTest(LejisCase):
    def shown(self, texts):
        """The incident of the request for a file with these texts."""
        self.write("a.xml", document(texts))
        run = self.lejis("show", "a.xml")
        request = ElementTree.fromstring(run.output.encode())
        return next(request.iter(qualified(ROOT))), run.complaint

    def text_at(self, incident, path):
        return incident.findtext("/".join(map(qualified, path.split("/"))))

    def test_a_file_with_everything_loses_nothing(self):
        texts = values_of_format()
        self.assertGreater(len(texts), 60)
        incident, complaint = self.shown(texts)
        self.assertEqual(complaint, "")
        for path, text in texts.items():
            with self.subTest(path):
                self.assertEqual(self.text_at(incident, path), text)

    def test_each_element_alone_is_read(self):
        """Takes the elements whose text is unlike all others. Flags are left out: every card writes one."""
        everything = values_of_format()
        for path, text in everything.items():
            if text.startswith("text") or path in REQUIRED:
                continue
            with self.subTest(path):
                texts = {**REQUIRED, path: text}
                if path == "j:ActivityTime":
                    texts["j:ActivityDate"] = everything["j:ActivityDate"]
                self.assertEqual(self.text_at(self.shown(texts)[0], path), text)

    def test_an_element_beside_each_is_not_read_and_named(self):
        texts = {path: text for path, text in values_of_format().items() if path not in REQUIRED}
        wrong = {f"{path}x": f"other{number}" for number, path in enumerate(texts)}
        incident, complaint = self.shown({**REQUIRED, **wrong})
        self.assertNotIn("other", ElementTree.tostring(incident, encoding="unicode"))
        named = re.findall(r"^  \u2022 Line \d+: (\S+) is not read; did you mean (\S+)\?$", complaint, re.MULTILINE)
        self.assertEqual(sorted(named), sorted((f"{name}x", name) for name in (path.split("/")[-1] for path in texts)))

    def test_the_example_of_the_page_is_fit_for_submission(self):
        example = re.search(r"```xml\n(<\?xml.*?)```", PAGE.read_text(encoding="utf-8"), re.DOTALL)[1]
        self.write("a.xml", example)
        self.assertEqual(self.expect(DONE, "check", "a.xml"), "a.xml  fit for submission\n")


if __name__ == "__main__":
    unittest.main()
