#pragma once

#include "platform/com/UnknownObject.h"

#include <msxml6.h>

#include <memory>
#include <string>
#include <utility>

namespace benchmarks {

// A request that is complete as soon as it is sent, with these bytes as its answer, of which nothing is parsed yet. As
// under Wine, each call for the document parses all of them, and each call for the bytes copies them.
class AnsweredRequest final : public platform::UnknownObject<IXMLHTTPRequest> {
public:
    explicit AnsweredRequest(std::shared_ptr<const std::string> answer) : answer_(std::move(answer)) {}

    STDMETHODIMP open(BSTR, BSTR, VARIANT, VARIANT, VARIANT) override { return S_OK; }
    STDMETHODIMP setRequestHeader(BSTR, BSTR) override { return S_OK; }
    STDMETHODIMP send(VARIANT) override { return S_OK; }
    STDMETHODIMP put_onreadystatechange(IDispatch*) override { return S_OK; }
    STDMETHODIMP get_readyState(long* state) override;
    STDMETHODIMP get_status(long* status) override;
    STDMETHODIMP getResponseHeader(BSTR header, BSTR* value) override;
    STDMETHODIMP get_responseXML(IDispatch** document) override;
    STDMETHODIMP get_responseBody(VARIANT* body) override;

    STDMETHODIMP getAllResponseHeaders(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP abort() override { return E_NOTIMPL; }
    STDMETHODIMP get_statusText(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseText(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP get_responseStream(VARIANT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

private:
    const std::shared_ptr<const std::string> answer_;
};

// A copy of the bytes, as a request gives it.
SAFEARRAY* ArrayOf(const std::string& bytes);

}  // namespace benchmarks
