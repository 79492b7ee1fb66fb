"""The page for people."""

from __future__ import annotations

from pathlib import Path

from wire.http_request import HttpRequest
from wire.http_response import HttpResponse

PAGE_PATH = "/page/"

_FOLDER = Path(__file__).resolve().parent.parent / "page"
_TYPES = {
    ".html": "text/html; charset=utf-8",
    ".css": "text/css; charset=utf-8",
    ".js": "text/javascript; charset=utf-8",
    ".svg": "image/svg+xml",
}
# Nothing from elsewhere, no script or style inside the markup, and no text that becomes markup.
_POLICY = "; ".join((
    "default-src 'none'", "script-src 'self'", "style-src 'self'", "img-src 'self'",
    "connect-src 'self'", "base-uri 'none'", "form-action 'none'", "frame-ancestors 'none'",
    "require-trusted-types-for 'script'", "trusted-types 'none'"))


def is_page(path: str) -> bool:
    """Whether this address belongs to the page."""
    return path == "/" or path.startswith(PAGE_PATH)


class PageEndpoint:
    """Serves the files of the page's folder, and nothing that was not there at the start."""

    def __init__(self) -> None:
        self._files = {PAGE_PATH + file.name: file for file in _FOLDER.iterdir()
                       if file.suffix in _TYPES}
        self._files["/"] = _FOLDER / "index.html"

    def handle(self, request: HttpRequest) -> HttpResponse:
        """One file."""
        file = self._files.get(request.path)
        if file is None:
            return HttpResponse.text(404, "The page has no such file.")
        if request.method not in ("GET", "HEAD"):
            return HttpResponse.text(405, "The page takes GET.", headers=(("Allow", "GET, HEAD"),))
        return HttpResponse(200, file.read_bytes(), _TYPES[file.suffix],
                            headers=(("Content-Security-Policy", _POLICY),))
