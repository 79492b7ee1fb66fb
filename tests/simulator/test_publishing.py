"""The WSDL and the schemas as clients fetch them."""

import tempfile
import unittest
from pathlib import Path

from lxml import etree

import documents
from documents import FULL, NAMES
from simulator_case import SimulatorCase

from lejis.namespaces import SCHEMAS_PATH, SUBMISSION_PATH, WSDL, XSD, Namespaces
from lejis.schema_set import SchemaSet

PATHS = {"wsdl": WSDL, "xsd": XSD, "sb": "http://schemas.xmlsoap.org/wsdl/soap/"}


class PublishingTest(SimulatorCase):
    """What is served is what the simulator validates with."""

    def wsdl(self, host: str | None = None) -> etree._Element:
        headers = {"Host": host} if host else {}
        status, body = self.call("GET", SUBMISSION_PATH + "?wsdl", headers=headers)
        self.assertEqual(200, status)
        return etree.fromstring(body)

    def location(self, root: etree._Element) -> str:
        (found,) = root.xpath("/wsdl:definitions/wsdl:types/xsd:schema/xsd:include/@schemaLocation",
                              namespaces=PATHS)
        return found

    def test_wsdl_leads_to_the_schema(self) -> None:
        root = self.wsdl()
        (schema,) = root.findall("wsdl:types/xsd:schema", PATHS)
        self.assertEqual(NAMES.service, schema.get("targetNamespace"))
        self.assertEqual(f"http://127.0.0.1:{self.port}{SCHEMAS_PATH}lejis-service.xsd",
                         self.location(root))
        self.assertEqual([NAMES.submit_action], root.xpath("//@soapAction"))
        self.assertEqual(f"http://127.0.0.1:{self.port}{SUBMISSION_PATH}",
                         root.find(".//sb:address", PATHS).get("location"))
        self.assertNotIn(b"@", etree.tostring(root))

    def test_wsdl_speaks_of_the_host_that_was_asked(self) -> None:
        self.assertEqual("http://records:8080" + SCHEMAS_PATH + "lejis-service.xsd",
                         self.location(self.wsdl("records:8080")))

    def test_wsdl_repeats_no_markup_from_the_host_header(self) -> None:
        status, _ = self.call("GET", SUBMISSION_PATH + "?wsdl", headers={"Host": 'a"/><b c="'})
        self.assertEqual(400, status)

    def test_schemas_are_the_files_on_disk_and_work_from_there(self) -> None:
        folder = Path(tempfile.mkdtemp(dir=self.data))
        for name in ("lejis-service.xsd", "card.xsd", "ext.xsd", "jxdm.xsd", "refusing.xsd"):
            status, body = self.call("GET", SCHEMAS_PATH + name)
            self.assertEqual(200, status)
            self.assertEqual((self.data / "schemas" / name).read_bytes(), body)
            self.assertNotIn(b"@", body)
            (folder / name).write_bytes(body)
        payload = documents.payload(etree.fromstring(FULL))
        self.assertTrue(etree.XMLSchema(file=str(folder / "lejis-service.xsd")).validate(payload))
        self.assertFalse(etree.XMLSchema(file=str(folder / "refusing.xsd")).validate(payload))

    def test_schemas_import_without_folders_and_include_nothing(self) -> None:
        for file in (self.data / "schemas").glob("*.xsd"):
            root = etree.parse(file).getroot()
            self.assertIsNone(root.find(f"{{{XSD}}}include"))
            for location in root.xpath("xsd:import/@schemaLocation", namespaces=PATHS):
                self.assertRegex(location, r"^[a-z-]+\.xsd$")

    def test_other_names_are_not_served(self) -> None:
        for name in ("", "other.xsd", "submission.wsdl", "../index.sqlite",
                     "..%2findex.sqlite", "/etc/hostname"):
            with self.subTest(name=name):
                self.assertEqual(404, self.call("GET", SCHEMAS_PATH + name)[0])

    def test_addresses_and_methods(self) -> None:
        for method, path, expected in (
                ("GET", SUBMISSION_PATH, 405), ("PUT", SUBMISSION_PATH, 405),
                ("GET", SUBMISSION_PATH + "?WSDL", 200), ("POST", SCHEMAS_PATH + "card.xsd", 405),
                ("HEAD", SUBMISSION_PATH, 405), ("BREW", SUBMISSION_PATH, 405),
                ("GET", "/nowhere", 404), ("POST", "/lejis-core-Rev01/services/other", 404)):
            with self.subTest(method=method, path=path):
                body = None if method == "GET" else b""
                self.assertEqual(expected, self.call(method, path, body)[0])

    def test_other_lejis_host(self) -> None:
        names = Namespaces("core.lejis.test")
        schemas = SchemaSet(self.data / "other", names)
        body = FULL.replace(b"lejis.example", b"core.lejis.test")
        self.assertEqual([], schemas.errors(etree.fromstring(body)[0][0]))
        self.assertNotEqual([], schemas.errors(documents.payload(etree.fromstring(FULL))))

    def test_lejis_host_must_be_a_host(self) -> None:
        for host in ("", "a b", "a/b", 'a"', "-a"):
            with self.subTest(host=host), self.assertRaises(ValueError):
                Namespaces(host)


if __name__ == "__main__":
    unittest.main()
