"""What the tests of the packages share. They need in their environment

    LEJIS_PACKAGES            the folder of the packages
    LEJIS_ARCHITECTURES       x86, x64 or both
    LEJIS_SIMULATOR_URL       a running simulator
    LEJIS_SIMULATOR_SCHEMAS   the folder of its schemas
    WINEPREFIX                a Wine prefix in which nothing of the library is registered
"""
import functools
import json
import os
import shutil
import sys
import unittest
import zipfile
from pathlib import Path

import wine_machine as machine

PROJECT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / "tools" / "packaging"), str(PROJECT / "cmake")]

PACKAGES = Path(os.environ["LEJIS_PACKAGES"])
ARCHITECTURES = os.environ["LEJIS_ARCHITECTURES"].split()
SERVICES = os.environ["LEJIS_SIMULATOR_URL"] + "/lejis-core-Rev01/services"
SUBMISSION_URL, SEARCH_URL = f"{SERVICES}/submission", f"{SERVICES}/search"
PROGRAM_FOLDERS = {"x86": "Program Files (x86)", "x64": "Program Files"}
BITS = {"x86": 32, "x64": 64}


def package(architecture, end):
    (path,) = PACKAGES.glob(f"TVLejisCore-[0-9.]*-{architecture}{end}")
    return path


def installed_folder(architecture):
    return machine.DISK / PROGRAM_FOLDERS[architecture] / "Talvex" / "TVLejisCore"


def for_each_architecture(test):
    """Makes a test of one bitness one of all that were packed."""
    @functools.wraps(test)
    def run(self):
        for architecture in ARCHITECTURES:
            with self.subTest(architecture):
                test(self, architecture)
    return run


class PackageCase(unittest.TestCase):
    maxDiff = None

    def expect(self, *command, **options):
        run = machine.run(*command, **options)
        self.assertEqual(run.code, 0, (command, run))
        return run.output

    def unpack(self, architecture):
        """The zip's content, in a folder of the prefix with a blank in its name."""
        folder = machine.DISK / f"lejis {architecture}"
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        with zipfile.ZipFile(package(architecture, ".zip")) as archive:
            archive.extractall(folder)
        (content,) = folder.iterdir()
        return content

    def expect_same(self, before):
        """Nothing of the machine is other than in that picture."""
        different = sorted(machine.picture() ^ before)
        self.assertEqual(different[:20], [], f"{len(different)} entries are different")

    def msiexec(self, *arguments):
        self.expect(machine.MSIEXEC, *arguments, "/qn")

    def install(self, architecture, *choices):
        path = package(architecture, ".msi")
        self.addCleanup(machine.run, machine.MSIEXEC, "/x", machine.windows_path(path), "/qn")
        self.msiexec("/i", machine.windows_path(path), *choices)
        return path

    def lejis(self, folder, *arguments, code=0):
        """The document that lejis prints, or the line that sums up, with the library of this folder."""
        run = machine.run(machine.windows_path(folder / "lejis.exe"), *arguments, "--json",
                          folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])
        document = json.loads(run.output.splitlines()[-1] if arguments[0] == "submit" else run.output)
        self.assertEqual((run.code, document["exitCode"]), (code, code), run)
        return document

    def check_use(self, folder):
        """Submits an incident through the library of this folder and of no other."""
        self.assertEqual(self.lejis(folder, "--version")["library"]["file"].lower(),
                         machine.windows_path(folder / "TVLejisCore.dll").lower())
        incident = machine.windows_path(PROJECT / "samples" / "incidents" / "burglary.xml")
        submitted = self.lejis(folder, "submit", incident, "--url", SUBMISSION_URL, "--validate-schema")
        self.assertEqual(submitted["counts"]["done"], 1, submitted)

    def check_absence(self, folder):
        """The program beside the library finds no library."""
        self.assertIsNone(self.lejis(folder, "--version")["library"])
