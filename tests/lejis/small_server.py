"""Servers of a few lines, for what the simulator does not do. Each is a context manager; `url` is its address."""
import http.server
import socket
import threading
import urllib.parse
import urllib.request


class _Serving:
    def __init__(self, handler):
        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        self.name = f"127.0.0.1:{self._server.server_port}"
        self.url = f"http://{self.name}"

    def __enter__(self):
        threading.Thread(target=self._server.serve_forever, args=(0.05,), daemon=True).start()
        return self

    def __exit__(self, *_):
        self._server.shutdown()
        self._server.server_close()


class _Handler(http.server.BaseHTTPRequestHandler):
    def answer(self, status, body, *headers):
        self.send_response(status)
        self.send_header("Content-Type", "text/xml; charset=utf-8")
        for header in headers:
            self.send_header(*header)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        """Nothing of it belongs into the tests' output."""


class PageServer(_Serving):
    """Answers everything with one page."""

    def __init__(self, page):
        class Handler(_Handler):
            def do_GET(self):
                self.answer(200, page)
        super().__init__(Handler)


class RedirectingServer(_Serving):
    """Takes every request, and names another place for the answer."""

    def __init__(self, place):
        class Handler(_Handler):
            def do_POST(self):
                self.rfile.read(int(self.headers["Content-Length"]))
                self.answer(302, b"", ("Location", place))
        super().__init__(Handler)


class Proxy(_Serving):
    """Passes GET and POST on, to the host of `instead` when that is given, and counts them in `passed`.

    The answers get the header, if one is given.
    """

    def __init__(self, instead=None, header=None):
        self.passed = passed = []

        class Handler(_Handler):
            def do_GET(self):
                self.pass_on(None)

            def do_POST(self):
                self.pass_on(self.rfile.read(int(self.headers["Content-Length"])))

            def pass_on(self, body):
                if not self.path.startswith("http://"):
                    return self.answer(400, b"")
                passed.append(self.path)
                path = urllib.parse.urlsplit(self.path).path
                address = instead + path if instead else self.path
                request = urllib.request.Request(address, body, dict(self.headers))
                with urllib.request.build_opener(urllib.request.ProxyHandler({})).open(request, timeout=20) as answer:
                    return self.answer(answer.status, answer.read(), *([header] if header else []))
        super().__init__(Handler)


class SilentServer:
    """Accepts connections and never says a word."""

    def __enter__(self):
        self._socket = socket.create_server(("127.0.0.1", 0), backlog=16)
        self.url = f"http://127.0.0.1:{self._socket.getsockname()[1]}"
        return self

    def __exit__(self, *_):
        self._socket.close()
