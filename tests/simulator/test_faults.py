"""Each kind of fault does what its name says."""

import http.client
import socket
import time
import unittest

from lxml import etree

import documents
from documents import NAMES, PREFIXES
from simulator_case import GOOD_HEADERS, SimulatorCase

from lejis.namespaces import SCHEMAS_PATH, SUBMISSION_PATH, WSDL, XSD

REQUEST = (f"POST {SUBMISSION_PATH} HTTP/1.1\r\nHost: x\r\n"
           f"Content-Length: {len(documents.FULL)}\r\n"
           + "".join(f"{name}: {value}\r\n" for name, value in GOOD_HEADERS.items())
           + "\r\n").encode() + documents.FULL


class SubmissionFaultsTest(SimulatorCase):
    """Faults of the submission address."""

    def tearDown(self) -> None:
        """Whatever the answer was, the request was checked; only honest kinds let it count."""
        exchange = self.last_exchange()
        if exchange["fault"]:
            self.assertTrue(exchange["valid"])
            honest = exchange["fault"] in ("slow", "trickle")
            self.assertEqual(["2007-000123"] if honest else [], self.held())

    def body_children(self, answer: str) -> list[str]:
        root = etree.fromstring(answer.encode())
        return [child.tag for child in root.find("soap:Body", PREFIXES)]

    def test_response_code(self) -> None:
        for text in ("100 core offline", "7 bad <card>", ""):
            self.order("response-code", text=text)
            status, answer = self.submit()
            root = etree.fromstring(answer.encode())
            self.assertEqual((200, text), (status, root.findtext(
                "soap:Body/lejis:submissionResponse", namespaces=PREFIXES)))

    def test_soap_fault(self) -> None:
        self.order("soap-fault", status=503, code="soap:Server", message="x & y")
        status, answer = self.submit()
        root = etree.fromstring(answer.encode())
        self.assertEqual((503, "soap:Server", "x & y"),
                         (status, root.findtext(".//faultcode"), root.findtext(".//faultstring")))

    def test_http_status(self) -> None:
        for status in (400, 401, 403, 404, 408, 500, 502, 503, 504, 599):
            self.order("http-status", status=status, reason="Not Today", body="no",
                       content_type="text/html")
            answer = self.raw(REQUEST.replace(b"Host: x", b"Connection: close"))
            self.assertTrue(answer.startswith(b"HTTP/1.1 %d Not Today\r\n" % status), answer)
            self.assertIn(b"\r\nContent-Type: text/html\r\n", answer)
            self.assertTrue(answer.endswith(b"\r\n\r\nno"), answer)

    def test_http_status_without_reason_and_body(self) -> None:
        self.order("http-status", status=403, reason="")
        answer = self.raw(REQUEST.replace(b"Host: x", b"Connection: close"))
        self.assertTrue(answer.startswith(b"HTTP/1.1 403 \r\n"), answer)
        self.assertTrue(answer.endswith(b"\r\nContent-Length: 0\r\n\r\n"), answer)

    def test_http_status_with_the_usual_reason(self) -> None:
        self.order("http-status", status=404)
        answer = self.raw(REQUEST.replace(b"Host: x", b"Connection: close"))
        self.assertTrue(answer.startswith(b"HTTP/1.1 404 Not Found\r\n"), answer)

    def test_slow(self) -> None:
        self.order("slow", seconds=0.3)
        began = time.monotonic()
        status, answer = self.submit()
        self.assertGreaterEqual(time.monotonic() - began, 0.3)
        self.assertEqual(200, status)
        self.assertIn("1 added", answer)

    def test_trickle(self) -> None:
        self.order("trickle", seconds=0.4)
        began = time.monotonic()
        with socket.create_connection(("127.0.0.1", self.port), timeout=10) as client:
            client.sendall(REQUEST.replace(b"Host: x", b"Connection: close"))
            first = client.recv(65536)
            first_came = time.monotonic() - began
            rest = b""
            while part := client.recv(65536):
                rest += part
        self.assertLess(first_came, 0.3)
        self.assertGreaterEqual(time.monotonic() - began, 0.3)
        self.assertIn(b"1 added", first + rest)

    def test_truncated(self) -> None:
        self.order("truncated")
        with self.assertRaises(http.client.IncompleteRead) as caught:
            self.submit()
        self.assertTrue(caught.exception.partial)

    def test_truncated_headers(self) -> None:
        self.order("truncated-headers")
        answer = self.raw(REQUEST)
        self.assertTrue(answer.startswith(b"HTTP/1.1 200 OK\r\n"))
        self.assertNotIn(b"\r\n\r\n", answer)

    def test_close(self) -> None:
        self.order("close")
        self.assertEqual(b"", self.raw(REQUEST))
        self.assertEqual(0, self.last_exchange()["status"])

    def test_reset(self) -> None:
        self.order("reset")
        with self.assertRaises(ConnectionResetError):
            self.raw(REQUEST)
        self.assertEqual(0, self.last_exchange()["status"])

    def test_not_well_formed(self) -> None:
        for kind in ("not-xml", "invalid-xml"):
            self.order(kind)
            status, answer = self.submit()
            self.assertEqual(200, status)
            self.assertEqual(kind == "invalid-xml", "submissionResponse" in answer)
            with self.assertRaises(etree.XMLSyntaxError):
                etree.fromstring(answer.encode())

    def test_empty(self) -> None:
        self.order("empty")
        self.assertEqual((200, ""), self.submit())

    def test_no_response_element(self) -> None:
        self.order("no-response-element")
        status, answer = self.submit()
        self.assertEqual(200, status)
        self.assertEqual([f"{{{NAMES.service}}}somethingElse"], self.body_children(answer))

    def test_no_body(self) -> None:
        self.order("no-body")
        status, answer = self.submit()
        root = etree.fromstring(answer.encode())
        self.assertEqual(200, status)
        self.assertEqual(f"{{{PREFIXES['soap']}}}Envelope", root.tag)
        self.assertIsNone(root.find("soap:Body", PREFIXES))

    def test_doctype(self) -> None:
        self.order("doctype")
        status, answer = self.submit()
        root = etree.fromstring(answer.encode())
        self.assertEqual(200, status)
        self.assertEqual("soap:Envelope", root.getroottree().docinfo.internalDTD.name)
        self.assertEqual("0 Accepted", root.findtext(".//lejis:submissionResponse",
                                                     namespaces=PREFIXES))

    def test_an_invalid_request_under_a_fault_is_recorded_as_invalid(self) -> None:
        self.order("response-code", text="0 fine")
        self.assertEqual(200, self.submit(b"<a/>")[0])
        self.assertFalse(self.last_exchange()["valid"])
        self.control("DELETE", "exchanges")
        self.submit(documents.submission())


class PublishingFaultsTest(SimulatorCase):
    """Faults of the description and of the schemas."""

    def fetch(self, kind: str, target: str = "wsdl", **more: object) -> tuple[int, bytes]:
        self.order(kind, target=target, **more)
        path = SUBMISSION_PATH + "?wsdl" if target == "wsdl" else SCHEMAS_PATH + "card.xsd"
        return self.call("GET", path)

    def test_variants_of_the_description(self) -> None:
        host = f"127.0.0.1:{self.port}{SCHEMAS_PATH}"
        for kind, types, schemas, locations in (
                ("no-types", 0, 0, []), ("no-include", 1, 1, []),
                ("https-include", 1, 1, [f"HTTPS://{host}lejis-service.xsd"]),
                ("wrong-schema", 1, 1, [f"http://{host}refusing.xsd"])):
            with self.subTest(kind=kind):
                status, body = self.fetch(kind)
                root = etree.fromstring(body)
                self.assertEqual((200, types, schemas, locations), (
                    status, len(root.findall(f"{{{WSDL}}}types")),
                    len(root.findall(f".//{{{XSD}}}schema")),
                    [one.get("schemaLocation") for one in root.iter(f"{{{XSD}}}include")]))

    def test_status_and_nonsense(self) -> None:
        for target in ("wsdl", "schema"):
            with self.subTest(target=target):
                self.assertEqual((404, b"gone"), self.fetch("http-status", target, status=404,
                                                            body="gone"))
                with self.assertRaises(etree.XMLSyntaxError):
                    etree.fromstring(self.fetch("not-xml", target)[1])


if __name__ == "__main__":
    unittest.main()
