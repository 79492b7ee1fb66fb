"""The incident format as docs/incident-format.md tells it."""
import re
from pathlib import Path
from typing import NamedTuple

PROJECT = Path(__file__).resolve().parents[2]
PAGE = PROJECT / "docs" / "incident-format.md"
SCHEMAS = PROJECT / "docs" / "incident-format"

NAMESPACES = {
    "lejis": "http://lejis.example/lejis/jxdm/1.0/service",
    "card": "http://lejis.example/lejis/jxdm/1.0/card",
    "ext": "http://lejis.example/lejis/jxdm/1.0/card/extra",
    "j": "http://www.it.ojp.gov/jxdm/3.0.3",
}

SECTION = re.compile(r"^## (\w+)\n\nIts reader is \[(\w+)\].*?\n\n((?:\|.*\n)+)", re.MULTILINE)
ROW = re.compile(r"^\| `([^`]+)` \| (?:\[(\w+)\]\(#\w+\)|([\w ]+)) \| (?:`(\w+)`)? ?\|", re.MULTILINE)


class Row(NamedTuple):
    path: str
    # The title of the section whose elements it holds, or the kind of its value.
    section: str
    kind: str
    member: str


class Section(NamedTuple):
    reader: str
    rows: list


def sections():
    """The sections by their titles."""
    text = PAGE.read_text(encoding="utf-8")
    return {title: Section(reader, [Row(*row) for row in ROW.findall(table)])
            for title, reader, table in SECTION.findall(text)}


def values(title="Incident", prefix=""):
    """The path of each value of an incident, from its root, and the value's kind."""
    found = {}
    known = sections()
    for row in known[title].rows:
        if row.section:
            found.update(values(row.section, f"{prefix}{row.path}/"))
        else:
            found[prefix + row.path] = row.kind
    return found
