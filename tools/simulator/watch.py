"""When the simulator has outlived its use."""

from __future__ import annotations

import os
from pathlib import Path


def process_mark(pid: int) -> str | None:
    """Tells one process from a later one with the same number; nothing when it is gone.

    A process that has ended but that nobody has waited for counts as gone.
    """
    try:
        status = Path(f"/proc/{pid}/stat").read_text(encoding="ascii", errors="replace")
    except OSError:
        return _mark_without_proc(pid) if not Path("/proc/self/stat").exists() else None
    # The name stands in parentheses and may hold anything, blanks and parentheses included.
    fields = status.rpartition(")")[2].split()
    state, start_time = fields[0], fields[19]
    return None if state in "ZX" else start_time


def _mark_without_proc(pid: int) -> str | None:
    try:
        os.kill(pid, 0)
    except ProcessLookupError:
        return None
    except PermissionError:
        pass
    return "alive"
