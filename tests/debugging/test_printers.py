"""What gdb shows of a card, in a program of this machine's own that holds one."""
import subprocess
import tempfile
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
LIBRARY = PROJECT / "Plugins" / "LEJIS" / "LEJIS Core Library"
CARDS = Path(__file__).with_name("cards.cpp")


class PrintersTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.program = Path(folder.name) / "cards"
        subprocess.run(["g++", "-std=c++20", "-g", "-O0", f"-I{LIBRARY}", CARDS, LIBRARY / "platform" / "TextField.cpp",
                        "-o", cls.program], check=True, timeout=120)

    def shown(self, *sources):
        """What gdb says of the card."""
        commands = (*(f"source {source}" for source in sources), "break LookAt", "run", "print card")
        arguments = [argument for command in commands for argument in ("-ex", command)]
        run = subprocess.run(["gdb", "--batch", "-nx", *arguments, self.program], cwd=PROJECT, text=True,
                             stdin=subprocess.DEVNULL, capture_output=True, timeout=120, check=False)
        return run.stdout

    def test_the_texts_of_a_card_are_shown(self):
        shown = self.shown("tools/gdb/printers.py")
        for field in (r'Make = "FORD \"T\""', 'Model = ""', 'Color = "RED"', "number = 4711"):
            with self.subTest(field):
                self.assertIn(field, shown)

    def test_without_the_printers_they_are_not(self):
        self.assertIn("length_ = 3", self.shown())


if __name__ == "__main__":
    unittest.main()
