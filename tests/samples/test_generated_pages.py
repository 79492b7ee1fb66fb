"""The pages of docs/ that are made with the library, and its declarations for C#, are those that it makes now."""
import os
import subprocess
import unittest

from sample_case import PROJECT, SAMPLES, SampleCase

TIME_LIMIT = 120
FOLDERS = ("reference", "incident-format")
PAGES = ("incident-format.md", "roads.md")


class GeneratedPagesTest(SampleCase):
    def setUp(self):
        super().setUp()
        # A simulator of its own: the exchanges are counted.
        subprocess.run([PROJECT / "tests" / "support" / "with_simulator.sh", PROJECT / "tools" / "docs" / "generate.sh",
                        os.environ["LEJIS_ARCHITECTURE"], self.folder], check=True, timeout=TIME_LIMIT)

    def test_they_are_up_to_date(self):
        kept, made = (sorted(path.relative_to(folder) for name in FOLDERS for path in (folder / name).iterdir())
                      for folder in (PROJECT / "docs", self.folder))
        self.assertEqual(kept, made, "./docs.sh makes them anew")
        for page in [*made, *PAGES]:
            with self.subTest(page):
                self.assertEqual((PROJECT / "docs" / page).read_text(encoding="utf-8"),
                                 (self.folder / page).read_text(encoding="utf-8"), "./docs.sh makes them anew")
        self.assertEqual((SAMPLES / "csharp" / "TVLejisCore.cs").read_text(encoding="utf-8"),
                         (self.folder / "TVLejisCore.cs").read_text(encoding="utf-8"), "./docs.sh makes it anew")


if __name__ == "__main__":
    unittest.main()
