#include "search/FoundXml.h"

#include <msxml6.h>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

// The console has its own idea of the ends of lines.
std::wstring WithoutCarriageReturns(std::wstring text) {
    std::erase(text, L'\r');
    return text;
}

std::wstring Markup(IXMLDOMDocument* document, ILejisIncidentIndexCard* card) {
    ComPtr<IDispatch> element;
    Check(card->ToXmlElement(document, &element));
    ComPtr<IXMLDOMNode> node;
    Check(element.As(&node));
    _bstr_t markup;
    Check(node->get_xml(markup.GetAddress()));
    return WithoutCarriageReturns(Text(markup));
}

}  // namespace

std::wstring FoundXml(const std::vector<ComPtr<ILejisIncidentIndexCard>>& cards) {
    ComPtr<IXMLDOMDocument> document;
    Check(CoCreateInstance(__uuidof(DOMDocument60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&document)));
    std::wstring text = L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<incidents>\n";
    for (const auto& card : cards) text += Markup(document.Get(), card.Get()) + L'\n';
    return text + L"</incidents>\n";
}

}  // namespace lejis_client
