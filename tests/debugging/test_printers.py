"""What gdb shows of a card, in a program of this machine's own and in those for Windows that hold one."""
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
LIBRARY = PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library"
CARDS = Path(__file__).with_name("cards.cpp")
PRINTERS = "source tools/gdb/printers.py"
TIME_LIMIT = 120


def output_of(command, commands):
    run = subprocess.run(command, cwd=PROJECT, text=True, input="\n".join((*commands, "")), stdout=subprocess.PIPE,
                         stderr=subprocess.DEVNULL, errors="replace", timeout=TIME_LIMIT, check=False)
    return run.stdout


def in_gdb(program, commands):
    return output_of(["gdb", "-nx", "-quiet", program], (*commands, "run", "print card", "kill", "quit"))


def in_gdb_of_wine(program, commands):
    """Wine's debugger starts a gdb of this machine, which finds the program at its start."""
    windows_path = "Z:" + str(program).replace("/", "\\")
    return output_of(["wine", "winedbg", "--gdb", windows_path], (*commands, "continue", "print card", "kill", "quit"))


PROGRAMS = (
    ("g++", (), in_gdb),
    ("i686-w64-mingw32-g++-posix", ("-static",), in_gdb_of_wine),
    ("x86_64-w64-mingw32-g++-posix", ("-static",), in_gdb_of_wine),
)


class PrintersTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def built(self, compiler, options):
        program = self.folder / f"cards-{compiler}"
        subprocess.run([compiler, "-std=c++20", "-g", "-O0", f"-I{LIBRARY}", CARDS, LIBRARY / "platform/TextField.cpp",
                        *options, "-o", program], check=True, timeout=TIME_LIMIT)
        return program

    def test_the_texts_of_a_card_are_shown(self):
        for compiler, options, shown in PROGRAMS:
            output = shown(self.built(compiler, options), (PRINTERS, "set confirm off", "break LookAt"))
            for field in (r'Make = "FORD \"T\""', 'Model = ""', 'Color = "RED"', "number = 4711"):
                with self.subTest(field, compiler=compiler):
                    self.assertIn(field, output)

    def test_without_the_printers_they_are_not(self):
        for compiler, options, shown in PROGRAMS:
            with self.subTest(compiler):
                output = shown(self.built(compiler, options), ("set confirm off", "break LookAt"))
                self.assertIn("length_ = 3", output)


if __name__ == "__main__":
    unittest.main()
