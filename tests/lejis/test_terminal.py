"""What a terminal shows, and a file or a pipe does not."""
import os
import pty
import re
import time
import unittest

from lejis_case import DONE, INTERRUPTED, RUNNER, SAMPLES, SimulatorCase, LejisCase, card
from small_server import SilentServer

COLOUR = re.compile("\x1b\\[[0-9;]*[1-9][0-9;]*m")
GREEN_SUCCESS = re.compile("\x1b\\[(?:1;32|92)mfit for submission")
MANY = ("burglary.xml", "domestic-dispute.xml", "international.xml", "large.xml", "vehicle-theft.xml")
PROGRESS = re.compile(r"\[#{8}\.{12}\] 2/5  \d+\.\d/s, \d+:\d\d left  international\.xml")


CTRL_C = b"\x03"


class Terminal:
    """A terminal with the program on it."""

    def __init__(self, folder, *arguments, **environment):
        self._shown = b""
        self.child, self.terminal = pty.fork()
        if self.child == 0:
            os.chdir(folder)
            os.environ.update(environment, TERM="xterm")
            os.execv(RUNNER, [RUNNER, os.environ["LEJIS_EXE"], *arguments])

    def type(self, keys):
        os.write(self.terminal, keys)

    def await_text(self, text):
        while text.encode() not in self._shown:
            piece = self._read()
            if not piece:
                raise AssertionError(f"ended without {text}: {self._shown}")
            self._shown += piece

    def end(self):
        """What the program has shown until its end, and its exit code."""
        while piece := self._read():
            self._shown += piece
        os.close(self.terminal)
        return self._shown.decode("utf-8"), os.waitstatus_to_exitcode(os.waitpid(self.child, 0)[1])

    def _read(self):
        try:
            return os.read(self.terminal, 4096)
        except OSError:  # How a terminal says that the program has gone.
            return b""


class TerminalTest(LejisCase):
    def on_terminal(self, *arguments, **environment):
        shown, code = Terminal(SAMPLES, *arguments, **environment).end()
        self.assertEqual(code, DONE, shown)
        return shown

    def test_results_are_coloured_there_and_only_there(self):
        self.assertRegex(self.on_terminal("check", "burglary.xml"), GREEN_SUCCESS)
        self.assertNotIn("\x1b", self.expect(DONE, "check", SAMPLES / "burglary.xml"))

    def test_no_color_is_heeded(self):
        self.assertNotRegex(self.on_terminal("check", "burglary.xml", NO_COLOR="1"), COLOUR)
        self.assertRegex(self.on_terminal("check", "burglary.xml", NO_COLOR=""), GREEN_SUCCESS)

    def test_many_files_have_a_bar_there_and_numbers_elsewhere(self):
        shown = self.on_terminal("check", *MANY)
        self.assertRegex(shown, PROGRESS)
        self.assertNotIn("[3/5]", shown)
        text = self.expect(DONE, "check", *MANY, folder=SAMPLES)
        self.assertNotIn("#", text)
        self.assertRegex(text, r"(?m)^\[3/5\] international\.xml +fit for submission\r?$")

    def test_few_files_have_neither(self):
        self.assertNotIn("[#", self.on_terminal("check", "large.xml", "burglary.xml"))


class LedgerTest(SimulatorCase):
    def test_what_an_earlier_run_has_done_makes_no_pace_of_the_bar(self):
        for name in "abcde":
            self.write(f"{name}.xml", card(f"2024-{name}"))
        run = ("submit", "*.xml", "--url", self.url, "--ledger", "x.ledger", "--jobs", "1")
        for pattern in (r"\d/s, ", r"5 files: 0 submitted, 5 submitted before\."):
            shown, code = Terminal(self.folder, *run).end()
            self.assertEqual(code, DONE, shown)
            self.assertRegex(shown, pattern)
        self.assertIn("[####", shown)
        self.assertNotRegex(shown, r"\d/s, ")


class InterruptionTest(SimulatorCase):
    """Four incidents, the first of which takes its time."""

    def begin(self, seconds):
        for name in "abcd":
            self.write(f"{name}.xml", card(f"2024-{name}"))
        self.play(kind="slow", seconds=seconds)
        terminal = Terminal(self.folder, "submit", "*.xml", "--url", self.url, "--ledger", "x.ledger")
        self.await_fault()
        return terminal

    def test_ctrl_c_finishes_what_is_under_way_and_sums_up(self):
        terminal = self.begin(6)
        terminal.type(CTRL_C)
        shown, code = terminal.end()
        self.assertEqual(code, INTERRUPTED, shown)
        self.assertIn("Interrupted: 3 not begun.", shown)
        self.assertIn("4 files: 1 submitted, 3 not begun.", shown)
        self.assertEqual(self.indexed(), ["2024-a"])
        self.assertEqual(len((self.folder / "x.ledger").read_text().splitlines()), 1)

    def test_a_second_ctrl_c_ends_it_at_once(self):
        terminal = self.begin(50)
        terminal.type(CTRL_C)
        time.sleep(1)
        terminal.type(CTRL_C)
        start = time.monotonic()
        shown, code = terminal.end()
        self.assertLess(time.monotonic() - start, 30)
        self.assertEqual(code, INTERRUPTED, shown)
        self.assertIn("Interrupted. What was under way may have reached LEJIS.", shown)
        self.assertNotIn("files:", shown)


class SilenceTest(LejisCase):
    """Nothing answers, so that only Ctrl-C ends what has no end of its own."""

    def test_ctrl_c_ends_the_doctor_with_the_same_exit_code(self):
        with SilentServer() as server:
            terminal = Terminal(self.folder, "doctor", "--url", server.url, "--timeout", "120")
            terminal.await_text("Proxy")
            terminal.type(CTRL_C)
            shown, code = terminal.end()
        self.assertEqual(code, INTERRUPTED, shown)
        self.assertIn("Interrupted.", shown)


if __name__ == "__main__":
    unittest.main()
