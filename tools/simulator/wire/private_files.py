"""Files that hold personal data: nobody but their owner reads them."""

from __future__ import annotations

import os
from pathlib import Path
from typing import IO


def make_private_folder(folder: Path) -> None:
    """Makes the folder, or closes it to others when it is there already."""
    folder.mkdir(mode=0o700, parents=True, exist_ok=True)
    folder.chmod(0o700)


def open_private(file: Path, mode: str, buffering: int = -1) -> IO[bytes]:
    """A binary file that is closed to others from its first byte on."""
    return open(file, mode, buffering, opener=lambda name, flags: os.open(name, flags, 0o600))
