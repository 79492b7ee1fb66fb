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
import documents
import forget_time_of_type_library
import installer_rows
import manifests
import package as packaging

OBJDUMP = {"x86": "i686-w64-mingw32-objdump", "x64": "x86_64-w64-mingw32-objdump"}
INCIDENT_FORMAT = {"docs/incident-format.html", *(f"docs/incident-format/{name}.xsd"
                                                for name in ("incident", "card", "extra", "jxdm"))}
INSTALLED = {"TVLejisCore.dll", "lejis.exe", "README.txt", "LICENSE.txt", "CHANGELOG.html", "TVLejisCore.spdx.json",
             "docs/index.html", "docs/installing.html", "docs/getting-started-windows.html", "docs/messages.html",
             "docs/reference/LejisSearchWebService.html", "samples/README.html", "samples/incidents/burglary.xml",
             "samples/vbscript/submit.vbs", "samples/cpp/early_bound.cpp", "sdk/TVLejisCore.tlb", "sdk/TVLejisCore.idl",
             "sdk/model/Model.idl", "sdk/TVLejisCore.h", *INCIDENT_FORMAT}
ONLY_IN_ZIP = {"register.cmd", "unregister.cmd", "registration-free/Talvex.TVLejisCore.manifest",
               "registration-free/lejis.exe.manifest"}
# For those who have the sources.
IN_NO_PACKAGE = {"docs/architecture.html", "docs/fuzzing.html", "docs/getting-started.html", "samples/run.sh",
                 "README.md"}
BINARY = (".dll", ".exe", ".tlb", ".manifest")


def project_version():
    """The version in the one place that states it."""
    text = (PROJECT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(TVLejisCore VERSION ([\d.]+)", text)[1]


def windows_version():
    """Where Windows demands four numbers."""
    major, minor, revision = project_version().split(".")
    return f"{major}.{minor}.0.{revision}"


def content(path):
    with zipfile.ZipFile(path) as opened:
        return {name.partition("/")[2]: opened.read(name) for name in opened.namelist()}


def file_version(program):
    """The file version of the version resource: four numbers after its signature and format."""
    numbers = struct.unpack_from("<4H", program, program.index(b"\xbd\x04\xef\xfe") + 8)
    return ".".join(str(numbers[i]) for i in (1, 0, 3, 2))


def shown_versions(program):
    """The texts of the version resource that are a version."""
    text = program.decode("utf-16-le", "ignore")
    return re.findall(r"(?:FileVersion|ProductVersion)\0+([\d.]+)\0", text)


def msi_property(path, name):
    return {row["Property"]: row["Value"] for row in installer_rows.rows(path, "Property")}[name]


class ContentTest(PackageCase):
    @for_each_architecture
    def test_the_zip_holds_what_people_need(self, architecture):
        files = set(content(package(architecture, ".zip")))
        self.assertLessEqual(INSTALLED | ONLY_IN_ZIP, files)
        self.assertEqual(IN_NO_PACKAGE & files, set())

    @for_each_architecture
    def test_the_schemas_describe_the_samples(self, architecture):
        folder = self.unpack(architecture)
        schema = etree.XMLSchema(etree.parse(folder / "docs" / "incident-format" / "incident.xsd"))
        samples = list((folder / "samples" / "incidents").glob("*.xml"))
        self.assertGreater(len(samples), 5)
        for path in samples:
            self.assertTrue(schema.validate(etree.parse(path)), (path.name, schema.error_log))

    @for_each_architecture
    def test_the_installer_brings_what_the_zip_holds_but_scripts_and_manifests(self, architecture):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run(["msiextract", "-C", folder, package(architecture, ".msi")], capture_output=True, check=True)
            root, = Path(folder).rglob("TVLejisCore")
            installed = {path.relative_to(root).as_posix(): path.read_bytes() for path in root.rglob("*")
                         if path.is_file()}
        zipped = content(package(architecture, ".zip"))
        self.assertEqual({name: text for name, text in zipped.items() if name not in ONLY_IN_ZIP}, installed)

    def test_what_names_the_host_has_that_of_the_library(self):
        members = documents.for_people("1.2.3", "lejis.state.example")
        names = {*INCIDENT_FORMAT, *(name for name in members if name.startswith("samples/incidents/")
                                     and name.endswith(".xml"))} - {"docs/incident-format/jxdm.xsd"}
        self.assertGreater(len(names), 8)
        for name in names:
            self.assertIn(b"http://lejis.state.example/lejis/jxdm/1.0/", members[name], name)
            self.assertNotIn(b"//lejis.example", members[name], name)

    @for_each_architecture
    def test_texts_have_the_lines_of_windows_and_no_placeholder(self, architecture):
        texts = {name: text for name, text in content(package(architecture, ".zip")).items()
                 if not name.endswith(BINARY)}
        self.assertGreater(len(texts), 90)
        for name, text in texts.items():
            self.assertEqual(text.count(b"\n"), text.count(b"\r\n"), name)
            self.assertNotRegex(text, rb"@[A-Z]+@", name)

    @for_each_architecture
    def test_the_type_library_and_the_header_can_be_made_of_the_idl(self, architecture):
        folder = self.unpack(architecture) / "sdk"
        tool = OBJDUMP[architecture].replace("objdump", "widl")
        version = ".".join(project_version().split(".")[:2])
        headers = packaging.cached(architecture, "WINE_WINDOWS_HEADERS")
        wine_libraries = Path(packaging.cached(architecture, "STDOLE2_TLB")).parent
        command = [tool, f"-DLIBRARY_VERSION={version}", f"-I{headers}", f"-L{wine_libraries}", "-I."]
        (folder / "made").mkdir()
        for options in (["-t", "-o", "made/TVLejisCore.tlb"], ["-h", "-H", "made/TVLejisCore.h"]):
            subprocess.run([*command, *options, "TVLejisCore.idl"], cwd=folder, check=True)
        library = forget_time_of_type_library.without_time((folder / "made" / "TVLejisCore.tlb").read_bytes())
        self.assertEqual(library, (folder / "TVLejisCore.tlb").read_bytes())
        self.assertEqual((folder / "made" / "TVLejisCore.h").read_text(encoding="utf-8").splitlines(),
                         (folder / "TVLejisCore.h").read_text(encoding="utf-8").splitlines())

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
        guide = content(package(architecture, ".zip"))["docs/installing.html"].decode()
        self.assertIn("made for the LEJIS host <code>lejis.example</code>", guide)
        self.assertEqual(msi_property(package(architecture, ".msi"), "LEJISHOST"), "lejis.example")
        self.assertEqual(msi_property(package(architecture, ".msi"), "ProductName"),
                         f"TVLejisCore ({BITS[architecture]}-bit)")

    @for_each_architecture
    def test_packages_for_another_host_name_it_outside_too(self, architecture):
        host = "core.lejis.test"
        description = PROJECT / "build" / architecture / "packaging" / "type_library.tsv"
        with tempfile.TemporaryDirectory() as folder, mock.patch.object(packaging, "lejis_host", lambda _: host):
            packaging.main(architecture, description, folder)
            name = f"TVLejisCore-{project_version()}-{host}-{architecture}"
            self.assertEqual({path.name for path in Path(folder).iterdir()},
                             {f"{name}.zip", f"{name}-symbols.zip", f"{name}.msi"})
            installer = Path(folder, f"{name}.msi")
            self.assertEqual(msi_property(installer, "LEJISHOST"), host)
            self.assertEqual(msi_property(installer, "ProductName"),
                             f"TVLejisCore for {host} ({BITS[architecture]}-bit)")
            guide = content(Path(folder, f"{name}.zip"))["docs/installing.html"].decode()
            self.assertIn(f"made for the LEJIS host <code>{host}</code>", guide)

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
        self.assertEqual(path.name, f"TVLejisCore-{project_version()}-{architecture}.zip")
        for name in ("TVLejisCore.dll", "lejis.exe"):
            self.assertEqual(file_version(files[name]), windows_version(), name)
            self.assertEqual(shown_versions(files[name]), [project_version()] * 2, name)
        self.assertIn(f"TVLejisCore {project_version()},", files["README.txt"].decode())
        self.assertIn(f">TVLejisCore {project_version()}<", files["docs/index.html"].decode())
        self.assertIn(f">{project_version()}, ", files["CHANGELOG.html"].decode())
        self.assertEqual(msi_property(package(architecture, ".msi"), "ProductVersion"), project_version())
        self.check_manifests(files)

    def check_manifests(self, files):
        library = ElementTree.fromstring(files[f"registration-free/{manifests.ASSEMBLY}.manifest"])
        program = ElementTree.fromstring(files["registration-free/lejis.exe.manifest"])
        space = "{%s}" % manifests.NAMESPACE
        identities = [*library.iter(space + "assemblyIdentity"), *program.iter(space + "assemblyIdentity")]
        self.assertEqual([identity.get("version") for identity in identities], [windows_version()] * 3)
        major_and_minor = ".".join(project_version().split(".")[:2])
        self.assertEqual([one.get("version") for one in library.iter(space + "typelib")], [major_and_minor])

    @for_each_architecture
    def test_the_programs_say_it_too(self, architecture):
        self.install(architecture)
        document = self.lejis(installed_folder(architecture), "--version")
        self.assertEqual((document["lejis"], document["library"]["version"]), (project_version(), project_version()))


if __name__ == "__main__":
    unittest.main()
