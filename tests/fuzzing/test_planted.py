"""Faults planted on purpose: the fuzzer finds each, saves its case and finds it again in the saved case."""

from __future__ import annotations

import sys
import tempfile
import unittest
from pathlib import Path

from fuzzer import CRASHED, DEVOURED, FOUND, HUNG, NOTHING_FOUND, Run, run, windows_path

sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import wine_version  # noqa: E402  (the path comes first)

PLANTED = {
    "overrun": (FOUND, "overrun: a block of the heap was written beyond its end"),
    "use-after-free": (FOUND, "or after it was freed"),
    "leaked-object": (FOUND, "leak: 1 objects of the library are left alive"),
    "leaked-memory": (FOUND, "leak: each run of this case leaves memory behind"),
    "silent-failure": (FOUND, "error without a description: 80004005"),
    "stale-failure": (FOUND, "error with the description of another one: 80004005"),
    "exception": (FOUND, "an exception came out: planted"),
    "hang": (HUNG, "hang: the case does not end"),
    "devour": (DEVOURED, "memory: the case takes too much"),
    "crash": (CRASHED, "crash: exception c000"),
    "trap": (CRASHED, "crash: exception c000001d"),
    "abort": (CRASHED, "crash: the program aborted itself"),
}
# Wine 10 keeps blocks of the sizes that are often asked for in groups, and neither lists nor checks what is in a group.
UNSEEN_BY_WINE_10 = {"overrun", "leaked-memory"}
UNSEEN = UNSEEN_BY_WINE_10 if wine_version.major() >= 10 else set()


class Planted(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory(prefix="fuzz-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def look(self, fault: str, *more: str) -> Run:
        # The watch looks twice a second: a case that takes too much must be seen before it counts as one that hangs.
        return run("--target", "planted", "--cases", "2000", "--case-limit", "2", "--findings",
                   windows_path(self.folder / "found-"), *more, PLANTED_FAULT=fault)

    def saved(self) -> list[Path]:
        return sorted(self.folder.glob("*.case"))

    def test_each_is_found_and_saved(self) -> None:
        for fault, (code, text) in PLANTED.items():
            if fault in UNSEEN:
                continue
            with self.subTest(fault=fault):
                found = self.look(fault)
                self.assertEqual(code, found.code, found.output)
                self.assertRegex(found.output, f"FINDING in planted, case [0-9]+: .*{text}")
                self.assertEqual(1, len(self.saved()))
                case = self.saved()[0]
                self.assertTrue(case.read_text(encoding="utf-8").startswith("target planted\n"))
                case.unlink()

    def test_what_this_heap_does_not_show_is_not_found(self) -> None:
        for fault in UNSEEN:
            with self.subTest(fault=fault):
                found = self.look(fault)
                self.assertEqual((NOTHING_FOUND, 2000), (found.code, found.cases), found.output)

    def test_a_saved_case_is_found_again(self) -> None:
        for fault in sorted({"overrun", "leaked-object", "leaked-memory", "crash"} - UNSEEN):
            with self.subTest(fault=fault):
                code, text = PLANTED[fault]
                self.look(fault)
                case = self.saved()[0]
                again = self.look(fault, "--replay", windows_path(case))
                self.assertEqual(code, again.code, again.output)
                self.assertIn(text, again.output)
                # Without the fault the same case is a good one.
                self.assertEqual(NOTHING_FOUND, self.look("nothing", "--replay", windows_path(case)).code)
                for file in self.saved():
                    file.unlink()

    def test_the_seed_decides_the_case(self) -> None:
        def case_of(seed: int) -> str:
            self.look("silent-failure", "--seed", str(seed))
            file = self.saved()[0]
            content = file.name + file.read_text(encoding="utf-8")
            file.unlink()
            return content
        self.assertEqual(case_of(5), case_of(5))
        self.assertNotEqual(case_of(5), case_of(6))

    def test_nothing_is_found_where_nothing_is_planted(self) -> None:
        found = self.look("nothing")
        self.assertEqual(NOTHING_FOUND, found.code)
        self.assertEqual(2000, found.cases)
        self.assertEqual([], self.saved())


if __name__ == "__main__":
    unittest.main()
