"""The check of lint.sh that finds what belongs to a thread."""
import subprocess
import tempfile
import unittest
from pathlib import Path

PROGRAM = Path(__file__).resolve().parents[2] / "tools" / "find-thread-locals.sh"

FOUND = ("thread_local Map running;", "    static thread_local int* const one = nullptr;",
         "inline thread_local int depth;", "__thread int depth;", "int half = 1 / 2; thread_local int depth;",
         "thread_local int depth;  // plain")
PASSED = ("// No thread_local here.", "int depth;  // not a thread_local", "int my_thread_local;", "int x = a / b;",
          "/* thread_local */")


class FindThreadLocalsTest(unittest.TestCase):
    def run_on(self, *lines):
        with tempfile.TemporaryDirectory() as folder:
            files = [Path(folder, f"{number} a.cpp") for number in range(len(lines))]
            for file, line in zip(files, lines):
                file.write_text(f"#include <map>\n{line}\n")
            run = subprocess.run([PROGRAM, *files], capture_output=True, text=True, check=False)
            return run.returncode, run.stdout.replace(f"{folder}/", ""), run.stderr

    def test_every_planted_one_is_found_with_its_place(self):
        for line in FOUND:
            self.assertEqual(self.run_on("int a;", line), (1, f"1 a.cpp:2:{line}\n", ""))

    def test_comments_and_other_names_are_none(self):
        self.assertEqual(self.run_on(*PASSED), (0, "", ""))

    def test_an_unreadable_file_is_an_error(self):
        run = subprocess.run([PROGRAM, "/nowhere/a.cpp"], capture_output=True, text=True, check=False)
        self.assertNotEqual(run.returncode, 0, run)


if __name__ == "__main__":
    unittest.main()
