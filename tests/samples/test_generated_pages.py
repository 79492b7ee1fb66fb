"""The pages of docs/ that are made with the library are those that it makes now."""
import os
import subprocess
import unittest

from sample_case import PROJECT, SampleCase

TIME_LIMIT = 120


class GeneratedPagesTest(SampleCase):
    def setUp(self):
        super().setUp()
        # A simulator of its own: the exchanges are counted.
        subprocess.run([PROJECT / "tests" / "support" / "with_simulator.sh", PROJECT / "tools" / "docs" / "generate.sh",
                        os.environ["LEJIS_ARCHITECTURE"], self.folder], check=True, timeout=TIME_LIMIT)

    def test_they_are_up_to_date(self):
        kept = {path.relative_to(PROJECT / "docs") for path in (PROJECT / "docs" / "reference").iterdir()}
        made = {path.relative_to(self.folder) for path in (self.folder / "reference").iterdir()}
        self.assertEqual(sorted(kept), sorted(made), "./docs.sh makes them anew")
        for page in sorted(made) + ["roads.md"]:
            with self.subTest(page):
                self.assertEqual((PROJECT / "docs" / page).read_text(encoding="utf-8"),
                                 (self.folder / page).read_text(encoding="utf-8"), "./docs.sh makes them anew")


if __name__ == "__main__":
    unittest.main()
