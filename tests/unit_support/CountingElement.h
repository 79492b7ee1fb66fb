// An element, or what hangs below it, that counts the calls which a reader makes.
#pragma once

#include "platform/com/Guard.h"
#include "unit_support/SilentNode.h"

#include <msxml6.h>
#include <wrl/client.h>

namespace support {

// Answers what a pass over children and their texts asks, as MSXML does. Everything else fails: a query above all,
// which costs as much as dozens of these calls.
class CountingElement final : public SilentNode<IXMLDOMElement> {
public:
    CountingElement(IXMLDOMNode* node, int& calls) : node_(node), calls_(calls) {}

    STDMETHODIMP get_firstChild(Node** child) override { return Wrapped(&Node::get_firstChild, child); }
    STDMETHODIMP get_nextSibling(Node** next) override { return Wrapped(&Node::get_nextSibling, next); }
    STDMETHODIMP get_nodeType(DOMNodeType* type) override { return Counted(&Node::get_nodeType, type); }
    STDMETHODIMP get_baseName(BSTR* name) override { return Counted(&Node::get_baseName, name); }
    STDMETHODIMP get_namespaceURI(BSTR* uri) override { return Counted(&Node::get_namespaceURI, uri); }
    STDMETHODIMP get_nodeValue(VARIANT* value) override { return Counted(&Node::get_nodeValue, value); }
    STDMETHODIMP get_text(BSTR* text) override { return Counted(&Node::get_text, text); }

    STDMETHODIMP get_tagName(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP getAttribute(BSTR, VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP setAttribute(BSTR, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP removeAttribute(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP getAttributeNode(BSTR, IXMLDOMAttribute**) override { return E_NOTIMPL; }
    STDMETHODIMP setAttributeNode(IXMLDOMAttribute*, IXMLDOMAttribute**) override { return E_NOTIMPL; }
    STDMETHODIMP removeAttributeNode(IXMLDOMAttribute*, IXMLDOMAttribute**) override { return E_NOTIMPL; }
    STDMETHODIMP getElementsByTagName(BSTR, IXMLDOMNodeList**) override { return E_NOTIMPL; }
    STDMETHODIMP normalize() override { return E_NOTIMPL; }

private:
    template <typename Result>
    HRESULT Counted(HRESULT (STDMETHODCALLTYPE Node::*getter)(Result*), Result* result) {
        ++calls_;
        return (node_.Get()->*getter)(result);
    }

    HRESULT Wrapped(HRESULT (STDMETHODCALLTYPE Node::*getter)(Node**), Node** result) {
        Microsoft::WRL::ComPtr<Node> found;
        const HRESULT outcome = Counted(getter, found.GetAddressOf());
        *result = nullptr;
        if (found) platform::Return(result, platform::Create<CountingElement>(found.Get(), calls_));
        return outcome;
    }

    const Microsoft::WRL::ComPtr<Node> node_;
    int& calls_;
};

}  // namespace support
