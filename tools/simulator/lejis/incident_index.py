"""The index behind the LEJIS Interface: the incidents that agencies have submitted."""

from __future__ import annotations

import json
import sqlite3
import threading
from collections import Counter
from pathlib import Path

from . import index_tables as tables
from .incident_card import IncidentCard
from .inquiry import Inquiry


class IncidentIndex:
    """Whole cards in SQLite, keyed by agency and incident number, and beside them what searches
    compare. Any thread may call."""

    def __init__(self, file: Path) -> None:
        self._lock = threading.Lock()
        self._database = sqlite3.connect(file, check_same_thread=False)
        # Losing the last submissions in a power cut is nothing to a simulator; waiting is.
        self._database.execute("PRAGMA synchronous = OFF")
        self._database.execute("PRAGMA foreign_keys = ON")
        self._prepare(file)
        # It holds personal data.
        file.chmod(0o600)

    def _prepare(self, file: Path) -> None:
        (version,) = self._database.execute("PRAGMA user_version").fetchone()
        (count,) = self._database.execute("SELECT count(*) FROM sqlite_master").fetchone()
        if version != tables.VERSION and count:
            self._database.close()
            raise ValueError(f"{file} is of another version of the simulator; remove it first.")
        if not count:
            with self._database:
                for statement in tables.creation():
                    self._database.execute(statement)

    def close(self) -> None:
        """Lets go of the file."""
        with self._lock:
            self._database.close()

    def apply(self, cards: list[IncidentCard]) -> Counter[str]:
        """Takes the cards of one submission, all or none, and counts what each one did."""
        with self._lock, self._database:
            return Counter(self._withdraw(card) if card.is_bare else self._keep(card)
                           for card in cards)

    def add(self, cards: list[IncidentCard]) -> Counter[str]:
        """Keeps the cards, all or none, even those that would withdraw an incident."""
        with self._lock, self._database:
            return Counter(self._keep(card) for card in cards)

    def _withdraw(self, card: IncidentCard) -> str:
        return "deleted" if self._remove(card) else "not held"

    def _remove(self, card: IncidentCard) -> bool:
        return self._database.execute(
            "DELETE FROM incident WHERE ori = ? AND activity_id = ?", card.key).rowcount > 0

    def _keep(self, card: IncidentCard) -> str:
        known = self._remove(card)
        number = self._database.execute(
            "INSERT INTO incident VALUES (NULL, ?, ?, ?, ?, ?)",
            (*card.key, json.dumps(card.summary), card.markup, card.words)).lastrowid
        for group, rows in card.searchable.items():
            self._database.executemany(tables.insertion(group), [(number, *row) for row in rows])
        return "replaced" if known else "added"

    def find(self, inquiry: Inquiry, most: int) -> tuple[int, list[str]]:
        """How many incidents fulfil the inquiry, and the markup of the first ones' cards."""
        condition, values = tables.condition(inquiry)
        with self._lock:
            (count,) = self._database.execute(
                f"SELECT count(*) FROM incident WHERE {condition}", values).fetchone()
            rows = self._database.execute(
                f"SELECT card FROM incident WHERE {condition} ORDER BY ori, activity_id LIMIT ?",
                [*values, most]).fetchall()
        return count, [card for (card,) in rows]

    def summaries(self) -> list[dict]:
        """One entry an incident held, by agency and number."""
        with self._lock:
            rows = self._database.execute(
                "SELECT summary FROM incident ORDER BY ori, activity_id").fetchall()
        return [json.loads(summary) for (summary,) in rows]

    def page(self, text: str, first: int, most: int) -> tuple[int, list[dict]]:
        """How many incidents hold the text in any of their own, without regard to case, and the
        summaries of some of them, in the order of agency and number."""
        wanted = text.casefold().split()
        condition = " AND ".join(["1"] + ["instr(words, ?) > 0"] * len(wanted))
        with self._lock:
            (count,) = self._database.execute(
                f"SELECT count(*) FROM incident WHERE {condition}", wanted).fetchone()
            rows = self._database.execute(
                f"SELECT summary FROM incident WHERE {condition} ORDER BY ori, activity_id "
                "LIMIT ? OFFSET ?", [*wanted, most, first]).fetchall()
        return count, [json.loads(summary) for (summary,) in rows]

    @property
    def count(self) -> int:
        """How many incidents are held."""
        with self._lock:
            ((count,),) = self._database.execute("SELECT count(*) FROM incident").fetchall()
        return count

    def card(self, ori: str, activity_id: str) -> str | None:
        """The markup of a card held, or nothing."""
        with self._lock:
            row = self._database.execute(
                "SELECT card FROM incident WHERE ori = ? AND activity_id = ?",
                (ori, activity_id)).fetchone()
        return row[0] if row else None

    def clear(self) -> int:
        """Forgets every incident; the number forgotten."""
        with self._lock, self._database:
            return self._database.execute("DELETE FROM incident").rowcount
