"""samples/run.sh: how it finds a sample, what it demands and what it says."""
import os
import re
import subprocess
import unittest

from sample_case import DONE, PROJECT, REFUSED, SAMPLES, SUBMISSION, TIME_LIMIT, Run, SampleCase

WRONG_USAGE = 64
COMMAND = re.compile(r"^samples/run\.sh (.*)$", re.MULTILINE)


class RunTest(SampleCase):
    def run_sample(self, *arguments, folder=PROJECT):
        process = subprocess.run(
            [SAMPLES / "run.sh", os.environ["LEJIS_ARCHITECTURE"], *arguments], cwd=folder, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=2 * TIME_LIMIT, check=False)
        return Run(process.returncode, process.stdout.decode().replace("\r\n", "\n"))

    def test_every_command_of_the_readme_does_its_work(self):
        commands = COMMAND.findall((SAMPLES / "README.md").read_text(encoding="utf-8"))
        self.assertEqual(len(commands), 3)
        for command in commands:
            with self.subTest(command):
                run = self.run_sample(*command.split())
                self.assertEqual(run.code, DONE, run)
                # On a busy machine Wine complains of itself at times, before or after.
                self.assertRegex(run.output, r"(?m)^Submitted with \d|^1 incident\(s\) found")

    def test_the_path_begins_in_the_current_folder_in_samples_or_in_the_project(self):
        for folder, path in ((SAMPLES / "vbscript", "submit.vbs"), (self.folder, "vbscript/submit.vbs"),
                             (self.folder, "samples/vbscript/submit.vbs"),
                             (self.folder, str(SAMPLES / "vbscript" / "submit.vbs"))):
            with self.subTest(path):
                run = self.run_sample(path, folder=folder)
                self.assertEqual(run.code, WRONG_USAGE, run)
                self.assertIn("submit.vbs needs URL", run.output)

    def test_missing_arguments_are_named_before_anything_starts(self):
        for arguments, needed in ((["vbscript/submit.vbs"], "URL, for the simulator: samples/run.sh "
                                                            "vbscript/submit.vbs SUBMISSION"),
                                  (["vbscript/search.vbs", "SEARCH", "jdoe"], "URL USER SURNAME, "),
                                  (["cpp/early_bound.cpp", "SEARCH"], "URL USER SURNAME, "),
                                  (["cpp/late_bound.cpp"], "URL, ")):
            with self.subTest(arguments):
                run = self.run_sample(*arguments)
                self.assertEqual(run.code, WRONG_USAGE)
                self.assertIn(f"needs {needed}", run.output)
        self.assertEqual(self.control("GET", "exchanges"), [])

    def test_what_is_no_sample_is_refused(self):
        for path, reason in (("vbscript/nothing.vbs", "there is no sample vbscript/nothing.vbs"),
                             ("incidents/burglary.xml", "is neither a script")):
            run = self.run_sample(path, SUBMISSION)
            self.assertEqual(run.code, WRONG_USAGE)
            self.assertIn(reason, run.output)

    def test_a_sample_that_says_nothing_has_not_done_its_work(self):
        silent = self.folder / "silent.vbs"
        silent.write_text("WScript.Quit 0\n", encoding="utf-8")
        run = self.run_sample(str(silent))
        self.assertEqual(run.code, REFUSED)
        self.assertIn("silent.vbs ended with code 0 and said nothing", run.output)
        silent.write_text("WScript.Quit 7\n", encoding="utf-8")
        self.assertEqual(self.run_sample(str(silent)).code, 7)


if __name__ == "__main__":
    unittest.main()
