"""SOAP 1.1 messages: reading what clients send, writing what the LEJIS Interface answers."""

from __future__ import annotations

from collections.abc import Iterable
from xml.sax.saxutils import escape

from lxml import etree

from .namespaces import SOAP, WSSE, Namespaces

CONTENT_TYPE = "text/xml; charset=utf-8"


def parse(body: bytes, what: str = "The request") -> etree._Element:
    """The root of a well-formed UTF-8 document without DOCTYPE; ValueError tells what is wrong."""
    try:
        body.decode("utf-8")
    except UnicodeDecodeError as error:
        raise ValueError(f"{what} is not UTF-8 text: {error.reason} "
                         f"at byte {error.start}.") from None
    parser = etree.XMLParser(encoding="utf-8", resolve_entities=False, no_network=True,
                             load_dtd=False, huge_tree=False)
    try:
        root = etree.fromstring(body, parser)
    except etree.XMLSyntaxError as error:
        raise ValueError(f"{what} is not well-formed XML: "
                         f"{error.msg or 'it is empty'}.") from None
    if root.getroottree().docinfo.internalDTD is not None:
        raise ValueError(f"{what} carries a DOCTYPE, which is not accepted.")
    return root


def elements(parent: etree._Element) -> list[etree._Element]:
    """The element children; ValueError when text that is not white space stands between them."""
    children = list(parent.iterchildren(tag=etree.Element))
    between = [parent.text] + [child.tail for child in parent]
    if any(text and text.strip(" \t\r\n") for text in between):
        raise ValueError(f"There is text directly inside {etree.QName(parent).localname}.")
    return children


def parts(root: etree._Element, *names: str) -> list[etree._Element]:
    """The children of the envelope, which must be exactly those parts of SOAP."""
    if root.tag != f"{{{SOAP}}}Envelope":
        raise ValueError("The request is not a SOAP 1.1 envelope.")
    found = elements(root)
    if [part.tag for part in found] != [f"{{{SOAP}}}{name}" for name in names]:
        wanted = " and one ".join(f"soap:{name}" for name in names)
        raise ValueError(f"The envelope does not hold exactly one {wanted} and nothing else.")
    return found


def username(header: etree._Element) -> str:
    """The name in the header's token, which must hold just that and no password."""
    element = header
    for name in ("Security", "UsernameToken", "Username"):
        children = elements(element)
        if [child.tag for child in children] != [f"{{{WSSE}}}{name}"]:
            raise ValueError(f"The {etree.QName(element).localname} does not hold exactly one "
                             f"wsse:{name} and nothing else.")
        element = children[0]
    if len(element):
        raise ValueError("The wsse:Username holds more than text.")
    return element.text or ""


def payload(body: etree._Element, name: str) -> etree._Element:
    """The one element of the envelope's body, which must bear the qualified name given."""
    children = elements(body)
    if [child.tag for child in children] != [name]:
        raise ValueError("The soap:Body does not hold exactly one "
                         f"{etree.QName(name).localname} of the service's namespace.")
    return children[0]


def envelope(body: str) -> bytes:
    """An answer whose soap:Body is the markup given."""
    return (f'<?xml version="1.0" encoding="UTF-8"?>\n<soap:Envelope xmlns:soap="{SOAP}">'
            f"<soap:Body>{body}</soap:Body></soap:Envelope>").encode()


def fault(code: str, message: str) -> bytes:
    """An answer that is a fault; SOAP 1.1 leaves the fault's own children without namespace."""
    return envelope(f"<soap:Fault><faultcode>{escape(code)}</faultcode>"
                    f"<faultstring>{escape(message)}</faultstring></soap:Fault>")


def submission_response(namespaces: Namespaces, text: str) -> bytes:
    """The answer to a submission: a code, a blank and words."""
    return envelope(f'<lejis:submissionResponse xmlns:lejis="{namespaces.service}">'
                    f"{escape(text)}</lejis:submissionResponse>")


def inquiry_response(namespaces: Namespaces, cards: Iterable[str], count: int | str) -> bytes:
    """The answer to a search: the markup of the cards, and how many incidents there are."""
    declarations = " ".join(f'xmlns:{prefix}="{namespaces.prefixes[prefix]}"'
                            for prefix in ("lejis", "card", "ext", "j"))
    return envelope(f"<lejis:LEJISIndexInquiryResponse {declarations}>{''.join(cards)}"
                    f"<lejis:incidentcount>{count}</lejis:incidentcount>"
                    "</lejis:LEJISIndexInquiryResponse>")
