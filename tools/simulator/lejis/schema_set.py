"""The XML schemas and service descriptions of one LEJIS installation."""

from __future__ import annotations

import os
import threading
from pathlib import Path

from lxml import etree

from .namespaces import Namespaces

SERVICE_SCHEMA = "lejis-service.xsd"
REFUSING_SCHEMA = "refusing.xsd"
SUBMISSION_WSDL = "submission.wsdl"
SEARCH_WSDL = "search.wsdl"

_TEMPLATES = Path(__file__).resolve().parent.parent / "schemas"


class SchemaSet:
    """Files on disk, because some clients resolve imports in their own current folder.

    What is served, what clients validate with and what the simulator validates with are the
    same files.
    """

    def __init__(self, folder: Path, namespaces: Namespaces) -> None:
        self._folder = folder
        self._namespaces = namespaces
        self._names = sorted(path.name for path in _TEMPLATES.iterdir()
                             if path.suffix in (".xsd", ".wsdl"))
        folder.mkdir(parents=True, exist_ok=True)
        for name in self._names:
            self._render(name)
        self._schema = etree.XMLSchema(file=str(folder / SERVICE_SCHEMA))
        # A schema object keeps the errors of its last run; runs must not mix.
        self._lock = threading.Lock()

    def _render(self, name: str) -> None:
        text = (_TEMPLATES / name).read_text(encoding="utf-8")
        for placeholder, value in self._namespaces.placeholders.items():
            text = text.replace(placeholder, value)
        target = self._folder / name
        draft = target.with_name(name + ".new")
        draft.write_text(text, encoding="utf-8")
        os.replace(draft, target)

    def schema(self, name: str) -> bytes | None:
        """The schema file of that name, or nothing. Only the set's own names are looked up."""
        if name not in self._names or not name.endswith(".xsd"):
            return None
        return (self._folder / name).read_bytes()

    def description(self, name: str, service_address: str, schemas_address: str) -> bytes:
        """A service description (WSDL) for clients that reach the server at these addresses."""
        text = (self._folder / name).read_text(encoding="utf-8")
        text = text.replace("@SERVICE_ADDRESS@", service_address)
        return text.replace("@SCHEMAS_ADDRESS@", schemas_address).encode()

    def errors(self, payload: etree._Element) -> list[str]:
        """What the schemas object to in a payload, in document order; empty when valid."""
        with self._lock:
            if self._schema.validate(payload):
                return []
            return [f"line {error.line}: {self._namespaces.shorten(error.message)}"
                    for error in self._schema.error_log]
