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


class ApartmentTest(SampleCase):
    """What README.md of the samples says of a program without [STAThread], and of one without a message loop."""

    STA_THREAD = "    [STAThread]\n"
    LOOP = "MessageLoop.RunUntil(() => outcome.ExitCode.HasValue);"
    SLEEP = "for (int i = 0; i < 1500 && !outcome.ExitCode.HasValue; ++i) System.Threading.Thread.Sleep(20);"
    RESULT = "return outcome.ExitCode.Value;"
    NO_EVENT = 99

    def run_changed(self, name, replacements, *arguments):
        source = self.adapted(SAMPLE / f"{name}.cs", replacements)
        program = self.folder / f"{name}.dll"
        dotnet.compile_program(program, [source if one.name == source.name else one for one in PROGRAMS[name]])
        return self.wine(*dotnet.command(program), *arguments, environment=dotnet.ENVIRONMENT)

    def test_without_sta_thread_a_search_needs_no_message_loop(self):
        changes = {self.STA_THREAD: "", self.LOOP: self.SLEEP}
        self.assertEqual(self.run_changed("Search", changes, SEARCH, "jdoe", "NOBODY"),
                         (DONE, "0 incident(s) found.\n"))

    def test_with_sta_thread_but_without_a_message_loop_no_event_comes(self):
        sleep = self.SLEEP.replace("1500", "100")
        changes = {self.LOOP: sleep, self.RESULT: f"return outcome.ExitCode ?? {self.NO_EVENT};"}
        self.assertEqual(self.run_changed("Search", changes, SEARCH, "jdoe", "NOBODY"), (self.NO_EVENT, ""))

    def test_without_sta_thread_a_passing_failure_keeps_its_number(self):
        self.play(kind="response-code", text="100 core offline")
        run = self.run_changed("Submit", {self.STA_THREAD: ""}, SUBMISSION)
        self.assertEqual(run.code, TRY_AGAIN, run)


if __name__ == "__main__":
    unittest.main()
