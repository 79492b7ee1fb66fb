"""The record of everything that went over the wire."""

from __future__ import annotations

import json
import threading
import time
from pathlib import Path
from typing import Any

from .http_request import HttpRequest
from .private_files import make_private_folder, open_private


class ExchangeLog:
    """Numbered files with the raw messages, and one line an exchange that sums it up."""

    def __init__(self, folder: Path) -> None:
        make_private_folder(folder)
        self._folder = folder
        self._lines = folder / "exchanges.jsonl"
        self._lock = threading.Lock()
        self._forgotten = 0
        self._count = max((int(file.name[:6]) for file in folder.glob("[0-9]*-request.http")),
                          default=0)

    def record(self, request: HttpRequest, raw_response: bytes, status: int,
               checks: dict[str, str], fault: str | None, about: str = "") -> int:
        """Keeps one exchange and gives its number. `checks` is empty where nothing is checked."""
        exchange = self.begin(request)
        exchange.received(raw_response)
        exchange.finish(status, checks, fault=fault, about=about)
        return exchange.number

    def begin(self, request: HttpRequest) -> OpenExchange:
        """Keeps the request of an exchange whose response is still to come."""
        with self._lock:
            self._count += 1
            number = self._count
            with open_private(self._file(number, "request"), "wb") as file:
                file.write(request.head + request.body)
            response = open_private(self._file(number, "response"), "wb", buffering=0)
            return OpenExchange(self, number, self._forgotten, request, response)

    def add(self, entry: dict[str, Any], age: int) -> None:
        """Lists an exchange, unless everything of its age has been forgotten meanwhile."""
        with self._lock:
            if age != self._forgotten:
                return
            with open_private(self._lines, "ab") as lines:
                lines.write(json.dumps(entry).encode() + b"\n")

    def entries(self, last: int | None = None) -> list[dict[str, Any]]:
        """The summaries, oldest first; only the last ones when a number is given."""
        with self._lock:
            if not self._lines.exists():
                return []
            lines = self._lines.read_text(encoding="utf-8").splitlines()
        # They are listed as they ended, which is not always as they began.
        entries = sorted(map(json.loads, lines), key=lambda entry: entry["number"])
        return entries if last is None else entries[max(0, len(entries) - last):]

    def entry(self, number: int) -> dict[str, Any] | None:
        """The summary of one exchange, or nothing if there is none such."""
        return next((entry for entry in self.entries() if entry["number"] == number), None)

    def raw(self, number: int, side: str) -> bytes | None:
        """All bytes of the "request" or the "response" of an exchange that is listed."""
        try:
            return self._file(number, side).read_bytes() if self.entry(number) else None
        except FileNotFoundError:
            return None

    def request_body(self, number: int) -> bytes | None:
        """What a client sent as the body of that exchange, or nothing if there is none such."""
        entry, raw = self.entry(number), self.raw(number, "request")
        if entry is None or raw is None:
            return None
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
            self._forgotten += 1
            return forgotten

    def _file(self, number: int, side: str) -> Path:
        return self._folder / f"{number:06}-{side}.http"


class OpenExchange:
    """An exchange whose response comes in bit by bit; every bit is on the disk at once."""

    def __init__(self, log: ExchangeLog, number: int, age: int, request: HttpRequest,
                 response: Any) -> None:
        self.number = number
        self._log, self._age = log, age
        self._request = request
        self._response = response
        self._begun = time.strftime("%Y-%m-%dT%H:%M:%S%z")

    def received(self, data: bytes) -> None:
        """Keeps some more bytes of the response."""
        self._response.write(data)

    def finish(self, status: int, checks: dict[str, str], **more: Any) -> None:
        """Lists the exchange. `valid` is null for one that had nothing to check."""
        self._response.close()
        request = self._request
        self._log.add({
            "number": self.number,
            "time": self._begun,
            "method": request.method,
            "path": request.target,
            "soap_action": request.header("SOAPAction"),
            "content_type": request.header("Content-Type"),
            "request_bytes": len(request.body),
            "checks": checks,
            "valid": all(verdict == "ok" for verdict in checks.values()) if checks else None,
            "status": status,
            "fault": None,
            **more,
        }, self._age)
