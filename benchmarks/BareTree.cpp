#include "BareTree.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace benchmarks {
namespace {

_bstr_t Take(HRESULT (STDMETHODCALLTYPE IXMLDOMNode::*getter)(BSTR*), IXMLDOMNode* node) {
    BSTR text = nullptr;
    Check((node->*getter)(&text));
    return _bstr_t(text, false);
}

}  // namespace

BareTree::BareTree(const msxml::Element& root) { TakeDown(root, 0); }

void BareTree::TakeDown(const msxml::Element& element, size_t depth) {
    const std::vector<msxml::Element> children = msxml::ChildElements(element);
    Node node{depth,
              Take(&IXMLDOMNode::get_nodeName, element.Get()),
              Take(&IXMLDOMNode::get_namespaceURI, element.Get()),
              children.empty() ? Take(&IXMLDOMNode::get_text, element.Get()) : _bstr_t(),
              {}};
    ComPtr<IXMLDOMNamedNodeMap> attributes;
    Check(element->get_attributes(attributes.GetAddressOf()));
    for (msxml::Node one; attributes->nextNode(one.ReleaseAndGetAddressOf()) == S_OK && one;) {
        const _bstr_t name = Take(&IXMLDOMNode::get_nodeName, one.Get());
        if (std::wstring(name).starts_with(L"xmlns")) continue;
        // Not every MSXML tells an attribute's namespace; here it is always that of its element.
        node.attributes.push_back(
            {name, Take(&IXMLDOMNode::get_namespaceURI, element.Get()), Take(&IXMLDOMNode::get_text, one.Get())});
    }
    nodes_.push_back(std::move(node));
    for (const msxml::Element& child : children) TakeDown(child, depth + 1);
}

size_t BareTree::BuildAndSerialize() const {
    const msxml::Document document = msxml::CreateDocument();
    std::vector<ComPtr<IXMLDOMNode>> open = {ComPtr<IXMLDOMNode>(document.Get())};
    const _variant_t elementType(static_cast<long>(NODE_ELEMENT));
    const _variant_t attributeType(static_cast<long>(NODE_ATTRIBUTE));
    for (const Node& node : nodes_) {
        ComPtr<IXMLDOMNode> made;
        Check(document->createNode(elementType, node.name, node.namespaceUri, made.GetAddressOf()));
        if (node.text.length() > 0) Check(made->put_text(node.text));
        for (const Attribute& one : node.attributes) {
            ComPtr<IXMLDOMNode> attribute;
            ComPtr<IXMLDOMElement> element;
            ComPtr<IXMLDOMAttribute> asAttribute;
            Check(document->createNode(attributeType, one.name, one.namespaceUri, attribute.GetAddressOf()));
            Check(attribute->put_text(one.value));
            Check(made.As(&element));
            Check(attribute.As(&asAttribute));
            Check(element->setAttributeNode(asAttribute.Get(), nullptr));
        }
        open.resize(node.depth + 1);
        Check(open.back()->appendChild(made.Get(), nullptr));
        open.push_back(made);
    }
    BSTR text = nullptr;
    Check(document->get_xml(&text));
    return platform::TakeText(text).size();
}

}  // namespace benchmarks
