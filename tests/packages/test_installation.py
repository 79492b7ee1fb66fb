"""The packages are installed, used and uninstalled; nothing of them stays behind."""
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

import wine_machine as machine
from package_case import (ARCHITECTURES, BITS, PROJECT, SEARCH_URL, PackageCase, for_each_architecture,
                          installed_folder, package)

import installer_source
import manifests
import package as packaging
import type_library

GUID = re.compile(r"\{[0-9A-F-]{36}\}")


def other_bitness_interface(entry, architecture):
    """The system registers the interfaces of a type library for both bitnesses when a DLL registers itself."""
    wow64 = "Wow6432Node\\\\Interface\\\\"
    return entry.startswith("Interface\\\\" if architecture == "x86" else wow64)


def comparable(entries, folder):
    """Without the folder, its spelling and the backslash at its end."""
    written = re.escape(machine.windows_path(folder).replace("\\", "\\\\"))
    return {re.sub(written + r'(\\\\)?("?)', r"FOLDER\2", entry, flags=re.IGNORECASE) for entry in entries}


class InstallationTest(PackageCase):
    @for_each_architecture
    def test_scripts_and_installer_register_alike_and_leave_nothing_behind(self, architecture):
        folder = self.unpack(architecture)
        before = machine.picture()
        by_scripts = self.classes_of_scripts(architecture, folder, before)
        by_installer = self.classes_of_installer(architecture, before)
        self.assertGreater(len(by_installer), 500)
        self.assertEqual(by_scripts ^ by_installer, set())

    def classes_of_scripts(self, architecture, folder, before):
        self.check_absence(folder)
        self.assertIn("is registered", self.expect("cmd", "/c", machine.windows_path(folder / "register.cmd")))
        self.check_use(folder)
        entries = machine.class_entries(before, machine.picture())
        self.expect("cmd", "/c", machine.windows_path(folder / "unregister.cmd"))
        self.expect_same(before)
        self.check_absence(folder)
        return {entry for entry in comparable(entries, folder) if not other_bitness_interface(entry, architecture)}

    def classes_of_installer(self, architecture, before):
        folder = installed_folder(architecture)
        path = self.install(architecture)
        self.check_use(folder)
        entries = machine.class_entries(before, machine.picture())
        self.msiexec("/x", machine.windows_path(path))
        self.expect_same(before)
        return comparable(entries, folder)

    def test_the_scripts_say_when_they_fail(self):
        folder = self.unpack(ARCHITECTURES[0])
        (folder / "TVLejisCore.dll").unlink()
        for script in ("register.cmd", "unregister.cmd"):
            run = machine.run("cmd", "/c", machine.windows_path(folder / script))
            self.assertEqual(run.code, 1, run)
            self.assertIn("Run this script as administrator", run.output)

    @unittest.skipIf(len(ARCHITECTURES) < 2, "needs both bitnesses")
    def test_both_bitnesses_lie_side_by_side_and_go_one_by_one(self):
        before = machine.picture()
        paths = {architecture: self.install(architecture) for architecture in ARCHITECTURES}
        for architecture in ARCHITECTURES:
            self.check_use(installed_folder(architecture))
        found = self.lejis(installed_folder("x64"), "doctor")["findings"]
        self.assertEqual([finding["health"] for finding in found[:3]], ["ok"] * 3)
        for finding, architecture in zip(found, ("x86", "x64")):
            self.assertIn(machine.windows_path(installed_folder(architecture)), finding["text"])
        # The other one keeps what both share: the names of the classes and the type library.
        self.msiexec("/x", machine.windows_path(paths["x64"]))
        self.check_use(installed_folder("x86"))
        progid = self.expect("reg", "query", r"HKCR\TVLejisCore.NullableDate\CLSID")
        self.assertRegex(progid, GUID)
        self.msiexec("/x", machine.windows_path(paths["x86"]))
        self.expect_same(before)

    @for_each_architecture
    def test_an_upgrade_takes_the_place_of_the_older_version(self, architecture):
        newer = machine.windows_path(self.newer_installer(architecture))
        before = machine.picture()
        self.install(architecture)
        self.addCleanup(machine.run, machine.MSIEXEC, "/x", newer, "/qn")
        self.msiexec("/i", newer)
        self.check_use(installed_folder(architecture))
        self.assertEqual(self.installed_versions(architecture), ["99.0.1"])
        self.msiexec("/x", newer)
        self.expect_same(before)

    def test_an_older_version_does_not_take_the_place_of_a_newer_one(self):
        architecture = ARCHITECTURES[0]
        newer = machine.windows_path(self.newer_installer(architecture))
        # Not by an upgrade: Wine forgets what a product can be upgraded by when an older one goes.
        self.addCleanup(machine.run, machine.MSIEXEC, "/x", newer, "/qn")
        self.msiexec("/i", newer)
        older = machine.windows_path(package(architecture, ".msi"))
        self.assertNotEqual(machine.run(machine.MSIEXEC, "/i", older, "/qn").code, 0)
        self.assertEqual(self.installed_versions(architecture), ["99.0.1"])

    def installed_versions(self, architecture):
        """The versions that "Apps and features" lists."""
        installed = self.expect("reg", "query", r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall", "/s",
                                f"/reg:{BITS[architecture]}")
        return re.findall(r"DisplayVersion +REG_SZ +(\S+)", installed)

    def test_a_newer_version_that_fails_leaves_the_older_one_as_it_was(self):
        architecture = ARCHITECTURES[0]
        newer = self.newer_installer(architecture)
        # An error at the begin of what changes the machine. Once files have been copied, Wine's rollback removes them
        # where Windows puts the older ones back.
        subprocess.run(["msibuild", newer,
                        "-q", "INSERT INTO `CustomAction` (`Action`, `Type`, `Target`) "
                              "VALUES ('Fail', 19, 'This fails.')",
                        "-q", "INSERT INTO `InstallExecuteSequence` (`Action`, `Sequence`) VALUES ('Fail', 1510)"],
                       check=True)
        self.install(architecture)
        before = machine.picture()
        self.assertNotEqual(machine.run(machine.MSIEXEC, "/i", machine.windows_path(newer), "/qn").code, 0)
        self.expect_same(before)
        self.check_use(installed_folder(architecture))

    def newer_installer(self, architecture):
        folder = tempfile.mkdtemp(dir=machine.DISK / "users")
        self.addCleanup(shutil.rmtree, folder)
        description = PROJECT / "build" / architecture / "packaging" / "type_library.tsv"
        output = Path(folder) / "newer.msi"
        version, host = "99.0.1", packaging.DEFAULT_LEJIS_HOST
        moment = 1700000000
        files = packaging.common_files(architecture, version, host, moment, packaging.programs_of(architecture))
        packaging.build_installer(type_library.read(description), architecture, version, host, files, moment, output)
        return output

    def test_the_versions_have_products_of_their_own_and_one_family(self):
        codes = {installer_source.product_code(architecture, version)
                 for architecture in BITS for version in ("1.0.0", "1.0.1")}
        self.assertEqual(len(codes), 4)
        self.assertEqual(installer_source.UPGRADE_CODES, {"x86": "5B0C4E0E-3B0D-4C7A-9D52-0B6A4C7E8E10",
                                                   "x64": "A7D9C1A5-6E36-4B0B-8E0C-6C5E7F0A2D21"})


class RegistrationFreeTest(PackageCase):
    @for_each_architecture
    def test_programs_with_manifests_use_an_unregistered_library(self, architecture):
        folder = self.unpack(architecture)
        self.check_absence(folder)
        client = self.put_manifests(architecture, folder)
        before = machine.picture()
        self.check_use(folder)
        self.check_what_is_found(architecture, folder)
        for word in ("object", "name"):
            self.expect(client, word)
        self.expect_same(before)
        # Wine registers a type library that it finds by a manifest; what takes it out is the library's own way.
        for word in ("proxy", "library"):
            self.expect(client, word)
        for script in ("register.cmd", "unregister.cmd"):
            self.expect("cmd", "/c", machine.windows_path(folder / script))
        self.expect_same(before)

    @staticmethod
    def put_manifests(architecture, folder):
        """Beside lejis and another client; returns that one."""
        source = folder / "registration-free"
        for name in (f"{manifests.ASSEMBLY}.manifest", "lejis.exe.manifest"):
            shutil.copy(source / name, folder)
        client = shutil.copy(PROJECT / "build" / architecture / "tests" / "registration_free_client.exe", folder)
        shutil.copy(source / "lejis.exe.manifest", f"{client}.manifest")
        return client

    def check_what_is_found(self, architecture, folder):
        findings = self.lejis(folder, "doctor")["findings"]
        texts = {finding["subject"]: finding["text"] for finding in findings}
        self.assertIn("without registration", texts["Library in use"])
        self.assertIn("not registered", texts[f"{BITS[architecture]}-bit library"])
        # A search is answered by an event.
        found = self.lejis(folder, "search", "--zip", "17098", "--user", "u", "--url", SEARCH_URL)
        self.assertEqual(len(found["incidents"]), 1)


if __name__ == "__main__":
    unittest.main()
