import unittest

from type_library import PROJECT, TypeLibrary
from visual_basic import VisualBasic

FOLDER = PROJECT / "samples" / "vb6"


class VisualBasicTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.types = TypeLibrary()

    def read(self, text):
        return VisualBasic("Option Explicit\n" + text, self.types)

    def test_the_module_fits_the_type_library(self):
        sample = VisualBasic((FOLDER / "LejisSubmission.bas").read_text(), self.types)
        self.assertEqual(sample.problems, [])
        self.assertGreater(sample.members_seen, 30)

    def test_the_class_fits_the_type_library(self):
        sample = VisualBasic((FOLDER / "LejisSearch.cls").read_text(), self.types)
        self.assertEqual(sample.problems, [])
        self.assertGreater(sample.members_seen, 8)
        self.assertEqual(sample.events_seen, 4)

    def test_mistakes_are_found(self):
        incident = "Dim incident As New TVLejisCore.LejisIncidentIndexCard\n"
        for mistake in (
                "Dim incident As TVLejisCore.LejisIncident",
                "Dim runnable As New TVLejisCore.IRunnable",
                "Set x = New TVLejisCore.LejisSearch",
                incident + 'incident.Activity = ""',
                incident + "incident.PersonIndexCards.Append victim",
                incident + "incident.location.City = 1",
                incident + "incident.SubmittedDate = Now",
                incident + "With incident.Location\n.Town = 1\nEnd With",
                "other.Value = 1",
                "x = tvOtherError",
                "If a Then",
                "Public Sub A()\nEnd Function",
                "Private WithEvents s As TVLejisCore.LejisSearchWebService\n"
                "Private Sub s_Completed()\nEnd Sub",
                "Private WithEvents s As TVLejisCore.LejisSearchWebService\n"
                "Private Sub s_NetworkError(ByVal reason As String)\nEnd Sub"):
            with self.subTest(mistake):
                self.assertNotEqual(self.read(mistake).problems, [])


if __name__ == "__main__":
    unittest.main()
