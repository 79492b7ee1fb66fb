"""Every behaviour of a server times every operation of a client: what happens is what is documented.

In the environment:

    FAULT_CLIENT         the client, a Windows program; the library of its bitness is registered
    UNIT_TESTS           the tests of the library's inside, which play some of the rows
    FAULT_MATRIX_PAGE    only for regenerate.sh: where to write the page
"""

from __future__ import annotations

import os
import sys
import tempfile
import unittest
from collections.abc import Callable
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / "tools" / "simulator"), str(PROJECT / "tests" / "support"),
                str(Path(__file__).resolve().parent)]

# The simulator's packages are found only now.
# pylint: disable=wrong-import-position
import documented  # noqa: E402
import matrix  # noqa: E402
import report  # noqa: E402
import scripted  # noqa: E402
import wine_version  # noqa: E402
from behaviour import OPERATIONS  # noqa: E402
from behaviours import BEHAVIOURS  # noqa: E402

PAGE = PROJECT / "docs" / "fault-matrix.md"
PLAYED = tuple(behaviour for behaviour in BEHAVIOURS if not behaviour.scripted)
SCRIPTED = tuple(behaviour for behaviour in BEHAVIOURS if behaviour.scripted)
WINE = wine_version.major()


class FaultMatrix(unittest.TestCase):
    """One run, looked at from several sides."""

    maxDiff = None
    cells: list[matrix.Cell] = []
    outcomes: matrix.Outcomes = {}

    @classmethod
    def setUpClass(cls) -> None:
        with tempfile.TemporaryDirectory(prefix="fault-matrix-") as folder:
            cls.cells = matrix.run(PLAYED, os.environ["FAULT_CLIENT"], Path(folder))
            recorded = scripted.outcomes(os.environ["UNIT_TESTS"], Path(folder))
        cls.outcomes = {(cell.behaviour, cell.operation): cell.told.outcome for cell in cls.cells}
        for behaviour in SCRIPTED:
            for operation in OPERATIONS:
                outcome = recorded.get((behaviour.scripted, operation), "no such test has passed")
                cls.outcomes[behaviour, operation] = outcome

    def for_each_cell(self, judge: Callable[[matrix.Cell], None]) -> None:
        """Has the cells that were played over sockets judged, each as a test of its own."""
        for cell in self.cells:
            with self.subTest(server=cell.behaviour.name, operation=cell.operation):
                judge(cell)

    def test_the_outcome_is_the_one_documented(self) -> None:
        for (behaviour, operation), outcome in self.outcomes.items():
            with self.subTest(server=behaviour.name, operation=operation):
                wanted = behaviour.documented(operation, WINE)
                self.assertTrue(documented.fulfils(outcome, wanted),
                                f"\n  told       {outcome!r}\n  documented {wanted}")

    def test_the_next_exchange_of_the_same_object_succeeds(self) -> None:
        self.for_each_cell(lambda cell: self.assertEqual(
            documented.FOUND if cell.operation == "search" else documented.SUCCESS, cell.told.next))

    def test_nothing_of_the_library_is_left_behind(self) -> None:
        self.for_each_cell(lambda cell: self.assertEqual("nothing", cell.told.left_behind))

    def test_the_server_is_asked_once_where_it_can_be(self) -> None:
        self.for_each_cell(lambda cell: self.assertEqual(cell.behaviour.asked, cell.asked))

    def test_a_success_is_one_of_the_server_too(self) -> None:
        def judge(cell: matrix.Cell) -> None:
            if cell.operation in ("submit", "delete") and cell.told.outcome == documented.SUCCESS:
                self.assertEqual(cell.asked, cell.served)
        self.for_each_cell(judge)

    def test_the_index_holds_the_incident_whole_or_not_at_all(self) -> None:
        def judge(cell: matrix.Cell) -> None:
            # A deletion begins with an incident that is held; a search has none.
            held = {"submit": cell.served > 0, "delete": cell.served == 0, "search": False,
                    "wsdl": cell.told.outcome == documented.SUCCESS}[cell.operation]
            self.assertEqual(held, cell.card is not None)
            if cell.card and cell.next_card:
                self.assertEqual(cell.next_card.replace("-next<", "<"), cell.card)
        self.for_each_cell(judge)

    def test_the_page_in_the_documentation_is_that_of_this_run(self) -> None:
        page = report.render(BEHAVIOURS, self.outcomes, WINE)
        if destination := os.environ.get("FAULT_MATRIX_PAGE"):
            Path(destination).write_text(page, encoding="utf-8")
        self.assertEqual(PAGE.read_text(encoding="utf-8") if PAGE.exists() else "", page,
                         "tests/fault_matrix/regenerate.sh writes the page anew")


if __name__ == "__main__":
    unittest.main()
