"""The Debian half of docs/getting-started.md, word for word, in this folder instead of a fresh clone.

Its programs stop and start Wine themselves, so nothing else may use the project's prefix meanwhile.
"""
import re
import subprocess
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
GUIDE = PROJECT / "docs" / "getting-started.md"
STEP = re.compile(r"^```sh\n(.*?)\n```\n(?:\n```text\n(.*?)\n```\n)?", re.MULTILINE | re.DOTALL)
TIME_LIMIT = 240


class GettingStartedTest(unittest.TestCase):
    def test_every_command_does_what_the_guide_says(self):
        steps = STEP.findall(GUIDE.read_text(encoding="utf-8"))
        self.assertEqual(len(steps), 5)
        for commands, answer in steps:
            with self.subTest(commands):
                process = subprocess.run(["bash", "-c", commands], cwd=PROJECT, stdin=subprocess.DEVNULL,
                                         capture_output=True, text=True, timeout=TIME_LIMIT, check=False)
                # Some steps are there to fail; a step without an answer to show is not.
                self.assertTrue(answer or process.returncode == 0, process)
                for line in answer.splitlines():
                    self.assertIn(line, process.stdout, process)


if __name__ == "__main__":
    unittest.main()
