// Keeps the first fault that a SAX reader reports. It lives on the stack while the reader works, so it is not counted.
#pragma once

#include <msxml6.h>
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>

namespace lejis_client {

// The line is counted here, from tag to tag: Wine's locator is right at tags, but counts the lines of a text twice and
// is not moved on to a fault. So the line is that in which the faulty part begins.
class XmlFaultHandler : public ISAXErrorHandler, public ISAXContentHandler, public ISAXLexicalHandler {
public:
    // A sentence with the line; empty without a fault.
    const std::wstring& Fault() const { return fault_; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP error(ISAXLocator*, const WCHAR*, HRESULT) override { return S_OK; }
    STDMETHODIMP fatalError(ISAXLocator*, const WCHAR* message, HRESULT) override;
    STDMETHODIMP ignorableWarning(ISAXLocator*, const WCHAR*, HRESULT) override { return S_OK; }

    STDMETHODIMP putDocumentLocator(ISAXLocator* locator) override;
    STDMETHODIMP startDocument() override { return S_OK; }
    STDMETHODIMP endDocument() override { return S_OK; }
    STDMETHODIMP startPrefixMapping(const WCHAR*, int, const WCHAR*, int) override { return S_OK; }
    STDMETHODIMP endPrefixMapping(const WCHAR*, int) override { return S_OK; }
    STDMETHODIMP startElement(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int, ISAXAttributes*) override;
    STDMETHODIMP endElement(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int) override;
    STDMETHODIMP characters(const WCHAR* text, int length) override;
    STDMETHODIMP ignorableWhitespace(const WCHAR* text, int length) override;
    STDMETHODIMP processingInstruction(const WCHAR*, int, const WCHAR*, int) override { return S_OK; }
    STDMETHODIMP skippedEntity(const WCHAR*, int) override { return S_OK; }

    STDMETHODIMP startDTD(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int) override { return S_OK; }
    STDMETHODIMP endDTD() override { return S_OK; }
    STDMETHODIMP startEntity(const WCHAR*, int) override { return S_OK; }
    STDMETHODIMP endEntity(const WCHAR*, int) override { return S_OK; }
    STDMETHODIMP startCDATA() override { return S_OK; }
    STDMETHODIMP endCDATA() override { return S_OK; }
    STDMETHODIMP comment(const WCHAR* text, int length) override;

private:
    HRESULT AskLocator();

    Microsoft::WRL::ComPtr<ISAXLocator> locator_;
    int line_ = 1;
    std::wstring fault_;
};

}  // namespace lejis_client
