"""One direction of an exchange as people read it."""

from __future__ import annotations

from typing import Any

from lxml import etree

from lejis import soap
from lejis.namespaces import SOAP, Namespaces
from lejis.schema_set import SchemaSet

from .raw_message import RawMessage

MAX_SHOWN = 400_000


class MessageView:
    """Pretty-prints XML, shows everything else as it is, and says what the schemas object to."""

    def __init__(self, namespaces: Namespaces, schemas: SchemaSet) -> None:
        self._service = f"{{{namespaces.service}}}"
        self._schemas = schemas

    def to_json(self, raw: bytes) -> dict[str, Any]:
        """`schema` is null for a message that is not the schemas' matter."""
        message = RawMessage(raw)
        view = {"head": message.head.strip(), "bytes": len(raw), "xml": False, "schema": None,
                "notes": message.notes}
        text = message.body.decode("utf-8", "replace")
        if message.body and message.is_xml:
            try:
                root = soap.parse(message.body, "The body")
            except ValueError as error:
                message.notes.append(str(error))
            else:
                view["schema"] = self._objections(root)
                text, view["xml"] = _pretty(root), True
        if len(text) > MAX_SHOWN:
            message.notes.append(f"Only the first {MAX_SHOWN:,} of {len(text):,} characters are "
                                 "shown; the file has all of them.")
        return {**view, "body": text[:MAX_SHOWN]}

    def _objections(self, root: etree._Element) -> list[str] | None:
        body = root.find(f"{{{SOAP}}}Body")
        payload = body.find("*") if body is not None else None
        if payload is None or not payload.tag.startswith(self._service):
            return None
        return self._schemas.errors(payload)


def _pretty(root: etree._Element) -> str:
    if root.tag == f"{{{SOAP}}}Envelope":
        _declare_at_top(root)
    etree.indent(root, "  ")
    return etree.tostring(root.getroottree(), encoding="unicode")


def _declare_at_top(root: etree._Element) -> None:
    """Some clients declare the namespaces on every element anew, which nobody can read."""
    declared: dict[str, str] = {}
    for element in root.iter(etree.Element):
        for prefix, uri in element.nsmap.items():
            if prefix is not None:
                declared.setdefault(prefix, uri)
    etree.cleanup_namespaces(root, top_nsmap=declared)
