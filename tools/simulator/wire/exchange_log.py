"""The record of everything that went over the wire."""

from __future__ import annotations

import json
import threading
import time
from pathlib import Path
from typing import Any

from .http_request import HttpRequest


class ExchangeLog:
    """Numbered files with the raw messages, and one line an exchange that sums it up."""

    def __init__(self, folder: Path) -> None:
        folder.mkdir(parents=True, exist_ok=True)
        self._folder = folder
        self._lines = folder / "exchanges.jsonl"
        self._lock = threading.Lock()
        self._count = max((int(file.name[:6]) for file in folder.glob("[0-9]*-request.http")),
                          default=0)

    def record(self, request: HttpRequest, raw_response: bytes, status: int,
               checks: dict[str, str], fault: str | None) -> int:
        """Keeps one exchange and gives its number. `checks` is empty where nothing is checked."""
        with self._lock:
            self._count += 1
            entry = _entry(self._count, request, status, checks, fault)
            self._file(self._count, "request").write_bytes(request.head + request.body)
            self._file(self._count, "response").write_bytes(raw_response)
            with self._lines.open("a", encoding="utf-8") as lines:
                lines.write(json.dumps(entry) + "\n")
            return self._count

    def entries(self, last: int | None = None) -> list[dict[str, Any]]:
        """The summaries, oldest first; only the last ones when a number is given."""
        with self._lock:
            if not self._lines.exists():
                return []
            lines = self._lines.read_text(encoding="utf-8").splitlines()
        if last is not None:
            lines = lines[len(lines) - last:] if last < len(lines) else lines
        return [json.loads(line) for line in lines]

    def request_body(self, number: int) -> bytes | None:
        """What a client sent as the body of that exchange, or nothing if there is none such."""
        entry = next((entry for entry in self.entries() if entry["number"] == number), None)
        if entry is None:
            return None
        raw = self._file(number, "request").read_bytes()
        return raw[len(raw) - entry["request_bytes"]:]

    def clear(self) -> int:
        """Forgets everything and begins again at 1; the number of exchanges forgotten."""
        with self._lock:
            forgotten = 0
            for file in self._folder.glob("[0-9]*-*.http"):
                forgotten += file.name.endswith("-request.http")
                file.unlink()
            self._lines.unlink(missing_ok=True)
            self._count = 0
            return forgotten

    def _file(self, number: int, side: str) -> Path:
        return self._folder / f"{number:06}-{side}.http"


def _entry(number: int, request: HttpRequest, status: int, checks: dict[str, str],
           fault: str | None) -> dict[str, Any]:
    """`valid` is null for an exchange that had nothing to check."""
    return {
        "number": number,
        "time": time.strftime("%Y-%m-%dT%H:%M:%S%z"),
        "method": request.method,
        "path": request.target,
        "soap_action": request.header("SOAPAction"),
        "content_type": request.header("Content-Type"),
        "request_bytes": len(request.body),
        "checks": checks,
        "valid": all(verdict == "ok" for verdict in checks.values()) if checks else None,
        "status": status,
        "fault": fault,
    }
