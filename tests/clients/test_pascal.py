"""A client in Free Pascal, and the samples in Pascal."""
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from client_case import ARCHITECTURE, CLIENTS, ClientCase
from sample_case import PROJECT, SAMPLES, SERVICES, SampleCase
from sample_tests import SearchFailureTests, SearchTests, SubmissionTests

COMPILER = CLIENTS / "free-pascal" / ARCHITECTURE
SYSTEM = {"x86": "win32", "x64": "win64"}[ARCHITECTURE]
SOURCES = (PROJECT / "tests" / "clients" / "pascal" / "LateBound.pas", SAMPLES / "pascal" / "Submit.pas",
           SAMPLES / "pascal" / "Search.pas")
TIME_LIMIT = 120


def setUpModule():
    global programs
    programs = Path(tempfile.mkdtemp(prefix="clients-pascal-"))
    unittest.addModuleCleanup(shutil.rmtree, programs)
    for source in SOURCES:
        subprocess.run([COMPILER / "compiler", "-n", f"-T{SYSTEM}", "-v0", "-ve", f"-Fu{COMPILER / 'units'}",
                        f"-FU{programs}", f"-FE{programs}", source], timeout=TIME_LIMIT, check=True)


class ClientTest(ClientCase):
    def test_a_late_bound_client_of_a_single_threaded_apartment(self):
        run = self.wine(str(programs / "LateBound.exe"), SERVICES)
        self.takes_all_steps("Free Pascal, late-bound, STA", run)


class SampleTest(SampleCase):
    def submit(self, *arguments):
        return self.wine(str(programs / "Submit.exe"), *arguments)

    def search(self, *arguments):
        return self.wine(str(programs / "Search.exe"), *arguments)


class SubmitTest(SubmissionTests, SampleTest):
    def test_it_tells_how_to_call_it(self):
        self.assertEqual(self.submit(), (64, "usage: Submit URL\n"))


class SearchTest(SearchTests, SearchFailureTests, SampleTest):
    def test_it_tells_how_to_call_it(self):
        self.assertEqual(self.search(), (64, "usage: Search URL USER SURNAME\n"))


if __name__ == "__main__":
    unittest.main()
