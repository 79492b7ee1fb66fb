#include "services/SOAPEnvelope.h"

#include "foundation/ElementWriter.h"
#include "foundation/QueryPrefixes.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "platform/msxml/Node.h"

#include <utility>

namespace lejis {

STDMETHODIMP SOAPEnvelope::get_Body(BSTR* result) {
    return Guard(result, [&] { return Body(); });
}

STDMETHODIMP SOAPEnvelope::put_Body(BSTR newValue) {
    return Guard([&] {
        bodyText_ = platform::CopyText(newValue);
        readBody_.Reset();
    });
}

STDMETHODIMP SOAPEnvelope::IsFault(VARIANT_BOOL* result) {
    return Guard(result, [&] { return HasFault(); });
}

STDMETHODIMP SOAPEnvelope::FaultMessage(BSTR* result) {
    return Guard(result, [&] { return TextOfFault(); });
}

STDMETHODIMP SOAPEnvelope::FaultCode(BSTR* result) {
    return Guard(result, [&] { return CodeOfFault(); });
}

STDMETHODIMP SOAPEnvelope::BodyXml(IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(BodyDocument()); });
}

STDMETHODIMP SOAPEnvelope::ToXmlElement(IDispatch* doc, IDispatch** result) {
    return Guard(result, [&] { return msxml::ToClient(Write(msxml::DocumentFrom(doc))); });
}

STDMETHODIMP SOAPEnvelope::FromXmlElement(IDispatch* elem) {
    return Guard([&] {
        Read(msxml::ElementToRead(elem));
        TakeBodyText();
    });
}

STDMETHODIMP SOAPEnvelope::FromXmlDocument(IDispatch* doc) {
    return Guard([&] {
        const msxml::Document document = msxml::DocumentToRead(doc);
        msxml::RequireBoundedDepth(document);
        ReadDocument(document);
        TakeBodyText();
    });
}

void SOAPEnvelope::TakeBodyText() {
    const msxml::Element body = std::exchange(readBody_, nullptr);
    if (body) bodyText_ = msxml::Markup(body);
}

std::wstring SOAPEnvelope::Body() const { return readBody_ ? msxml::Markup(readBody_) : bodyText_; }

bool SOAPEnvelope::HasFault() const { return msxml::SelectNode(BodyElement(), L"soap:Fault") != nullptr; }

std::wstring SOAPEnvelope::TextOfFault() const { return FaultText(L"soap:Fault/faultstring"); }

std::wstring SOAPEnvelope::CodeOfFault() const { return FaultText(L"soap:Fault/faultcode"); }

std::wstring SOAPEnvelope::FaultText(const wchar_t* path) const {
    const msxml::Node found = msxml::SelectNode(BodyElement(), path);
    return found ? std::wstring(msxml::Text(found)) : std::wstring();
}

msxml::Document SOAPEnvelope::BodyDocument() const {
    msxml::Document document = msxml::CreateDocument();
    LejisUtils::SetSelectionNamespaces(document);
    // A body that does not parse leaves the document without a root.
    msxml::LoadXml(document, Body());
    return document;
}

msxml::Element SOAPEnvelope::BodyElement() const {
    msxml::Element body = readBody_ ? readBody_ : msxml::Root(BodyDocument());
    if (!body) throw platform::ObjectRequired();
    return body;
}

msxml::Element SOAPEnvelope::Write(const msxml::Document& document) const {
    ElementWriter envelope(document, L"soap:Envelope");
    if (!Username.empty()) {
        ElementWriter token(document, L"wsse:UsernameToken");
        token.Text(L"wsse:Username", Username);
        ElementWriter security(document, L"wsse:Security");
        security.Child(token);
        ElementWriter header(document, L"soap:Header");
        header.Child(security);
        envelope.Child(header);
    }
    // As text, on purpose: markup in it is written escaped.
    envelope.Text(L"soap:Body", Body());
    return envelope.Element();
}

void SOAPEnvelope::Read(const msxml::Element& element) {
    LejisUtils::SetSelectionNamespaces(msxml::OwnerDocument(element));
    Username.clear();
    bodyText_.clear();
    readBody_.Reset();
    if (const msxml::Node body = msxml::SelectNode(element, L"soap:Body")) platform::Check(body.As(&readBody_));
}

void SOAPEnvelope::ReadDocument(const msxml::Document& document) {
    if (msxml::HasDoctype(document)) throw platform::ObjectRequired();
    LejisUtils::SetSelectionNamespaces(document);
    const msxml::Node envelope = msxml::SelectNode(document, L"soap:Envelope");
    if (!envelope) throw platform::ObjectRequired();
    msxml::Element element;
    platform::Check(envelope.As(&element));
    Read(element);
}

}  // namespace lejis
