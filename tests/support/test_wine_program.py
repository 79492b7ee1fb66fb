"""wine-program.sh runs a program once, whatever Wine does, and ends with its code. Wine runs, but for the stand-ins."""
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]

# Notes that it was started. As often as the file "deaths" has lines it dies before it has run anything.
STAND_IN = """#!/bin/bash
here={folder}
echo "$*" >>"$here/calls"
if [[ -s $here/deaths ]]; then sed -i 1d "$here/deaths"; exit 86; fi
mark=${{LAUNCHED#Z:}}
rm "${{mark//\\\\//}}"
exit {code}
"""


class WineProgramCase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="launch-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_program(self, *command, path=None):
        environment = {**os.environ, "TMPDIR": str(self.folder)}
        if path:
            environment["PATH"] = f"{path}:{environment['PATH']}"
        return subprocess.run([PROJECT / "tools" / "wine-program.sh", *command], env=environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=60, check=False)


class StandInTest(WineProgramCase):
    def run_at(self, deaths, code):
        wine = self.folder / "bin" / "wine"
        wine.parent.mkdir()
        wine.write_text(STAND_IN.format(folder=self.folder, code=code))
        wine.chmod(0o755)
        (self.folder / "deaths").write_text("death\n" * deaths)
        run = self.run_program("program.exe", "one", path=wine.parent)
        self.assertEqual([entry.name for entry in self.folder.glob("tmp.*")], [])
        return run, len((self.folder / "calls").read_text().splitlines())

    def test_a_program_that_ran_is_not_run_again_whatever_its_code(self):
        for code in (0, 1, 86):
            with self.subTest(code):
                self.setUp()
                run, starts = self.run_at(deaths=0, code=code)
                self.assertEqual((run.returncode, run.stderr, starts), (code, "", 1))

    def test_a_start_that_failed_is_repeated(self):
        run, starts = self.run_at(deaths=2, code=7)
        self.assertEqual((run.returncode, run.stderr, starts), (7, "", 3))

    def test_starts_that_always_fail_end_with_a_sentence(self):
        run, starts = self.run_at(deaths=9, code=7)
        self.assertEqual((run.returncode, starts), (86, 3))
        self.assertIn("Wine failed 3 times to start", run.stderr)


class LauncherTest(WineProgramCase):
    CMD = r"C:\windows\system32\cmd.exe"

    def test_the_code_of_the_program_is_the_end(self):
        for code in (0, 1, 130):
            with self.subTest(code):
                self.assertEqual(self.run_program(self.CMD, "/c", "exit", str(code)).returncode, code)

    def test_arguments_and_output_pass_as_they_are(self):
        run = self.run_program(self.CMD, "/c", "echo", "a b", "c & d", "50%")
        self.assertEqual((run.stdout, run.stderr), ('"a b" "c & d" 50%\n', ""))

    def test_the_program_does_not_see_the_mark(self):
        self.assertNotIn("LAUNCHED", self.run_program(self.CMD, "/c", "set").stdout)

    def test_a_program_that_does_not_exist_is_named(self):
        run = self.run_program(r"C:\there is none.exe")
        self.assertEqual(run.returncode, 126)
        self.assertIn("launch: error 2 at starting \"C:\\there is none.exe\"", run.stderr)


if __name__ == "__main__":
    unittest.main()
