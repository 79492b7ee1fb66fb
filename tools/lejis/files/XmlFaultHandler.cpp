#include "files/XmlFaultHandler.h"

#include <algorithm>

namespace lejis_client {
namespace {

std::wstring AsSentence(std::wstring text) {
    text.erase(text.find_last_not_of(L" \r\n") + 1);
    if (text.empty()) return L"The XML is not well-formed.";
    return text.ends_with(L'.') ? text : text + L'.';
}

}  // namespace

STDMETHODIMP XmlFaultHandler::QueryInterface(REFIID iid, void** object) {
    *object = nullptr;
    if (iid == __uuidof(ISAXContentHandler)) *object = static_cast<ISAXContentHandler*>(this);
    if (iid == __uuidof(ISAXLexicalHandler)) *object = static_cast<ISAXLexicalHandler*>(this);
    if (iid == __uuidof(ISAXErrorHandler) || iid == __uuidof(IUnknown)) *object = static_cast<ISAXErrorHandler*>(this);
    return *object ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP XmlFaultHandler::fatalError(ISAXLocator*, const WCHAR* message, HRESULT) {
    if (fault_.empty()) fault_ = L"Line " + std::to_wstring(line_) + L": " + AsSentence(message ? message : L"");
    return S_OK;
}

STDMETHODIMP XmlFaultHandler::putDocumentLocator(ISAXLocator* locator) {
    locator_ = locator;
    return S_OK;
}

STDMETHODIMP XmlFaultHandler::startElement(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int, ISAXAttributes*) {
    return AskLocator();
}

STDMETHODIMP XmlFaultHandler::endElement(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int) {
    return AskLocator();
}

STDMETHODIMP XmlFaultHandler::characters(const WCHAR* text, int length) {
    line_ += static_cast<int>(std::count(text, text + length, L'\n'));
    return S_OK;
}

STDMETHODIMP XmlFaultHandler::ignorableWhitespace(const WCHAR* text, int length) { return characters(text, length); }

STDMETHODIMP XmlFaultHandler::comment(const WCHAR* text, int length) { return characters(text, length); }

HRESULT XmlFaultHandler::AskLocator() {
    int line = 0;
    if (locator_ && SUCCEEDED(locator_->getLineNumber(&line)) && line > 0) line_ = line;
    return S_OK;
}

}  // namespace lejis_client
