"""C# clients of .NET, late-bound and early-bound, and the samples in C#."""
import shutil
import tempfile
import unittest
from pathlib import Path

import dotnet
from client_case import ClientCase
from sample_case import DONE, PROJECT, SAMPLES, SEARCH, SERVICES, SUBMISSION, TRY_AGAIN, SampleCase
from sample_tests import SearchFailureTests, SearchTests, SubmissionTests

SAMPLE = SAMPLES / "csharp"
CLIENT = PROJECT / "tests" / "clients" / "dotnet"
HELPERS = [SAMPLE / "EventConnection.cs", SAMPLE / "MessageLoop.cs"]
DECLARATIONS = SAMPLE / "TVLejisCore.cs"
PROGRAMS = {
    "EarlyBound": [CLIENT / "EarlyBound.cs", CLIENT / "Program.cs", CLIENT / "Steps.cs", DECLARATIONS, *HELPERS],
    "LateBound": [CLIENT / "LateBound.cs", CLIENT / "Program.cs", CLIENT / "Steps.cs", *HELPERS],
    "Submit": [SAMPLE / "Submit.cs", DECLARATIONS],
    "Search": [SAMPLE / "Search.cs", SAMPLE / "Outcome.cs", DECLARATIONS, *HELPERS],
}


def setUpModule():
    global programs
    programs = Path(tempfile.mkdtemp(prefix="clients-csharp-"))
    unittest.addModuleCleanup(shutil.rmtree, programs)
    for name, sources in PROGRAMS.items():
        dotnet.compile_program(programs / f"{name}.dll", sources)


def run_program(case, name, *arguments):
    return case.wine(*dotnet.command(programs / f"{name}.dll"), *arguments, environment=dotnet.ENVIRONMENT)


class ClientTest(ClientCase):
    def test_an_early_bound_client_of_a_single_threaded_apartment(self):
        run = run_program(self, "EarlyBound", "sta", SERVICES, "texts")
        self.takes_all_steps("C#, early-bound, STA", run)
        self.assertTrue(run.output.endswith("the thread has ended\n"))

    def test_a_late_bound_client_of_a_single_threaded_apartment(self):
        run = run_program(self, "LateBound", "sta", SERVICES, "texts")
        self.takes_all_steps("C#, late-bound, STA", run)
        self.assertTrue(run.output.endswith("the thread has ended\n"))

    def test_an_early_bound_client_of_the_multi_threaded_apartment(self):
        run = run_program(self, "EarlyBound", "mta", SERVICES, "numbers")
        self.takes_all_steps("C#, early-bound, MTA", run, without={"release"})

    def test_a_late_bound_client_of_the_multi_threaded_apartment(self):
        run = run_program(self, "LateBound", "mta", SERVICES, "texts")
        self.takes_all_steps("C#, late-bound, MTA", run, without={"release"})


class SampleTest(SampleCase):
    def submit(self, *arguments):
        return run_program(self, "Submit", *arguments)

    def search(self, *arguments):
        return run_program(self, "Search", *arguments)


class SubmitTest(SubmissionTests, SampleTest):
    def test_it_tells_how_to_call_it(self):
        self.assertEqual(self.submit(), (64, "usage: Submit URL\n"))


class SearchTest(SearchTests, SearchFailureTests, SampleTest):
    def test_it_tells_how_to_call_it(self):
        self.assertEqual(self.search(), (64, "usage: Search URL USER SURNAME\n"))


class WithoutApartmentTest(SampleCase):
    """What README.md of the samples says of a program without [STAThread]."""

    def without_apartment(self, name):
        source = self.folder / f"{name}.cs"
        text = (SAMPLE / source.name).read_text()
        self.assertEqual(text.count("    [STAThread]\n"), 1)
        source.write_text(text.replace("    [STAThread]\n", ""))
        program = self.folder / f"{name}.dll"
        dotnet.compile_program(program, [source if one.name == source.name else one for one in PROGRAMS[name]])
        return dotnet.command(program)

    def test_a_search_is_answered_through_proxies(self):
        self.assertEqual(self.wine(*self.without_apartment("Search"), SEARCH, "jdoe", "NOBODY",
                                   environment=dotnet.ENVIRONMENT), (DONE, "0 incident(s) found.\n"))

    def test_a_refusal_keeps_its_number(self):
        self.play(kind="response-code", text="100 core offline")
        run = self.wine(*self.without_apartment("Submit"), SUBMISSION, environment=dotnet.ENVIRONMENT)
        self.assertEqual(run.code, TRY_AGAIN, run)


if __name__ == "__main__":
    unittest.main()
