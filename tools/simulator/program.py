"""Plays the LEJIS Interface and the index behind it, for tests and demonstrations; or stands
before a real one and records what goes over the wire. A browser shows all of it at its address."""

from __future__ import annotations

import argparse
import contextlib
import ipaddress
import os
import queue
import signal
import ssl
import sys
import tempfile
import threading
from collections.abc import Callable
from pathlib import Path

from endpoints.callers import Callers
from endpoints.search_endpoint import DEFAULT_BROAD_LIMIT
from greeting import greeting
from lejis.namespaces import DEFAULT_LEJIS_HOST, Namespaces
from recorder import Recorder
from recording.far_side import FarSide
from simulator import Simulator
from start_failure import START_ERRORS, sentence
from watch import process_mark
from wire.simulator_server import SimulatorServer

_WATCH_SECONDS = 0.25


def _arguments(words: list[str] | None) -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__)
    add = parser.add_argument
    add("--port", type=int, default=0, help="0 takes any free port (default)")
    add("--port-file", type=Path, help="where to write the port number once listening")
    add("--data", type=Path, help="folder of index, record and schemas (default: a passing one)")
    add("--host", default="127.0.0.1", help="address to bind (default: %(default)s)")
    add("--lejis-host", default=DEFAULT_LEJIS_HOST,
        help="host in the LEJIS namespaces (default: %(default)s)")
    add("--broad-limit", type=int, default=DEFAULT_BROAD_LIMIT, metavar="N",
        help="searches with more hits get no cards (default: %(default)s)")
    add("--stop-after", type=float, default=600, metavar="SECONDS",
        help="end after so long without a request or an open page (default: %(default)s)")
    add("--keep", type=_at_least_one, metavar="N",
        help="keep the latest N exchanges only (default: all)")
    add("--tls", nargs=2, type=Path, metavar=("CERT", "KEY"),
        help="listen with TLS; both files in PEM")
    add("--record-to", metavar="URL",
        help="pass everything on to the real LEJIS Interface at this address, and record it")
    add("--allow", action="append", default=[], metavar="NETWORK",
        help="who may use all of it, beside this machine (such as 192.168.1.0/24)")
    add("--parent", type=int, metavar="PID", help="end when this process has ended")
    return parser.parse_args(words)


def _at_least_one(text: str) -> int:
    number = int(text)
    if number < 1:
        raise ValueError(text)
    return number


def _announce(server: SimulatorServer, options: argparse.Namespace, data: Path) -> None:
    port_file = options.port_file
    if port_file:
        draft = port_file.with_name(f"{port_file.name}.{os.getpid()}")
        draft.write_text(f"{server.server_port}\n", encoding="ascii")
        os.replace(draft, port_file)
    # Whoever started the simulator may have closed its end of the output already.
    with contextlib.suppress(OSError):
        print(greeting(server.address, options, data), flush=True)


def _wait_for_the_end(server: SimulatorServer, stop: queue.SimpleQueue,
                      options: argparse.Namespace) -> None:
    parent = process_mark(options.parent) if options.parent else None
    while server.activity.idle_seconds <= options.stop_after:
        if options.parent and (parent is None or process_mark(options.parent) != parent):
            return
        with contextlib.suppress(queue.Empty):
            stop.get(timeout=_WATCH_SECONDS)
            return


def _application(options: argparse.Namespace, data: Path,
                 stop: Callable[[], None]) -> Simulator | Recorder:
    callers = Callers(ipaddress.ip_network(network) for network in options.allow)
    namespaces = Namespaces(options.lejis_host)
    if options.record_to:
        return Recorder(data, namespaces, stop, FarSide(options.record_to), callers,
                        options.keep)
    return Simulator(data, namespaces, stop, options.broad_limit, callers, options.keep)


def _tls(options: argparse.Namespace) -> ssl.SSLContext | None:
    if not options.tls:
        return None
    if options.record_to:
        raise ValueError("--tls and --record-to do not go together.")
    for file in options.tls:
        # The complaint of what follows would not name it.
        file.read_bytes()
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(*options.tls)
    return context


def _serve(options: argparse.Namespace, data: Path) -> None:
    # A signal can come at any instruction, so its handler needs SimpleQueue, the queue whose put is reentrant.
    stop: queue.SimpleQueue = queue.SimpleQueue()
    for number in (signal.SIGTERM, signal.SIGINT):
        signal.signal(number, lambda *_: stop.put("signal"))
    tls = _tls(options)
    application = _application(options, data, lambda: stop.put("control"))
    with SimulatorServer(options.host, options.port, application, tls) as server:
        place = server.server_address[:2]
        if options.record_to and FarSide(options.record_to).is_reached_at(*place):
            raise ValueError("it would record to itself.")
        serving = threading.Thread(target=server.serve_forever, args=(0.05,), daemon=True)
        serving.start()
        _announce(server, options, data)
        _wait_for_the_end(server, stop, options)
        application.stop_watching()
        server.end()
    application.close()


def main(words: list[str] | None = None) -> int:
    """Serves until told to stop; 1 with a sentence when it cannot even begin."""
    options = _arguments(words)
    try:
        if options.port_file:
            # A number left by an earlier run would send clients to the wrong place.
            options.port_file.unlink(missing_ok=True)
        with contextlib.ExitStack() as stack:
            data = options.data or Path(stack.enter_context(
                tempfile.TemporaryDirectory(prefix="lejis-simulator-")))
            _serve(options, data)
    except START_ERRORS as error:
        print(f"The LEJIS Interface simulator cannot start: {sentence(error, options)}",
              file=sys.stderr)
        return 1
    return 0
