"""How an exchange ended, in one word or two."""

from __future__ import annotations

import re

OUTCOMES = ("accepted", "refused", "fault", "too broad", "cut off", "unreadable")

_FAULT = re.compile(rb"<(?:[\w.-]+:)?faultcode[^>]*>\s*(?:[\w.-]+:)?([\w.-]*)")
_RESPONSE = re.compile(rb"submissionResponse[^>]*>\s*([^<]*)")
_COUNT = re.compile(rb"incidentcount[^>]*>\s*(\d+)")
_CARD = b"RMSIncidentIndexCard"
# What LEJIS says when it runs, but the system behind it does not.
_CORE_IS_OFFLINE = b"100"
_SERVICES = ("submission", "deletion", "search")


def outcome_of(kind: str, status: int, body: bytes, is_whole: bool) -> str:
    """`refused` is the client's matter, `fault` the server's. Looks at the body's text only, since
    every exchange passes here."""
    if not status or not is_whole:
        return "cut off"
    fault = _FAULT.search(body)
    if fault:
        return "refused" if fault[1].startswith(b"Client") else "fault"
    if status >= 400:
        return "fault" if status >= 500 else "refused"
    return _of_service(body) if kind in _SERVICES else "accepted"


def _of_service(body: bytes) -> str:
    if not body.rstrip().endswith(b"Envelope>") or b"<!DOCTYPE" in body:
        return "unreadable"
    response, count = _RESPONSE.search(body), _COUNT.search(body)
    if response:
        code = response[1].split()[:1]
        return {b"0": "accepted", _CORE_IS_OFFLINE: "fault"}.get(code[0] if code else b"", "refused")
    if count:
        return "too broad" if int(count[1]) and _CARD not in body else "accepted"
    return "unreadable"
