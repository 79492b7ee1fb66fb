#include "platform/msxml/Node.h"

#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"
#include "platform/Text.h"

#include <comutil.h>

#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;

namespace platform::msxml {
namespace {

using TextGetter = HRESULT (STDMETHODCALLTYPE IXMLDOMNode::*)(BSTR*);

platform::OutText Get(const Node& node, TextGetter getter) {
    platform::OutText text;
    Check((node.Get()->*getter)(text.Receive()));
    return text;
}

Node CreateNode(const Document& document, DOMNodeType type, std::wstring_view name, std::wstring_view uri) {
    Node node;
    Check(document->createNode(_variant_t(static_cast<long>(type)), InText(name), InText(uri), node.GetAddressOf()));
    return node;
}

template <typename Interface>
ComPtr<Interface> As(const Node& node) {
    ComPtr<Interface> object;
    if (node) Check(node.Get()->QueryInterface(IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

// The path of the elements that are too deep. MSXML finds them level by level, so its stack does not grow with the
// tree. A walk from here would take many times as long.
std::wstring TooDeep() {
    std::wstring path = L".";
    for (int level = 0; level < kMaximumDepth; ++level) path += L"/*";
    return path;
}

// The node or the first element after it; null when there is no element.
Node ElementFrom(Node node) {
    while (node && TypeOf(node) != NODE_ELEMENT) node = NextSibling(node);
    return node;
}

// Finds the same by a walk that does not call itself, so the thread's stack does not grow with the tree either.
bool IsTooDeepByWalk(const Node& node) {
    std::vector<Node> way = {ElementFrom(FirstChild(node))};
    while (!way.empty()) {
        if (way.size() == kMaximumDepth && way.back()) return true;
        if (way.back()) {
            way.push_back(ElementFrom(FirstChild(way.back())));
        } else {
            way.pop_back();
            if (!way.empty()) way.back() = ElementFrom(NextSibling(way.back()));
        }
    }
    return false;
}

bool IsTooDeep(const Node& node) {
    static const std::wstring tooDeep = TooDeep();
    Node found;
    if (SUCCEEDED(node->selectSingleNode(platform::InText(tooDeep), found.GetAddressOf()))) return found != nullptr;
    // An MSXML may refuse a path of so many steps.
    SetErrorInfo(0, nullptr);
    return IsTooDeepByWalk(node);
}

}  // namespace

Element CreateElement(const Document& document, std::wstring_view qualifiedName, std::wstring_view namespaceUri) {
    return As<IXMLDOMElement>(CreateNode(document, NODE_ELEMENT, qualifiedName, namespaceUri));
}

void SetAttribute(const Document& document, const Element& element, std::wstring_view qualifiedName,
                  std::wstring_view namespaceUri, std::wstring_view value) {
    const Node attribute = CreateNode(document, NODE_ATTRIBUTE, qualifiedName, namespaceUri);
    Check(attribute->put_text(InText(value)));
    // A document of another apartment is a proxy, which takes no null for a result; the same holds in Append.
    ComPtr<IXMLDOMAttribute> replaced;
    Check(element->setAttributeNode(As<IXMLDOMAttribute>(attribute).Get(), replaced.GetAddressOf()));
}

void SetText(const Element& element, std::wstring_view text) { Check(element->put_text(InText(text))); }

void Append(const Node& parent, const Node& child) {
    Node appended;
    Check(parent->appendChild(child.Get(), appended.GetAddressOf()));
}

platform::OutText Text(const Node& node) { return Get(node, &IXMLDOMNode::get_text); }

std::optional<std::wstring> Attribute(const Element& element, const wchar_t* name) {
    _variant_t value;
    Check(element->getAttribute(InText(name), &value));
    if (V_VT(&value) != VT_BSTR) return std::nullopt;
    return platform::CopyText(V_BSTR(&value));
}

Node SelectNode(const Node& node, const std::wstring& xpath) {
    Node found;
    Check(node->selectSingleNode(InText(xpath), found.GetAddressOf()));
    return found;
}

std::vector<Node> SelectNodes(const Node& node, const std::wstring& xpath) {
    ComPtr<IXMLDOMNodeList> list;
    Check(node->selectNodes(InText(xpath), list.GetAddressOf()));
    std::vector<Node> found;
    for (Node next; list->nextNode(next.ReleaseAndGetAddressOf()) == S_OK && next;) found.push_back(next);
    return found;
}

Element Copy(const Element& element) {
    Node copy;
    Check(element->cloneNode(VARIANT_TRUE, copy.GetAddressOf()));
    return AsElement(copy);
}

Element AsElement(const Node& node) { return As<IXMLDOMElement>(node); }

Node FirstChild(const Node& node) {
    Node child;
    Check(node->get_firstChild(child.GetAddressOf()));
    return child;
}

Node NextSibling(const Node& node) {
    Node next;
    Check(node->get_nextSibling(next.GetAddressOf()));
    return next;
}

DOMNodeType TypeOf(const Node& node) {
    DOMNodeType type = NODE_INVALID;
    Check(node->get_nodeType(&type));
    return type;
}

std::vector<Element> ChildElements(const Node& node) {
    std::vector<Element> elements;
    for (Node child = FirstChild(node); child; child = NextSibling(child)) {
        if (TypeOf(child) == NODE_ELEMENT) elements.push_back(As<IXMLDOMElement>(child));
    }
    return elements;
}

platform::OutText LocalName(const Node& node) { return Get(node, &IXMLDOMNode::get_baseName); }
platform::OutText NamespaceUri(const Node& node) { return Get(node, &IXMLDOMNode::get_namespaceURI); }
std::wstring Xml(const Node& node) { return std::wstring(Get(node, &IXMLDOMNode::get_xml)); }

Document OwnerDocument(const Node& node) {
    ComPtr<IXMLDOMDocument> owner;
    Check(node->get_ownerDocument(owner.GetAddressOf()));
    return As<IXMLDOMDocument2>(Node(owner.Get()));
}

void RaiseTooDeep() {
    throw platform::host::InvalidArgument(L"The XML is nested too deep: " + std::to_wstring(kMaximumDepth) +
                                          L" levels or more");
}

void RequireBoundedDepth(const Node& node) {
    if (IsTooDeep(node)) RaiseTooDeep();
}

}  // namespace platform::msxml
