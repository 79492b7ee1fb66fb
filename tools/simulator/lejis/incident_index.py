"""The index behind the LEJIS Interface: the incidents that agencies have submitted."""

from __future__ import annotations

import json
import sqlite3
import threading
from collections import Counter
from pathlib import Path

from .incident_card import IncidentCard

_TABLE = """
CREATE TABLE IF NOT EXISTS incident (
    ori TEXT NOT NULL,
    activity_id TEXT NOT NULL,
    summary TEXT NOT NULL,
    card TEXT NOT NULL,
    PRIMARY KEY (ori, activity_id)
)
"""


class IncidentIndex:
    """Whole cards in SQLite, keyed by agency and incident number. Any thread may call."""

    def __init__(self, file: Path) -> None:
        self._lock = threading.Lock()
        self._database = sqlite3.connect(file, check_same_thread=False)
        # Losing the last submissions in a power cut is nothing to a simulator; waiting is.
        self._database.execute("PRAGMA synchronous = OFF")
        self._database.execute(_TABLE)

    def close(self) -> None:
        """Lets go of the file."""
        with self._lock:
            self._database.close()

    def apply(self, cards: list[IncidentCard]) -> Counter[str]:
        """Takes the cards of one submission, all or none, and counts what each one did."""
        with self._lock, self._database:
            return Counter(self._withdraw(card) if card.is_bare else self._keep(card)
                           for card in cards)

    def _withdraw(self, card: IncidentCard) -> str:
        cursor = self._database.execute(
            "DELETE FROM incident WHERE ori = ? AND activity_id = ?", card.key)
        return "deleted" if cursor.rowcount else "not held"

    def _keep(self, card: IncidentCard) -> str:
        known = self._database.execute(
            "SELECT 1 FROM incident WHERE ori = ? AND activity_id = ?", card.key).fetchone()
        self._database.execute("INSERT OR REPLACE INTO incident VALUES (?, ?, ?, ?)",
                               (*card.key, json.dumps(card.summary), card.markup))
        return "replaced" if known else "added"

    def summaries(self) -> list[dict]:
        """One entry an incident held, by agency and number."""
        with self._lock:
            rows = self._database.execute(
                "SELECT summary FROM incident ORDER BY ori, activity_id").fetchall()
        return [json.loads(summary) for (summary,) in rows]

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
