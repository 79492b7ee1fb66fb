"""The sample incidents are what their README says."""
import os
import unittest

from lejis_case import DONE, REFUSED, SAMPLES, SimulatorCase

# Persons, vehicles, property.
ACCEPTED = {
    "burglary": (2, 0, 3),
    "domestic-dispute": (3, 0, 1),
    "international": (4, 0, 1),
    "large": (50, 6, 8),
    "many-warnings": (2, 1, 1),
    "vehicle-theft": (2, 2, 1),
}


class SampleTest(SimulatorCase):
    def submit(self, name):
        return self.expect(DONE, "submit", SAMPLES / f"{name}.xml", "--url", self.url, "--validate-schema",
                           folder=os.environ["LEJIS_SIMULATOR_SCHEMAS"])

    def test_every_file_is_known_here_and_in_the_readme(self):
        files = {path.stem for path in SAMPLES.glob("*.xml")}
        self.assertEqual(files, {*ACCEPTED, "refused"})
        readme = (SAMPLES / "README.md").read_text(encoding="utf-8")
        for name in files:
            self.assertIn(f"`{name}.xml`", readme)

    def test_accepted_ones_pass_all_schemas_and_arrive_whole(self):
        for name, numbers in ACCEPTED.items():
            with self.subTest(name):
                self.control("DELETE", "index")
                self.submit(name)
                incident, = self.index()
                self.assertEqual((incident["persons"], incident["vehicles"], incident["property"]), numbers)
        verdicts = [exchange["valid"] for exchange in self.exchanges() if exchange["valid"] is not None]
        self.assertEqual(verdicts, [True] * len(ACCEPTED))

    def test_only_one_has_warnings(self):
        for name in ACCEPTED:
            output = self.expect(DONE, "check", SAMPLES / f"{name}.xml")
            warnings = [line for line in output.splitlines() if line.startswith("  \u2022 ")]
            if name == "many-warnings":
                self.assertGreaterEqual(len(set(warnings)), 8)
            else:
                self.assertEqual(warnings, [], name)

    def test_refused(self):
        output = self.expect(REFUSED, "check", SAMPLES / "refused.xml")
        for word in ("ORI number", "ZIP code", "SSN", "DOB cannot be in the future", "Caution information"):
            self.assertIn(word, output)

    def test_international_arrives_as_it_is_written(self):
        self.submit("international")
        index_card = self.control("GET", "index/card?ori=PA0990400&id=2024-000612")
        for text in ("NÚÑEZ IBÁÑEZ", "ŁUKASZ", "ШЕВЧЕНКО", "\U00020bb7田", "Straße der Einheit", "“más despacio”",
                     "Θερμοκρασία"):
            self.assertIn(text, index_card)


if __name__ == "__main__":
    unittest.main()
