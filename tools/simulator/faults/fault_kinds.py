"""All the ways to misbehave: a table, and a small function for each row."""

from __future__ import annotations

from dataclasses import replace
from typing import Any

from lxml import etree

from lejis import soap
from lejis.namespaces import WSDL, XSD
from lejis.schema_set import REFUSING_SCHEMA, SERVICE_SCHEMA
from wire.delivery import Delivery
from wire.http_response import HttpResponse

from . import parameter_checks as check
from . import search_answers as search
from .fault_kind import FaultKind, Parameter, Setting

MAX_CARDS = 20_000

_Values = dict[str, Any]


def _response_code(_: HttpResponse, values: _Values, setting: Setting) -> Delivery:
    return _xml(soap.submission_response(setting.namespaces, values["text"]))


def _soap_fault(_: HttpResponse, values: _Values, __: Setting) -> Delivery:
    return _xml(soap.fault(values["code"], values["message"]), values["status"])


def _http_status(_: HttpResponse, values: _Values, __: Setting) -> Delivery:
    return Delivery(HttpResponse(values["status"], values["body"].encode(),
                                 values["content_type"], values["reason"]))


def _slow(answer: HttpResponse, values: _Values, _: Setting) -> Delivery:
    return Delivery(answer, pause=values["seconds"])


def _trickle(answer: HttpResponse, values: _Values, _: Setting) -> Delivery:
    return Delivery(answer, spread=values["seconds"])


def _truncated(answer: HttpResponse, *_: Any) -> Delivery:
    return Delivery(answer, body_share=0.5, closes=True)


def _truncated_headers(answer: HttpResponse, *_: Any) -> Delivery:
    return Delivery(answer, head_share=0.5, closes=True)


def _close(answer: HttpResponse, *_: Any) -> Delivery:
    return Delivery(answer, head_share=0, closes=True)


def _reset(answer: HttpResponse, *_: Any) -> Delivery:
    return Delivery(answer, head_share=0, resets=True)


def _not_xml(*_: Any) -> Delivery:
    return _xml(b"This is no XML at all.")


def _invalid_xml(answer: HttpResponse, *_: Any) -> Delivery:
    """Begins like the right answer and never closes what it opens."""
    return Delivery(replace(answer, status=200, body=answer.body + b"<unclosed>"))


def _empty(*_: Any) -> Delivery:
    return _xml(b"")


def _no_response_element(_: HttpResponse, __: _Values, setting: Setting) -> Delivery:
    service = setting.namespaces.service
    return _xml(soap.envelope(f'<lejis:somethingElse xmlns:lejis="{service}"/>'))


def _no_body(*_: Any) -> Delivery:
    return _xml(soap.envelope("").replace(b"<soap:Body></soap:Body>", b"<soap:Header/>"))


def _doctype(_: HttpResponse, __: _Values, setting: Setting) -> Delivery:
    """An entity in the place of the answer's text: who resolves it reads a success."""
    names = setting.namespaces
    if setting.target == "search":
        words, body = b"0", soap.inquiry_response(names, (), "ANSWER")
    else:
        words, body = b"0 Accepted", soap.submission_response(names, "ANSWER")
    declaration, rest = body.replace(b"ANSWER", b"&answer;").split(b"\n", 1)
    doctype = b'<!DOCTYPE soap:Envelope [<!ENTITY answer "%s">]>' % words
    return _xml(b"\n".join((declaration, doctype, rest)))


def _no_types(answer: HttpResponse, *_: Any) -> Delivery:
    return _without(answer, f"{{{WSDL}}}types")


def _no_include(answer: HttpResponse, *_: Any) -> Delivery:
    return _without(answer, f"{{{XSD}}}include")


def _https_include(answer: HttpResponse, *_: Any) -> Delivery:
    return _relocated(answer, "http://", "HTTPS://")


def _wrong_schema(answer: HttpResponse, *_: Any) -> Delivery:
    return _relocated(answer, SERVICE_SCHEMA, REFUSING_SCHEMA)


def _count_without_cards(_: HttpResponse, values: _Values, setting: Setting) -> Delivery:
    return _xml(soap.inquiry_response(setting.namespaces, (), values["count"]))


def _cards(_: HttpResponse, values: _Values, setting: Setting) -> Delivery:
    return _xml(search.cards(setting.namespaces, values["count"]))


def _bad_card(_: HttpResponse, __: _Values, setting: Setting) -> Delivery:
    return _xml(search.with_a_bad_card(setting.namespaces))


def _deep_cards(_: HttpResponse, __: _Values, setting: Setting) -> Delivery:
    return _xml(search.with_deep_cards(setting.namespaces))


def _xml(body: bytes, status: int = 200) -> Delivery:
    return Delivery(HttpResponse.xml(body, status))


def _without(answer: HttpResponse, name: str) -> Delivery:
    root = etree.fromstring(answer.body)
    for element in list(root.iter(name)):
        element.getparent().remove(element)
    return _xml(etree.tostring(root))


def _relocated(answer: HttpResponse, old: str, new: str) -> Delivery:
    root = etree.fromstring(answer.body)
    for include in root.iter(f"{{{XSD}}}include"):
        include.set("schemaLocation", include.get("schemaLocation").replace(old, new))
    return _xml(etree.tostring(root))


_SECONDS = {"seconds": Parameter(check.seconds, 1)}
_SOAP_FAULT = {
    "status": Parameter(check.status, 500),
    "code": Parameter(check.text, "soap:Server"),
    "message": Parameter(check.text, "The LEJIS core has failed."),
}
_HTTP_STATUS = {
    "status": Parameter(check.status, 503),
    "reason": Parameter(check.optional_line, None),
    "body": Parameter(check.text, ""),
    "content_type": Parameter(check.line, "text/plain; charset=utf-8"),
}
_HITS = {"count": Parameter(check.whole_number(2**31 - 1), 1)}
_CARDS = {"count": Parameter(check.whole_number(MAX_CARDS), 3)}

FAULT_KINDS: dict[str, FaultKind] = {
    "response-code": FaultKind(
        _response_code, {"text": Parameter(check.text, "")}, target="submission",
        meaning="This text as the submission's response, empty by default"),
    "soap-fault": FaultKind(_soap_fault, _SOAP_FAULT, meaning="A SOAP fault"),
    "http-status": FaultKind(_http_status, _HTTP_STATUS, meaning="That HTTP status and body"),
    "slow": FaultKind(
        _slow, _SECONDS, honest=True, meaning="The right answer after a while", group="Time"),
    "trickle": FaultKind(
        _trickle, _SECONDS, honest=True, meaning="The right answer bit by bit", group="Time"),
    "truncated": FaultKind(
        _truncated, meaning="Half of the body, then a close", group="Connection"),
    "truncated-headers": FaultKind(
        _truncated_headers, meaning="Half of the headers, then a close", group="Connection"),
    "close": FaultKind(_close, meaning="No answer, but a close", group="Connection"),
    "reset": FaultKind(_reset, meaning="No answer, but a reset", group="Connection"),
    "not-xml": FaultKind(_not_xml, meaning="Status 200 with words that are no XML"),
    "invalid-xml": FaultKind(_invalid_xml, meaning="Status 200 with broken XML"),
    "empty": FaultKind(_empty, meaning="Status 200 with nothing"),
    "no-response-element": FaultKind(
        _no_response_element, meaning="A soap:Body with something else in it"),
    "no-body": FaultKind(_no_body, meaning="An envelope without soap:Body"),
    "doctype": FaultKind(
        _doctype, meaning="An answer whose text is an entity of its own DOCTYPE"),
    "count-without-cards": FaultKind(
        _count_without_cards, _HITS, target="search", meaning="This count, and no cards",
        group="Search answers"),
    "cards": FaultKind(
        _cards, _CARDS, target="search", meaning="This many invented cards",
        group="Search answers"),
    "bad-card": FaultKind(
        _bad_card, target="search", meaning="Three cards, the second without its identifiers",
        group="Search answers"),
    "deep-cards": FaultKind(
        _deep_cards, target="search", meaning="Two cards, one level too deep",
        group="Search answers"),
    "no-types": FaultKind(
        _no_types, target="wsdl", meaning="A WSDL without wsdl:types", group="WSDL"),
    "no-include": FaultKind(
        _no_include, target="wsdl", meaning="A WSDL without xsd:include", group="WSDL"),
    "https-include": FaultKind(
        _https_include, target="wsdl", meaning="An include that begins with HTTPS://",
        group="WSDL"),
    "wrong-schema": FaultKind(
        _wrong_schema, target="wsdl", meaning="A schema that nothing passes", group="WSDL"),
}
