"""What goes wrong in the field, in the words of those who have seen it: each is an order of faults."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any

_EVERY = {"when": "every", "target": "any"}


@dataclass(frozen=True)
class Preset:
    """The orders are those that clients send one by one."""

    name: str
    group: str
    meaning: str
    orders: tuple[dict[str, Any], ...]


PRESETS = (
    Preset("LEJIS core is offline", "Outages",
           "The Interface runs, the system behind it does not: response code 100 to submissions, a "
           "SOAP fault to searches",
           ({"kind": "response-code", "when": "every", "text": "100 The LEJIS core is offline."},
            {"kind": "soap-fault", "when": "every", "target": "search",
             "message": "The LEJIS core is offline."})),
    Preset("Interface restarted", "Outages",
           "The next three connections are reset, then one answer takes five seconds",
           ({"kind": "reset", "target": "any", "count": 3},
            {"kind": "slow", "target": "any", "seconds": 5})),
    Preset("Interface is down", "Outages", "Every connection is closed without an answer",
           ({"kind": "close", **_EVERY},)),
    Preset("Proxy error page", "Outages", "A proxy in between answers 502 with a page in HTML",
           ({"kind": "http-status", **_EVERY, "status": 502, "content_type": "text/html",
             "body": "<html><body><h1>502 Bad Gateway</h1></body></html>"},)),
    Preset("Certificate refused", "Access",
           "The gateway does not take the Interface's certificate: 403 to everything",
           ({"kind": "http-status", **_EVERY, "status": 403,
             "reason": "The certificate of the LEJIS Interface was refused"},)),
    Preset("User not known", "Access", "403 to every search, with a sentence for the user",
           ({"kind": "http-status", "when": "every", "target": "search", "status": 403,
             "reason": "Your JNET User ID is not known to LEJIS; ask your JNET administrator"},)),
    Preset("Slow evening", "Load", "One answer in three takes eight seconds",
           ({"kind": "slow", **_EVERY, "one_in": 3, "seconds": 8},)),
    Preset("Overloaded", "Load", "503 to one request in four",
           ({"kind": "http-status", **_EVERY, "one_in": 4, "status": 503},)),
    Preset("Bad line", "Load", "One answer in five is cut off in the middle",
           ({"kind": "truncated", **_EVERY, "one_in": 5},)),
    Preset("Search too broad", "Searches", "5,000 hits and no cards",
           ({"kind": "count-without-cards", "when": "every", "count": 5000},)),
    Preset("Damaged card", "Searches", "Three cards, the second without its identifiers",
           ({"kind": "bad-card", "when": "every"},)),
    Preset("Schemas have changed", "Installation", "The WSDL names a schema that nothing passes",
           ({"kind": "wrong-schema", "when": "every"},)),
)


def preset(name: Any) -> Preset:
    """The preset of that name."""
    found = next((one for one in PRESETS if one.name == name), None)
    if found is None:
        raise ValueError(f"'preset' must be one of: {', '.join(one.name for one in PRESETS)}.")
    return found
