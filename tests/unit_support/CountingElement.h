// An element, or what hangs below it, that counts the calls which a reader makes.
#pragma once

#include "platform/com/UnknownObject.h"

#include <msxml6.h>
#include <wrl/client.h>

namespace support {

// Answers what a pass over children and their texts asks, as MSXML does. Everything else fails: a query above all,
// which costs as much as dozens of these calls.
class CountingElement final : public platform::UnknownObject<IXMLDOMElement> {
    using Node = IXMLDOMNode;

public:
    CountingElement(IXMLDOMNode* node, int& calls) : node_(node), calls_(calls) {}

    STDMETHODIMP get_firstChild(Node** child) override { return Wrapped(&Node::get_firstChild, child); }
    STDMETHODIMP get_nextSibling(Node** next) override { return Wrapped(&Node::get_nextSibling, next); }
    STDMETHODIMP get_nodeType(DOMNodeType* type) override { return Counted(&Node::get_nodeType, type); }
    STDMETHODIMP get_baseName(BSTR* name) override { return Counted(&Node::get_baseName, name); }
    STDMETHODIMP get_namespaceURI(BSTR* uri) override { return Counted(&Node::get_namespaceURI, uri); }
    STDMETHODIMP get_nodeValue(VARIANT* value) override { return Counted(&Node::get_nodeValue, value); }
    STDMETHODIMP get_text(BSTR* text) override { return Counted(&Node::get_text, text); }

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP get_nodeName(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_nodeValue(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP get_parentNode(Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_childNodes(IXMLDOMNodeList**) override { return E_NOTIMPL; }
    STDMETHODIMP get_lastChild(Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_previousSibling(Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_attributes(IXMLDOMNamedNodeMap**) override { return E_NOTIMPL; }
    STDMETHODIMP insertBefore(Node*, VARIANT, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP replaceChild(Node*, Node*, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP removeChild(Node*, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP appendChild(Node*, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP hasChildNodes(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP get_ownerDocument(IXMLDOMDocument**) override { return E_NOTIMPL; }
    STDMETHODIMP cloneNode(VARIANT_BOOL, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_nodeTypeString(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP put_text(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_specified(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP get_definition(Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_nodeTypedValue(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_nodeTypedValue(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP get_dataType(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP put_dataType(BSTR) override { return E_NOTIMPL; }
    STDMETHODIMP get_xml(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP transformNode(Node*, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP selectNodes(BSTR, IXMLDOMNodeList**) override { return E_NOTIMPL; }
    STDMETHODIMP selectSingleNode(BSTR, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_parsed(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP get_prefix(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP transformNodeToObject(Node*, VARIANT) override { return E_NOTIMPL; }
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
    void* Find(REFIID iid) override {
        if (iid == __uuidof(IXMLDOMNode)) return static_cast<IXMLDOMElement*>(this);
        return UnknownObject::Find(iid);
    }

    template <typename Result>
    HRESULT Counted(HRESULT (STDMETHODCALLTYPE Node::*getter)(Result*), Result* result) {
        ++calls_;
        return (node_.Get()->*getter)(result);
    }

    HRESULT Wrapped(HRESULT (STDMETHODCALLTYPE Node::*getter)(Node**), Node** result) {
        Microsoft::WRL::ComPtr<Node> found;
        const HRESULT outcome = Counted(getter, found.GetAddressOf());
        *result = found ? platform::Create<CountingElement>(found.Get(), calls_).Detach() : nullptr;
        return outcome;
    }

    const Microsoft::WRL::ComPtr<Node> node_;
    int& calls_;
};

}  // namespace support
