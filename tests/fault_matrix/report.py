"""The fault matrix as a page of the documentation."""

from __future__ import annotations

import re
from collections.abc import Iterable

import documented
from behaviour import OPERATIONS, WINES, Behaviour
from matrix import Outcomes

_TITLES = {"submit": "Submission", "delete": "Deletion", "search": "Search", "wsdl": "Schema check"}
_INTRODUCTION = """\
# Fault matrix

What the clients of the services are told when a server fails, for {rows} behaviours of a server and four operations.
`tests/fault_matrix/regenerate.sh` writes this page from a run; a test fails when the two differ. The table itself is
`tests/fault_matrix/behaviours.py`, the rules that say what is documented `tests/fault_matrix/documented.py`.

In each of the {cells} cells the client of the registered library is told once, the next exchange of the same object
succeeds, nothing of the library is left behind, the server has been asked exactly as often as the behaviour allows,
and holds the incident whole or not at all: as submitted where it has acted, untouched where it has not.

A plain outcome is that of the submission; " repeats it for the deletion. *kept back*: the submission that was to be
checked is not sent. In a row with a note about Wine, the outcome is what Wine's HTTP and XML make of the behaviour.
Where two versions of Wine make different things of it, each is named with its outcome.
A search that nothing ends is given up by its client: it is *replaced* by another one, whose event is the outcome, or
*withdrawn* by a search at no address.

The outcomes in italics stand for these texts:

| In the table | Text |
|---|---|
"""
# Short words for the long texts, which a legend explains.
_WORDS = (
    ("partially offline (N)", documented.PARTIALLY_OFFLINE.replace("{}", "N")),
    ("unexpected response", documented.UNEXPECTED_ANSWER),
    ("unexpected error", documented.UNEXPECTED_ERROR),
    ("no message text (N)", documented.NO_MESSAGE_TEXT.replace("{}", "N")),
    ("no code", documented.NO_CODE),
    ("service down", documented.SERVICE_DOWN),
    ("no object", documented.NO_OBJECT),
    ("interface down", documented.NETWORK_MESSAGES[12029]),
    ("certificate", documented.NETWORK_MESSAGES[12019]),
    ("kept back: …", documented.kept_back("…").removesuffix(" (Line 1)") + " (Line 1)"),
)
_KEPT_BACK = re.compile(r"fatal: Internal error -\d+: Error in DoSubmit \(line 3\): (.*?)(?: \(Line 1\))?", re.DOTALL)
_NUMBER = r"(\d+)"


def render(behaviours: Iterable[Behaviour], outcomes: Outcomes, wine: int) -> str:
    """The whole page, which is the same for all versions of Wine. A cell whose outcome is not the one documented for
    this version shows what was seen."""
    behaviours = list(behaviours)
    parts = [_INTRODUCTION.format(rows=len(behaviours), cells=len(behaviours) * len(OPERATIONS))]
    parts += [f"| *{word}* | {_escaped(text)} |\n" for word, text in _WORDS]
    group = None
    for behaviour in behaviours:
        if behaviour.group != group:
            group = behaviour.group
            parts.append(_heading(group))
        parts.append(_row(behaviour, outcomes, wine))
    return "".join(parts)


def _heading(group: str) -> str:
    titles = " | ".join(_TITLES[operation] for operation in OPERATIONS)
    return f"\n## {group}\n\n| The server | {titles} | Note |\n|---|---|---|---|---|---|\n"


def _row(behaviour: Behaviour, outcomes: Outcomes, wine: int) -> str:
    cells = [_cell(behaviour, operation, outcomes[behaviour, operation], wine) for operation in OPERATIONS]
    if cells[1] == cells[0]:
        cells[1] = '"'
    return f"| {_escaped(behaviour.name)} | {' | '.join(cells)} | {behaviour.note} |\n"


def _cell(behaviour: Behaviour, operation: str, seen: str, wine: int) -> str:
    if not documented.fulfils(seen, behaviour.documented(operation, wine)):
        return _escaped(f"NOT AS DOCUMENTED: {seen}")
    if not behaviour.from_wine_10:
        return _wanted(behaviour, operation, wine)
    return "; ".join(f"Wine {each}: {_wanted(behaviour, operation, each)}" for each in WINES)


def _wanted(behaviour: Behaviour, operation: str, wine: int) -> str:
    given_up = f"*{behaviour.gives_up}*: " if behaviour.gives_up and operation == "search" else ""
    return given_up + " or ".join(_escaped(_short(outcome)) for outcome in behaviour.documented(operation, wine))


def _short(outcome: str) -> str:
    match = _KEPT_BACK.fullmatch(outcome)
    if match:
        text = "the answer as it came" if match[1].startswith("<") else _short(match[1])
        return f"*kept back*: {text}" if text else "*kept back*, without a text"
    for word, text in _WORDS[:-1]:
        pattern = re.escape(text).replace("\\ N\\ ", rf"\ {_NUMBER}\ ").replace("\\ N ", rf"\ {_NUMBER} ")
        outcome = re.sub(pattern, lambda found: f"*{_numbered(word, found)}*", outcome)
    return outcome


def _numbered(word: str, found: re.Match) -> str:
    return word.replace("N", found[1]) if found.groups() else word


def _escaped(text: str) -> str:
    return (text.replace("\r\n", " ⏎ ").replace("|", "\\|").replace("<", "&lt;"))
