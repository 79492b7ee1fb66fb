"""A short run, and the run's own judgement. ENDURANCE_CLIENT is the client, a Windows program."""

from __future__ import annotations

import os
import tempfile
import unittest
from pathlib import Path

import endurance

COUNT = 400


class FakeServer:
    """Holds what a test says."""

    def __init__(self, **cards: str) -> None:
        self._cards = cards

    def card(self, incident: str) -> str | None:
        return self._cards.get(incident)

    def held(self) -> list[str]:
        return list(self._cards)


def card(incident: str, version: int, persons: int = 0) -> str:
    return (f"<c><j:CaveatText>Version {version} of {incident}</j:CaveatText>"
            f"{'<card:RMSPersonIndexCards/>' * persons}</c>")


class Judgement(unittest.TestCase):
    """What counts as lost."""

    def faults(self, told: str, instead: str = endurance.NO_DOUBT, **cards: str) -> int:
        run = endurance.Run(ledger={"a": (told, instead)})
        endurance.compare(FakeServer(**cards), run, "now")
        return len(run.faults)

    def test_the_index_that_equals_the_ledger_is_right(self) -> None:
        self.assertEqual(0, self.faults("1", a=card("a", 1)))
        self.assertEqual(0, self.faults("3", a=card("a", 3, persons=2)))
        self.assertEqual(0, self.faults("-"))

    def test_every_difference_is_a_fault(self) -> None:
        self.assertEqual(1, self.faults("1"))
        self.assertEqual(1, self.faults("-", a=card("a", 1)))
        self.assertEqual(1, self.faults("1", a=card("a", 2)))
        self.assertEqual(1, self.faults("1", a=card("b", 1)))
        self.assertEqual(1, self.faults("3", a=card("a", 3, persons=1)))
        self.assertEqual(1, self.faults("1", a="<c/>"))
        self.assertEqual(1, self.faults("1", a=card("a", 1), b=card("b", 1)))

    def test_a_doubt_allows_both_and_no_third(self) -> None:
        self.assertEqual(0, self.faults("1", "2", a=card("a", 1)))
        self.assertEqual(0, self.faults("1", "2", a=card("a", 2)))
        self.assertEqual(0, self.faults("1", "-"))
        self.assertEqual(1, self.faults("1", "2", a=card("a", 4)))

    def test_memory_that_grows_by_more_than_the_platform_loses_is_a_fault(self) -> None:
        def faults(each: int, platform: int, handles: int = 0) -> int:
            def samples(first: int, added: int, more: int) -> list[tuple[int, int, int]]:
                return [(first + 100 * number, 10_000_000 + added * 100 * number, 50 + more * number)
                        for number in range(1, 51)]
            run = endurance.Run(samples=samples(endurance.WARM_UP, each, handles), control=samples(0, platform, 0))
            endurance.judge_memory(run)
            return len(run.faults)
        self.assertEqual(0, faults(30, 0))
        self.assertEqual(1, faults(50, 0))
        self.assertEqual(0, faults(1100, 1000))
        self.assertEqual(1, faults(1300, 1000))
        self.assertEqual(0, faults(0, 1000))
        self.assertEqual(1, faults(0, 0, handles=1))


class Endurance(unittest.TestCase):
    """The run itself."""

    def test_nothing_is_lost(self) -> None:
        with tempfile.TemporaryDirectory(prefix="endurance-") as folder:
            run, moods = endurance.endure(os.environ["ENDURANCE_CLIENT"], COUNT, 7, Path(folder))
        self.assertEqual([], run.faults)
        self.assertGreater(len(run.ledger), 200)
        # A run without any of these would show nothing.
        exchanges, transient, _, doubts = run.counts
        self.assertGreaterEqual(exchanges, COUNT + transient)
        self.assertGreater(transient, 10)
        self.assertGreater(doubts, 0)
        self.assertGreater(len(moods.played), 20)


if __name__ == "__main__":
    unittest.main()
