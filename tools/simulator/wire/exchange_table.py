"""What filters, pages and pictures ask about the exchanges, kept in memory."""

from __future__ import annotations

import json
import sqlite3
import threading
from collections.abc import Iterable
from datetime import datetime
from typing import Any

_CREATION = """
CREATE TABLE exchange (
    number INTEGER PRIMARY KEY,
    at INTEGER NOT NULL,
    milliseconds REAL NOT NULL,
    kind TEXT NOT NULL,
    outcome TEXT NOT NULL,
    status INTEGER NOT NULL,
    ori TEXT NOT NULL,
    incident TEXT NOT NULL,
    user TEXT NOT NULL,
    fault TEXT NOT NULL,
    imported INTEGER NOT NULL,
    words TEXT NOT NULL
)
"""
# Apart, so that whoever asks for the rest does not have to leaf through it.
_LINES = "CREATE TABLE line (number INTEGER PRIMARY KEY, text TEXT NOT NULL)"
_MOST_WAITING = 1000
_TABLES = ("exchange", "line")
_INSERTION = f"INSERT OR REPLACE INTO exchange VALUES ({', '.join('?' * 12)})"
_WORDS = ("kind", "outcome", "about", "method", "path", "fault", "note", "user", "imported")


class ExchangeTable:
    """One row an exchange. Any thread may call.

    What comes and goes waits until somebody asks: each statement gives the interpreter to another
    thread, which those who submit would have to wait for.
    """

    def __init__(self) -> None:
        self._lock = threading.Lock()
        self._database = sqlite3.connect(":memory:", check_same_thread=False, isolation_level=None)
        self._database.execute(_CREATION)
        self._database.execute(_LINES)
        self._coming: list[tuple[tuple, str]] = []
        self._going: list[tuple[int]] = []

    def add(self, entries: Iterable[tuple[dict[str, Any], str]]) -> None:
        """Takes entries, each with the line that is its text in the record. One that lacks a value raises an error."""
        with self._lock:
            for entry, line in entries:
                self._coming.append((_row(entry), line))
                if len(self._coming) > _MOST_WAITING:
                    self._settle()

    def rows(self, query: str, values: Iterable[Any] = ()) -> list[tuple]:
        """The answer to a query of the tables `exchange` and `line`."""
        with self._lock:
            self._settle()
            return self._database.execute(query, tuple(values)).fetchall()

    def remove(self, number: int) -> None:
        """Drops one exchange."""
        with self._lock:
            self._going.append((number,))
            if len(self._going) > _MOST_WAITING:
                self._settle()

    def clear(self) -> None:
        """Drops all of them."""
        for table in _TABLES:
            self.rows(f"DELETE FROM {table}")

    def _settle(self) -> None:
        if not self._coming and not self._going:
            return
        self._database.execute("BEGIN")
        self._database.executemany(_INSERTION, [row for row, _ in self._coming])
        self._database.executemany("INSERT OR REPLACE INTO line VALUES (?, ?)",
                                   [(row[0], line) for row, line in self._coming])
        for table in _TABLES:
            self._database.executemany(f"DELETE FROM {table} WHERE number = ?", self._going)
        self._database.execute("COMMIT")
        self._coming, self._going = [], []


def _row(entry: dict[str, Any]) -> tuple:
    words = " ".join(str(entry.get(name) or "") for name in _WORDS).lower()
    return (entry["number"], entry["at"], entry["milliseconds"], entry["kind"], entry["outcome"],
            entry["status"], entry["ori"], entry["incident"], entry["user"], entry["fault"] or "",
            1 if entry.get("imported") else 0, words)


def parsed(line: str) -> dict[str, Any]:
    """An entry from its line. Lines of earlier versions lack what was added since."""
    entry = json.loads(line)
    return entry if "outcome" in entry else _completed(entry)


def _completed(entry: dict[str, Any]) -> dict[str, Any]:
    at = datetime.strptime(entry["time"], "%Y-%m-%dT%H:%M:%S%z").timestamp()
    is_service = entry["method"] == "POST" and entry["path"].endswith(("submission", "search"))
    return {**entry, "at": int(at * 1000), "milliseconds": 0, "response_bytes": 0,
            "kind": entry["path"].rpartition("/")[2] if is_service else "other",
            "outcome": "accepted" if 200 <= entry["status"] < 300 else "refused",
            "ori": "", "incident": "", "user": ""}
