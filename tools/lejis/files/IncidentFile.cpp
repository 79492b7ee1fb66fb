#include "files/IncidentFile.h"

#include "files/Doctype.h"
#include "files/FileError.h"
#include "files/FormatName.h"
#include "files/IncidentFormat.h"
#include "files/LossHandler.h"
#include "files/XmlFault.h"
#include "files/XmlSource.h"
#include "foundation/LejisUtils.h"
#include "library/LibraryError.h"

#include <msxml6.h>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

constexpr FormatName kRoot(kIncidentElement);

ComPtr<IXMLDOMDocument2> NewDocument() {
    ComPtr<IXMLDOMDocument2> document;
    Check(CoCreateInstance(__uuidof(DOMDocument60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&document)));
    Check(document->put_async(VARIANT_FALSE));
    Check(document->put_validateOnParse(VARIANT_FALSE));
    Check(document->put_resolveExternals(VARIANT_FALSE));
    lejis::LejisUtils::SetSelectionNamespaces(document);
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
    if (kRoot.Is(Text(space), Text(name))) return;
    const std::wstring found =
        L"'" + Text(name) + L"' of " + (space.length() ? L"'" + Text(space) + L"'" : L"no namespace");
    const std::wstring wanted = L"'" + std::wstring(kRoot.local) + L"' of '" + std::wstring(kRoot.space) + L"'";
    throw FileError{L"This is no incident card: its root element is " + found + L", not " + wanted + L"."};
}

void RequireIdentifiers(IXMLDOMElement* root) {
    std::wstring missing;
    for (const FormatRow& row : IncidentSection().rows) {
        if (!row.isRequired) continue;
        ComPtr<IXMLDOMNode> node;
        Check(root->selectSingleNode(_bstr_t(std::wstring(row.path).c_str()), &node));
        if (node) continue;
        if (!missing.empty()) missing += L"; ";
        missing += std::wstring(row.meaning) + L" (" + std::wstring(row.path) + L")";
    }
    if (!missing.empty()) throw FileError{L"The incident card lacks " + missing + L"."};
}

std::wstring TextOf(const Loss& loss) { return L"Line " + std::to_wstring(loss.line) + L": " + loss.text; }

// The incident keeps a person that cannot be read to the end as far as it came. In a file that is a mistake to be told,
// not to be submitted.
void RequireReadableCards(const std::vector<Loss>& losses) {
    std::wstring reason;
    for (const Loss& loss : losses) {
        if (loss.isFatal) reason += (reason.empty() ? L"" : L"\r\n") + TextOf(loss);
    }
    if (!reason.empty()) throw FileError{reason};
}

ComPtr<ILejisIncidentIndexCard> CardOf(IXMLDOMElement* root) {
    const auto card = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    try {
        Check(card->FromXmlElement(root));
    } catch (const LibraryError& error) {
        const std::wstring end = error.description.ends_with(L'.') ? L"" : L".";
        throw FileError{L"The incident cannot be read: " + error.description + end};
    }
    return card;
}

}  // namespace

IncidentFile ReadIncident(const std::string& content) {
    RefuseDoctype(content);
    const ComPtr<IXMLDOMDocument2> document = NewDocument();
    const ComPtr<IXMLDOMElement> root = RootOf(document.Get(), content);
    RequireIncidentCard(root.Get());
    RequireIdentifiers(root.Get());
    const std::vector<Loss> losses = LossHandler().LossesOf(content);
    RequireReadableCards(losses);
    IncidentFile file{CardOf(root.Get()), {}};
    for (const Loss& loss : losses) file.losses.push_back(TextOf(loss));
    return file;
}

}  // namespace lejis_client
