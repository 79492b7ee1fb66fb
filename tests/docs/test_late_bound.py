"""The samples that cannot be run here fit the type library, and so do those in JScript."""
import ast
import re
import unittest

from late_bound import LateBound, read_dotted, read_go
from type_library import PROJECT, TypeLibrary

SAMPLES = PROJECT / "samples"
# What comes out of collections, and as an event's argument.
KNOWN = {"incident": "LejisIncidentIndexCard", "person": "LejisPersonIndexCard", "incidents": "ICollection",
         "results": "ICollection"}
SUBMISSION_MEMBERS, SEARCH_MEMBERS = 30, 6
READERS = {".py": read_dotted, ".ps1": read_dotted, ".js": read_dotted, ".go": read_go}
PROGRAMS = {
    "python/submit.py": SUBMISSION_MEMBERS, "python/search.py": SEARCH_MEMBERS,
    "powershell/submit.ps1": SUBMISSION_MEMBERS, "powershell/search.ps1": SEARCH_MEMBERS - 1,
    "jscript/submit.js": SUBMISSION_MEMBERS, "jscript/search.js": SEARCH_MEMBERS,
    "go/submit/main.go": SUBMISSION_MEMBERS, "go/search/main.go": SEARCH_MEMBERS,
}
EVENTS = "_LejisSearchWebServiceEvents"
# Declared by the library, but never raised.
NEVER_RAISED = {"SearchFailed"}


class LateBoundTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.types = TypeLibrary()
        cls.events = {name: [parameter for parameter, _ in member.parameters]
                      for name, member in cls.types.members[EVENTS].items() if name not in NEVER_RAISED}

    def read(self, suffix, text):
        return LateBound(READERS[suffix](text), self.types, KNOWN)

    def test_the_samples_fit_the_type_library(self):
        for name, members in PROGRAMS.items():
            with self.subTest(name):
                path = SAMPLES / name
                sample = self.read(path.suffix, path.read_text(encoding="utf-8"))
                self.assertEqual(sample.problems, [])
                self.assertGreaterEqual(sample.members_seen, members)

    def test_mistakes_are_found(self):
        for suffix, mistake in (
                (".py", 'service = Dispatch("TVLejisCore.LejisSearchService")'),
                (".py", 'incident = Dispatch("TVLejisCore.LejisIncidentIndexCard")\nincident.Activity = 1'),
                (".py", "incident.location.City = 1"),
                (".py", "incident.SubmittedDate = now"),
                (".py", 'service = Dispatch("TVLejisCore.LejisSubmissionWebService")\n'
                        "warnings = service.SubmitIncident(incident)\nprint(warnings.Length)"),
                (".ps1", "$service = New-Object -ComObject TVLejisCore.LejisSearchService"),
                (".ps1", '$incident.Location.Town = "HARLOW"'),
                (".ps1", '"$($results.Length) found"'),
                (".js", 'var service = new ActiveXObject("TVLejisCore.Search");'),
                (".js", "incident.PersonIndexCards.Append(person);"),
                (".go", 'service := lejis.Create("LejisSearchService")'),
                (".go", 'incident.Set("SubmittedDate", 1)'),
                (".go", 'persons := incident.Object("PersonIndexCards")\npersons.Get("Length")')):
            with self.subTest(mistake):
                self.assertNotEqual(self.read(suffix, mistake).problems, [])

    def test_the_python_samples_are_python(self):
        for path in (SAMPLES / "python").glob("*.py"):
            ast.parse(path.read_text(encoding="utf-8"), path.name)

    def test_the_python_sample_hears_every_event(self):
        text = (SAMPLES / "python" / "search.py").read_text(encoding="utf-8")
        heard = {name: [parameter] for name, parameter in re.findall(r"def On(\w+)\(self, (\w+)\)", text)}
        self.assertEqual(heard, self.events)

    def test_the_jscript_sample_hears_every_event(self):
        text = (SAMPLES / "jscript" / "search.js").read_text(encoding="utf-8")
        heard = {name: [parameter] for name, parameter in re.findall(r"function service_(\w+)\((\w+)\)", text)}
        self.assertEqual(heard, self.events)

    def test_the_numbers_of_the_events_are_the_library_s(self):
        listed = {name: int(number) for number, name in self.types.numbers(EVENTS) if name not in NEVER_RAISED}
        for name, pattern in (("go/lejis/sink.go", r"^\t(\w+) += (\d)$"), ("pascal/Search.pas", r"^  (\w+) = (\d);$")):
            text = (SAMPLES / name).read_text(encoding="utf-8")
            found = {event: int(number) for event, number in re.findall(pattern, text, re.MULTILINE) if event in listed}
            with self.subTest(name):
                self.assertEqual(found, listed)
                self.assertIn(self.types.identifiers[EVENTS], text)


if __name__ == "__main__":
    unittest.main()
