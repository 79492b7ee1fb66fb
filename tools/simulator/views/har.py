"""Exchanges in the HTTP Archive format (HAR 1.2), which browsers and proxies write and read."""

from __future__ import annotations

import base64
import binascii
import json
from dataclasses import dataclass
from datetime import datetime, timezone
from typing import Any
from urllib.parse import parse_qsl, urlsplit

from .raw_message import RawMessage


@dataclass(frozen=True)
class HarEntry:
    """What is taken of an archive's entry: raw messages as they may have been, and when."""

    at: int
    milliseconds: float
    status: int
    request: bytes
    response: bytes


def written(entry: dict[str, Any], request: bytes, response: bytes, origin: str) -> dict[str, Any]:
    """One entry of an archive. The exact bytes go with it, since the format keeps text only."""
    asked, answered = RawMessage(request), RawMessage(response)
    first = answered.head.split("\n", 1)[0].split(None, 2)
    started = datetime.fromtimestamp(entry["at"] / 1000, timezone.utc)
    return {
        "startedDateTime": started.isoformat(timespec="milliseconds"),
        "time": entry["milliseconds"],
        "request": {
            "method": entry["method"], "url": origin + entry["path"], "httpVersion": "HTTP/1.1",
            "cookies": [], "headers": _headers(asked), "queryString": [
                {"name": name, "value": value}
                for name, value in parse_qsl(urlsplit(entry["path"]).query, keep_blank_values=True)],
            "headersSize": len(request) - entry["request_bytes"], "bodySize": entry["request_bytes"],
            **({"postData": {"mimeType": entry["content_type"] or "", "text": _text(asked.body)}}
               if asked.body else {}),
        },
        "response": {
            "status": entry["status"], "statusText": first[2].strip() if len(first) > 2 else "",
            "httpVersion": "HTTP/1.1", "cookies": [], "headers": _headers(answered),
            "content": {"size": len(answered.body), "text": _text(answered.body),
                        "mimeType": answered.headers.get("Content-Type") or ""},
            "redirectURL": "", "headersSize": -1, "bodySize": len(answered.body),
        },
        "cache": {},
        "timings": {"send": 0, "wait": entry["milliseconds"], "receive": 0},
        "comment": f"{entry['kind']}, {entry['outcome']}: {entry['about']}",
        "_request": base64.b64encode(request).decode(),
        "_response": base64.b64encode(response).decode(),
    }


def archive(entries: list[dict[str, Any]]) -> dict[str, Any]:
    """The document."""
    return {"log": {"version": "1.2", "creator": {"name": "LEJIS Interface simulator", "version": "1"},
                    "entries": entries}}


def read(document: bytes) -> list[HarEntry]:
    """The entries of an archive, oldest first. Raises ValueError when the document is not an archive."""
    try:
        entries = json.loads(document)["log"]["entries"]
        found = [_read_entry(entry) for entry in entries]
    except (ValueError, RecursionError, LookupError, TypeError, AttributeError, OverflowError):
        raise ValueError("The file is not an HTTP archive (HAR) that can be read.") from None
    return sorted(found, key=lambda one: one.at)


def _read_entry(entry: dict[str, Any]) -> HarEntry:
    started = datetime.fromisoformat(entry["startedDateTime"].replace("Z", "+00:00"))
    status = int(entry["response"]["status"])
    return HarEntry(int(started.timestamp() * 1000), float(entry.get("time") or 0),
                    status if 0 <= status <= 999 else 0, _request(entry), _response(entry))


def _request(entry: dict[str, Any]) -> bytes:
    if isinstance(entry.get("_request"), str):
        return _decoded(entry["_request"])
    asked = entry["request"]
    address = urlsplit(str(asked["url"]))
    target = address.path + (f"?{address.query}" if address.query else "")
    body = str((asked.get("postData") or {}).get("text") or "").encode()
    return _message(f"{asked['method']} {target or '/'} HTTP/1.1", asked["headers"], body)


def _response(entry: dict[str, Any]) -> bytes:
    if isinstance(entry.get("_response"), str):
        return _decoded(entry["_response"])
    answered = entry["response"]
    if not int(answered["status"]):
        return b""
    content = answered.get("content") or {}
    text = str(content.get("text") or "")
    body = _decoded(text) if content.get("encoding") == "base64" else text.encode()
    return _message(f"HTTP/1.1 {int(answered['status'])} {answered.get('statusText') or ''}",
                    answered["headers"], body)


# An archive holds bodies as they were meant: without the coding of their transfer.
_OF_THE_TRANSFER = ("transfer-encoding", "content-encoding", "content-length")


def _message(first_line: str, headers: list[dict[str, Any]], body: bytes) -> bytes:
    lines = [first_line, *(f"{one['name']}: {one['value']}" for one in headers
                           if str(one["name"]).lower() not in _OF_THE_TRANSFER
                           and not str(one["name"]).startswith(":")), f"Content-Length: {len(body)}"]
    clean = (" ".join(line.splitlines()) for line in lines)
    return ("\r\n".join(clean) + "\r\n\r\n").encode("latin-1", "replace") + body


def _decoded(text: str) -> bytes:
    try:
        return base64.b64decode(text, validate=True)
    except binascii.Error:
        raise ValueError("no base64") from None


def _headers(message: RawMessage) -> list[dict[str, str]]:
    return [{"name": name, "value": str(value)} for name, value in message.headers.items()]


def _text(body: bytes) -> str:
    return body.decode("utf-8", "replace")
