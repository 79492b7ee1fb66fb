#include "AnsweredRequest.h"

#include "platform/msxml/Document.h"
#include "platform/Text.h"

#include <algorithm>

namespace benchmarks {

STDMETHODIMP AnsweredRequest::get_readyState(long* state) {
    *state = 4;
    return S_OK;
}

STDMETHODIMP AnsweredRequest::get_status(long* status) {
    *status = 200;
    return S_OK;
}

STDMETHODIMP AnsweredRequest::getResponseHeader(BSTR, BSTR* value) {
    *value = SysAllocString(L"text/xml; charset=utf-8");
    return S_OK;
}

STDMETHODIMP AnsweredRequest::get_responseXML(IDispatch** document) {
    const msxml::Document parsed = msxml::CreateDocument();
    msxml::LoadXml(parsed, platform::FromUtf8(*answer_));
    *document = Microsoft::WRL::ComPtr<IDispatch>(parsed.Get()).Detach();
    return S_OK;
}

STDMETHODIMP AnsweredRequest::get_responseBody(VARIANT* body) {
    V_VT(body) = VT_ARRAY | VT_UI1;
    V_ARRAY(body) = ArrayOf(*answer_);
    return S_OK;
}

SAFEARRAY* ArrayOf(const std::string& bytes) {
    SAFEARRAY* const array = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (!array) throw std::bad_alloc();
    std::copy(bytes.begin(), bytes.end(), static_cast<char*>(array->pvData));
    return array;
}

}  // namespace benchmarks
