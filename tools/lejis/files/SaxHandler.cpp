#include "files/SaxHandler.h"

#include "files/XmlSource.h"
#include "library/Library.h"

#include <algorithm>

namespace lejis_client {

bool SaxHandler::Read(const std::string& content) {
    Microsoft::WRL::ComPtr<ISAXXMLReader> reader;
    Check(CoCreateInstance(__uuidof(SAXXMLReader60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&reader)));
    Check(reader->putErrorHandler(this));
    Check(reader->putContentHandler(this));
    const _variant_t lexicalHandler(static_cast<ISAXLexicalHandler*>(this));
    Check(reader->putProperty(L"http://xml.org/sax/properties/lexical-handler", lexicalHandler));
    return SUCCEEDED(reader->parse(XmlSource(content)));
}

STDMETHODIMP SaxHandler::QueryInterface(REFIID iid, void** object) {
    *object = nullptr;
    if (iid == __uuidof(ISAXContentHandler)) *object = static_cast<ISAXContentHandler*>(this);
    if (iid == __uuidof(ISAXLexicalHandler)) *object = static_cast<ISAXLexicalHandler*>(this);
    if (iid == __uuidof(ISAXErrorHandler) || iid == __uuidof(IUnknown)) *object = static_cast<ISAXErrorHandler*>(this);
    return *object ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP SaxHandler::putDocumentLocator(ISAXLocator* locator) {
    locator_ = locator;
    return S_OK;
}

STDMETHODIMP SaxHandler::startElement(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int, ISAXAttributes*) {
    AskLocator();
    return S_OK;
}

STDMETHODIMP SaxHandler::endElement(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int) {
    AskLocator();
    return S_OK;
}

STDMETHODIMP SaxHandler::characters(const WCHAR* text, int length) {
    CountLines(text, length);
    return S_OK;
}

STDMETHODIMP SaxHandler::ignorableWhitespace(const WCHAR* text, int length) {
    CountLines(text, length);
    return S_OK;
}

STDMETHODIMP SaxHandler::comment(const WCHAR* text, int length) {
    CountLines(text, length);
    return S_OK;
}

void SaxHandler::AskLocator() {
    int line = 0;
    if (locator_ && SUCCEEDED(locator_->getLineNumber(&line)) && line > 0) line_ = line;
}

void SaxHandler::CountLines(const WCHAR* text, int length) {
    line_ += static_cast<int>(std::count(text, text + length, L'\n'));
}

}  // namespace lejis_client
