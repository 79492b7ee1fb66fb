"""Where the simulator listens: on this machine alone, unless it is told otherwise."""

import socket
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from test_program import PROGRAM

# Another address of the loopback network. A server that listens everywhere would answer here too.
ELSEWHERE = "127.0.0.2"


class ListeningTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def port(self, *words: str) -> int:
        port_file = self.folder / "port"
        program = subprocess.Popen(
            [sys.executable, "-B", str(PROGRAM), "--port", "0", "--port-file", str(port_file),
             "--data", str(self.folder / "data"), *words], stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.addCleanup(program.communicate)
        self.addCleanup(program.kill)
        program.stdout.readline()
        return int(port_file.read_text())

    def test_only_loopback_by_default(self) -> None:
        port = self.port()
        socket.create_connection(("127.0.0.1", port), timeout=10).close()
        with self.assertRaises(ConnectionRefusedError):
            socket.create_connection((ELSEWHERE, port), timeout=10)

    def test_elsewhere_when_told(self) -> None:
        port = self.port("--host", ELSEWHERE)
        socket.create_connection((ELSEWHERE, port), timeout=10).close()
        with self.assertRaises(ConnectionRefusedError):
            socket.create_connection(("127.0.0.1", port), timeout=10)


if __name__ == "__main__":
    unittest.main()
