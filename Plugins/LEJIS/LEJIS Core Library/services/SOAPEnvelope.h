#pragma once

#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"
#include "platform/msxml/MsXml.h"

#include <TVLejisCore.h>

#include <optional>
#include <string>

namespace lejis {

// Reads SOAP 1.1 answers, and writes envelopes with a WS-Security user name. The web services write their requests
// themselves. A client's document is read at once, for the client may go on to change it. Of a document that no client
// has, the answer to a service, the markup of the body is made when it is asked for: large answers never need it.
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
    // Raises for a document whose root is no soap:Envelope, and for one with a DOCTYPE.
    void ReadDocument(const msxml::Document& document);

    // The soap:Body element, for reading; raises when there is none.
    msxml::Element BodyElement() const;

private:
    std::wstring FaultText(const wchar_t* path) const;
    void TakeBodyText();

    // One of the two: the body as it was read, or the text of one.
    msxml::Element readBody_;
    std::wstring bodyText_;
};

}  // namespace lejis
