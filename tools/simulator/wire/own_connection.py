"""How the server reaches itself."""

from __future__ import annotations

import socket
import ssl

_PATIENCE_SECONDS = 60


def connect_to(host: str, port: int, with_tls: bool) -> socket.socket:
    """A connection as a client has it."""
    connection = socket.create_connection((host, port), timeout=_PATIENCE_SECONDS)
    if not with_tls:
        return connection
    # It is this very server, whose certificate may name others.
    context = ssl.create_default_context()
    context.check_hostname, context.verify_mode = False, ssl.CERT_NONE
    return context.wrap_socket(connection)
