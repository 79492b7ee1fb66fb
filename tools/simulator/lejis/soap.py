"""SOAP 1.1 messages: reading what clients send, writing what the LEJIS Interface answers."""

from __future__ import annotations

from xml.sax.saxutils import escape

from lxml import etree

from .namespaces import SOAP, Namespaces

CONTENT_TYPE = "text/xml; charset=utf-8"


def parse(body: bytes) -> etree._Element:
    """The root of a well-formed UTF-8 document without DOCTYPE; ValueError tells what is wrong."""
    try:
        body.decode("utf-8")
    except UnicodeDecodeError as error:
        raise ValueError(f"The request is not UTF-8 text: {error.reason} "
                         f"at byte {error.start}.") from None
    parser = etree.XMLParser(encoding="utf-8", resolve_entities=False, no_network=True,
                             load_dtd=False, huge_tree=False)
    try:
        root = etree.fromstring(body, parser)
    except etree.XMLSyntaxError as error:
        raise ValueError(f"The request is not well-formed XML: "
                         f"{error.msg or 'it is empty'}.") from None
    if root.getroottree().docinfo.internalDTD is not None:
        raise ValueError("The request carries a DOCTYPE, which is not accepted.")
    return root


def elements(parent: etree._Element) -> list[etree._Element]:
    """The element children; ValueError when text that is not white space stands between them."""
    children = list(parent.iterchildren(tag=etree.Element))
    between = [parent.text] + [child.tail for child in parent]
    if any(text and text.strip(" \t\r\n") for text in between):
        raise ValueError(f"There is text directly inside {etree.QName(parent).localname}.")
    return children


def payload(root: etree._Element, name: str) -> etree._Element:
    """The one element of the envelope's body, which must bear the qualified name given."""
    if root.tag != f"{{{SOAP}}}Envelope":
        raise ValueError("The request is not a SOAP 1.1 envelope.")
    parts = elements(root)
    if [part.tag for part in parts] != [f"{{{SOAP}}}Body"]:
        raise ValueError("The envelope does not hold exactly one soap:Body and nothing else.")
    children = elements(parts[0])
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
