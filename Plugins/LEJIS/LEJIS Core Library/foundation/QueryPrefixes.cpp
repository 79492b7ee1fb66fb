#include "foundation/QueryPrefixes.h"

#include "foundation/Constants.h"
#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

namespace lejis::LejisUtils {

_variant_t GetChildText(const msxml::Element& element, const std::wstring& xpath, const _variant_t& otherwise) {
    RequireElement(element);
    const msxml::Node found = msxml::SelectNode(element, xpath);
    if (!found) return otherwise;
    const platform::OutText text = msxml::Text(found);
    return _variant_t(platform::ToBstr(text));
}

void RequireElement(const msxml::Element& element) {
    if (!element) throw platform::host::InvalidArgument(L"elem cannot be Nothing");
}

msxml::Element ElementToRead(IDispatch* client) {
    if (!client) RequireElement(nullptr);
    msxml::Element element = msxml::ElementToRead(client);
    SetSelectionNamespaces(msxml::OwnerDocument(element));
    return element;
}

void SetSelectionNamespaces(const msxml::Document& document) {
    std::wstring declarations;
    for (const Constants::Prefix& prefix : Constants::kPrefixes) {
        if (!declarations.empty()) declarations += L' ';
        declarations.append(L"xmlns:").append(prefix.name).append(L"='").append(prefix.uri).append(L"'");
    }
    msxml::SetProperty(document, L"SelectionLanguage", L"XPath");
    msxml::SetProperty(document, L"SelectionNamespaces", declarations);
}

}  // namespace lejis::LejisUtils
