#include "xml/Tree.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

#include <algorithm>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace fuzzing {
namespace {

std::wstring NodeName(const msxml::Node& node) {
    BSTR name = nullptr;
    Check(node->get_nodeName(&name));
    return platform::TakeText(name);
}

void ReadAttributes(const msxml::Node& node, Tree& tree) {
    ComPtr<IXMLDOMNamedNodeMap> attributes;
    if (node->get_attributes(attributes.GetAddressOf()) != S_OK) return;
    for (msxml::Node input; attributes->nextNode(input.ReleaseAndGetAddressOf()) == S_OK && input;) {
        tree.attributes.emplace_back(NodeName(input), std::wstring(msxml::Text(input)));
    }
}

Tree ReadNode(const msxml::Node& node) {
    Tree tree;
    DOMNodeType type = NODE_INVALID;
    Check(node->get_nodeType(&type));
    if (type != NODE_ELEMENT) {
        tree.text = Escaped(std::wstring(msxml::Text(node)));
        return tree;
    }
    tree.name = NodeName(node);
    ReadAttributes(node, tree);
    msxml::Node child;
    Check(node->get_firstChild(child.GetAddressOf()));
    while (child) {
        tree.children.push_back(ReadNode(child));
        msxml::Node next;
        Check(child->get_nextSibling(next.GetAddressOf()));
        child = next;
    }
    return tree;
}

void Write(const Tree& tree, std::wstring& text) {
    if (!tree.IsElement()) {
        text += tree.text;
        return;
    }
    text.append(L"<").append(tree.name);
    for (const auto& [name, value] : tree.attributes) {
        text.append(L" ").append(name).append(L"=\"").append(Escaped(value)).append(L"\"");
    }
    if (tree.children.empty()) {
        text += L"/>";
        return;
    }
    text += L">";
    for (const Tree& child : tree.children) Write(child, text);
    text.append(L"</").append(tree.name).append(L">");
}

}  // namespace

Tree ToTree(const msxml::Document& document) { return ReadNode(msxml::Node(msxml::Root(document).Get())); }

std::wstring ToText(const Tree& tree) {
    std::wstring text;
    Write(tree, text);
    return text;
}

std::wstring Escaped(const std::wstring& text) {
    std::wstring escaped;
    for (const wchar_t character : text) {
        switch (character) {
            case L'<':
                escaped += L"&lt;";
                break;
            case L'&':
                escaped += L"&amp;";
                break;
            case L'"':
                escaped += L"&quot;";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

size_t SizeOf(const Tree& tree) {
    size_t size = 1;
    for (const Tree& child : tree.children) size += SizeOf(child);
    return size;
}

size_t DepthOf(const Tree& tree) {
    size_t deepest = 0;
    for (const Tree& child : tree.children) deepest = std::max(deepest, DepthOf(child));
    return tree.IsElement() ? deepest + 1 : deepest;
}

}  // namespace fuzzing
