#include "doctor/ServiceDescription.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

#include <comutil.h>

#include <algorithm>

namespace lejis_client {
namespace {

constexpr wchar_t kWsdlNamespace[] = L"http://schemas.xmlsoap.org/wsdl/";
constexpr wchar_t kPrefixes[] =
    L"xmlns:wsdl='http://schemas.xmlsoap.org/wsdl/' xmlns:xsd='http://www.w3.org/2001/XMLSchema'";

// Null when the content is no XML, or carries a DOCTYPE.
msxml::Element Parse(const std::string& content) {
    const msxml::Document document = msxml::CreateDocument();
    _variant_t bytes;
    bytes.vt = VT_ARRAY | VT_UI1;
    bytes.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(content.size()));
    if (!bytes.parray) throw std::bad_alloc();
    std::copy(content.begin(), content.end(), static_cast<char*>(bytes.parray->pvData));
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (FAILED(document->load(bytes, &loaded)) || !loaded || msxml::HasDoctype(document)) return nullptr;
    msxml::SetProperty(document, L"SelectionLanguage", L"XPath");
    msxml::SetProperty(document, L"SelectionNamespaces", kPrefixes);
    return msxml::Root(document);
}

// The texts that are not empty.
std::vector<std::wstring> TextsOf(const msxml::Element& root, const wchar_t* xpath) {
    std::vector<std::wstring> texts;
    for (const msxml::Node& node : msxml::SelectNodes(root, xpath)) {
        texts.emplace_back(msxml::Text(node));
        if (texts.back().empty()) texts.pop_back();
    }
    return texts;
}

}  // namespace

std::optional<ServiceDescription> ReadDescription(const std::string& content) {
    const msxml::Element root = Parse(content);
    if (!root || msxml::LocalName(root) != L"definitions") return {};
    if (msxml::NamespaceUri(root) != kWsdlNamespace) return {};
    // A binding to SOAP names its action in an element of SOAP 1.1's or 1.2's namespace.
    return ServiceDescription{
        TextsOf(root, L"//wsdl:operation/@name"),
        TextsOf(root, L"//wsdl:operation/*[local-name()='operation']/@soapAction"),
        TextsOf(root, L"/wsdl:definitions/@targetNamespace | //xsd:schema/@targetNamespace"),
    };
}

}  // namespace lejis_client
