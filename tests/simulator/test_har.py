"""Exchanges that go elsewhere as an archive, and come from elsewhere; and those that are sent again."""

import base64
import json
import time
import unittest

from lxml import etree

import documents
from simulator_case import SimulatorCase

from lejis.namespaces import SUBMISSION_PATH


class HarTest(SimulatorCase):
    def archive(self, text: str = "") -> dict:
        return self.control("GET", f"exchanges.har?filter={text}")["log"]

    def take(self, *entries: dict) -> tuple[int, bytes]:
        document = json.dumps({"log": {"version": "1.2", "entries": entries}}).encode()
        return self.call("POST", "/control/exchanges/import", document)

    def kept(self, number: int) -> list[bytes]:
        folder = self.data / "exchanges"
        return [(folder / f"{number:06}-{side}.http").read_bytes() for side in ("request", "response")]

    def test_an_archive_has_what_the_format_asks_for(self) -> None:
        self.submit()
        self.call("GET", SUBMISSION_PATH + "?wsdl")
        log = self.archive()
        self.assertEqual(("1.2", 2), (log["version"], len(log["entries"])))
        first, second = log["entries"]
        self.assertEqual(f"http://127.0.0.1:{self.port}{SUBMISSION_PATH}", first["request"]["url"])
        self.assertEqual(documents.FULL.decode(), first["request"]["postData"]["text"])
        self.assertEqual((200, "OK"), (first["response"]["status"], first["response"]["statusText"]))
        self.assertIn("0 Accepted", first["response"]["content"]["text"])
        self.assertEqual([{"name": "wsdl", "value": ""}], second["request"]["queryString"])
        self.assertEqual(1, len(self.archive("kind:wsdl")["entries"]))

    def test_what_comes_back_is_the_same_byte_by_byte(self) -> None:
        self.submit(b"\xff\x00 no XML")
        self.order("close")
        with self.assertRaises(OSError):
            self.submit()
        before = [self.kept(number) for number in (1, 2)]
        entries = self.archive()["entries"]
        self.assertEqual(200, self.take(*entries)[0])
        self.assertEqual(before, [self.kept(number) for number in (3, 4)])
        old, new = self.control("GET", "exchanges")[:2], self.control("GET", "exchanges")[2:]
        for one, other in zip(old, new):
            self.assertTrue(other["imported"])
            for name in ("at", "time", "kind", "outcome", "checks", "about", "request_bytes"):
                self.assertEqual(one[name], other[name], name)

    def test_an_archive_of_a_browser(self) -> None:
        status, _ = self.take({
            "startedDateTime": "2026-03-01T12:00:00.250Z", "time": 12.5,
            "request": {"method": "POST", "url": f"https://elsewhere.example{SUBMISSION_PATH}",
                        "headers": [{"name": ":authority", "value": "x"}, {"name": "SOAPAction", "value": "a\r\nX: y"},
                                    {"name": "Content-Length", "value": "1"}],
                        "postData": {"mimeType": "text/xml", "text": documents.FULL.decode()}},
            "response": {"status": 200, "statusText": "OK", "headers": [{"name": "Content-Encoding", "value": "gzip"}],
                         "content": {"encoding": "base64", "text": base64.b64encode(b"<answer/>").decode()}}})
        self.assertEqual(200, status)
        request, response = self.kept(1)
        self.assertEqual(b"HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\n<answer/>", response)
        head, body = request.split(b"\r\n\r\n", 1)
        self.assertEqual(documents.FULL, body)
        self.assertEqual([f"POST {SUBMISSION_PATH} HTTP/1.1".encode(), b"SOAPAction: a X: y",
                          b"Content-Length: %d" % len(body)], head.split(b"\r\n"))
        entry = self.last_exchange()
        self.assertEqual((1772366400250, 12.5, "submission", "PA0123400 2007-000123"),
                         (entry["at"], entry["milliseconds"], entry["kind"], entry["about"]))
        self.assertEqual([], self.held())

    def test_what_is_no_archive(self) -> None:
        for body in (b"", b"[]", b"{}", b'{"log": {"entries": [{}]}}', b"[" * 100_000,
                     b'{"log": {"entries": [{"startedDateTime": "now"}]}}'):
            with self.subTest(body=body[:50]):
                status, answer = self.call("POST", "/control/exchanges/import", body)
                self.assertEqual((400, b"The file is not an HTTP archive (HAR) that can be read.\n"),
                                 (status, answer))
        self.assertEqual([], self.control("GET", "exchanges"))


class AgainTest(SimulatorCase):
    def test_the_same_bytes_once_more(self) -> None:
        self.submit()
        sent = self.control("POST", "exchanges/1/again")["sent"]
        for _ in range(100):
            if len(self.control("GET", "exchanges")) == 2:
                break
            time.sleep(0.05)
        raw = [(self.data / "exchanges" / f"00000{number}-request.http").read_bytes() for number in (1, 2)]
        self.assertEqual((raw[0], sent), (raw[1], len(raw[1])))
        self.assertEqual(404, self.call("POST", "/control/exchanges/9/again")[0])

    def test_the_incident_as_a_file(self) -> None:
        self.submit(documents.submission(documents.card("a"), documents.card("b")))
        status, body = self.call("GET", "/control/exchanges/1/incident.xml")
        self.assertEqual(200, status)
        root = etree.fromstring(body)
        self.assertEqual(etree.QName(documents.NAMES.service, "RMSIncidentIndexCard").text, root.tag)
        self.assertEqual("a", documents.find(root, "card:LejisIndexUid/j:ActivityID/j:ID").text)
        self.call("GET", SUBMISSION_PATH + "?wsdl")
        self.assertEqual(400, self.call("GET", "/control/exchanges/2/incident.xml")[0])


if __name__ == "__main__":
    unittest.main()
