"""What a terminal shows, and a file or a pipe does not."""
import os
import pty
import re
import unittest

from lejis_case import DONE, RUNNER, SAMPLES, LejisCase

COLOUR = re.compile("\x1b\\[[0-9;]*[1-9][0-9;]*m")
GREEN_SUCCESS = re.compile("\x1b\\[(?:1;32|92)mfit for submission")
MANY = ("burglary.xml", "domestic-dispute.xml", "international.xml", "large.xml", "vehicle-theft.xml")
PROGRESS = re.compile(r"\[#{8}\.{12}\] 2/5  \d+\.\d/s, \d+:\d\d left  international\.xml")


class TerminalTest(LejisCase):
    def on_terminal(self, *arguments, **environment):
        """What the program shows on a terminal of its own."""
        child, terminal = pty.fork()
        if child == 0:
            os.chdir(SAMPLES)
            os.environ.update(environment, TERM="xterm")
            os.execv(RUNNER, [RUNNER, os.environ["LEJIS_EXE"], *arguments])
        shown = b""
        while piece := self.read(terminal):
            shown += piece
        os.close(terminal)
        self.assertEqual(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), DONE)
        return shown.decode("utf-8")

    @staticmethod
    def read(terminal):
        try:
            return os.read(terminal, 4096)
        except OSError:  # How a terminal says that the program has gone.
            return b""

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


if __name__ == "__main__":
    unittest.main()
