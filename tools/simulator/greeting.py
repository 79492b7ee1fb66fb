"""What the program prints when it listens: addresses ready to paste."""

from __future__ import annotations

import argparse
from pathlib import Path

from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH

# Bound to these a server listens everywhere, but they are no addresses to go to.
_EVERYWHERE = {"//0.0.0.0:": "//127.0.0.1:", "//[::]:": "//[::1]:"}


def greeting(address: str, options: argparse.Namespace, data: Path) -> str:
    """The first line stays as programs know it."""
    reachable = address
    for bound, usable in _EVERYWHERE.items():
        reachable = reachable.replace(bound, usable)
    rows = (
        ("Page", f"{reachable}/"),
        ("Submissions", reachable + SUBMISSION_PATH),
        ("Searches", reachable + SEARCH_PATH),
        ("Recorded", options.record_to),
        ("LEJIS host", options.lejis_host),
        ("Data", str(data.resolve())),
    )
    name = "recorder" if options.record_to else "simulator"
    return "\n".join([f"LEJIS Interface {name} listening on {address}",
                      *(f"  {label:<12} {text}" for label, text in rows if text)])
