"""The record of everything that went over the wire."""

from __future__ import annotations

import json
import os
import threading
import time
from collections import deque
from collections.abc import Iterable
from pathlib import Path
from typing import IO, Any

from .exchange_table import ExchangeTable, parsed
from .http_request import HttpRequest
from .private_files import make_private_folder, open_private

SIDES = ("request", "response")


class ExchangeLog:
    """Numbered files with the raw messages, and one line an exchange that sums it up.

    With `keep`, the oldest exchanges are removed as soon as there are more than `keep`.
    """

    def __init__(self, folder: Path, keep: int | None = None) -> None:
        make_private_folder(folder)
        self.table = ExchangeTable()
        self._folder, self._keep = folder, keep
        self._lines = folder / "exchanges.jsonl"
        self._lock = threading.Lock()
        self._file: IO[bytes] | None = None
        self._forgotten = 0
        self._stale_lines = 0
        self._numbers: deque[int] = deque()
        self._read()
        self._count = max((int(entry.name.partition("-")[0]) for entry in os.scandir(folder)
                           if entry.name.endswith("-request.http")), default=0)
        with self._lock:
            self._drop_the_oldest()

    def _read(self) -> None:
        if not self._lines.exists():
            return
        count, is_current = 0, True
        with open(self._lines, "rb") as lines:
            for place, line in enumerate(lines, 1):
                text = line.decode("utf-8", "replace").rstrip("\n")
                # The last line may have been cut off by a full disk or a kill.
                is_whole, has_all = line.endswith(b"\n"), '"outcome"' in text
                is_current = is_current and is_whole and has_all
                if is_whole:
                    count += 1
                    try:
                        entry = parsed(text)
                        self.table.add([(entry, text if has_all else json.dumps(entry))])
                    except (KeyError, TypeError, ValueError) as error:
                        raise ValueError(f"line {place} of '{self._lines}' does not describe an exchange.") from error
        rows = self.table.rows("SELECT number FROM exchange ORDER BY number")
        self._numbers.extend(number for (number,) in rows)
        self._stale_lines = count - len(self._numbers)
        if not is_current:
            with self._lock:
                self._write_anew()

    def record(self, request: HttpRequest, raw_response: bytes, status: int,
               checks: dict[str, str], fault: str | None, about: str = "", **more: Any) -> int:
        """Keeps one exchange and gives its number. `checks` is empty where nothing is checked."""
        exchange = self.begin(request)
        exchange.received(raw_response)
        exchange.finish(status, checks, fault=fault, about=about, **more)
        return exchange.number

    def begin(self, request: HttpRequest) -> OpenExchange:
        """Keeps the request of an exchange whose response is still to come."""
        with self._lock:
            self._count += 1
            number, age = self._count, self._forgotten
            with open_private(self._path(number, "request"), "wb", buffering=0) as file:
                file.write(request.head + request.body)
            response = open_private(self._path(number, "response"), "wb", buffering=0)
        return OpenExchange(self, number, age, request, response)

    def add(self, entry: dict[str, Any], age: int) -> bool:
        """Lists an exchange, unless everything of its age has been forgotten meanwhile."""
        with self._lock:
            if age != self._forgotten:
                return False
            line = json.dumps(entry)
            if self._file is None:
                self._file = open_private(self._lines, "ab", buffering=0)
            self._file.write(line.encode() + b"\n")
            self.table.add([(entry, line)])
            self._numbers.append(entry["number"])
            self._drop_the_oldest()
            return True

    def _drop_the_oldest(self) -> None:
        while self._keep is not None and len(self._numbers) > self._keep:
            number = self._numbers.popleft()
            for side in SIDES:
                self._path(number, side).unlink(missing_ok=True)
            self.table.remove(number)
            self._stale_lines += 1
        # Now and then, so that it costs each exchange little.
        if self._stale_lines > max(1000, len(self._numbers)):
            self._write_anew()

    def _write_anew(self) -> None:
        self._close_lines()
        draft = self._lines.with_suffix(".new")
        with open_private(draft, "wb") as file:
            for (line,) in self.table.rows("SELECT text FROM line ORDER BY number"):
                file.write(line.encode() + b"\n")
        os.replace(draft, self._lines)
        self._stale_lines = 0

    @property
    def span(self) -> tuple[int, int, int]:
        """The lowest and the highest number of the exchanges listed, and how many there are."""
        ((first, last),) = self.table.rows("SELECT (SELECT min(number) FROM exchange), "
                                           "(SELECT max(number) FROM exchange)")
        return first or 1, last or 0, len(self._numbers)

    def lines(self, last: int | None = None) -> list[str]:
        """The summaries as JSON, oldest first; only the last ones when a number is given."""
        rows = self.table.rows("SELECT text FROM line ORDER BY number DESC LIMIT ?",
                               (-1 if last is None else last,))
        return [line for (line,) in reversed(rows)]

    def lines_between(self, ranges: Iterable[tuple[int, int]], most: int) -> list[str]:
        """The summaries with these numbers, at most `most` of them."""
        lines: list[str] = []
        for first, last in ranges:
            lines += (line for (line,) in self.table.rows(
                "SELECT text FROM line WHERE number BETWEEN ? AND ? ORDER BY number LIMIT ?",
                (first, last, most - len(lines))))
        return lines

    def entries(self, last: int | None = None) -> list[dict[str, Any]]:
        """The summaries, oldest first; only the last ones when a number is given."""
        return [json.loads(line) for line in self.lines(last)]

    def entry(self, number: int) -> dict[str, Any] | None:
        """The summary of one exchange, or None when no exchange has this number."""
        lines = self.lines_between([(number, number)], 1)
        return json.loads(lines[0]) if lines else None

    def raw(self, number: int, side: str) -> bytes | None:
        """All bytes of the "request" or the "response" of an exchange that is listed."""
        if not self.table.rows("SELECT 1 FROM exchange WHERE number = ?", (number,)):
            return None
        try:
            return self._path(number, side).read_bytes()
        except FileNotFoundError:
            return None

    def unlisted_response(self, number: int) -> bytes:
        """What has come of a response whose exchange is still under way."""
        try:
            return self._path(number, "response").read_bytes()
        except FileNotFoundError:
            return b""

    def request_body(self, number: int) -> bytes | None:
        """The body that a client sent in that exchange, or None when no exchange has this number."""
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
            self._close_lines()
            self._lines.unlink(missing_ok=True)
            self.table.clear()
            self._count = self._stale_lines = 0
            self._numbers.clear()
            self._forgotten += 1
            return forgotten

    def close(self) -> None:
        """Lets go of the file."""
        with self._lock:
            self._close_lines()

    def _close_lines(self) -> None:
        if self._file is not None:
            self._file.close()
            self._file = None

    def _path(self, number: int, side: str) -> Path:
        return self._folder / f"{number:06}-{side}.http"


class OpenExchange:
    """An exchange whose response comes in bit by bit; every bit is on the disk at once."""

    def __init__(self, log: ExchangeLog, number: int, age: int, request: HttpRequest,
                 response: Any) -> None:
        self.number = number
        self.received_bytes = 0
        self._log, self._age = log, age
        self._request = request
        self._response = response
        self._begun, self._started = time.time(), time.monotonic()

    def received(self, data: bytes) -> None:
        """Keeps some more bytes of the response."""
        self.received_bytes += len(data)
        self._response.write(data)

    def finish(self, status: int, checks: dict[str, str], **more: Any) -> bool:
        """Lists the exchange. `valid` is null for one that had nothing to check."""
        self._response.close()
        request = self._request
        # What `more` says goes before what is reckoned here.
        at = more.get("at", int(self._begun * 1000))
        return self._log.add({
            "number": self.number,
            "time": local_time(at),
            "at": at,
            "milliseconds": round((time.monotonic() - self._started) * 1000, 1),
            "method": request.method,
            "path": request.target,
            "soap_action": request.header("SOAPAction"),
            "content_type": request.header("Content-Type"),
            "request_bytes": len(request.body),
            "response_bytes": self.received_bytes,
            "checks": checks,
            "valid": all(verdict == "ok" for verdict in checks.values()) if checks else None,
            "status": status,
            "fault": None,
            "about": "",
            "kind": "other",
            "outcome": "accepted",
            "ori": "",
            "incident": "",
            "user": "",
            **more,
        }, self._age)


def local_time(milliseconds: int) -> str:
    """A moment since the epoch on this machine's clock, to the second, with its distance from UTC."""
    return time.strftime("%Y-%m-%dT%H:%M:%S%z", time.localtime(milliseconds / 1000))
