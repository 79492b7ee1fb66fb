#include "platform/msxml/Markup.h"

#include "platform/com/WrittenBytes.h"
#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace platform::msxml {
namespace {

bool IsOfAnotherApartment(const Node& node) {
    // Only proxies have this interface.
    ComPtr<IClientSecurity> proxy;
    return SUCCEEDED(node->QueryInterface(IID_PPV_ARGS(proxy.GetAddressOf())));
}

// A new, empty document that can take the element: a node cannot join a document of another apartment.
Document DocumentBeside(const Element& element) {
    if (!IsOfAnotherApartment(element)) return CreateDocument();
    Node copy;
    Check(OwnerDocument(element)->cloneNode(VARIANT_FALSE, copy.GetAddressOf()));
    Document document;
    Check(copy.As(&document));
    // Not every MSXML leaves the root out of such a copy. A text that does not parse empties the document.
    VARIANT_BOOL loaded = VARIANT_FALSE;
    Check(document->loadXML(InText(L""), &loaded));
    return document;
}

}  // namespace

std::wstring Markup(const Element& element) {
    RequireBoundedDepth(element);
    // Not every MSXML writes the ancestors' declarations with a subtree; the root of a document has no ancestors.
    const Document alone = DocumentBeside(element);
    Append(alone, Copy(element));
    return Xml(Root(alone));
}

std::wstring Markup(const Document& document) {
    const auto bytes = platform::Create<platform::WrittenBytes>();
    const HRESULT saved = document->save(_variant_t(static_cast<IUnknown*>(bytes.Get())));
    // A text that was cut off within a character has no form in UTF-8; it is sent nevertheless.
    if (FAILED(saved)) return Xml(document);
    constexpr wchar_t kByteOrderMark = L'\xFEFF';
    std::wstring markup = platform::FromUtf8(bytes->All());
    if (markup.starts_with(kByteOrderMark)) markup.erase(0, 1);
    return markup;
}

}  // namespace platform::msxml
