#include "files/IncidentFile.h"

#include "files/Doctype.h"
#include "files/FileError.h"
#include "files/XmlFault.h"
#include "files/XmlSource.h"
#include "library/LibraryError.h"

#include <msxml6.h>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

constexpr wchar_t kRootName[] = L"RMSIncidentIndexCard";
constexpr wchar_t kServiceNamespace[] = L"http://" LEJIS_HOST L"/lejis/jxdm/1.0/service";
constexpr wchar_t kNamespaces[] =
    L"xmlns:lejis='http://" LEJIS_HOST L"/lejis/jxdm/1.0/service' "
    L"xmlns:card='http://" LEJIS_HOST L"/lejis/jxdm/1.0/card' "
    L"xmlns:j='http://www.it.ojp.gov/jxdm/3.0.3'";

// Without these there is no telling which incident it is.
struct Identifier {
    const wchar_t* path;
    const wchar_t* meaning;
};

constexpr Identifier kIdentifiers[] = {
    {L"card:LejisIndexUid/j:OrganizationORIID/j:ID", L"the agency's ORI"},
    {L"card:LejisIndexUid/j:ActivityID/j:ID", L"the incident number"},
    {L"j:SubmissionSubmitter.Organization/j:OrganizationName", L"the agency's name"},
};

ComPtr<IXMLDOMDocument2> NewDocument() {
    ComPtr<IXMLDOMDocument2> document;
    Check(CoCreateInstance(__uuidof(DOMDocument60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&document)));
    Check(document->put_async(VARIANT_FALSE));
    Check(document->put_validateOnParse(VARIANT_FALSE));
    Check(document->put_resolveExternals(VARIANT_FALSE));
    Check(document->setProperty(_bstr_t(L"SelectionNamespaces"), _variant_t(kNamespaces)));
    return document;
}

ComPtr<IXMLDOMElement> RootOf(IXMLDOMDocument2* document, const std::string& content) {
    VARIANT_BOOL loaded = VARIANT_FALSE;
    const HRESULT result = document->load(XmlSource(content), &loaded);
    // Windows ends the load of what is no XML with S_FALSE, Wine ends it so.
    if (result != E_FAIL) Check(result);
    ComPtr<IXMLDOMElement> root;
    if (loaded) Check(document->get_documentElement(&root));
    if (!root) throw FileError{DescribeXmlFault(content)};
    return root;
}

void RequireIncidentCard(IXMLDOMElement* root) {
    _bstr_t name, space;
    Check(root->get_baseName(name.GetAddress()));
    Check(root->get_namespaceURI(space.GetAddress()));
    if (Text(name) == kRootName && Text(space) == kServiceNamespace) return;
    const std::wstring found =
        L"'" + Text(name) + L"' of " + (space.length() ? L"'" + Text(space) + L"'" : L"no namespace");
    const std::wstring wanted = std::wstring(L"'") + kRootName + L"' of '" + kServiceNamespace + L"'";
    throw FileError{L"This is no incident card: its root element is " + found + L", not " + wanted + L"."};
}

void RequireIdentifiers(IXMLDOMElement* root) {
    std::wstring missing;
    for (const Identifier& identifier : kIdentifiers) {
        ComPtr<IXMLDOMNode> node;
        Check(root->selectSingleNode(_bstr_t(identifier.path), &node));
        if (node) continue;
        if (!missing.empty()) missing += L"; ";
        missing += std::wstring(identifier.meaning) + L" (" + identifier.path + L")";
    }
    if (!missing.empty()) throw FileError{L"The incident card lacks " + missing + L"."};
}

template <typename Class, typename Interface>
ComPtr<Interface> ReadCard(IXMLDOMNode* element, const std::wstring& name) {
    const auto card = Create<Class, Interface>();
    try {
        Check(card->FromXmlElement(element));
    } catch (const LibraryError& error) {
        const std::wstring end = error.description.ends_with(L'.') ? L"" : L".";
        throw FileError{name + L" cannot be read: " + error.description + end};
    }
    return card;
}

// The incident keeps a person that cannot be read to the end as far as it came. In a file that is a mistake to be told,
// not to be submitted.
void RequireReadablePersons(IXMLDOMElement* root) {
    ComPtr<IXMLDOMNodeList> persons;
    Check(root->selectNodes(_bstr_t(L"card:RMSPersonIndexCards"), &persons));
    ComPtr<IXMLDOMNode> person;
    for (int number = 1; persons->nextNode(&person) == S_OK; ++number) {
        ReadCard<LejisPersonIndexCard, ILejisPersonIndexCard>(person.Get(), L"Person " + std::to_wstring(number));
    }
}

}  // namespace

ComPtr<ILejisIncidentIndexCard> ReadIncident(const std::string& content) {
    RefuseDoctype(content);
    const ComPtr<IXMLDOMDocument2> document = NewDocument();
    const ComPtr<IXMLDOMElement> root = RootOf(document.Get(), content);
    RequireIncidentCard(root.Get());
    RequireIdentifiers(root.Get());
    RequireReadablePersons(root.Get());
    return ReadCard<LejisIncidentIndexCard, ILejisIncidentIndexCard>(root.Get(), L"The incident");
}

}  // namespace lejis_client
