#pragma once

#include "platform/com/UnknownObject.h"
#include "platform/msxml/MsXml.h"

#include <utility>

namespace benchmarks {

// A request that is complete as soon as it is sent, with this document as its answer.
class AnsweredRequest final : public platform::UnknownObject<IXMLHTTPRequest> {
public:
    explicit AnsweredRequest(msxml::Document answer) : answer_(std::move(answer)) {}

    STDMETHODIMP open(BSTR, BSTR, VARIANT, VARIANT, VARIANT) override { return S_OK; }
    STDMETHODIMP setRequestHeader(BSTR, BSTR) override { return S_OK; }
    STDMETHODIMP send(VARIANT) override { return S_OK; }
    STDMETHODIMP put_onreadystatechange(IDispatch*) override { return S_OK; }
    STDMETHODIMP get_readyState(long* state) override;
    STDMETHODIMP get_status(long* status) override;
    STDMETHODIMP get_responseXML(IDispatch** document) override;

    STDMETHODIMP getResponseHeader(BSTR, BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP getAllResponseHeaders(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP abort() override { return E_NOTIMPL; }
    STDMETHODIMP get_statusText(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseText(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseBody(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseStream(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

private:
    const msxml::Document answer_;
};

}  // namespace benchmarks
