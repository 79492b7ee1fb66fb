"""Every behaviour of a server, met by lejis.exe: what the tool tells of an incident is true of what the server did.

LEJIS_EXE is lejis.exe, a Windows program; the library of its bitness is registered.
"""

from __future__ import annotations

import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
from dataclasses import replace
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / "tools" / "simulator"), str(PROJECT / "tests" / "support"),
                str(PROJECT / "tests" / "lejis"), str(PROJECT / "tests" / "endurance"),
                str(Path(__file__).resolve().parent)]

# The simulator's packages are found only now.
# pylint: disable=wrong-import-position
from behaviour import Behaviour, Exchange  # noqa: E402
from behaviours import BEHAVIOURS  # noqa: E402
from fault_server import FaultServer  # noqa: E402
from lejis_case import card  # noqa: E402
from moods import acting, is_refusal  # noqa: E402
from windows_program import RUNNER  # noqa: E402

ORI = "PA0250100"
TIME_LIMIT = 280

_PLAYED = [behaviour for behaviour in BEHAVIOURS if not behaviour.scripted and not behaviour.twice]
# One run meets all that begin with a request; each of the others has a port of its own.
_ASKED = [behaviour for behaviour in _PLAYED if behaviour.play and behaviour.is_listening]
UNREQUESTED = [behaviour for behaviour in _PLAYED if behaviour not in _ASKED]
# A server that says no has not acted. Every other behaviour is that of one that has not, and of one that has.
REQUESTED = _ASKED + [replace(behaviour, name=f"{behaviour.name}, having acted", play=acting(behaviour.play))
                      for behaviour in _ASKED if not is_refusal(behaviour)]
DONE = {"submit": "submitted", "delete": "withdrawn"}


def play_by_number(exchange: Exchange) -> None:
    """The behaviour whose place in the table is the incident's number."""
    number = re.search(rb">(?:submit|delete)-(\d+)<", exchange.request.body)[1]
    REQUESTED[int(number)].play(exchange)


BY_NUMBER = Behaviour("", "by number", play=play_by_number)


class LejisMeetsFailures(unittest.TestCase):
    """One server, which has done what its index says."""

    @classmethod
    def setUpClass(cls) -> None:
        folder = tempfile.TemporaryDirectory(prefix="lejis-faults-")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        cls.server = FaultServer((BY_NUMBER, *UNREQUESTED), cls.folder)
        cls.addClassCleanup(cls.server.close)

    def write(self, name: str) -> str:
        (self.folder / f"{name}.xml").write_text(card(name, ori=ORI), encoding="utf-8")
        return f"{name}.xml"

    def run_lejis(self, command: str, files: list[str], url: str) -> list[dict]:
        """What it tells of each incident."""
        run = subprocess.run([RUNNER, os.environ["LEJIS_EXE"], command, *files, "--url", url, "--json", "--stop-after",
                              "1000000", "--timeout", "60"],
                             cwd=self.folder, stdin=subprocess.DEVNULL, capture_output=True, text=True,
                             timeout=TIME_LIMIT, check=False)
        *incidents, _ = map(json.loads, run.stdout.splitlines())
        self.assertEqual([incident["name"] for incident in incidents], files)
        return incidents

    def meet(self, command: str, numbers: list[int], behaviour: Behaviour) -> list[dict]:
        """What it tells of incidents at the port of this behaviour. What is to be withdrawn is there before."""
        files = [self.write(f"{command}-{number}") for number in numbers]
        if command == "delete":
            seeded = self.run_lejis("submit", files, self.server.address("submit"))
            self.assertEqual({incident["outcome"] for incident in seeded}, {"submitted"})
        return self.run_lejis(command, files, self.server.address(command, behaviour))

    def judge(self, command: str, behaviour: Behaviour, told: dict) -> None:
        """The index was without the incident that is submitted, and with the one that is withdrawn."""
        held = self.server.card(told["number"]) is not None
        has_acted = held == (command == "submit")
        with self.subTest(server=behaviour.name, command=command, told=told["errors"]):
            if behaviour in REQUESTED:
                self.assertEqual(told["outcome"] == "refused", is_refusal(behaviour))
            if told["outcome"] == DONE[command]:
                self.assertTrue(has_acted)
            elif told["outcome"] in ("refused", "not sent"):
                self.assertFalse(has_acted)
            else:
                self.assertEqual((told["outcome"], told["tryAgain"]), ("unknown", True))

    def test_what_it_tells_is_true_of_what_the_server_did(self) -> None:
        for command in ("submit", "delete"):
            incidents = self.meet(command, list(range(len(REQUESTED))), BY_NUMBER)
            for behaviour, told in zip(REQUESTED, incidents):
                self.judge(command, behaviour, told)
            outcomes = [told["outcome"] for told in incidents]
            for outcome, least in ((DONE[command], 50), ("unknown", 100), ("refused", 3)):
                self.assertGreater(outcomes.count(outcome), least, outcome)

    def test_a_server_that_is_not_there_is_told_from_one_that_breaks_off(self) -> None:
        for command in ("submit", "delete"):
            for number, behaviour in enumerate(UNREQUESTED, len(REQUESTED)):
                (told,) = self.meet(command, [number], behaviour)
                self.judge(command, behaviour, told)
                with self.subTest(server=behaviour.name, command=command):
                    self.assertEqual(told["outcome"], "unknown" if behaviour.is_listening else "not sent")


if __name__ == "__main__":
    unittest.main()
