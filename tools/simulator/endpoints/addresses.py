"""The server's own addresses as the client at hand sees them."""

from __future__ import annotations

import re

from lejis.namespaces import SCHEMAS_PATH
from wire.http_request import HttpRequest

_HOST = re.compile(r"([A-Za-z0-9._-]+|\[[0-9A-Fa-f:.]+\])(:[0-9]{1,5})?")


def own_address(request: HttpRequest) -> str | None:
    """'http://host:port', or the same with https, after the Host header; nothing when that is missing
    or no host."""
    host = request.header("Host") or ""
    return f"{request.scheme}://{host}" if _HOST.fullmatch(host) else None


def schemas_address(own: str) -> str:
    """Where the schemas lie, with the slash at the end."""
    return own + SCHEMAS_PATH
