"""What the suite counts must be right, above all when a program does not end as it should."""
import contextlib
import io
import tempfile
import unittest
from pathlib import Path

import test_report

XML = """<testsuites><testsuite>
<testcase name="Good" status="run" result="completed" classname="Unit"/>
<testcase name="Skipped" status="run" result="skipped" classname="Unit"><skipped/></testcase>
<testcase name="Left" status="notrun" result="suppressed" classname="Unit"/>
{}</testsuite></testsuites>"""
BAD = '<testcase name="Bad" status="run" result="completed" classname="Unit"><failure message="no"/></testcase>'
GOOD_LOG = "[ RUN      ] Unit.Good\n[       OK ] Unit.Good (0 ms)\n"
BAD_LOG = "[ RUN      ] Unit.Bad\nwhy it failed\n[  FAILED  ] Unit.Bad (0 ms)\n"


class TestReportTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def record(self, kind, code, log, xml=None, filtered=False, architecture="x86"):
        """The columns passed, failed, skipped and what was printed."""
        stem = Path(self.folder, f"{architecture}-unit-program")
        stem.with_suffix(".log").write_text(log, encoding="utf-8", newline="")
        if xml is not None:
            stem.with_suffix(".xml").write_text(xml, encoding="utf-8")
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            test_report.record(self.folder, architecture, "unit", kind, "program", str(code), "3", filtered)
        row = Path(self.folder, "rows.tsv").read_text(encoding="utf-8").splitlines()[-1]
        return tuple(map(int, row.split("\t")[2:5])), printed.getvalue()

    def summary(self):
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            code = test_report.summary(self.folder)
        return code, printed.getvalue().splitlines()[-1]

    def test_googletest_counts_passed_and_skipped(self):
        counts, printed = self.record("gtest", 0, GOOD_LOG, XML.format(""))
        self.assertEqual(counts, (1, 0, 1))
        self.assertEqual(printed, "")

    def test_googletest_failure_shows_its_own_output(self):
        counts, printed = self.record("gtest", 1, GOOD_LOG + BAD_LOG, XML.format(BAD))
        self.assertEqual(counts, (1, 1, 1))
        self.assertIn("FAILED x86 unit program: Unit.Bad", printed)
        self.assertIn("why it failed", printed)
        self.assertNotIn("Unit.Good", printed)

    def test_googletest_crash_names_the_test_under_way(self):
        counts, printed = self.record("gtest", 5, GOOD_LOG + BAD_LOG + "[ RUN      ] Unit.Crash\nboom\n")
        self.assertEqual(counts, (1, 2, 0))
        self.assertIn("ended with code 5 in Unit.Crash", printed)
        self.assertIn("boom", printed)

    def test_googletest_that_names_the_parameter_of_a_failed_test_is_no_crash_in_it(self):
        log = ("[ RUN      ] All/P.Even/1\n[  FAILED  ] All/P.Even/1, where GetParam() = 2 (0 ms)\n"
               "[ RUN      ] Unit.Crash\n")
        _, printed = self.record("gtest", 5, log)
        self.assertIn("in Unit.Crash", printed)

    def test_googletest_that_hangs(self):
        for code in (124, 137):
            _, printed = self.record("gtest", code, "[ RUN      ] Unit.Hang\n")
            self.assertIn("did not end within its time in Unit.Hang", printed)

    def test_googletest_that_crashes_after_its_tests(self):
        counts, printed = self.record("gtest", 5, GOOD_LOG, XML.format(""))
        self.assertEqual(counts, (1, 1, 1))
        self.assertIn("after its tests", printed)

    def test_googletest_that_is_killed_while_it_writes_its_results(self):
        self.assertEqual(self.record("gtest", 137, GOOD_LOG, "<testsuites><tests")[0], (1, 1, 0))

    def test_googletest_without_tests_fails_unless_filtered(self):
        empty = "<testsuites></testsuites>"
        self.assertEqual(self.record("gtest", 0, "", empty)[0], (0, 1, 0))
        self.assertEqual(self.record("gtest", 0, "", empty, filtered=True)[0], (0, 0, 0))

    def test_program_that_could_not_start_fails_even_when_filtered(self):
        self.assertEqual(self.record("gtest", 53, "", filtered=True)[0], (0, 1, 0))

    def test_script_needs_code_marker_and_checks(self):
        self.assertEqual(self.record("script", 7, "x\r\nEND OF SCRIPT 3 checks on x86\r\n")[0], (1, 0, 0))
        for code, log in ((0, "END OF SCRIPT 3 checks on x86\n"), (1, "END OF SCRIPT 3 checks on x86\n"), (7, "x\n"),
                          (0, ""), (7, "END OF SCRIPT 0 checks on x86\n"), (7, "END OF SCRIPT 3 checks on x86\nx\n")):
            self.assertEqual(self.record("script", code, log)[0], (0, 1, 0), (code, log))

    def test_script_must_have_run_in_the_bitness_of_the_library(self):
        for architecture, processor in (("x86", "x86"), ("coverage", "x86"), ("x64", "AMD64")):
            for seen in ("x86", "AMD64"):
                counts, _ = self.record("script", 7, f"END OF SCRIPT 3 checks on {seen}\n", architecture=architecture)
                self.assertEqual(counts, (1, 0, 0) if seen == processor else (0, 1, 0), (architecture, seen))
        _, printed = self.record("script", 7, "END OF SCRIPT 3 checks on x86\n", architecture="x64")
        self.assertIn("the script ran on x86, not on AMD64", printed)

    def test_python_tests(self):
        self.assertEqual(self.record("unittest", 0, "..\nRan 3 tests in 0.1s\n\nOK (skipped=1)\n")[0], (2, 0, 1))
        log = "FAIL: test_a (t.T)\nwhy\nERROR: test_b (t.T)\nRan 3 tests in 0.1s\n\nFAILED (failures=1, errors=1)\n"
        counts, printed = self.record("unittest", 1, log)
        self.assertEqual(counts, (1, 2, 0))
        self.assertIn("why", printed)
        self.assertEqual(self.record("unittest", 1, "Traceback\n")[0], (0, 1, 0))
        self.assertEqual(self.record("unittest", 0, "Ran 0 tests in 0.0s\n\nOK\n")[0], (0, 1, 0))
        self.assertEqual(self.record("unittest", 139, "Ran 1 test in 0.0s\n\nOK\n")[0][1], 1)

    def test_summary(self):
        self.assertEqual(self.summary(), (1, "0 passed, 0 failed"))
        self.record("gtest", 0, GOOD_LOG, XML.format(""))
        self.record("script", 7, "END OF SCRIPT 3 checks on x86\n")
        self.assertEqual(self.summary(), (0, "2 passed, 0 failed"))
        self.record("script", 1, "x\n")
        self.assertEqual(self.summary(), (1, "2 passed, 1 failed"))

    def test_a_lane_that_broke_off_is_a_failure(self):
        self.record("gtest", 0, GOOD_LOG, XML.format(""))
        with contextlib.redirect_stdout(io.StringIO()) as printed:
            test_report.broke_off(self.folder, "x64")
        self.assertEqual(printed.getvalue(), "FAILED x64: the lane broke off before its end\n")
        self.assertEqual(self.summary(), (1, "1 passed, 1 failed"))


if __name__ == "__main__":
    unittest.main()
