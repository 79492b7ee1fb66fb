"""The page, who may see it, and how it learns of news."""

import http.client
import ipaddress
import re
import tempfile
import threading
import time
import unittest
from pathlib import Path
from unittest import mock

import documents
from simulator_case import SimulatorCase

from endpoints import changes as changes_module
from endpoints.callers import Callers
from endpoints.changes import Changes
from faults.fault_kinds import FAULT_KINDS
from lejis.namespaces import SEARCH_PATH, SUBMISSION_PATH
from simulator import Simulator
from wire.http_request import HttpRequest

PAGE = Path(documents.__file__).resolve().parents[2] / "tools/simulator/page"


def headers(**values: str) -> http.client.HTTPMessage:
    """A request's headers, '_' standing for '-'."""
    message = http.client.HTTPMessage()
    for name, value in values.items():
        message[name.replace("_", "-")] = value
    return message


class CallersTest(unittest.TestCase):
    """Addresses decide for programs; for pages of other sites in a browser, its headers."""

    def admits(self, peer: str = "127.0.0.1", *allowed: str, **values: str) -> bool:
        callers = Callers(ipaddress.ip_network(network) for network in allowed)
        return callers.objection(HttpRequest(headers=headers(**values)), peer) is None

    def test_only_this_machine_may(self) -> None:
        for peer, expected in (("127.0.0.1", True), ("127.8.9.1", True), ("::1", True),
                               ("::ffff:127.0.0.1", True), ("10.0.0.1", False),
                               ("::ffff:10.0.0.1", False), ("fe80::1%eth0", False), ("", False)):
            with self.subTest(peer=peer):
                self.assertEqual(expected, self.admits(peer))

    def test_others_may_when_allowed(self) -> None:
        for peer, expected in (("192.168.1.7", True), ("::ffff:192.168.1.7", True),
                               ("192.168.2.7", False), ("fd00::7", True), ("127.0.0.1", True)):
            with self.subTest(peer=peer):
                self.assertEqual(expected, self.admits(peer, "192.168.1.0/24", "fd00::/8"))

    def test_services_are_for_the_same_callers(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            callers = Callers([ipaddress.ip_network("192.168.1.0/24")])
            simulator = Simulator(Path(folder), documents.NAMES, lambda: None, callers=callers)
            self.addCleanup(simulator.close)
            request = HttpRequest("GET", SUBMISSION_PATH + "?wsdl", headers=headers(Host="x"))
            for peer, expected in (("127.0.0.1", 200), ("::1", 200), ("192.168.1.7", 200), ("10.0.0.1", 403)):
                with self.subTest(peer=peer):
                    self.assertEqual(expected, simulator.answer(request, peer).status)

    def test_names_that_could_be_made_to_point_here(self) -> None:
        for host, expected in (("127.0.0.1:8080", True), ("127.0.0.1", True), ("localhost", True),
                               ("LOCALHOST:80", True), ("[::1]:8080", True), ("[::1]", True),
                               ("192.168.1.2:80", True), ("evil.example", False),
                               ("127.0.0.1.evil.example:8080", False), ("localhost.evil", False),
                               ("", False), ("x:80", False), ("127.0.0.1:80:80", False)):
            with self.subTest(host=host):
                self.assertEqual(expected, self.admits(Host=host))

    def test_pages_of_other_sites(self) -> None:
        host = "127.0.0.1:8080"
        for origin, expected in ((f"http://{host}", True), ("http://evil.example", False),
                                 ("null", False), ("http://127.0.0.1:9090", False),
                                 (f"https://{host}", False)):
            with self.subTest(origin=origin):
                self.assertEqual(expected, self.admits(Host=host, Origin=origin))
        for site, expected in (("same-origin", True), ("none", True), ("cross-site", False),
                               ("same-site", False)):
            with self.subTest(site=site):
                self.assertEqual(expected, self.admits(Host=host, Sec_Fetch_Site=site))


class ConsoleTest(SimulatorCase):
    """Over the wire."""

    def answer(self, path: str, method: str = "GET", **more: str) -> http.client.HTTPResponse:
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=10)
        self.addCleanup(connection.close)
        connection.request(method, path, headers={name.replace("_", "-"): value
                                                  for name, value in more.items()})
        return connection.getresponse()

    def test_the_page_and_its_files(self) -> None:
        for path, kind in (("/", "text/html"), ("/page/page.css", "text/css"),
                           ("/page/page.js", "text/javascript"), ("/page/icon.svg", "image/svg")):
            with self.subTest(path=path):
                answer = self.answer(path)
                self.assertEqual(200, answer.status)
                self.assertTrue(answer.getheader("Content-Type").startswith(kind))
                self.assertIn("default-src 'none'", answer.getheader("Content-Security-Policy"))
                self.assertEqual("no-store", answer.getheader("Cache-Control"))
        self.assertEqual([], self.control("GET", "exchanges"))

    def test_only_the_files_of_the_page(self) -> None:
        for path in ("/page/", "/page/../simulator.py", "/page/%2e%2e/simulator.py", "/page/none"):
            with self.subTest(path=path):
                self.assertEqual(404, self.answer(path).status)
        self.assertEqual(405, self.answer("/", "DELETE").status)

    def test_the_page_needs_nothing_from_elsewhere(self) -> None:
        for file in PAGE.iterdir():
            with self.subTest(file=file.name):
                text = file.read_text(encoding="utf-8")
                text = text.replace('xmlns="http://www.w3.org/2000/svg"', "")
                self.assertNotRegex(text, r"(?i)https?://|url\(|@import|//[a-z]+\.")

    def test_the_page_makes_no_markup_of_texts(self) -> None:
        for file in PAGE.glob("*.js"):
            with self.subTest(file=file.name):
                self.assertNotRegex(file.read_text(encoding="utf-8"),
                                    r"innerHTML|outerHTML|insertAdjacent|document\.write|eval\(")

    def test_other_sites_can_do_nothing(self) -> None:
        for method, path in (("GET", "/"), ("GET", "/control/exchanges"),
                             ("POST", "/control/stop"), ("DELETE", "/control/index")):
            for name, value in (("Origin", "http://evil.example"), ("Host", "evil.example"),
                                ("Sec_Fetch_Site", "cross-site")):
                with self.subTest(method=method, path=path, header=name):
                    self.assertEqual(403, self.answer(path, method, **{name: value}).status)
        self.assertEqual([], self.stops)

    def test_what_clients_sent_runs_nowhere(self) -> None:
        self.submit(b'<x xmlns="http://www.w3.org/1999/xhtml"><script>alert(1)</script></x>')
        policy = self.answer("/control/exchanges/1/request").getheader("Content-Security-Policy")
        self.assertIn("sandbox", policy)
        raw = self.answer("/control/exchanges/1/request.http")
        self.assertTrue(raw.getheader("Content-Disposition").startswith("attachment"))
        self.assertEqual("nosniff", raw.getheader("X-Content-Type-Options"))

    def test_kinds_of_faults(self) -> None:
        kinds = {kind["kind"]: kind for kind in self.control("GET", "faults/kinds")}
        self.assertEqual(list(FAULT_KINDS), list(kinds))
        self.assertEqual([], [name for name, kind in kinds.items() if not kind["meaning"]])
        self.assertEqual(["wsdl"], kinds["no-types"]["targets"])
        self.assertIn("any", kinds["slow"]["targets"])
        self.assertEqual({"seconds": 1}, kinds["slow"]["parameters"])

    def test_status(self) -> None:
        status = self.control("GET", "status")
        self.assertEqual(
            {"far_side": None, "lejis_host": "lejis.example", "data": str(self.data.resolve()),
             "keep": None, "services": {"submission": SUBMISSION_PATH, "search": SEARCH_PATH}}, status)

    def watched(self, after: int, news: list) -> threading.Thread:
        thread = threading.Thread(target=lambda: news.append(
            self.control("GET", f"changes?after={after}")["changes"]))
        thread.start()
        self.addCleanup(thread.join)
        return thread

    def test_news_come_at_once(self) -> None:
        for cause in (self.submit, lambda: self.order("empty"), lambda: self.raw(b"\r\n\r\n"),
                      lambda: self.control("DELETE", "index")):
            known, news = self.control("GET", "changes")["changes"], []
            waiting = self.watched(known, news)
            time.sleep(0.1)
            self.assertEqual([], news)
            cause()
            waiting.join(5)
            self.assertEqual([known + 1], news)

    def test_news_carry_what_changed(self) -> None:
        known = self.control("GET", "changes")["changes"]
        self.submit()
        self.submit()
        self.order("empty")
        self.submit()
        news = self.control("GET", f"changes?after={known}")
        self.assertEqual([[1, 3]], news["exchanges"])
        self.assertEqual(["faults", "index"], news["what"])
        self.assertEqual({"first": 1, "last": 3, "count": 3}, news["listed"])
        self.assertEqual(1, news["incidents"])
        news = self.control("GET", f"changes?after={known + 3}")
        self.assertEqual([[3, 3]], news["exchanges"])

    def test_who_has_missed_too_much_is_told_so(self) -> None:
        known = self.control("GET", "changes")["changes"]
        for after in ("", f"?after={known + 5}", f"?after={known - 5}"):
            with self.subTest(after=after):
                self.assertEqual(["everything"],
                                 self.control("GET", f"changes{after}")["what"])

    def test_without_news_the_number_stays(self) -> None:
        known = self.control("GET", "changes")["changes"]
        with mock.patch.object(changes_module, "LONGEST_WAIT_SECONDS", 0.1):
            self.assertEqual({"changes": known, "exchanges": [], "what": [], "incidents": 0,
                          "listed": {"first": 1, "last": 0, "count": 0}},
                         self.control("GET", f"changes?after={known}"))
        self.assertEqual(400, self.call("GET", "/control/changes?after=x")[0])

    @mock.patch.object(changes_module, "LONGEST_WAIT_SECONDS", 2)
    def test_watching_is_use_of_the_server_but_does_not_hold_up_its_end(self) -> None:
        known = self.control("GET", "changes")["changes"]
        time.sleep(0.3)
        self.assertGreater(self.server.activity.idle_seconds, 0.2)
        self.watched(known, [])
        time.sleep(0.3)
        self.assertEqual(0, self.server.activity.idle_seconds)
        began = time.monotonic()
        self.server.end()
        self.assertLess(time.monotonic() - began, 0.9)

    def test_the_end_ends_watching(self) -> None:
        changes = Changes()
        changes.end()
        began = time.monotonic()
        changes.wait(changes.count)
        self.assertLess(time.monotonic() - began, 5)


class StyleTest(unittest.TestCase):
    """Contrast, as the accessibility guidelines reckon it."""

    PAIRS = [(text, ground) for text in ("text", "faint", "accent", "good", "bad")
             for ground in ("ground", "surface")] + [
        ("text", "raised"), ("on-accent", "accent"), ("faint", "fault-ground"),
        ("text", "fault-ground"), ("text", "bad-ground"), ("good", "good-ground"),
        ("bad", "bad-ground"), ("warn", "warn-ground"), ("fault", "fault-ground"),
        ("xml-tag", "ground"), ("xml-name", "ground"), ("xml-value", "ground")]

    def test_every_pair_can_be_read(self) -> None:
        style = (PAGE / "page.css").read_text(encoding="utf-8")
        schemes = re.findall(r":root \{(.*?)\}", style, re.DOTALL)
        self.assertEqual(2, len(schemes))
        for scheme, block in zip(("light", "dark"), schemes):
            colours = dict(re.findall(r"--([a-z-]+): #([0-9a-f]+);", block))
            for text, ground in self.PAIRS:
                with self.subTest(scheme=scheme, text=text, ground=ground):
                    self.assertGreaterEqual(contrast(colours[text], colours[ground]), 4.5)
            for ground in ("ground", "surface"):
                with self.subTest(scheme=scheme, edge=ground):
                    self.assertGreaterEqual(contrast(colours["edge"], colours[ground]), 3)


def contrast(one: str, other: str) -> float:
    """From 1 to 21."""
    lighter, darker = sorted((luminance(one), luminance(other)), reverse=True)
    return (lighter + 0.05) / (darker + 0.05)


def luminance(colour: str) -> float:
    """The luminance of a colour of three or six hexadecimal digits."""
    digits = colour if len(colour) == 6 else "".join(digit * 2 for digit in colour)
    parts = [int(digits[at:at + 2], 16) / 255 for at in (0, 2, 4)]
    linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4
              for part in parts]
    return sum(share * part for share, part in zip((0.2126, 0.7152, 0.0722), linear))


if __name__ == "__main__":
    unittest.main()
