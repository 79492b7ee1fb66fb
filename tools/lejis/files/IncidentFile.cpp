#include "files/IncidentFile.h"

#include "files/Doctype.h"
#include "files/FileError.h"
#include "files/FormatName.h"
#include "files/IncidentFormat.h"
#include "files/LossHandler.h"
#include "files/Quoted.h"
#include "files/XmlFault.h"
#include "files/XmlSource.h"
#include "foundation/QueryPrefixes.h"
#include "library/LibraryError.h"
#include "platform/Conversions.h"
#include "text/Trimmed.h"

#include <msxml6.h>

#include <algorithm>

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
    // For content that is not XML, the load returns S_FALSE on Windows and E_FAIL under Wine.
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

std::wstring TextOf(const Loss& loss) { return L"Line " + std::to_wstring(loss.line) + L": " + loss.text; }

// Whether it names an element of a path as the one that was probably meant.
bool Suggests(const Loss& loss, std::wstring_view path) {
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find(L'/', start), path.size());
        const std::wstring question = L"did you mean " + std::wstring(path.substr(start, end - start)) + L"?";
        if (loss.text.find(question) != std::wstring::npos) return true;
        start = end + 1;
    }
    return false;
}

ComPtr<IXMLDOMNode> NodeOf(IXMLDOMElement* root, const FormatRow& row) {
    ComPtr<IXMLDOMNode> node;
    Check(root->selectSingleNode(_bstr_t(std::wstring(row.path).c_str()), &node));
    return node;
}

// Names what is missing, and what may be it in a wrong spelling.
void Require(bool FormatRow::*isNeeded, IXMLDOMElement* root, const std::vector<Loss>& losses) {
    std::wstring missing, misspelt;
    for (const FormatRow& row : IncidentSection().rows) {
        if (!(row.*isNeeded) || NodeOf(root, row)) continue;
        missing += (missing.empty() ? L"" : L"; ") + std::wstring(row.meaning) + L" (" + std::wstring(row.path) + L")";
        for (const Loss& loss : losses) {
            const std::wstring line = L"\r\n" + TextOf(loss);
            if (Suggests(loss, row.path) && misspelt.find(line) == std::wstring::npos) misspelt += line;
        }
    }
    if (!missing.empty()) throw FileError{L"The incident card lacks " + missing + L"." + misspelt};
}

// Without a valid date the withdrawal would name no day.
void RequireValues(IXMLDOMElement* root) {
    for (const FormatRow& row : IncidentSection().rows) {
        if (!row.isInWithdrawal || row.content != Content::kDate) continue;
        _bstr_t text;
        Check(NodeOf(root, row)->get_text(text.GetAddress()));
        const std::wstring value = Text(text);
        if (!platform::ParseDate(Trimmed(value))) {
            throw FileError{std::wstring(row.path) + L' ' + Quoted(value) + L" cannot be read: it is not a date."};
        }
    }
}

bool IsInWithdrawal(std::wstring_view space, std::wstring_view local) {
    return std::ranges::any_of(IncidentSection().rows, [&](const FormatRow& row) {
        return row.isInWithdrawal && FormatName(row.path.substr(0, row.path.find(L'/'))).Is(space, local);
    });
}

// So that nothing else can keep the card from being read.
void RemoveOthers(IXMLDOMElement* root) {
    ComPtr<IXMLDOMNode> child;
    Check(root->get_firstChild(&child));
    while (child) {
        ComPtr<IXMLDOMNode> next;
        Check(child->get_nextSibling(&next));
        _bstr_t name, space;
        Check(child->get_baseName(name.GetAddress()));
        Check(child->get_namespaceURI(space.GetAddress()));
        if (!IsInWithdrawal(Text(space), Text(name))) Check(root->removeChild(child.Get(), nullptr));
        child = next;
    }
}

// The library keeps a person card up to the field that it cannot read. A file with such a card is reported and not
// submitted.
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

// An incident card, of which nothing else is known to be right.
struct Parsed {
    ComPtr<IXMLDOMDocument2> document;
    ComPtr<IXMLDOMElement> root;
    std::vector<Loss> losses;
};

Parsed Parse(const std::string& content) {
    RefuseDoctype(content);
    Parsed parsed;
    parsed.document = NewDocument();
    parsed.root = RootOf(parsed.document.Get(), content);
    RequireIncidentCard(parsed.root.Get());
    parsed.losses = LossHandler().LossesOf(content);
    return parsed;
}

}  // namespace

IncidentFile ReadIncident(const std::string& content) {
    const Parsed parsed = Parse(content);
    Require(&FormatRow::isRequired, parsed.root.Get(), parsed.losses);
    RequireReadableCards(parsed.losses);
    IncidentFile file{CardOf(parsed.root.Get()), {}};
    for (const Loss& loss : parsed.losses) file.losses.push_back(TextOf(loss));
    return file;
}

IncidentFile ReadIdentifiers(const std::string& content) {
    const Parsed parsed = Parse(content);
    Require(&FormatRow::isInWithdrawal, parsed.root.Get(), parsed.losses);
    RequireValues(parsed.root.Get());
    RemoveOthers(parsed.root.Get());
    return {CardOf(parsed.root.Get()), {}};
}

}  // namespace lejis_client
