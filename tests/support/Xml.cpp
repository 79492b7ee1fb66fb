#include "support/Xml.h"

#include "support/ComCheck.h"
#include "support/Printing.h"

#include <comutil.h>

using Microsoft::WRL::ComPtr;

namespace support {
namespace {

constexpr const wchar_t* kDeclarations[] = {
    L" xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'",
    L" xmlns:wsse='http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd'",
    L" xmlns:lejis='http://lejis.example/lejis/jxdm/1.0/service'",
    L" xmlns:inq='http://lejis.example/lejis/jxdm/1.0/service'",
    L" xmlns:card='http://lejis.example/lejis/jxdm/1.0/card'",
    L" xmlns:ext='http://lejis.example/lejis/jxdm/1.0/card/extra'",
    L" xmlns:j='http://www.it.ojp.gov/jxdm/3.0.3'",
};

// Inserts the declarations that the first tag lacks after its name.
std::wstring Declared(const std::wstring& text) {
    const size_t start = text.find_first_not_of(L'<', text.find(L'<'));
    if (start == std::wstring::npos || text[start] == L'!') return text;
    const size_t nameEnd = text.find_first_of(L" />", start);
    const std::wstring tag = text.substr(0, text.find(L'>'));
    std::wstring declarations;
    for (const std::wstring declaration : kDeclarations) {
        const std::wstring prefix = declaration.substr(0, declaration.find(L'=') + 1);
        if (tag.find(prefix) == std::wstring::npos) declarations += declaration;
    }
    return text.substr(0, nameEnd) + declarations + text.substr(nameEnd);
}

using TextGetter = HRESULT (STDMETHODCALLTYPE IXMLDOMNode::*)(BSTR*);

std::wstring Get(IXMLDOMNode* node, TextGetter getter) {
    BSTR text = nullptr;
    (node->*getter)(&text);
    return Take(text);
}

std::wstring ExpandedName(IXMLDOMNode* node) {
    return L"{" + Get(node, &IXMLDOMNode::get_namespaceURI) + L"}" + Get(node, &IXMLDOMNode::get_baseName);
}

// White space with a line break; blanks alone are a text.
bool IsLayout(const std::wstring& text) {
    return text.empty() || (text.find_first_not_of(L" \t\r\n") == std::wstring::npos &&
                            text.find_first_of(L"\t\r\n") != std::wstring::npos);
}

void Dump(IXMLDOMNode* node, int depth, std::wstring& lines);

void DumpAttributes(IXMLDOMNode* node, const std::wstring& indent, std::wstring& lines) {
    ComPtr<IXMLDOMNamedNodeMap> attributes;
    if (node->get_attributes(attributes.GetAddressOf()) != S_OK) return;
    for (ComPtr<IXMLDOMNode> one; attributes->nextNode(one.ReleaseAndGetAddressOf()) == S_OK && one;) {
        const std::wstring name = Get(one.Get(), &IXMLDOMNode::get_nodeName);
        if (name == L"xmlns" || name.starts_with(L"xmlns:")) continue;
        lines += indent + L"@" + ExpandedName(one.Get()) + L" = '" + Get(one.Get(), &IXMLDOMNode::get_text) + L"'\n";
    }
}

void DumpChildren(IXMLDOMNode* node, int depth, std::wstring& lines) {
    ComPtr<IXMLDOMNode> child;
    node->get_firstChild(child.GetAddressOf());
    while (child) {
        Dump(child.Get(), depth, lines);
        ComPtr<IXMLDOMNode> next;
        child->get_nextSibling(next.GetAddressOf());
        child = next;
    }
}

// One line an element, an attribute or a text: what two trees must have in common, and what a person can compare.
void Dump(IXMLDOMNode* node, int depth, std::wstring& lines) {
    const std::wstring indent(static_cast<size_t>(depth) * 2, L' ');
    DOMNodeType type = NODE_INVALID;
    node->get_nodeType(&type);
    if (type == NODE_TEXT || type == NODE_CDATA_SECTION) {
        _variant_t value;
        node->get_nodeValue(&value);
        const std::wstring text = V_VT(&value) == VT_BSTR ? std::wstring(V_BSTR(&value)) : std::wstring();
        if (!IsLayout(text)) lines += indent + L"'" + text + L"'\n";
        return;
    }
    if (type != NODE_ELEMENT) return;
    lines += indent + ExpandedName(node) + L"\n";
    DumpAttributes(node, indent + L"  ", lines);
    DumpChildren(node, depth + 1, lines);
}

std::wstring Dumped(IUnknown* object) {
    ComPtr<IXMLDOMDocument> document;
    ComPtr<IXMLDOMElement> element;
    if (!object) return L"(nothing)\n";
    if (SUCCEEDED(object->QueryInterface(IID_PPV_ARGS(document.GetAddressOf())))) {
        document->get_documentElement(element.GetAddressOf());
    } else {
        object->QueryInterface(IID_PPV_ARGS(element.GetAddressOf()));
    }
    std::wstring lines;
    if (element) Dump(element.Get(), 0, lines);
    return element ? lines : L"(no element)\n";
}

}  // namespace

Document NewDocument() {
    Document document;
    EXPECT_OK(CoCreateInstance(__uuidof(DOMDocument60), nullptr, CLSCTX_INPROC_SERVER,
                               IID_PPV_ARGS(document.GetAddressOf())));
    EXPECT_OK(document->put_async(VARIANT_FALSE));
    return document;
}

Document Parse(const std::wstring& text) {
    const Document document = NewDocument();
    // So that texts of blanks alone survive.
    EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    VARIANT_BOOL loaded = VARIANT_FALSE;
    EXPECT_OK(document->loadXML(Bstr(Declared(text)), &loaded));
    EXPECT_EQ(VARIANT_TRUE, loaded) << "does not parse: " << Utf8(text);
    return document;
}

Element ParseElement(const std::wstring& text) {
    Element root;
    EXPECT_OK(Parse(text)->get_documentElement(root.GetAddressOf()));
    return root;
}

Document Reparsed(IXMLDOMNode* node) {
    const Document document = NewDocument();
    EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    VARIANT_BOOL loaded = VARIANT_FALSE;
    const std::wstring text = Get(node, &IXMLDOMNode::get_xml);
    EXPECT_OK(document->loadXML(Bstr(text), &loaded));
    EXPECT_EQ(VARIANT_TRUE, loaded) << "does not parse: " << Utf8(text);
    return document;
}

testing::AssertionResult SameXml(IUnknown* actual, const std::wstring& expected) {
    const std::wstring got = Dumped(actual);
    const std::wstring wanted = Dumped(Parse(expected).Get());
    if (got == wanted) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected\n" << Utf8(wanted) << "got\n" << Utf8(got);
}

}  // namespace support
