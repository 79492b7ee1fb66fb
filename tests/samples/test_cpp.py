import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from sample_case import BUILD, DONE, REFUSED, SAMPLES, SEARCH, SUBMISSION, TRY_AGAIN, SampleCase, blocks

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


class LateBoundTest(SampleCase):
    def submit(self, *arguments):
        return self.wine(str(programs / "late_bound.exe"), *arguments)

    def test_the_warnings_are_listed(self):
        run = self.submit(SUBMISSION)
        self.assertEqual(run.code, DONE, run)
        first, race = run.output.splitlines()
        self.assertEqual(first, "Submitted with 1 warning(s).")
        self.assertIn("'X' is not a valid NCIC race code", race)
        self.assertEqual(self.indexed(), ["2007-000123"])

    def test_a_passing_failure_may_be_tried_again(self):
        self.play(kind="response-code", text="100 core offline")
        run = self.submit(SUBMISSION)
        self.assertEqual(run.code, TRY_AGAIN, run)
        self.assertEqual(run.output,
                         "Not sent, try again later: LEJIS server is up, but LEJIS core system is offline.\n")

    def test_a_refusal_is_final(self):
        self.play(kind="soap-fault", message="The agency is not known here.")
        self.assertEqual(self.submit(SUBMISSION), (REFUSED, "Refused: The agency is not known here.\n"))

    def test_it_tells_how_to_call_it(self):
        self.assertEqual(self.submit(), (64, "usage: late_bound URL\n"))


class EarlyBoundTest(SampleCase):
    def search(self, user="jdoe", surname="PUBLIC", url=SEARCH):
        return self.wine(str(programs / "early_bound.exe"), url, user, surname)

    def test_the_incidents_found_are_listed(self):
        self.play(target="search", kind="cards", count=3)
        run = self.search()
        self.assertEqual(run.code, DONE, run)
        first, *incidents = run.output.splitlines()
        self.assertEqual((first, len(incidents)), ("3 incident(s) found.", 3))

    def test_nothing_found_is_an_answer(self):
        self.assertEqual(self.search(surname="NOBODY"), (DONE, "0 incident(s) found.\n"))

    def test_a_passing_failure_may_be_tried_again(self):
        self.play(target="search", kind="http-status", status=502, reason="")
        self.assertEqual(self.search(), (
            TRY_AGAIN,
            "No answer, try again later: The LEJIS server returned HTTP status code 502 (no message text)\n"))

    def test_a_refusal_is_final(self):
        self.play(target="search", kind="soap-fault", message="Not today.")
        self.assertEqual(self.search(), (REFUSED, "Refused: Not today.\n"))

    def test_wrong_settings_are_told_apart(self):
        self.assertEqual(self.search(url="no address"), (
            REFUSED, "Not set up correctly, tell the administrator: Invalid URL 'no address'.\n"))


if __name__ == "__main__":
    unittest.main()
