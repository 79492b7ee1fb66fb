"""The check of lint.sh that finds includes that look up the floors, and circles."""
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools"
PROGRAM = TOOLS / "find-upward-includes.sh"
FLOORS = ("ground", "left right", "roof", "main.cpp")

# All that is allowed: own floor, lower floors, and what is not here at all.
HOUSE = {
    "ground/A.h": "#include <map>\n#include \"elsewhere/X.h\"\n",
    "ground/A.cpp": '#include "ground/A.h"\n',
    "left/L.h": '#include "ground/A.h"\n',
    "right/R.h": '#include "ground/A.h"\n',
    "roof/T.h": '#include "left/L.h"\n#include "right/R.h"\n',
    "main.cpp": '#include "roof/T.h"\n',
}


class FindUpwardIncludesTest(unittest.TestCase):
    def run_on(self, changes=None, floors=FLOORS):
        with tempfile.TemporaryDirectory(prefix="of ") as folder:
            for name, text in {**HOUSE, **(changes or {})}.items():
                file = Path(folder, name)
                file.parent.mkdir(exist_ok=True)
                file.write_text(text)
            run = subprocess.run([PROGRAM, folder, *floors], capture_output=True, text=True, check=False)
            return run.returncode, run.stdout, run.stderr

    def test_a_house_in_order_passes(self):
        self.assertEqual(self.run_on(), (0, "", ""))

    def test_an_include_that_looks_up_is_found_with_its_place(self):
        changes = {"left/L.cpp": '#include "ground/A.h"\n\n  #  include "roof/U.h"\n', "roof/U.h": ""}
        self.assertEqual(self.run_on(changes),
                         (1, "left/L.cpp:3: roof/U.h stands higher\n", ""))

    def test_one_in_a_file_at_the_top_is_found_too(self):
        self.assertEqual(self.run_on({"ground/B.h": '#include "main.cpp"\n'}),
                         (1, "ground/B.h:1: main.cpp stands higher\n", ""))

    def test_folders_side_by_side_do_not_include_each_other(self):
        self.assertEqual(self.run_on({"left/L.cpp": '#include "right/R.h"\n'}),
                         (1, "left/L.cpp:1: right/R.h stands side by side with it\n", ""))

    def test_a_circle_within_a_floor_is_found(self):
        code, output, _ = self.run_on({"left/M.h": '#include "left/L.h"\n', "left/L.cpp": '#include "left/M.h"\n'})
        self.assertEqual((code, sorted(output.splitlines())),
                         (1, ["  left/L", "  left/M", "These include each other in a circle:"]))

    def test_what_stands_on_no_floor_is_told(self):
        changes = {"cellar/C.h": '#include "ground/A.h"\n', "cellar/D.h": '#include "cellar/C.h"\n'}
        self.assertEqual(self.run_on(changes),
                         (1, "cellar stands on no floor\n", ""))

    def test_a_missing_floor_is_an_error(self):
        self.assertEqual(self.run_on(floors=(*FLOORS, "attic"))[0], 2)
        self.assertEqual(self.run_on(floors=())[0], 2)


if __name__ == "__main__":
    unittest.main()
