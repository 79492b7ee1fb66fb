"""The version that stands by hand in pages and texts is that of the project."""
import re
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
PACKAGE = re.compile(r"TVLejisCore-(\d[\d.]*)-")
SYSTEM_VERSION = re.compile(r"<ext:systemVersion>([^<]*)</ext:systemVersion>")
CHANGE = re.compile(r"^## (\d[\d.]*)", re.MULTILINE)


def version():
    text = (PROJECT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(TVLejisCore VERSION ([\d.]+)", text)[1]


def pages():
    return {path.relative_to(PROJECT): path.read_text(encoding="utf-8") for path in PROJECT.rglob("*.md")
            if PROJECT / "build" not in path.parents}


class VersionTest(unittest.TestCase):
    def check(self, pattern, fewest):
        found = [(path, text) for path, page in pages().items() for text in pattern.findall(page)]
        self.assertGreaterEqual(len(found), fewest)
        self.assertEqual([one for one in found if one[1] != version()], [])

    def test_packages_are_named_by_it(self):
        self.check(PACKAGE, 7)

    def test_exchanges_are_shown_with_it(self):
        self.check(SYSTEM_VERSION, 2)

    def test_it_is_the_first_of_the_changes(self):
        changes = CHANGE.findall((PROJECT / "CHANGELOG.md").read_text(encoding="utf-8"))
        self.assertEqual(changes[0], version())


if __name__ == "__main__":
    unittest.main()
