#include "files/XmlFaultHandler.h"

namespace lejis_client {
namespace {

std::wstring AsSentence(std::wstring text) {
    text.erase(text.find_last_not_of(L" \r\n") + 1);
    if (text.empty()) return L"The XML is not well-formed.";
    return text.ends_with(L'.') ? text : text + L'.';
}

}  // namespace

STDMETHODIMP XmlFaultHandler::fatalError(ISAXLocator*, const WCHAR* message, HRESULT) {
    if (fault_.empty()) fault_ = L"Line " + std::to_wstring(Line()) + L": " + AsSentence(message ? message : L"");
    return S_OK;
}

}  // namespace lejis_client
