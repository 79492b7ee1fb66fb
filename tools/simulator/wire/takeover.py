"""An answer that is not ours."""

from __future__ import annotations

import socket
from typing import Protocol


class Takeover(Protocol):
    """Sends the answer itself. Afterwards the connection goes on, ends, or ends with a reset."""

    keeps_open: bool
    resets: bool

    def run(self, client: socket.socket) -> None:
        """Returns when all is sent that will be."""
