"""Lets lejis.exe submit a backlog at a server that fails one time in ten, and kills it again and again.

    backlog.py LEJIS --count N --kills K --jobs J --seed S

LEJIS is lejis.exe as a Windows path; the library of its bitness is registered. Each run continues the ledger of the
runs before it. The exit code is 1 unless, at the end, the index holds every incident and the ledger tells the truth.
"""

from __future__ import annotations

import argparse
import contextlib
import json
import os
import random
import signal
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path, PureWindowsPath

PROJECT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / folder) for folder in ("tools/simulator", "tests/fault_matrix", "tests/endurance",
                                                     "tests/support", "tests/lejis")]

from fault_server import FaultServer  # noqa: E402  the paths come first
from lejis_case import card  # noqa: E402
from moods import Moods  # noqa: E402
from windows_program import RUNNER  # noqa: E402

DONE = 0
MOST_RUNS = 40
# Some incidents take so long.
LONGEST_DELAY = 0.05
# Enough for some to come when the index has an incident and the ledger has not.
MANY_KILLS = 10
TIME_LIMIT = 3600
# Under Wine about one incident in ten thousand stops on its way: Wine does not report an answer that has come, or does
# not make an object. The tool then waits for the seconds of --timeout and goes on.
PATIENCE = 60
# Outcomes after which the index is as it was before.
WITHOUT_TRACE = {"refused", "not sent"}


@dataclass
class Backlog:
    """What is to be submitted, with what, and what was found wrong."""

    program: str
    folder: Path
    count: int
    jobs: int
    server: FaultServer
    url: str
    runs: int = 0
    kills: int = 0
    untold: int = 0
    faults: list[str] = field(default_factory=list)

    @property
    def ledger(self) -> Path:
        return self.folder / "night.ledger"

    def write_incidents(self) -> None:
        incidents = self.folder / "incidents"
        incidents.mkdir()
        for number in range(self.count):
            (incidents / f"{number:06}.xml").write_text(card(name_of(number)), encoding="utf-8")

    def start(self) -> subprocess.Popen:
        self.runs += 1
        command = [RUNNER, self.program, "submit", "--recurse", "incidents", "--url", self.url, "--jobs",
                   str(self.jobs), "--retry", "5", "--stop-after", "50", "--timeout", str(PATIENCE), "--ledger",
                   "night.ledger", "--json"]
        return subprocess.Popen(command, cwd=self.folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)

    def run_and_kill(self, lines: int, delay: float) -> None:
        """Kills the program `delay` seconds after it has reported `lines` incidents, unless it ends before."""
        with self.start() as process:
            for _, line in zip(range(lines), process.stdout):
                if '"command"' in line:
                    break
            else:
                # A result is told when the ledger has it. Some time later others are under way.
                time.sleep(delay)
                self.kills += kill(self.url)
            with contextlib.suppress(subprocess.TimeoutExpired):
                process.wait(10)
            process.kill()

    def run_to_the_end(self) -> int:
        with self.start() as process:
            for _ in process.stdout:
                self.server.forget_exchanges()
            return process.wait(TIME_LIMIT)

    def entries(self) -> list[dict]:
        """The entries of all complete lines."""
        entries = []
        for line in self.ledger.read_text(encoding="ascii").splitlines():
            with contextlib.suppress(json.JSONDecodeError):
                entries.append(json.loads(line))
        return entries

    def judge(self, when: str, is_first: bool) -> None:
        """The ledger against the index. What was under way when it was killed is in no ledger: only the first run can
        say of an incident that nothing reached LEJIS at all."""
        held = set(self.server.held())
        told: dict[str, set[str]] = {}
        for entry in self.entries():
            told.setdefault(number_of(entry), set()).add(entry["outcome"])
        for number, outcomes in told.items():
            if "submitted" in outcomes and number not in held:
                self.faults.append(f"{when}: {number} was submitted, says the ledger, and is not in the index")
            if is_first and outcomes <= WITHOUT_TRACE and number in held:
                self.faults.append(f"{when}: {number} is in the index, and the ledger says {outcomes}")

    def count_untold(self) -> None:
        """The incidents that were killed between their arrival and the ledger's line."""
        self.untold += len(set(self.server.held()) - {number_of(entry) for entry in self.entries()})

    def judge_end(self) -> None:
        """All is there, and the ledger says so."""
        held = self.server.held()
        wanted = {name_of(number) for number in range(self.count)}
        if sorted(held) != sorted(wanted):
            self.faults.append(f"the index holds {len(held)} incidents, {len(wanted - set(held))} are missing")
        last = {number_of(entry): entry["outcome"] for entry in self.entries()}
        if wrong := {number: outcome for number, outcome in last.items() if outcome != "submitted"}:
            self.faults.append(f"the ledger's last outcomes are {wrong}")
        if set(last) != wanted:
            self.faults.append(f"the ledger knows {len(last)} incidents")


def name_of(number: int) -> str:
    return f"B-{number:06}"


def number_of(entry: dict) -> str:
    """The number of an entry's incident, by its file: an entry whose file was not read has no number."""
    return name_of(int(PureWindowsPath(entry["file"]).stem))


def kill(url: str) -> int:
    """Ends the program at once, as the system does when it has no memory left; returns how many there were."""
    killed = 0
    for folder in Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            arguments = (folder / "cmdline").read_bytes().split(b"\0")
            if arguments[0].endswith(b"lejis.exe") and url.encode() in arguments:
                os.kill(int(folder.name), signal.SIGKILL)
                killed += 1
    return killed


def work_off(program: str, count: int, kills: int, jobs: int, seed: int, data: Path) -> Backlog:
    """The whole story."""
    draw = random.Random(seed)
    server = FaultServer((), data)
    try:
        url = server.moody_address("submit", Moods(seed).draw)
        (data / "work").mkdir()
        backlog = Backlog(program, data / "work", count, jobs, server, url)
        backlog.write_incidents()
        for number in range(kills):
            backlog.run_and_kill(draw.randrange(1, max(2, 2 * count // (kills + 1))), draw.uniform(0, LONGEST_DELAY))
            backlog.count_untold()
            backlog.judge(f"after kill {number + 1}", is_first=number == 0)
        while backlog.run_to_the_end() != DONE and backlog.runs < MOST_RUNS:
            backlog.judge(f"after run {backlog.runs}", is_first=kills == 0 and backlog.runs == 1)
        backlog.judge_end()
        if kills >= MANY_KILLS and backlog.untold == 0:
            backlog.faults.append("no kill came between the arrival of an incident and its line in the ledger")
    finally:
        server.close()
    return backlog


def main() -> int:
    """Prints the figures and what is wrong."""
    parser = argparse.ArgumentParser(description=__doc__.partition("\n")[0])
    parser.add_argument("program")
    parser.add_argument("--count", type=int, default=10_000)
    parser.add_argument("--kills", type=int, default=10)
    parser.add_argument("--jobs", type=int, default=4)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    started = time.monotonic()
    with tempfile.TemporaryDirectory(prefix="backlog-") as folder:
        backlog = work_off(options.program, options.count, options.kills, options.jobs, options.seed, Path(folder))
        tries = len(backlog.entries())
    print(f"{options.count} incidents, seed {options.seed}: {backlog.runs} runs, {backlog.kills} of them killed, "
          f"{tries} tries in the ledger, {time.monotonic() - started:.0f} s")
    for fault in backlog.faults[:40]:
        print(fault)
    print("Nothing lost." if not backlog.faults else f"{len(backlog.faults)} faults.")
    return 1 if backlog.faults else 0


if __name__ == "__main__":
    sys.exit(main())
