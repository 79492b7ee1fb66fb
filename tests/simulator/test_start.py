"""What the program says when it starts, and why it cannot."""

import contextlib
import json
import os
import re
import socket
import ssl
import subprocess
import sys
import tempfile
import unittest
import urllib.request
from pathlib import Path

import documents
from simulator_case import GOOD_HEADERS

from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH

FOLDER = Path(documents.__file__).resolve().parents[2] / "tools/simulator"
PROGRAM = FOLDER / "lejis_simulator.py"
# The rights of folders count, even for root.
RESTRAINED = ("setpriv", "--bounding-set=-dac_override,-dac_read_search") if os.getuid() == 0 else ()


class StartCase(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def start(self, *words: str, **environment: str) -> subprocess.Popen:
        program = subprocess.Popen(
            [*RESTRAINED, sys.executable, "-B", str(PROGRAM), *words], stdout=subprocess.PIPE,
            stderr=subprocess.PIPE, text=True, env={**os.environ, **environment})
        self.addCleanup(program.communicate)
        self.addCleanup(program.kill)
        return program

    def port_of(self, program: subprocess.Popen) -> int:
        return int(re.search(r":(\d+)$", program.stdout.readline().strip())[1])


class GreetingTest(StartCase):
    def test_it_prints_addresses_ready_to_paste(self) -> None:
        data = self.folder / "data"
        program = self.start("--data", str(data), "--lejis-host", "lejis.test")
        port = self.port_of(program)
        lines = [program.stdout.readline().split() for _ in range(5)]
        own = f"http://127.0.0.1:{port}"
        self.assertEqual([["Page", own + "/"], ["Submissions", own + SUBMISSION_PATH],
                          ["Searches", own + SEARCH_PATH], ["LEJIS", "host", "lejis.test"],
                          ["Data", str(data.resolve())]], lines)

    def test_an_address_that_cannot_be_opened_is_not_printed(self) -> None:
        program = self.start("--host", "0.0.0.0")
        port = self.port_of(program)
        self.assertEqual(["Page", f"http://127.0.0.1:{port}/"], program.stdout.readline().split())


class KeepTest(StartCase):
    def ask(self, port: int, path: str, body: bytes | None = None) -> bytes:
        request = urllib.request.Request(f"http://127.0.0.1:{port}{path}", body,
                                         GOOD_HEADERS if body else {})
        with urllib.request.urlopen(request, timeout=10) as answer:
            return answer.read()

    def test_the_latest_exchanges_are_kept_and_the_whole_index(self) -> None:
        port = self.port_of(self.start("--keep", "2", "--data", str(self.folder / "data")))
        for number in "abc":
            self.ask(port, SUBMISSION_PATH, documents.submission(documents.card(number)))
        exchanges = json.loads(self.ask(port, "/control/exchanges"))
        self.assertEqual([2, 3], [entry["number"] for entry in exchanges])
        index = json.loads(self.ask(port, "/control/index"))
        self.assertEqual(["a", "b", "c"], [card["id"] for card in index])

    def test_nothing_to_keep_is_no_number(self) -> None:
        program = self.start("--keep", "0")
        _, errors = program.communicate(timeout=20)
        self.assertEqual(2, program.returncode)
        self.assertIn("--keep", errors)


class RefusalTest(StartCase):
    def refusal(self, *words: str, **environment: str) -> str:
        program = self.start(*words, **environment)
        _, errors = program.communicate(timeout=20)
        self.assertEqual(1, program.returncode)
        start = "The LEJIS Interface simulator cannot start: "
        self.assertTrue(errors.startswith(start), errors)
        self.assertEqual(1, errors.count("\n"), errors)
        return errors[len(start):-1]

    def test_a_port_in_use(self) -> None:
        with socket.create_server(("127.0.0.1", 0)) as taken:
            port = taken.getsockname()[1]
            self.assertEqual(f"port {port} of 127.0.0.1 is in use; choose another with --port.",
                             self.refusal("--port", str(port)))

    def test_no_lxml(self) -> None:
        (self.folder / "lxml").mkdir()
        (self.folder / "lxml" / "__init__.py").write_text("raise ImportError('none')")
        said = self.refusal(PYTHONPATH=str(self.folder))
        self.assertIn("apt install python3-lxml", said)
        self.assertIn("py -3 -m pip install lxml", said)

    def test_a_folder_that_cannot_be_used(self) -> None:
        closed = self.folder / "closed"
        closed.mkdir(mode=0)
        self.assertRegex(self.refusal("--data", str(closed / "data")),
                         rf"\A'{closed}/data.*' cannot be used: Permission denied\.\Z")
        index = self.folder / "bad" / "index.sqlite"
        index.parent.mkdir()
        index.write_bytes(b"no database" * 100)
        self.assertIn(f"the index in '{index.parent}' cannot be read: ",
                      self.refusal("--data", str(index.parent)))

    def test_a_record_with_a_line_that_describes_no_exchange(self) -> None:
        lines = self.folder / "exchanges" / "exchanges.jsonl"
        lines.parent.mkdir()
        for line in ("no JSON", "[]", "7", "{}", '{"outcome": "accepted"}'):
            with self.subTest(line=line):
                lines.write_text(f"{line}\n", encoding="utf-8")
                self.assertEqual(f"line 1 of '{lines}' does not describe an exchange.",
                                 self.refusal("--data", str(self.folder)))

    def test_certificates_of_no_use(self) -> None:
        (self.folder / "x").write_text("x")
        self.assertIn("of no use", self.refusal("--tls", str(self.folder / "x"), str(self.folder / "x")))
        missing = str(self.folder / "missing")
        self.assertIn("cannot be used: No such file", self.refusal("--tls", missing, missing))

    def test_what_does_not_go_together(self) -> None:
        self.assertIn("do not go together", self.refusal(
            "--tls", "a", "b", "--record-to", "http://127.0.0.1:9"))


class TlsTest(StartCase):
    """Uses the certificate that the README's command makes."""

    def setUp(self) -> None:
        super().setUp()
        readme = (FOLDER / "README.md").read_text(encoding="utf-8")
        command = re.search(r"^    (openssl req(?:.|\n)+?)\n\n", readme, re.MULTILINE)[1]
        subprocess.run(["bash", "-c", command], cwd=self.folder, check=True, capture_output=True)
        program = self.start("--tls", *(str(self.folder / name) for name in ("lejis.crt", "lejis.key")),
                             "--data", str(self.folder / "data"))
        self.port = self.port_of(program)
        self.context = ssl.create_default_context(cafile=str(self.folder / "lejis.crt"))

    def open(self, path: str, body: bytes | None = None, name: str = "localhost",
             **headers: str) -> bytes:
        request = urllib.request.Request(f"https://{name}:{self.port}{path}", body,
                                         {name.replace("_", "-"): value for name, value in headers.items()})
        with urllib.request.urlopen(request, timeout=10, context=self.context) as answer:
            return answer.read()

    def test_clients_that_trust_it_are_served(self) -> None:
        for name in ("127.0.0.1", "localhost"):
            with self.subTest(name=name):
                own = f"https://{name}:{self.port}"
                answer = self.open(SUBMISSION_PATH, documents.FULL, name, **GOOD_HEADERS)
                self.assertIn(b"0 Accepted", answer)
                self.assertIn(f"{own}{SUBMISSION_PATH}".encode(), self.open(SUBMISSION_PATH + "?wsdl", name=name))
                self.open("/control/exchanges", name=name, Origin=own, Host=f"{name}:{self.port}")

    def test_clients_that_do_not_trust_it_fail(self) -> None:
        with self.assertRaises(OSError), socket.create_connection(("127.0.0.1", self.port), 10) as plain:
            ssl.create_default_context().wrap_socket(plain, server_hostname="localhost")

    def test_who_does_not_shake_hands_holds_nobody_up(self) -> None:
        with socket.create_connection(("127.0.0.1", self.port), timeout=10) as silent:
            self.assertIn(b"<title>", self.open("/"))
            silent.sendall(b"GET / HTTP/1.1\r\n\r\n")
            with contextlib.suppress(ConnectionResetError):
                self.assertNotIn(b"200", silent.recv(1000))

    def test_a_request_is_sent_again(self) -> None:
        self.open(SUBMISSION_PATH, documents.FULL, **GOOD_HEADERS)
        self.open("/control/exchanges/1/again", b"")
        for _ in range(100):
            found = self.open("/control/exchanges/matches")
            if b"[1,2]" in found:
                return
        self.fail(found)


if __name__ == "__main__":
    unittest.main()
