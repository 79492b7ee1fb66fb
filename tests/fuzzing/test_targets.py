"""A short look by each target: the corpus, and then the same cases each time, as far as they come."""

import unittest

from fuzzer import NOTHING_FOUND, run

# For each target; with both bitnesses and the fuzzer's own tests that makes about a minute.
SECONDS = 5


class Targets(unittest.TestCase):
    def look(self, target: str, least: int, seconds: int = SECONDS) -> None:
        found = run("--target", target, "--seconds", str(seconds), "--seed", "1")
        self.assertEqual(NOTHING_FOUND, found.code, found.output)
        # Far fewer than any machine manages; a target that did nothing would find nothing.
        self.assertGreater(found.cases, least, found.output)

    def test_readers(self) -> None:
        self.look("readers", 100)

    def test_values(self) -> None:
        self.look("values", 1000)

    def test_automation(self) -> None:
        self.look("automation", 1000)

    def test_sequences(self) -> None:
        self.look("sequences", 100)

    def test_answers(self) -> None:
        # This takes a minute with both bitnesses.
        self.look("answers", 300, seconds=30)


if __name__ == "__main__":
    unittest.main()
