#include "support/DeepXml.h"

#include "support/ComCheck.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace support {

void NestIn(IXMLDOMNode* node, int depth) {
    ComPtr<IXMLDOMDocument> document;
    ComPtr<IXMLDOMNode> innermost(node);
    const _bstr_t name(L"a");
    ASSERT_OK(node->get_ownerDocument(document.GetAddressOf()));
    for (int level = 0; level < depth; ++level) {
        ComPtr<IXMLDOMElement> next;
        ASSERT_OK(document->createElement(name, next.GetAddressOf()));
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
