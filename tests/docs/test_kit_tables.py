"""The kit tries the points that docs/proof.md says only Windows can prove: all of them, under their own titles."""
import re
import unittest

from type_library import PROJECT

KIT = PROJECT / "tools" / "packaging" / "kit"
HEADING = "## Only Windows can prove\n"


def table(name):
    lines = [line.split("\t") for line in (KIT / name).read_text(encoding="utf-8").splitlines()
             if line and not line.startswith("#")]
    return [dict(zip(lines[0], line, strict=True)) for line in lines[1:]]


def points():
    """Number and title of each point of the list: its bold words."""
    text = (PROJECT / "docs" / "proof.md").read_text(encoding="utf-8")
    section = text.partition(HEADING)[2].partition("\n## ")[0]
    return [(number, " ".join(title.split()).rstrip("."))
            for number, title in re.findall(r"^(\d+)\. \*\*(.*?)\*\*", section, re.MULTILINE | re.DOTALL)]


class TablesTest(unittest.TestCase):
    def test_the_points_are_those_of_the_page(self):
        self.assertGreater(len(points()), 8)
        self.assertEqual([(row["number"], row["title"]) for row in table("rows.tsv")], points())

    def test_a_point_names_runs_that_there_are_or_what_is_left_to_a_person(self):
        known = {row["name"] for row in table("runs.tsv")}
        known |= {path.name for path in (PROJECT / "tests" / "client" / "scripts").glob("*.vbs")}
        for row in table("rows.tsv"):
            with self.subTest(row["title"]):
                runs = set() if row["runs"] == "-" else set(row["runs"].split(","))
                self.assertEqual(runs - known, set())
                self.assertTrue(runs or row["by hand"] != "-")

    def test_a_point_needs_the_simulator_when_one_of_its_runs_does(self):
        needy = {row["name"] for row in table("runs.tsv") if row["needs"] == "simulator"}
        for row in table("rows.tsv"):
            self.assertEqual(row["simulator"], "yes" if needy & set(row["runs"].split(",")) else "no", row)

    def test_what_fails_under_wine_is_of_a_point(self):
        of_points = {name for row in table("rows.tsv") for name in row["runs"].split(",")}
        failing = {row["name"] for row in table("runs.tsv") if row["wine"] != "passed"}
        self.assertEqual(failing - of_points, set())


if __name__ == "__main__":
    unittest.main()
