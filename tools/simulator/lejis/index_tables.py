"""The tables of the index and the conditions that searches put to them."""

from __future__ import annotations

import json

from .inquiry import Criteria, Inquiry
from .search_fields import GROUPS, Group

# Goes up whenever a table changes, so that an old file is not taken for a new one.
VERSION = 1

_INCIDENT = """
CREATE TABLE incident (
    number INTEGER PRIMARY KEY,
    ori TEXT NOT NULL,
    activity_id TEXT NOT NULL,
    summary TEXT NOT NULL,
    card TEXT NOT NULL,
    words TEXT NOT NULL,
    UNIQUE (ori, activity_id)
)
"""

_THING = """
CREATE TABLE {table} (
    incident INTEGER NOT NULL REFERENCES incident ON DELETE CASCADE,
    {columns}
)
"""


def creation() -> list[str]:
    """The statements that make a new index."""
    statements = [_INCIDENT]
    for group in GROUPS:
        columns = ",\n    ".join(f"{field.column} TEXT NOT NULL" for field in group.fields)
        statements.append(_THING.format(table=group.table, columns=columns))
        statements.append(f"CREATE INDEX {group.table}_of ON {group.table} (incident)")
    return [*statements, f"PRAGMA user_version = {VERSION}"]


def insertion(group: Group) -> str:
    """The statement that keeps one row of a group."""
    return f"INSERT INTO {group.table} VALUES (?{', ?' * len(group.fields)})"


def condition(inquiry: Inquiry) -> tuple[str, list[str]]:
    """What all hits fulfil, with the values for its marks. Lists travel as one value each."""
    parts = ["incident.ori NOT IN (SELECT value FROM json_each(?))",
             "NOT EXISTS (SELECT 1 FROM json_each(?) WHERE instr(incident.words, value) = 0)"]
    values = [json.dumps(inquiry.excluded), json.dumps(inquiry.words)]
    for group, criteria in inquiry.criteria.items():
        parts.append(_existence(group, criteria))
        values += [text for _, text in criteria]
    return " AND ".join(parts), values


def _existence(group: Group, criteria: Criteria) -> str:
    """All criteria of a group have to hold for one and the same person, place or thing."""
    comparisons = " AND ".join(field.compare.condition.format(field.column)
                               for field, _ in criteria)
    return (f"EXISTS (SELECT 1 FROM {group.table} "
            f"WHERE {group.table}.incident = incident.number AND {comparisons})")
