"""Lets a careful client submit and withdraw incidents at a server that fails one time in ten.

    endurance.py CLIENT --count N --seed S

CLIENT is endurance_client.exe as a Windows path; the library of its bitness is registered. The exit code is 1 unless
the index equals what the client was told, record by record, and the client's memory grows no more than it does with
the platform alone.
"""

from __future__ import annotations

import argparse
import re
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / folder)
                for folder in ("tools/simulator", "tests/fault_matrix", "tests/endurance", "tests/support")]

from fault_server import FaultServer  # noqa: E402  the paths come first
from moods import Moods  # noqa: E402
from windows_program import RUNNER  # noqa: E402

ABSENT, NO_DOUBT = "-", "="
# Every third version is a full incident, with two persons.
FULL = 3
WARM_UP = 1000
# The share by which memory may grow over what is held after the first thousand exchanges.
TOLERANCE = 0.02
# Memory comes in pieces of a megabyte and more, so that what the platform loses is known about so well.
UNCERTAINTY = 0.15


@dataclass
class Run:
    """What the client printed, and what was found wrong with it."""

    samples: list[tuple[int, int, int]] = field(default_factory=list)
    control: list[tuple[int, int, int]] = field(default_factory=list)
    ledger: dict[str, tuple[str, str]] = field(default_factory=dict)
    counts: list[int] = field(default_factory=list)
    left_behind: str = "the client did not end"
    faults: list[str] = field(default_factory=list)


def listen(process: subprocess.Popen, server: FaultServer, run: Run, last: str) -> None:
    """Reads until a line that begins so, or the end."""
    for line in process.stdout:
        word, *fields = line.rstrip("\r\n").split("\t")
        if word == "sample":
            run.samples.append(tuple(map(int, fields)))
            server.forget_exchanges()
        elif word == "control":
            run.control.append(tuple(map(int, fields)))
            server.forget_exchanges()
        elif word == "held":
            run.ledger[fields[0]] = (fields[1], fields[2])
        elif word == "counts":
            run.counts = list(map(int, fields))
        elif word == "left behind":
            run.left_behind = fields[0]
        if word == last:
            return


def version_of(card: str | None, incident: str) -> str:
    """The version that a card is; anything else than a whole card of one version is no version."""
    if card is None:
        return ABSENT
    caveat = re.search(r"<(?:\w+:)?CaveatText[^>]*>Version (\d+) of ([\w-]+)</", card)
    if not caveat or caveat[2] != incident:
        return "no version"
    persons = len(re.findall(r"<(?:\w+:)?RMSPersonIndexCards[ >/]", card))
    return caveat[1] if persons == (2 if int(caveat[1]) % FULL == 0 else 0) else "a part of a version"


def compare(server: FaultServer, run: Run, when: str) -> None:
    """The index against the ledger, record by record."""
    for incident, (told, instead) in run.ledger.items():
        held = version_of(server.card(incident), incident)
        if held != told and (instead == NO_DOUBT or held != instead):
            run.faults.append(f"{when}: {incident} is {held} in the index; the client was told {told}, doubt {instead}")
    for incident in set(server.held()) - set(run.ledger):
        run.faults.append(f"{when}: {incident} is in the index, and nobody has sent it")


def growth(samples: list[tuple[int, int, int]], column: int) -> float:
    """What each exchange has added, by the medians of the first and the last tenth."""
    share = max(1, len(samples) // 10)
    first, last = samples[:share], samples[-share:]
    added = statistics.median(s[column] for s in last) - statistics.median(s[column] for s in first)
    return added / max(1, statistics.median(s[0] for s in last) - statistics.median(s[0] for s in first))


def judge_memory(run: Run) -> list[str]:
    """The figures. What rises by more than the platform loses without the library is a fault. A short run has none."""
    warm = [sample for sample in run.samples if sample[0] > WARM_UP]
    if len(warm) < 20:
        return []
    lines = []
    for name, column in (("private bytes", 1), ("handles", 2)):
        first, last = warm[0][column], warm[-1][column]
        if not first:
            run.faults.append(f"{name} cannot be counted here")
            continue
        each, platform = growth(warm, column), max(0.0, growth(run.control, column))
        lines.append(f"{name}: {first} after {WARM_UP} exchanges, {last} at the end; each exchange adds {each:.1f}, "
                     f"one without the library {platform:.1f}")
        if (each - platform * (1 + UNCERTAINTY)) * (warm[-1][0] - warm[0][0]) > TOLERANCE * first:
            run.faults.append(f"{name} grow by more than the platform loses")
    return lines


def endure(client: str, count: int, seed: int, data: Path) -> tuple[Run, Moods]:
    """The whole run."""
    run, moods = Run(), Moods(seed)
    server = FaultServer((), data)
    try:
        command = [RUNNER, client, server.moody_address("submit", moods.draw), str(count), str(seed),
                   server.moody_address("submit", Moods(seed).draw)]
        with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as process:
            listen(process, server, run, "end of ledger")
            compare(server, run, "before doubts are settled")
            process.stdin.write(f"{server.mean_body()}\n")
            process.stdin.flush()
            listen(process, server, run, "left behind")
            compare(server, run, "at the end")
            listen(process, server, run, "")
        if process.returncode or run.left_behind != "nothing":
            run.faults.append(f"the client ended with code {process.returncode} and left behind: {run.left_behind}")
    finally:
        server.close()
    if any(instead != NO_DOUBT for _, instead in run.ledger.values()):
        run.faults.append("a doubt has not been settled")
    return run, moods


def main() -> int:
    """Prints the figures and what is wrong."""
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("client")
    parser.add_argument("--count", type=int, default=10_000)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    started = time.monotonic()
    with tempfile.TemporaryDirectory(prefix="endurance-") as folder:
        run, moods = endure(options.client, options.count, options.seed, Path(folder))
    figures = judge_memory(run)
    exchanges, transient, refused, doubted = run.counts or [0] * 4
    print(f"{options.count} submissions and deletions, seed {options.seed}: {exchanges} exchanges, "
          f"{sum(moods.played.values())} faults of {len(moods.played)} kinds, {transient} transient errors, "
          f"{refused} refusals, {doubted} doubts, {time.monotonic() - started:.0f} s")
    held = sum(told != ABSENT for told, _ in run.ledger.values())
    print(f"{len(run.ledger)} incidents, {held} of them held at the end")
    for line in figures + run.faults[:40]:
        print(line)
    print("Nothing lost." if not run.faults else f"{len(run.faults)} faults.")
    return 1 if run.faults else 0


if __name__ == "__main__":
    sys.exit(main())
