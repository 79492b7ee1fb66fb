"""What is in the packages, and that one version is everywhere."""
import hashlib
import re
import struct
import subprocess
import tempfile
import unittest
import zipfile
from pathlib import Path
from unittest import mock
from xml.etree import ElementTree

from lxml import etree

from package_case import BITS, PACKAGES, PROJECT, PackageCase, for_each_architecture, installed_folder, package

import archive
import manifests
import package as packaging

OBJDUMP = {"x86": "i686-w64-mingw32-objdump", "x64": "x86_64-w64-mingw32-objdump"}
INCIDENT_FORMAT = {"docs/incident-format.md", *(f"docs/incident-format/{name}.xsd"
                                                for name in ("incident", "card", "extra", "jxdm"))}
IN_EVERY_ZIP = {"TVLejisCore.dll", "lejis.exe", "register.cmd", "unregister.cmd", "README.md", "docs/installing.md",
                "registration-free/Talvex.TVLejisCore.manifest", "registration-free/lejis.exe.manifest",
                "samples/incidents/burglary.xml", *INCIDENT_FORMAT}


def project_version():
    """As the one place states it."""
    text = (PROJECT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(TVLejisCore VERSION ([\d.]+)", text)[1]


def public_version():
    major, minor, _, revision = project_version().split(".")
    return f"{major}.{minor}.{revision}"


def content(path):
    with zipfile.ZipFile(path) as opened:
        return {name.partition("/")[2]: opened.read(name) for name in opened.namelist()}


def file_version(program):
    """Of the version resource: four numbers after its signature and format."""
    numbers = struct.unpack_from("<4H", program, program.index(b"\xbd\x04\xef\xfe") + 8)
    return ".".join(str(numbers[i]) for i in (1, 0, 3, 2))


def msi_property(path, name):
    table = subprocess.run(["msiinfo", "export", str(path), "Property"], capture_output=True, text=True, check=True)
    return dict(line.split("\t") for line in table.stdout.splitlines() if line.count("\t") == 1)[name]


class ContentTest(PackageCase):
    @for_each_architecture
    def test_the_zip_holds_what_people_need(self, architecture):
        self.assertLessEqual(IN_EVERY_ZIP, set(content(package(architecture, ".zip"))))

    @for_each_architecture
    def test_the_schemas_describe_the_samples(self, architecture):
        folder = self.unpack(architecture)
        schema = etree.XMLSchema(etree.parse(folder / "docs" / "incident-format" / "incident.xsd"))
        samples = list((folder / "samples" / "incidents").glob("*.xml"))
        self.assertGreater(len(samples), 5)
        for path in samples:
            self.assertTrue(schema.validate(etree.parse(path)), (path.name, schema.error_log))

    @for_each_architecture
    def test_the_installer_brings_the_incident_format(self, architecture):
        table = subprocess.run(["msiinfo", "export", str(package(architecture, ".msi")), "File"], capture_output=True,
                               text=True, check=True).stdout
        files = {line.split("\t")[0] for line in table.splitlines()}
        self.assertLessEqual({Path(name).name for name in INCIDENT_FORMAT}, files)

    def test_the_incident_format_has_the_host_of_the_library(self):
        for name, text in packaging.incident_format("lejis.state.example").items():
            self.assertIn(b"http://lejis.state.example/lejis/jxdm/1.0/" if "jxdm" not in name else b"jxdm/3.0.3", text)
            self.assertNotIn(b"//lejis.example", text)

    @for_each_architecture
    def test_scripts_have_the_lines_of_windows_and_no_placeholder(self, architecture):
        for name, text in content(package(architecture, ".zip")).items():
            if name.endswith(".cmd"):
                self.assertEqual(text.count(b"\n"), text.count(b"\r\n"))
                self.assertNotIn(b"@FOLDER@", text)

    @for_each_architecture
    def test_symbols_lie_apart_and_are_named(self, architecture):
        files = content(package(architecture, ".zip"))
        symbols = content(package(architecture, "-symbols.zip"))
        self.assertEqual(set(symbols), {"TVLejisCore.dll.debug", "lejis.exe.debug"})
        for name in ("TVLejisCore.dll", "lejis.exe"):
            self.assertNotIn(b".debug_info", files[name])
            self.assertIn(f"{name}.debug".encode(), files[name])
            self.assertIn(".debug_info", self.sections(architecture, symbols[f"{name}.debug"]))

    def sections(self, architecture, program):
        with tempfile.NamedTemporaryFile() as file:
            file.write(program)
            file.flush()
            return subprocess.run([OBJDUMP[architecture], "-h", file.name], capture_output=True, text=True,
                                  check=True).stdout

    def test_sums_match(self):
        for line in (PACKAGES / "SHA256SUMS").read_text(encoding="utf-8").splitlines():
            digest, name = line.split()
            self.assertEqual(hashlib.sha256((PACKAGES / name).read_bytes()).hexdigest(), digest, name)

    @for_each_architecture
    def test_packages_made_again_are_the_same(self, architecture):
        with tempfile.TemporaryDirectory() as folder:
            description = PROJECT / "build" / architecture / "packaging" / "type_library.tsv"
            packaging.main(architecture, description, folder)
            for path in Path(folder).iterdir():
                self.assertEqual(path.read_bytes(), (PACKAGES / path.name).read_bytes(), path.name)

    def test_archives_do_not_depend_on_the_order_of_their_files(self):
        with tempfile.TemporaryDirectory() as folder:
            one, two = Path(folder, "one"), Path(folder, "two")
            archive.write(one, {"a": b"1", "b": b"2"}, 1700000000)
            archive.write(two, {"b": b"2", "a": b"1"}, 1700000000)
            self.assertEqual(one.read_bytes(), two.read_bytes())


class LejisHostTest(PackageCase):
    @for_each_architecture
    def test_usual_packages_name_the_host_inside(self, architecture):
        guide = content(package(architecture, ".zip"))["docs/installing.md"].decode()
        self.assertIn("made for the LEJIS host `lejis.example`", guide)
        self.assertEqual(msi_property(package(architecture, ".msi"), "LEJISHOST"), "lejis.example")
        self.assertEqual(msi_property(package(architecture, ".msi"), "ProductName"),
                         f"TVLejisCore ({BITS[architecture]}-bit)")

    @for_each_architecture
    def test_packages_for_another_host_name_it_outside_too(self, architecture):
        host = "core.lejis.test"
        description = PROJECT / "build" / architecture / "packaging" / "type_library.tsv"
        with tempfile.TemporaryDirectory() as folder, mock.patch.object(packaging, "lejis_host", lambda _: host):
            packaging.main(architecture, description, folder)
            name = f"TVLejisCore-{public_version()}-{host}-{architecture}"
            self.assertEqual({path.name for path in Path(folder).iterdir()},
                             {f"{name}.zip", f"{name}-symbols.zip", f"{name}.msi"})
            installer = Path(folder, f"{name}.msi")
            self.assertEqual(msi_property(installer, "LEJISHOST"), host)
            self.assertEqual(msi_property(installer, "ProductName"), f"TVLejisCore for {host} ({BITS[architecture]}-bit)")
            guide = content(Path(folder, f"{name}.zip"))["docs/installing.md"].decode()
            self.assertIn(f"made for the LEJIS host `{host}`", guide)

    @for_each_architecture
    def test_the_programs_say_it_too(self, architecture):
        self.install(architecture)
        document = self.lejis(installed_folder(architecture), "--version")
        self.assertEqual(document["library"]["lejisHost"], packaging.lejis_host(architecture))


class VersionTest(PackageCase):
    @for_each_architecture
    def test_one_version_is_everywhere(self, architecture):
        path = package(architecture, ".zip")
        files = content(path)
        self.assertEqual(path.name, f"TVLejisCore-{public_version()}-{architecture}.zip")
        for name in ("TVLejisCore.dll", "lejis.exe"):
            self.assertEqual(file_version(files[name]), project_version(), name)
        self.assertEqual(msi_property(package(architecture, ".msi"), "ProductVersion"), public_version())
        self.check_manifests(files)

    def check_manifests(self, files):
        library = ElementTree.fromstring(files[f"registration-free/{manifests.ASSEMBLY}.manifest"])
        program = ElementTree.fromstring(files["registration-free/lejis.exe.manifest"])
        space = "{%s}" % manifests.NAMESPACE
        identities = [*library.iter(space + "assemblyIdentity"), *program.iter(space + "assemblyIdentity")]
        self.assertEqual([identity.get("version") for identity in identities], [project_version()] * 3)
        major_and_minor = ".".join(project_version().split(".")[:2])
        self.assertEqual([one.get("version") for one in library.iter(space + "typelib")], [major_and_minor])

    @for_each_architecture
    def test_the_programs_say_it_too(self, architecture):
        self.install(architecture)
        document = self.lejis(installed_folder(architecture), "--version")
        self.assertEqual((document["lejis"], document["library"]["version"]), (public_version(), public_version()))


if __name__ == "__main__":
    unittest.main()
