"""The client of the fault matrix in its own process, which one can lose without losing more."""

from __future__ import annotations

import os
import queue
import subprocess
import threading
from pathlib import Path
from typing import NamedTuple

from windows_program import RUNNER

_ESCAPES = {"\\r": "\r", "\\n": "\n", "\\t": "\t", "\\\\": "\\"}


class Told(NamedTuple):
    """What the client has been told: of the exchange, of the next one of the same object, and
    what of the library it has found left behind."""

    outcome: str
    next: str
    left_behind: str


class FaultClient:
    """A Windows program that makes exchanges one after the other."""

    def __init__(self, program: str, folder: Path) -> None:
        self._command = [RUNNER, program]
        self._folder = folder
        self._process: subprocess.Popen | None = None
        self._lines: queue.Queue[bytes] = queue.Queue()

    def tell(self, time_limit: float, *words: str) -> Told:
        """Has one exchange made. One that does not end in time ends its process."""
        if not self._process:
            self._start()
        self._process.stdin.write(("\t".join(words) + "\n").encode())
        self._process.stdin.flush()
        try:
            line = self._lines.get(timeout=time_limit)
        except queue.Empty:
            self.close()
            return Told("did not end", "", "")
        parts = line.decode(errors="replace").rstrip("\r\n").split("\t")
        if len(parts) != len(Told._fields):
            # Whatever Wine writes of a crash, or the end of the output.
            self.close()
            return Told(f"the client's process ended: {parts[0]}", "", "")
        return Told(*map(unescaped, parts))

    def close(self) -> None:
        """Ends the process: in order when its input ends, else at once."""
        if not self._process:
            return
        self._process.stdin.close()
        try:
            self._process.wait(5)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        self._process.stdout.close()
        self._process = None

    def _start(self) -> None:
        # Wine resolves one schema's import of another in the current folder.
        self._process = subprocess.Popen(self._command, cwd=self._folder, stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE, env=os.environ)
        self._lines = queue.Queue()
        threading.Thread(target=_forward, args=(self._process.stdout, self._lines), daemon=True).start()


def _forward(source: object, lines: queue.Queue[bytes]) -> None:
    """Every line, and an empty one at the end."""
    for line in source:
        lines.put(line)
    lines.put(b"")


def unescaped(text: str) -> str:
    parts = []
    position = 0
    while position < len(text):
        size = 2 if text[position] == "\\" else 1
        part = text[position:position + size]
        parts.append(_ESCAPES.get(part, part))
        position += size
    return "".join(parts)
