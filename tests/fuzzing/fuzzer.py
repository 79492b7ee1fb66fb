"""Runs of fuzz.exe. FUZZ_COMMAND says how it is started, an argument a line."""

from __future__ import annotations

import os
import re
import subprocess
from pathlib import Path
from typing import NamedTuple

NOTHING_FOUND, FOUND, CRASHED, HUNG, DEVOURED = 0, 1, 3, 4, 5

TIME_LIMIT = 120


class Run(NamedTuple):
    code: int
    output: str

    @property
    def cases(self) -> int:
        """How many cases ran without a finding."""
        summary = re.search(r"^\w+: (\d+) cases in .*, no finding$", self.output, re.MULTILINE)
        return int(summary[1]) if summary else 0


def windows_path(path: Path) -> str:
    return "Z:" + str(path).replace("/", "\\")


def run(*arguments: str, **environment: str) -> Run:
    # Wine's XML parser complains on the error output of what it is made to read.
    ended = subprocess.run([*os.environ["FUZZ_COMMAND"].splitlines(), *arguments], stdout=subprocess.PIPE,
                           stderr=subprocess.DEVNULL, env=os.environ | environment, timeout=TIME_LIMIT, check=False)
    return Run(ended.returncode, ended.stdout.decode(errors="replace").replace("\r\n", "\n"))
