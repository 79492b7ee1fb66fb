#pragma once

#include "unit_support/SilentNode.h"

#include <oleauto.h>

#include <string>

namespace support {

// A document that plays what another MSXML writes to a stream or says when it cannot write, and has its xml.
class PlayedDocument final : public SilentNode<IXMLDOMDocument2> {
public:
    PlayedDocument(std::string written, HRESULT outcome, std::wstring xml = {})
        : written_(std::move(written)), outcome_(outcome), xml_(std::move(xml)) {}

    STDMETHODIMP get_xml(BSTR* xml) override {
        *xml = SysAllocString(xml_.c_str());
        return S_OK;
    }
    STDMETHODIMP save(VARIANT destination) override {
        if (!description.empty()) Describe();
        if (V_VT(&destination) == VT_BSTR) return outcome_;
        Microsoft::WRL::ComPtr<IStream> stream;
        if (FAILED(V_UNKNOWN(&destination)->QueryInterface(IID_PPV_ARGS(stream.GetAddressOf())))) return E_INVALIDARG;
        stream->Write(written_.data(), static_cast<ULONG>(written_.size()), nullptr);
        return outcome_;
    }

    // The description of a failure.
    std::wstring description;

    STDMETHODIMP get_doctype(IXMLDOMDocumentType**) override { return E_NOTIMPL; }
    STDMETHODIMP get_implementation(IXMLDOMImplementation**) override { return E_NOTIMPL; }
    STDMETHODIMP get_documentElement(IXMLDOMElement**) override { return E_NOTIMPL; }
    STDMETHODIMP putref_documentElement(IXMLDOMElement*) override { return E_NOTIMPL; }
    STDMETHODIMP createElement(BSTR, IXMLDOMElement**) override { return E_NOTIMPL; }
    STDMETHODIMP createDocumentFragment(IXMLDOMDocumentFragment**) override { return E_NOTIMPL; }
    STDMETHODIMP createTextNode(BSTR, IXMLDOMText**) override { return E_NOTIMPL; }
    STDMETHODIMP createComment(BSTR, IXMLDOMComment**) override { return E_NOTIMPL; }
    STDMETHODIMP createCDATASection(BSTR, IXMLDOMCDATASection**) override { return E_NOTIMPL; }
    STDMETHODIMP createProcessingInstruction(BSTR, BSTR, IXMLDOMProcessingInstruction**) override { return E_NOTIMPL; }
    STDMETHODIMP createAttribute(BSTR, IXMLDOMAttribute**) override { return E_NOTIMPL; }
    STDMETHODIMP createEntityReference(BSTR, IXMLDOMEntityReference**) override { return E_NOTIMPL; }
    STDMETHODIMP getElementsByTagName(BSTR, IXMLDOMNodeList**) override { return E_NOTIMPL; }
    STDMETHODIMP createNode(VARIANT, BSTR, BSTR, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP nodeFromID(BSTR, Node**) override { return E_NOTIMPL; }
    STDMETHODIMP load(VARIANT, VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP get_readyState(LONG*) override { return E_NOTIMPL; }
    STDMETHODIMP get_parseError(IXMLDOMParseError**) override { return E_NOTIMPL; }
    STDMETHODIMP get_url(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_async(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_async(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP abort() override { return E_NOTIMPL; }
    STDMETHODIMP loadXML(BSTR, VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP get_validateOnParse(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_validateOnParse(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP get_resolveExternals(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_resolveExternals(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP get_preserveWhiteSpace(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP put_preserveWhiteSpace(VARIANT_BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP put_onreadystatechange(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP put_ondataavailable(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP put_ontransformnode(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP get_namespaces(IXMLDOMSchemaCollection**) override { return E_NOTIMPL; }
    STDMETHODIMP get_schemas(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP putref_schemas(VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP validate(IXMLDOMParseError**) override { return E_NOTIMPL; }
    STDMETHODIMP setProperty(BSTR, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP getProperty(BSTR, VARIANT*) override { return E_NOTIMPL; }

private:
    void Describe() const {
        Microsoft::WRL::ComPtr<ICreateErrorInfo> creation;
        Microsoft::WRL::ComPtr<IErrorInfo> information;
        if (FAILED(CreateErrorInfo(creation.GetAddressOf()))) return;
        creation->SetDescription(const_cast<wchar_t*>(description.c_str()));
        if (SUCCEEDED(creation.As(&information))) SetErrorInfo(0, information.Get());
    }

    const std::string written_;
    const HRESULT outcome_;
    const std::wstring xml_;
};

}  // namespace support
