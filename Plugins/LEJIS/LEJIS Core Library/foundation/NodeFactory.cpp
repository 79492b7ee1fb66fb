#include "foundation/NodeFactory.h"

#include "foundation/Constants.h"
#include "platform/Conversions.h"
#include "platform/msxml/Node.h"

using msxml::Document;
using msxml::Element;

namespace lejis::NodeFactory {

Element CreateQualifiedElement(const Document& document, std::wstring_view qualifiedName,
                               std::wstring_view namespaceUri) {
    return msxml::CreateElement(document, qualifiedName, namespaceUri);
}

Element CreateTextElement(const Document& document, std::wstring_view qualifiedName, std::wstring_view value,
                          std::wstring_view namespaceUri) {
    Element element = CreateQualifiedElement(document, qualifiedName, namespaceUri);
    msxml::SetText(element, value);
    return element;
}

Element CreateTextElement(const Document& document, std::wstring_view qualifiedName, const _variant_t& value,
                          std::wstring_view namespaceUri) {
    return CreateTextElement(document, qualifiedName, platform::ToText(value), namespaceUri);
}

Element CreateBooleanElement(const Document& document, std::wstring_view qualifiedName, bool flag,
                             std::wstring_view namespaceUri) {
    return CreateTextElement(document, qualifiedName, std::wstring_view(flag ? L"true" : L"false"), namespaceUri);
}

Element CreateIdElement(const Document& document, std::wstring_view qualifiedName, std::wstring_view identifier) {
    Element element = CreateQualifiedElement(document, qualifiedName, Constants::kJxdmNamespace);
    msxml::Append(element, CreateTextElement(document, L"j:ID", identifier, Constants::kJxdmNamespace));
    return element;
}

Element CreateJurisdictionIdElement(const Document& document, std::wstring_view qualifiedName,
                                    std::wstring_view identifier, std::wstring_view jurisdictionCode) {
    Element element = CreateIdElement(document, qualifiedName, identifier);
    msxml::Append(element, CreateTextElement(document, L"j:IDJurisdictionCode.ncicLSTA", jurisdictionCode,
                                             Constants::kJxdmNamespace));
    return element;
}

}  // namespace lejis::NodeFactory
