#pragma once

#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"
#include "platform/msxml/MsXml.h"

#include <TVLejisCore.h>

#include <optional>
#include <string>

namespace lejis {

// Reads SOAP 1.1 answers, and writes envelopes with a WS-Security user name; RequestEnvelope.h writes those of the web
// services. A client's document is read at once, because the client may go on to change it. The answer to a service is
// in no client's hands, so the markup of its body is made on demand: large answers never need it.
class SOAPEnvelope final : public platform::ComObject<::SOAPEnvelope, ISOAPEnvelope> {
public:
    TEXT_PROPERTY(Username)
    STDMETHODIMP get_Body(BSTR* result) override;
    STDMETHODIMP put_Body(BSTR newValue) override;
    [[nodiscard]] STDMETHODIMP IsFault(VARIANT_BOOL* result) override;
    [[nodiscard]] STDMETHODIMP FaultMessage(BSTR* result) override;
    [[nodiscard]] STDMETHODIMP FaultCode(BSTR* result) override;
    [[nodiscard]] STDMETHODIMP BodyXml(IDispatch** result) override;
    [[nodiscard]] STDMETHODIMP ToXmlElement(IDispatch* doc, IDispatch** result) override;
    [[nodiscard]] STDMETHODIMP FromXmlElement(IDispatch* elem) override;
    [[nodiscard]] STDMETHODIMP FromXmlDocument(IDispatch* doc) override;

    std::wstring Body() const;
    bool HasFault() const;
    std::wstring TextOfFault() const;
    std::wstring CodeOfFault() const;
    msxml::Document BodyDocument() const;

    msxml::Element Write(const msxml::Document& document) const;
    void Read(const msxml::Element& element);
    // Throws for a document with another root than soap:Envelope, and for one with a DOCTYPE.
    void ReadDocument(const msxml::Document& document);

    // The soap:Body element, for reading. Throws when the envelope has no body.
    msxml::Element BodyElement() const;

private:
    std::wstring FaultText(const wchar_t* path) const;
    void TakeBodyText();

    // The body is held in one of these two ways: as it was read, or as its text.
    msxml::Element readBody_;
    std::wstring bodyText_;
};

}  // namespace lejis
