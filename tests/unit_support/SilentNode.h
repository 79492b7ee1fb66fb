#pragma once

#include "unit_support/EarlyBound.h"

#include <msxml6.h>

namespace support {

// A node, by an interface that all nodes of its kind have, on which every call fails: the base of those that play
// MSXML for a few calls.
template <typename Interface>
class SilentNode : public EarlyBound<Interface> {
protected:
    using Node = IXMLDOMNode;

public:
    STDMETHODIMP get_firstChild(Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_nextSibling(Node**) override { return E_NOTIMPL; }
    STDMETHODIMP get_nodeType(DOMNodeType*) override { return E_NOTIMPL; }
    STDMETHODIMP get_baseName(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_namespaceURI(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_nodeValue(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_text(BSTR*) override { return E_NOTIMPL; }
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

protected:
    void* Find(REFIID iid) override {
        if (iid == __uuidof(IXMLDOMNode)) return static_cast<Interface*>(this);
        return EarlyBound<Interface>::Find(iid);
    }
};

}  // namespace support
