#include "BareWalk.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"

#include <oleauto.h>

using msxml::Node;
using platform::Check;

namespace benchmarks {
namespace {

void Drop(IXMLDOMNode* node, HRESULT (STDMETHODCALLTYPE IXMLDOMNode::*getter)(BSTR*)) {
    BSTR text = nullptr;
    Check((node->*getter)(&text));
    SysFreeString(text);
}

void Walk(IXMLDOMNode* element) {
    Drop(element, &IXMLDOMNode::get_baseName);
    Drop(element, &IXMLDOMNode::get_namespaceURI);
    Node child;
    Check(element->get_firstChild(child.GetAddressOf()));
    DOMNodeType type = NODE_INVALID;
    if (child) Check(child->get_nodeType(&type));
    if (type == NODE_TEXT) return Drop(child.Get(), &IXMLDOMNode::get_text);
    while (child) {
        Walk(child.Get());
        Node next;
        Check(child->get_nextSibling(next.GetAddressOf()));
        child = std::move(next);
    }
}

}  // namespace

void BareWalk(const msxml::Document& document) { Walk(msxml::Root(document).Get()); }

}  // namespace benchmarks
