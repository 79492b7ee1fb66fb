// What a SAX reader tells, and in which line. A handler lives on the stack while the reader works, so it is not
// counted.
#pragma once

#include <msxml6.h>
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>

namespace lejis_client {

// The line is counted here, from tag to tag: Wine's locator is right at tags, but counts the lines of a text twice and
// is not moved on to a fault. So the line of a fault is that in which the faulty part begins.
class SaxHandler : public ISAXErrorHandler, public ISAXContentHandler, public ISAXLexicalHandler {
public:
    // Has these bytes read by a SAX reader, which tells this handler. False when they are no XML.
    bool Read(const std::string& content);

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP error(ISAXLocator*, const WCHAR*, HRESULT) override { return S_OK; }
    STDMETHODIMP fatalError(ISAXLocator*, const WCHAR*, HRESULT) override { return S_OK; }
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

protected:
    int Line() const { return line_; }

private:
    void AskLocator();
    void CountLines(const WCHAR* text, int length);

    Microsoft::WRL::ComPtr<ISAXLocator> locator_;
    int line_ = 1;
};

}  // namespace lejis_client
