"""Servers that last as long as a test."""

from __future__ import annotations

import threading
import unittest
from typing import Any

from wire.simulator_server import SimulatorServer


def serve(case: unittest.TestCase, application: Any) -> SimulatorServer:
    """Puts a simulator or a recorder on a free port of this machine."""
    server = SimulatorServer("127.0.0.1", 0, application)
    thread = threading.Thread(target=server.serve_forever, args=(0.01,))
    thread.start()
    case.addCleanup(application.close)
    case.addCleanup(server.server_close)
    case.addCleanup(thread.join)
    case.addCleanup(server.end)
    return server
