"""Why the program cannot start, in one sentence."""

from __future__ import annotations

import argparse
import errno
import sqlite3
import ssl

# Everything that a start can fail with for reasons outside the program.
START_ERRORS = (OSError, OverflowError, ValueError, sqlite3.Error)

_IN_USE = (errno.EADDRINUSE, getattr(errno, "WSAEADDRINUSE", errno.EADDRINUSE))


def sentence(error: Exception, options: argparse.Namespace) -> str:
    """What to tell the user."""
    if isinstance(error, ssl.SSLError):
        return f"the certificate or the key of --tls is of no use: {error.reason or error}."
    if isinstance(error, sqlite3.Error):
        return f"the index in '{options.data}' cannot be read: {error}."
    if isinstance(error, OSError) and error.errno in _IN_USE:
        return f"port {options.port} of {options.host} is in use; choose another with --port."
    if isinstance(error, OSError) and error.filename is not None:
        return f"'{error.filename}' cannot be used: {error.strerror}."
    return str(error)
