"""Who may use the simulator, look inside it and steer it."""

from __future__ import annotations

import ipaddress
from collections.abc import Iterable

from wire.http_request import HttpRequest

Network = ipaddress.IPv4Network | ipaddress.IPv6Network
_Address = ipaddress.IPv4Address | ipaddress.IPv6Address


class Callers:
    """This machine, and the networks that were allowed. A web page of somebody else is no caller,
    even when it is open in a browser of this machine."""

    def __init__(self, allowed: Iterable[Network] = ()) -> None:
        self._allowed = tuple(allowed)

    def objection(self, request: HttpRequest, peer: str) -> str | None:
        """Why the request is refused, or nothing. Programs send none of these headers but Host."""
        if not self._is_allowed(peer):
            return "Control is for this machine only."
        host = request.header("Host")
        if host is not None and not _is_beyond_name_service(host):
            return "Control takes an IP address or localhost in the Host header, no other name."
        origin = request.header("Origin")
        if origin is not None and origin != f"{request.scheme}://{host}":
            return "Control takes no call from another site's page."
        if request.header("Sec-Fetch-Site") not in (None, "same-origin", "none"):
            return "Control takes no call from another site's page."
        return None

    def may_use_services(self, peer: str) -> bool:
        """Whether submissions and searches from there are answered."""
        return self._is_allowed(peer)

    def _is_allowed(self, peer: str) -> bool:
        address = _address(peer.partition("%")[0])
        return address is not None and (address.is_loopback or any(
            address in network for network in self._allowed))


def _address(text: str) -> _Address | None:
    try:
        address = ipaddress.ip_address(text)
    except ValueError:
        return None
    return getattr(address, "ipv4_mapped", None) or address


def _is_beyond_name_service(host: str) -> bool:
    """Whether no DNS server decides where the name points: a site could redirect its own name here."""
    name, colon, port = host.rpartition(":")
    if not colon or not (port.isascii() and port.isdigit()):
        name = host
    return name.lower() == "localhost" or _address(name.strip("[]")) is not None
