"""A short backlog. LEJIS_EXE is lejis.exe, a Windows program; the library of its bitness is registered."""

from __future__ import annotations

import os
import tempfile
import unittest
from pathlib import Path

import backlog

COUNT, KILLS = 250, 3


class BacklogTest(unittest.TestCase):
    def test_nothing_is_lost_however_often_it_is_killed(self) -> None:
        with tempfile.TemporaryDirectory(prefix="backlog-") as folder:
            story = backlog.work_off(os.environ["LEJIS_EXE"], COUNT, KILLS, 4, 7, Path(folder))
            outcomes = {entry["outcome"] for entry in story.entries()}
        self.assertEqual([], story.faults)
        # A story without any of these would show nothing.
        self.assertEqual(KILLS, story.kills)
        self.assertGreaterEqual(outcomes, {"submitted", "unknown"})


if __name__ == "__main__":
    unittest.main()
