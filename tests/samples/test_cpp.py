import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from sample_case import BUILD, SAMPLES, SampleCase, blocks
from sample_tests import SearchFailureTests, SearchTests, SubmissionTests

FOLDER = SAMPLES / "cpp"


def setUpModule():
    """Builds the programs as their README says."""
    global programs
    programs = Path(tempfile.mkdtemp(prefix="samples-cpp-"))
    unittest.addModuleCleanup(shutil.rmtree, programs)
    for source in FOLDER.glob("*.cpp"):
        shutil.copy(source, programs)
    commands, = blocks(FOLDER / "README.md", "sh")
    if os.environ["LEJIS_ARCHITECTURE"] == "x64":
        commands = commands.replace("i686-w64-mingw32-g++", "x86_64-w64-mingw32-g++")
    environment = {**os.environ, "HEADERS": str(BUILD / "core" / "type_library")}
    subprocess.run(["bash", "-e", "-c", commands], cwd=programs, env=environment, check=True)


class SampleTest(SampleCase):
    def submit(self, *arguments):
        return self.wine(str(programs / "late_bound.exe"), *arguments)

    def search(self, *arguments):
        return self.wine(str(programs / "early_bound.exe"), *arguments)


class LateBoundTest(SubmissionTests, SampleTest):
    def test_it_tells_how_to_call_it(self):
        self.assertEqual(self.submit(), (64, "usage: late_bound URL\n"))


class EarlyBoundTest(SearchTests, SearchFailureTests, SampleTest):
    def test_it_tells_how_to_call_it(self):
        self.assertEqual(self.search(), (64, "usage: early_bound URL USER SURNAME\n"))


if __name__ == "__main__":
    unittest.main()
