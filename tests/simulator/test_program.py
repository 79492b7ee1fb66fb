"""The program as it is started and stopped."""

import contextlib
import http.client
import json
import signal
import socket
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from lxml import etree

import documents
import inquiries
from search_case import SEARCH_HEADERS
from simulator_case import GOOD_HEADERS

from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH

PROGRAM = Path(documents.__file__).resolve().parents[2] / "tools/simulator/lejis_simulator.py"


class ProgramTest(unittest.TestCase):
    """Every start is on a free port of this machine; what a test leaves running is killed."""

    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.port_file = self.folder / "port"
        self.data = "data"

    def start(self, *words: str) -> subprocess.Popen:
        program = subprocess.Popen(
            [sys.executable, "-B", str(PROGRAM), "--port-file", str(self.port_file), *words],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(program.communicate)
        self.addCleanup(program.kill)
        return program

    def started(self, *words: str) -> subprocess.Popen:
        program = self.start("--data", str(self.folder / self.data), *words)
        self.line = program.stdout.readline()
        self.port = int(self.port_file.read_text())
        return program

    def ends(self, program: subprocess.Popen, within: float = 3) -> None:
        began = time.monotonic()
        self.assertEqual(0, program.wait(within + 5))
        self.assertLess(time.monotonic() - began, within)
        self.assertEqual("", program.stderr.read())

    def post(self, path: str, body: bytes = b"", headers: dict | None = None) -> int:
        return self.exchange(path, body, headers)[0]

    def exchange(self, path: str, body: bytes = b"",
                 headers: dict | None = None) -> tuple[int, bytes]:
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(connection.close)
        connection.request("POST", path, body, headers or {})
        answer = connection.getresponse()
        return answer.status, answer.read()

    def test_announces_itself(self) -> None:
        self.port_file.write_text("1\n")
        program = self.started()
        self.assertEqual(f"LEJIS Interface simulator listening on http://127.0.0.1:{self.port}\n",
                         self.line)
        self.assertEqual({"port", "data"}, {file.name for file in self.folder.iterdir()})
        self.assertEqual(200, self.post(SUBMISSION_PATH, documents.FULL, GOOD_HEADERS))
        program.terminate()
        self.ends(program)

    def test_lejis_host(self) -> None:
        self.started("--lejis-host", "core.lejis.test")
        self.assertEqual(500, self.post(SUBMISSION_PATH, documents.FULL, GOOD_HEADERS))
        other = {name: value.replace("lejis.example", "core.lejis.test")
                 for name, value in GOOD_HEADERS.items()}
        body = documents.FULL.replace(b"lejis.example", b"core.lejis.test")
        self.assertEqual(200, self.post(SUBMISSION_PATH, body, other))

    def test_broad_limit(self) -> None:
        self.started("--broad-limit", "1")
        for number, expected in (("a", 1), ("b", 0)):
            card = etree.tostring(documents.card(number), with_tail=False)
            self.assertEqual(200, self.post("/control/index", card))
            _, answer = self.exchange(SEARCH_PATH, inquiries.search(words="assault"),
                                      SEARCH_HEADERS)
            self.assertEqual(expected, answer.count(b"<lejis:RMSIncidentIndexCard"))

    def test_records_to_another(self) -> None:
        far_side = self.started()
        address = self.line.split()[-1]
        self.port_file.unlink()
        self.data = "recorder"
        program = self.started("--record-to", address)
        self.assertEqual(200, self.post(SUBMISSION_PATH, documents.FULL, GOOD_HEADERS))
        kept = self.folder / "recorder" / "exchanges" / "000001-request.http"
        self.assertTrue(kept.read_bytes().endswith(documents.FULL))
        for one in (program, far_side):
            one.terminate()
            self.ends(one)

    def test_does_not_record_to_itself(self) -> None:
        with socket.create_server(("127.0.0.1", 0)) as taken:
            port = taken.getsockname()[1]
        program = self.start("--port", str(port), "--record-to", f"http://localhost:{port}")
        _, errors = program.communicate(timeout=10)
        self.assertIn("cannot start: it would record to itself.", errors)
        self.assertEqual(1, program.returncode)

    def test_an_open_page_keeps_it_running(self) -> None:
        program = self.started("--stop-after", "1")
        watching = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(watching.close)
        watching.request("GET", "/control/changes")
        known = json.loads(watching.getresponse().read())["changes"]
        watching.request("GET", f"/control/changes?after={known}")
        time.sleep(2)
        self.assertIsNone(program.poll())
        watching.close()
        # Somebody who has gone is noticed when there is something to tell.
        self.post("/control/nothing")
        self.ends(program)

    def test_an_open_page_does_not_hold_up_the_end(self) -> None:
        program = self.started()
        watching = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(watching.close)
        watching.request("GET", "/control/changes")
        known = json.loads(watching.getresponse().read())["changes"]
        watching.request("GET", f"/control/changes?after={known}")
        # Until the request has surely been read.
        time.sleep(1)
        program.terminate()
        self.ends(program, within=1)
        self.assertEqual(known, json.loads(watching.getresponse().read())["changes"])

    def test_signals(self) -> None:
        for number in (signal.SIGTERM, signal.SIGINT):
            with self.subTest(number=number):
                program = self.started()
                program.send_signal(number)
                self.ends(program)

    def test_stops_on_request_with_connections_open_and_answers_pending(self) -> None:
        program = self.started()
        order = b'{"kind": "slow", "seconds": 60}'
        self.assertEqual(200, self.post("/control/faults", order))
        pending = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(pending.close)
        pending.request("POST", SUBMISSION_PATH, documents.FULL, GOOD_HEADERS)
        half = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(half.close)
        half.putrequest("POST", SUBMISSION_PATH)
        half.putheader("Content-Length", "100")
        half.endheaders(b"half")
        self.assertEqual(200, self.post("/control/stop"))
        self.ends(program)

    def test_stops_when_idle_but_not_before(self) -> None:
        program = self.started("--stop-after", "1")
        for _ in range(4):
            time.sleep(0.4)
            self.post("/control/nothing")
        self.assertIsNone(program.poll())
        self.ends(program)

    def test_stops_with_its_parent(self) -> None:
        parent = subprocess.Popen(["sleep", "60"])
        self.addCleanup(parent.wait)
        self.addCleanup(parent.kill)
        program = self.started("--parent", str(parent.pid))
        time.sleep(0.6)
        self.assertIsNone(program.poll())
        # Nobody waits for the parent, so it remains as a process that has ended.
        parent.kill()
        self.ends(program)

    def test_passing_folder_is_removed(self) -> None:
        with tempfile.TemporaryDirectory() as temporary:
            program = subprocess.Popen([sys.executable, "-B", str(PROGRAM)], text=True,
                                       stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                       env={"TMPDIR": temporary})
            self.addCleanup(program.communicate)
            self.addCleanup(program.kill)
            program.stdout.readline()
            self.assertEqual(1, len(list(Path(temporary).iterdir())))
            program.terminate()
            self.ends(program)
            self.assertEqual([], list(Path(temporary).iterdir()))

    def test_starts_that_cannot_be(self) -> None:
        self.started()
        (self.folder / "file").touch()
        (self.folder / "old").mkdir()
        with contextlib.closing(sqlite3.connect(self.folder / "old" / "index.sqlite")) as old:
            old.execute("CREATE TABLE incident (ori TEXT)")
        for words in (("--port", str(self.port)), ("--port", "70000"), ("--lejis-host", "a b"),
                      ("--data", str(self.folder / "file")),
                      ("--data", str(self.folder / "old")), ("--host", "203.0.113.1"),
                      ("--record-to", "https://lejis"), ("--allow", "everybody"),
                      ("--allow", "10.0.0.1/8")):
            with self.subTest(words=words):
                program = self.start(*words)
                _, errors = program.communicate(timeout=10)
                self.assertEqual(1, program.returncode)
                self.assertRegex(errors, r"\AThe LEJIS Interface simulator cannot start: .+\n\Z")
                self.assertFalse(self.port_file.exists())


if __name__ == "__main__":
    unittest.main()
