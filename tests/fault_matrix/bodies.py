"""Changes of a body, and bodies that the service never sends."""

from __future__ import annotations

import gzip
import random
import re
import zlib
from collections.abc import Callable

Change = Callable[[bytes], bytes]

SOAP = "http://schemas.xmlsoap.org/soap/envelope/"
_DECLARATION = re.compile(rb"\s*<\?xml[^>]*\?>\s*")
HUGE = 2_000_000


def envelope(content: str, version: str = SOAP) -> bytes:
    """A SOAP envelope with this content below its root."""
    return f"<s:Envelope xmlns:s='{version}'>{content}</s:Envelope>".encode()


def fault(message: str) -> bytes:
    """A SOAP fault."""
    return envelope(f"<s:Body><s:Fault><faultcode>s:Server</faultcode><faultstring>{message}</faultstring>"
                    "</s:Fault></s:Body>")


def bare(data: bytes) -> bytes:
    """The document without its declaration."""
    return _DECLARATION.sub(b"", data, count=1)


def with_prolog(prolog: str) -> Change:
    """Puts this before the root."""
    return lambda data: prolog.encode() + bare(data)


def in_encoding(encoding: str, declared: str | None = None, mark: bytes = b"", word: str = "é") -> Change:
    """In another encoding, declared or not, with a character that tells."""
    declaration = f"<?xml version='1.0' encoding='{declared}'?>" if declared else ""
    return lambda data: mark + f"{declaration}<!--{word}-->{bare(data).decode()}".encode(encoding)


def inside(markup: str) -> Change:
    """Puts this at the beginning of the root's content."""
    def change(data: bytes) -> bytes:
        data = bare(data)
        end = data.index(b">") + 1
        return data[:end] + markup.encode() + data[end:]
    return change


def deep(levels: int) -> Change:
    """Adds `levels` nested elements beside the answer."""
    return inside("<x>" * levels + "</x>" * levels)


def entities(levels: int) -> str:
    """A DOCTYPE whose last entity is the first one ten to the power of the levels times over."""
    lines = [f'<!ENTITY e{level} "{f"&e{level - 1};" * 10}">' for level in range(1, levels + 1)]
    return f'<!DOCTYPE x [<!ENTITY e0 "lol">{"".join(lines)}]>'


def cut(share: float) -> Change:
    """Only the first part."""
    return lambda data: data[:int(len(data) * share)]


def gzipped(data: bytes) -> bytes:
    """Compressed, the same bytes every time."""
    return gzip.compress(data, mtime=0)


def garbage(size: int) -> bytes:
    """Bytes without a meaning, the same every time."""
    return random.Random(size).randbytes(size)


def deflated(data: bytes) -> bytes:
    """Compressed the other way."""
    return zlib.compress(data)
