"""ctest knows the test programs by the rings of test.sh. Nothing is run but the listing."""
import json
import subprocess
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
RINGS = {"unit_tests": "unit", "lejis_tests": "unit", "client_tests": "client", "end_to_end_tests": "end-to-end"}


def tests_of(folder):
    listing = subprocess.run(["ctest", "--test-dir", folder, "--show-only=json-v1"], capture_output=True, text=True,
                             timeout=60, check=True).stdout
    return json.loads(listing)["tests"]


def labels_of(test):
    return next(entry["value"] for entry in test["properties"] if entry["name"] == "LABELS")


class CtestRingsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # The folder that was configured last; the other one may be of an older state of the sources.
        builds = [PROJECT / "build" / name / "build.ninja" for name in ("x86", "x64")]
        cls.folder = max((file for file in builds if file.exists()), key=lambda file: file.stat().st_mtime).parent

    def test_every_program_is_listed_with_its_ring(self):
        self.assertEqual({test["name"]: labels_of(test) for test in tests_of(self.folder)},
                         {name: [ring] for name, ring in RINGS.items()})

    def test_a_ring_runs_the_program_of_its_own_folder_under_wine(self):
        runner = PROJECT / "tests" / "suite" / "program.sh"
        self.assertTrue(runner.exists())
        for test in tests_of(self.folder):
            with self.subTest(test["name"]):
                self.assertEqual(test["command"][:3], [str(runner), self.folder.name, test["name"]])


if __name__ == "__main__":
    unittest.main()
