#include "unit_support/ScriptedRequest.h"

#include "platform/ComError.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"

#include <algorithm>

using Microsoft::WRL::ComPtr;

namespace support {

ScriptedHttp::ScriptedHttp(Script first) : script(std::move(first)) {
    platform::SetHttpRequestFactory([this] {
        platform::Check(script.createResult);
        requests.push_back(platform::Create<ScriptedRequest>(script));
        return ComPtr<IXMLHTTPRequest>(requests.back().Get());
    });
}

ScriptedHttp::~ScriptedHttp() { platform::SetHttpRequestFactory(nullptr); }

void ScriptedRequest::Advance() {
    state_ = std::min(state_ + 1, script_.readyStates.size() - 1);
    if (!handler_) return;
    DISPPARAMS none{};
    handler_->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                     script_.callsWithoutParameters ? nullptr : &none, nullptr, nullptr, nullptr);
}

STDMETHODIMP ScriptedRequest::open(BSTR method, BSTR url, VARIANT asynchronous, VARIANT user, VARIANT password) {
    sent_.method = method;
    sent_.url = url ? url : L"";
    sent_.isModeGiven = V_VT(&asynchronous) == VT_BOOL;
    sent_.asynchronous = !sent_.isModeGiven || V_BOOL(&asynchronous) != VARIANT_FALSE;
    sent_.isUserGiven = V_VT(&user) != VT_ERROR || V_VT(&password) != VT_ERROR;
    return script_.openResult;
}

STDMETHODIMP ScriptedRequest::setRequestHeader(BSTR header, BSTR value) {
    sent_.headers.emplace_back(header, value);
    return S_OK;
}

STDMETHODIMP ScriptedRequest::send(VARIANT body) {
    ++sent_.sends;
    sent_.bodyIsText = V_VT(&body) == VT_BSTR;
    if (sent_.bodyIsText) sent_.body = V_BSTR(&body);
    script_.onSend();
    return script_.sendResult;
}

STDMETHODIMP ScriptedRequest::get_status(long* status) {
    ++sent_.asksForStatus;
    *status = script_.status;
    return S_OK;
}

STDMETHODIMP ScriptedRequest::get_statusText(BSTR* text) {
    *text = script_.hasStatusText ? Bstr(script_.statusText).Detach() : nullptr;
    return S_OK;
}

STDMETHODIMP ScriptedRequest::get_responseText(BSTR* text) {
    *text = Bstr(script_.responseText).Detach();
    return S_OK;
}

STDMETHODIMP ScriptedRequest::get_responseXML(IDispatch** document) {
    ++sent_.asksForDocument;
    *document = nullptr;
    if (FAILED(script_.responseXmlResult)) return script_.responseXmlResult;
    if (!script_.hasResponseXml) return S_FALSE;
    const Document parsed = NewDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    parsed->loadXML(Bstr(script_.responseText), &loaded);
    *document = ComPtr<IDispatch>(parsed.Get()).Detach();
    // The platform returns S_FALSE for a document without a root.
    return loaded ? S_OK : S_FALSE;
}

// A look from the waiting loop moves the state on; a scripted asynchronous request moves by Advance alone.
STDMETHODIMP ScriptedRequest::get_readyState(long* state) {
    *state = isEnded_ ? platform::HttpRequest::kComplete : script_.readyStates[state_];
    if (!sent_.asynchronous) state_ = std::min(state_ + 1, script_.readyStates.size() - 1);
    return S_OK;
}

STDMETHODIMP ScriptedRequest::put_onreadystatechange(IDispatch* handler) {
    if (!handler && FAILED(script_.clearHandlerResult)) return script_.clearHandlerResult;
    handler_ = handler;
    return S_OK;
}

STDMETHODIMP ScriptedRequest::abort() {
    ++sent_.aborts;
    return S_OK;
}

STDMETHODIMP ScriptedRequest::getResponseHeader(BSTR header, BSTR* value) {
    *value = nullptr;
    if (header != std::wstring_view(L"Content-Type")) return E_UNEXPECTED;
    if (script_.contentType.empty()) return S_FALSE;
    *value = Bstr(script_.contentType).Detach();
    return S_OK;
}

STDMETHODIMP ScriptedRequest::get_responseBody(VARIANT* body) {
    ++sent_.asksForBytes;
    if (!script_.hasResponseBody) return E_UNEXPECTED;
    const std::string bytes = script_.responseBody.empty() ? Utf8(script_.responseText) : script_.responseBody;
    V_ARRAY(body) = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    V_VT(body) = VT_ARRAY | VT_UI1;
    std::copy(bytes.begin(), bytes.end(), static_cast<char*>(V_ARRAY(body)->pvData));
    return S_OK;
}

// Nothing in the library asks for these.
STDMETHODIMP ScriptedRequest::getAllResponseHeaders(BSTR*) { return E_UNEXPECTED; }
STDMETHODIMP ScriptedRequest::get_responseStream(VARIANT*) { return E_UNEXPECTED; }

}  // namespace support
