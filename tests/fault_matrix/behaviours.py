"""The rows of the fault matrix: how a server behaves and what arrives of it."""

from __future__ import annotations

import bodies
import plays
from arrival import Arrival, Content
from behaviour import Behaviour, Play
from documented import (CANCELLED, FOUND, PARTIALLY_OFFLINE, RULES, SERVICE_DOWN, UNEXPECTED_ANSWER,
                        WITHDRAWN, is_transient, kept_back)
from plays import XML_TYPE, body, framed, head, status, words

STALL_SECONDS = 0.3
# Longer than the client waits before it gives a search up.
LONG_SECONDS = 0.9

RIGHT = Arrival()
NO_XML = Arrival(content=Content.NO_XML)
OTHER_XML = Arrival(content=Content.OTHER_XML)
NO_BODY = Arrival(content=Content.NO_BODY)
EMPTY_BODY = Arrival(content=Content.EMPTY_BODY)
NOTHING = Arrival(0, Content.NO_XML, reason="")
FAULT = "The card is malformed."
HTML = b"<html><body><h1>Sorry</h1></body></html>"

# What Wine makes of a request whose connection fails: one that is waited for reports it, one that is not never ends.
# On Windows both end; the scripted rows play that.
UNREACHABLE = {"submit": f"transient: {SERVICE_DOWN}", "delete": f"transient: {SERVICE_DOWN}",
               "wsdl": f"transient: {SERVICE_DOWN}", "search": FOUND}
WINE_NEVER_ENDS = "Wine never ends the search; on Windows it ends, as in the scripted rows"
HTTP_09 = "Wine takes it for the body of an answer without headers; Windows reports 12152"
WINE_READS_IT = "Wine reads it; Windows does not take it for XML"


def _race(arrives: Arrival) -> dict[str, str | tuple[str, ...]]:
    """A reset comes before or after Wine has looked at the connection: what arrives, or nothing."""
    return {**{operation: (rule(arrives), f"transient: {SERVICE_DOWN}") for operation, rule in RULES.items()},
            "search": (FOUND, f"{RULES['search'](arrives)} | {FOUND}")}


STATUSES = (
    201, 202, 203, 204, 205, 206, 207, 208, 226, 300, 304, 305, 306, 400, 402, 403, 404, 405, 406, 408, 409, 410,
    411, 412, 413, 414, 415, 416, 417, 418, 421, 422, 423, 424, 425, 426, 428, 429, 431, 451, 499, 500, 501, 502,
    503, 504, 505, 506, 507, 508, 510, 511, 520, 599, 600, 999,
)


def _status(code: int) -> Behaviour:
    return Behaviour("Status, with an empty body", str(code), Arrival(code, Content.NO_XML), status(code))


def _answered(name: str, code: int, data: bytes, content: Content, reason: str | None = None) -> Behaviour:
    return Behaviour("Status and body", name, Arrival(code, content, data.decode(), reason),
                     status(code, data, reason=reason))


def _fault(name: str, code: int) -> Behaviour:
    data = bodies.fault(FAULT)
    # The schema check tells the answer as it came.
    told = {} if is_transient(code) else {"wsdl": kept_back(data.decode())}
    return Behaviour("Status and body", name, Arrival(code, Content.FAULT, FAULT), status(code, data),
                     exceptions=told)


def _body(name: str, arrives: Arrival, change: bodies.Change, content_type: str = XML_TYPE,
          note: str = "") -> Behaviour:
    return Behaviour("Body, with status 200", name, arrives, body(change, content_type=content_type), note=note)


def _encoding(name: str, arrives: Arrival, play: Play, **more: object) -> Behaviour:
    return Behaviour("Type and encoding, with status 200", name, arrives, play, **more)


def _framing(name: str, arrives: Arrival, play: Play, **more: object) -> Behaviour:
    return Behaviour("Framing", name, arrives, play, **more)


def _redirect(name: str, arrives: Arrival, play: Play, **more: object) -> Behaviour:
    return Behaviour("Redirect", name, arrives, play, **more)


def _moment(name: str, arrives: Arrival, play: Play | None = None, **more: object) -> Behaviour:
    return Behaviour("Moment", name, arrives, play, **more)


def _fixed(data: bytes) -> bodies.Change:
    return lambda _: data


STATUS_AND_BODY = (
    _fault("500, a SOAP fault", 500),
    _answered("500, SOAP without a fault", 500, bodies.envelope("<s:Body><x/></s:Body>"), Content.EMPTY_BODY),
    _answered("500, SOAP without body", 500, bodies.envelope(""), Content.NO_BODY),
    _answered("500, a page in XML", 500, HTML, Content.OTHER_XML),
    _answered("500, words", 500, b"Out of order", Content.NO_XML),
    _answered("500 without reason", 500, b"", Content.NO_XML, reason=""),
    _answered("404, a page", 404, b"<p>No such page<br>", Content.NO_XML),
    _fault("404, a SOAP fault", 404),
    _answered("403, its own reason", 403, b"", Content.NO_XML, reason="The user is not known"),
    _answered("403 without reason", 403, b"", Content.NO_XML, reason=""),
    _fault("403, a SOAP fault", 403),
    _fault("400, a SOAP fault", 400),
    _answered("400 without reason", 400, b"", Content.NO_XML, reason=""),
    _answered("502, a page", 502, HTML, Content.OTHER_XML),
    _answered("502 without reason", 502, b"", Content.NO_XML, reason=""),
    _answered("503, a page", 503, HTML, Content.OTHER_XML),
)

AUTHENTICATION = (
    *(Behaviour("Authentication asked", f"401, {scheme.split()[0]}", Arrival(401, Content.NO_XML),
                status(401, b"", XML_TYPE, f"WWW-Authenticate: {scheme}"))
      for scheme in ('Basic realm="LEJIS"', 'Digest realm="LEJIS", nonce="1"', 'Bearer realm="LEJIS"')),
    Behaviour("Authentication asked", "401 without a scheme", Arrival(401, Content.NO_XML), status(401)),
    Behaviour("Authentication asked", "407, Basic", Arrival(407, Content.NO_XML),
              status(407, b"", XML_TYPE, 'Proxy-Authenticate: Basic realm="proxy"')),
)

BODIES = (
    _body("as it should be", RIGHT, bytes),
    _body("empty", NO_XML, _fixed(b"")),
    _body("one blank", NO_XML, _fixed(b" ")),
    _body("cut in the middle, length right", NO_XML, bodies.cut(0.5)),
    _body("cut before its last byte, length right", NO_XML, lambda data: data.rstrip()[:-1]),
    _body("words", NO_XML, _fixed(b"It works!")),
    _body("bytes without meaning", NO_XML, _fixed(bodies.garbage(500))),
    _body("only NUL", NO_XML, _fixed(bytes(100))),
    _body("JSON", NO_XML, _fixed(b'{"code": 0}'), content_type="application/json"),
    _body("a page in XML", OTHER_XML, _fixed(HTML), content_type="text/html"),
    _body("twice", NO_XML, lambda data: data + bodies.bare(data)),
    _body("right, then words", NO_XML, lambda data: data + b"Goodbye"),
    _body("right, then blanks", RIGHT, lambda data: data + b" \r\n" * 50),
    _body("blanks before the declaration", RIGHT, lambda data: b"\r\n <?xml version='1.0'?>" + bodies.bare(data),
          note=WINE_READS_IT),
    _body("an element left open", NO_XML, bodies.inside("<x>")),
    _body("a bare ampersand", NO_XML, bodies.inside("<x>a & b</x>")),
    _body("a control character", NO_XML, bodies.inside("<x>\x01</x>")),
    _body("a reference to a control character", NO_XML, bodies.inside("<x>&#1;</x>")),
    _body("XML 1.1", RIGHT, bodies.with_prolog("<?xml version='1.1'?>")),
    _body("a style sheet to be fetched", RIGHT, bodies.with_prolog("<?xml-stylesheet href='http://127.0.0.1:1/x'?>")),
    _body("SOAP 1.2", OTHER_XML, _fixed(bodies.envelope("<s:Body/>", "http://www.w3.org/2003/05/soap-envelope"))),
    _body("SOAP without body", NO_BODY, _fixed(bodies.envelope("<s:Header/>"))),
    _body("SOAP with an empty body", EMPTY_BODY, _fixed(bodies.envelope("<s:Body/>"))),
    _body("a SOAP fault", EMPTY_BODY, _fixed(bodies.fault(FAULT))),
    _body("another element in the body", EMPTY_BODY, _fixed(bodies.envelope("<s:Body><x/></s:Body>"))),
    _body("a DOCTYPE", NO_XML, bodies.with_prolog("<!DOCTYPE x>")),
    _body("a DOCTYPE with its own element rules", NO_XML, bodies.with_prolog("<!DOCTYPE x [<!ELEMENT x ANY>]>")),
    _body("an external DTD", NO_XML, bodies.with_prolog("<!DOCTYPE x SYSTEM 'http://127.0.0.1:1/x.dtd'>")),
    _body("an external entity", NO_XML,
          lambda data: bodies.with_prolog("<!DOCTYPE x [<!ENTITY e SYSTEM 'file:///c:/windows/win.ini'>]>")(
              bodies.inside("<x>&e;</x>")(data))),
    _body("entities in entities, a thousand million", NO_XML,
          lambda data: bodies.with_prolog(bodies.entities(9))(bodies.inside("<x>&e9;</x>")(data))),
    _body("an entity that nobody declares", NO_XML, bodies.inside("<x>&nobody;</x>")),
    _body("elements 200 deep", RIGHT, bodies.deep(200)),
    _body("elements 100,000 deep", NO_XML, bodies.deep(100_000)),
    _body(f"{bodies.HUGE // 1_000_000} MB of blanks", RIGHT, lambda data: data + b" " * bodies.HUGE),
    _body(f"{bodies.HUGE // 1_000_000} MB in one attribute", RIGHT, bodies.inside(f"<x a='{'a' * bodies.HUGE}'/>")),
    _body("20,000 elements more", RIGHT, bodies.inside("<x/>" * 20_000)),
)

ENCODINGS = (
    _encoding("no Content-Type", RIGHT, body(content_type=None)),
    _encoding("text/plain", RIGHT, body(content_type="text/plain")),
    _encoding("text/html", RIGHT, body(content_type="text/html")),
    _encoding("application/octet-stream", RIGHT, body(content_type="application/octet-stream")),
    _encoding("application/soap+xml", RIGHT, body(content_type="application/soap+xml")),
    _encoding("a Content-Type without a type", RIGHT, body(content_type=";;=")),
    _encoding("a charset that does not exist", RIGHT, body(content_type="text/xml; charset=klingon")),
    _encoding("UTF-8 with byte order mark", RIGHT, body(bodies.in_encoding("utf-8", "UTF-8", b"\xef\xbb\xbf"))),
    _encoding("UTF-8, byte order mark twice", RIGHT,
              body(bodies.in_encoding("utf-8", "UTF-8", b"\xef\xbb\xbf" * 2)), from_wine_10=NO_XML,
              note="Windows and Wine 10 take it for no XML; Wine 8 reads it"),
    _encoding("UTF-16, little end first, with byte order mark", RIGHT,
              body(bodies.in_encoding("utf-16-le", "UTF-16", b"\xff\xfe"), content_type="text/xml")),
    _encoding("UTF-16, big end first, with byte order mark", NO_XML,
              body(bodies.in_encoding("utf-16-be", "UTF-16", b"\xfe\xff"), content_type="text/xml"),
              note="Windows reads it; Wine knows no such text"),
    _encoding("UTF-16 with the mark of the other end", NO_XML,
              body(bodies.in_encoding("utf-16-le", "UTF-16", b"\xfe\xff"), content_type="text/xml")),
    _encoding("UTF-16 that says it is UTF-8", RIGHT, body(bodies.in_encoding("utf-16-le", "UTF-8")),
              note=WINE_READS_IT),
    _encoding("UTF-32", NO_XML, body(bodies.in_encoding("utf-32", "UTF-32"), content_type="text/xml")),
    _encoding("Latin-1, declared", RIGHT,
              body(bodies.in_encoding("latin-1", "ISO-8859-1"), content_type="text/xml; charset=ISO-8859-1")),
    _encoding("Latin-1 that says it is UTF-8", RIGHT, body(bodies.in_encoding("latin-1", "UTF-8")),
              note=WINE_READS_IT),
    _encoding("an encoding that does not exist", NO_XML,
              body(bodies.in_encoding("utf-8", "klingon"), content_type="text/xml"), from_wine_10=RIGHT,
              note="Windows and Wine 8 take it for no XML; Wine 10 reads it"),
    _encoding("gzip", RIGHT, body(bodies.gzipped, "Content-Encoding: gzip")),
    _encoding("gzip that is not announced", NO_XML, body(bodies.gzipped)),
    _encoding("gzip announced, plain text sent", NOTHING, body(bytes, "Content-Encoding: gzip"),
              exceptions=UNREACHABLE, gives_up="replaced", note=WINE_NEVER_ENDS),
    _encoding("gzip, cut", NO_XML, body(lambda data: bodies.gzipped(data)[:-20], "Content-Encoding: gzip")),
    _encoding("deflate, in a zlib wrapping", NOTHING, body(bodies.deflated, "Content-Encoding: deflate"),
              exceptions=UNREACHABLE, gives_up="replaced", note=WINE_NEVER_ENDS),
    _encoding("a content coding that does not exist", RIGHT, body(bytes, "Content-Encoding: klingon")),
)

_CHUNKED = "Transfer-Encoding: chunked"

FRAMING = (
    _framing("chunked", RIGHT, framed(_CHUNKED, change=plays.chunked)),
    _framing("chunked, a byte each", RIGHT, framed(_CHUNKED, change=lambda data: plays.chunked(data, 1))),
    _framing("chunked and gzip", RIGHT,
             framed(_CHUNKED, "Content-Encoding: gzip", change=lambda data: plays.chunked(bodies.gzipped(data)))),
    _framing("chunked, with a trailer", RIGHT,
             framed(_CHUNKED, change=lambda data: plays.chunked(data, end=b"0\r\nX-Sum: 1\r\n\r\n"))),
    _framing("chunked, without the last chunk", RIGHT,
             framed(_CHUNKED, change=lambda data: plays.chunked(data, end=b""))),
    _framing("chunked, cut in a chunk", NO_XML, framed(_CHUNKED, change=lambda data: plays.chunked(data)[:250])),
    _framing("chunked, sizes that are not numbers", NO_XML,
             framed(_CHUNKED, change=lambda data: b"xyz\r\n" + data + b"\r\n0\r\n\r\n")),
    _framing("a body without length, ended by the close", RIGHT, framed()),
    _framing("a length that is too large, then a close", RIGHT,
             framed("Content-Length: 1000000")),
    _framing("a length that is too small", RIGHT, framed("Content-Length: 50"),
             note="Wine reads what came with the headers; Windows takes 50 bytes, which are not XML"),
    _framing("a length that is not a number", RIGHT, framed("Content-Length: many")),
    _framing("a negative length", RIGHT, framed("Content-Length: -1")),
    _framing("HTTP/1.0", RIGHT, plays.answer(lambda data: head(200, version="HTTP/1.0") + data)),
    _framing("an unknown version of HTTP", RIGHT,
             plays.answer(lambda data: head(200, f"Content-Length: {len(data)}", version="HTTP/7.3") + data)),
    _framing("line feeds alone", RIGHT,
             plays.answer(lambda data: b"HTTP/1.1 200 OK\nContent-Type: text/xml\nConnection: close\n\n" + data)),
    _framing("a header of 60,000 characters", RIGHT, body(bytes, "X-Long: " + "x" * 60_000)),
    _framing("500 headers", RIGHT, body(bytes, *(f"X-{number}: {number}" for number in range(500)))),
    _framing("a header without colon", RIGHT, body(bytes, "This is no header")),
    _framing("100 before the answer", RIGHT,
             plays.answer(lambda data: b"HTTP/1.1 100 Continue\r\n\r\n" + plays.whole(data))),
    _framing("another protocol's greeting", NO_XML, words(b"SSH-2.0-OpenSSH_9.2\r\n"), note=HTTP_09),
    _framing("bytes without meaning instead of HTTP", NO_XML, words(bodies.garbage(2000)), note=HTTP_09),
    _framing("a body without status line and headers", RIGHT, plays.answer(bytes), note=HTTP_09),
    _framing("a status line without status", NOTHING, words(b"HTTP/1.1\r\n\r\n")),
)

# What a redirected client asks of the service, and is told. Wine asks again with nothing of the first request,
# and not at all for 308.
_ASKED_BY_GET = {"submit": f"transient: {PARTIALLY_OFFLINE.format(405)}",
                 "delete": f"transient: {PARTIALLY_OFFLINE.format(405)}",
                 "search": f"ServiceError: {UNEXPECTED_ANSWER}"}
_OBJECTION = "The Content-Type is '' where 'text/xml;charset=utf-8' is expected."
_ASKED_WITHOUT_BODY = {"submit": f"fatal: {_OBJECTION}",
                       "delete": f"fatal: {_OBJECTION}",
                       "search": f"ServiceError: {_OBJECTION}"}

REDIRECTS = (
    *(_redirect(f"{code} to a good server", RIGHT, plays.redirect(code, "{}"), exceptions=_ASKED_BY_GET)
      for code in (301, 302, 303)),
    _redirect("307 to a good server", RIGHT, plays.redirect(307, "{}"), exceptions=_ASKED_WITHOUT_BODY,
              note="Windows sends the body again, and succeeds"),
    _redirect("308 to a good server", Arrival(308, Content.NO_XML), plays.redirect(308, "{}")),
    _redirect("302 without an address", Arrival(302, Content.NO_XML), plays.redirect(302)),
    _redirect("302 to a server that is not there", NOTHING, plays.redirect(302, "http://127.0.0.1:1/"),
              exceptions=UNREACHABLE, gives_up="replaced", note=WINE_NEVER_ENDS),
    _redirect("302 to what is not an address", NOTHING, plays.redirect(302, "::no address::"),
              exceptions=UNREACHABLE, gives_up="replaced", note=WINE_NEVER_ENDS),
)

MOMENTS = (
    _moment("nobody listens", NOTHING, is_listening=False, exceptions=UNREACHABLE, gives_up="replaced",
            note=WINE_NEVER_ENDS),
    _moment("closed as soon as it is open", NOTHING, greeting=lambda connection: connection.close()),
    _moment("reset as soon as it is open", NOTHING, greeting=lambda connection: connection.reset(),
            exceptions=_race(NOTHING), gives_up="replaced", note=WINE_NEVER_ENDS),
    _moment("closed before the answer", NOTHING, plays.paused(0, plays.at_the_start, plays.nothing)),
    _moment("reset before the answer", NOTHING, plays.paused(0, plays.at_the_start, plays.reset),
            exceptions=_race(NOTHING), gives_up="replaced", note=WINE_NEVER_ENDS),
    _moment("reset in the headers", NO_XML, plays.paused(0, plays.in_the_headers, plays.reset),
            exceptions=_race(NO_XML), gives_up="replaced", note=WINE_NEVER_ENDS),
    _moment("reset after the answer", RIGHT, plays.paused(STALL_SECONDS, plays.at_the_end, plays.reset)),
    _moment("closed in the status line", NOTHING, plays.paused(0, plays.in_the_status_line, plays.nothing)),
    _moment("closed in the headers", NO_XML, plays.paused(0, plays.in_the_headers, plays.nothing)),
    _moment("closed after the headers", NO_XML, plays.paused(0, plays.after_the_headers, plays.nothing)),
    _moment("closed in the body", NO_XML, plays.paused(0, plays.in_the_body, plays.nothing)),
    _moment("silence, then the answer", RIGHT, plays.paused(STALL_SECONDS, plays.at_the_start, plays.rest)),
    _moment("silence, then a close", NOTHING, plays.paused(STALL_SECONDS, plays.at_the_start, plays.nothing)),
    _moment("silence in the status line, then the rest", RIGHT,
            plays.paused(STALL_SECONDS, plays.in_the_status_line, plays.rest)),
    _moment("silence in the headers, then the rest", RIGHT,
            plays.paused(STALL_SECONDS, plays.in_the_headers, plays.rest)),
    _moment("silence in the headers, then a close", NO_XML,
            plays.paused(STALL_SECONDS, plays.in_the_headers, plays.nothing)),
    _moment("silence after the headers, then the rest", RIGHT,
            plays.paused(STALL_SECONDS, plays.after_the_headers, plays.rest)),
    _moment("silence in the body, then the rest", RIGHT,
            plays.paused(STALL_SECONDS, plays.in_the_body, plays.rest)),
    _moment("silence in the body, then a close", NO_XML,
            plays.paused(STALL_SECONDS, plays.in_the_body, plays.nothing)),
    _moment("one byte at a time", RIGHT, plays.trickled(0, lambda _: 1)),
    _moment("a tenth at a time, with silence between", RIGHT, plays.trickled(0.05, lambda data: len(data) // 10 + 1)),
)

KEPT = (
    _moment("kept for the next request, closed before it comes", RIGHT, plays.kept(lambda _: None), twice=True),
    _moment("kept for the next request, closed when it comes", RIGHT, plays.kept(plays.closed_on_the_next), twice=True),
)

# A search that is under way when its client gives it up. Wine ends no request that is waited for, so the server does.
GIVEN_UP = tuple(
    _moment(f"silence {where}, the search {how}, then {end}", arrives, plays.paused(LONG_SECONDS, cut, then),
            exceptions={"search": outcome}, gives_up=how)
    for how, outcome in (("replaced", FOUND), ("withdrawn", WITHDRAWN))
    for where, cut, end, then, arrives in (
        ("before the answer", plays.at_the_start, "the answer", plays.rest, RIGHT),
        ("in the body", plays.in_the_body, "the rest", plays.rest, RIGHT),
        ("in the body", plays.in_the_body, "a close", plays.nothing, NO_XML)))


def _scripted(name: str, test: str, arrives: Arrival, **exceptions: str) -> Behaviour:
    return Behaviour("Played by a scripted request, as Windows reports it", name, arrives, scripted=test,
                     exceptions=exceptions)


def _broken(status_number: int) -> Arrival:
    return Arrival(status_number, Content.NO_XML, reason="")


# On Windows a synchronous request fails; the description is fetched by an asynchronous one, as a search is.
_DOWN = {operation: f"transient: {SERVICE_DOWN}" for operation in ("submit", "delete")}
_CANCELLED = f"fatal: Internal error {CANCELLED}: Error in DoSubmit (line {{}}): The user has cancelled. (Line 1)"

SCRIPTED = (
    _scripted("a reset after the headers or in the body", "ResetInTheBody", _broken(12031)),
    _scripted("a redirect without end", "RedirectWithoutEnd", _broken(12156)),
    _scripted("the platform's own time limit", "TimeLimitOfThePlatform", _broken(12002)),
    _scripted("a connection that is aborted", "ConnectionAborted", _broken(12030)),
    _scripted("an answer that is not HTTP", "AnswerThatIsNoHttp", _broken(12152)),
    _scripted("a certificate that is refused", "CertificateRefused", _broken(12019)),
    _scripted("nobody listens", "NobodyListens", _broken(12029), **_DOWN),
    _scripted("a host that does not exist", "UnknownHost", _broken(12007), **_DOWN),
    _scripted("a connection that fails while it is waited for", "ConnectFailsWhileWaited", _broken(12029)),
    _scripted("an answer for which there is no document", "NoDocument", NO_XML, search="no event"),
    _scripted("silence without an end; the host's yield raises, and another search replaces the first",
              "SilenceWithoutEnd", NOTHING, submit=_CANCELLED.format(8), delete=_CANCELLED.format(8),
              wsdl=_CANCELLED.format(3), search="no event"),
)

BEHAVIOURS = (*BODIES, *ENCODINGS, *(_status(code) for code in STATUSES), *STATUS_AND_BODY, *AUTHENTICATION,
              *REDIRECTS, *FRAMING, *MOMENTS, *KEPT, *GIVEN_UP, *SCRIPTED)
