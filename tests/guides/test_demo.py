"""The demonstration of the README's front."""
import subprocess
import unittest
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
TIME_LIMIT = 240


class DemoTest(unittest.TestCase):
    def test_everything_is_as_told(self):
        demo = subprocess.run([PROJECT / "demo.sh"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, timeout=TIME_LIMIT, check=False)
        self.assertEqual(demo.returncode, 0, demo.stdout)
        self.assertIn("everything was as told", demo.stdout)


if __name__ == "__main__":
    unittest.main()
