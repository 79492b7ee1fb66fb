"""The version of the Wine that runs the tests."""

from __future__ import annotations

import re
import subprocess


def major() -> int:
    """10 of "wine-10.0 (Debian 10.0~repack-6)"."""
    told = subprocess.run(["wine", "--version"], stdin=subprocess.DEVNULL, capture_output=True, text=True, check=True)
    version = re.match(r"wine-(\d+)", told.stdout)
    if not version:
        raise RuntimeError(f"Wine tells no version: {told.stdout!r}")
    return int(version[1])
