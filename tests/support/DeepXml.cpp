#include "support/DeepXml.h"

#include "support/ComCheck.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace support {

void NestIn(IXMLDOMNode* node, int depth, const std::wstring& namespaceUri) {
    ComPtr<IXMLDOMDocument> document;
    ComPtr<IXMLDOMNode> innermost(node);
    const _bstr_t name(namespaceUri.empty() ? L"a" : L"j:a");
    const _bstr_t uri(namespaceUri.c_str());
    const _variant_t elementType(static_cast<long>(NODE_ELEMENT));
    ASSERT_OK(node->get_ownerDocument(document.GetAddressOf()));
    for (int level = 0; level < depth; ++level) {
        ComPtr<IXMLDOMNode> next;
        ASSERT_OK(document->createNode(elementType, name, uri, next.GetAddressOf()));
        ASSERT_OK(innermost->appendChild(next.Get(), nullptr));
        innermost = next;
    }
    ASSERT_OK(innermost->put_text(_bstr_t(L"x")));
}

std::wstring Nested(int depth, const std::wstring& content) {
    std::wstring start;
    std::wstring end;
    for (int level = 0; level < depth; ++level) {
        start += L"<a>";
        end += L"</a>";
    }
    return start + content + end;
}

}  // namespace support
