#include "platform/http/HttpRequest.h"

#include "platform/com/EventSink.h"
#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"
#include "platform/http/AbandonedRequests.h"
#include "platform/http/Address.h"
#include "platform/msxml/Document.h"
#include "platform/Text.h"
#include "platform/Wine.h"

#include <comutil.h>
#include <oaidl.h>
#include <wrl/client.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

// The handler of ready states that MSXML gets. It passes each call on to the client's handler, until that is taken
// away. So a request that never releases its handler does no harm, and neither does one that calls it in a way of its
// own.
class ReadyStateRelay final : public EventSink<> {
public:
    explicit ReadyStateRelay(std::shared_ptr<ComPtr<IDispatch>> handler) : handler_(std::move(handler)) {}
    // The handler lives no longer than the request that calls it.
    ~ReadyStateRelay() override { handler_->Reset(); }

    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    const std::shared_ptr<ComPtr<IDispatch>> handler_;
};

// The arguments do not matter: a request tells only that its state has changed.
STDMETHODIMP ReadyStateRelay::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) {
    const ComPtr<IDispatch> handler = *handler_;
    if (!handler) return S_OK;
    DISPPARAMS none{};
    return handler->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                           nullptr);
}

// What `open` and `send` report for an address that they refuse.
constexpr HRESULT kAddressRefused[] = {kInvalidUrl, static_cast<HRESULT>(0x800C0002), static_cast<HRESULT>(0x800C000D)};

// What Wine's `send` reports for a server that cannot be reached, and for an address without a host.
constexpr HRESULT kDownloadFailure = static_cast<HRESULT>(0x800C0008);
constexpr HRESULT kCannotConnect = static_cast<HRESULT>(0x800C0004);

HttpRequestFactory& Factory() {
    static HttpRequestFactory factory;
    return factory;
}

ComPtr<IXMLHTTPRequest> CreateRequest() {
    ReleaseCompleteRequests();
    if (Factory()) return Factory()();
    ComPtr<IXMLHTTPRequest> request;
    Check(CoCreateInstance(__uuidof(XMLHTTP60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(request.GetAddressOf())));
    return request;
}

bool RefusesAddress(HRESULT result) {
    return std::find(std::begin(kAddressRefused), std::end(kAddressRefused), result) != std::end(kAddressRefused);
}

HRESULT NumberOfOpen(HRESULT result) { return RefusesAddress(result) || result == E_INVALIDARG ? kInvalidUrl : result; }

HRESULT NumberOfSend(HRESULT result) {
    if (RefusesAddress(result)) return kInvalidUrl;
    if (!wine::NamesFailuresOfSendOtherwise()) return result;
    if (result == kDownloadFailure) return kServerUnreachable;
    return result == kCannotConnect ? kInvalidUrl : result;
}

_variant_t Missing() { return _variant_t(DISP_E_PARAMNOTFOUND, VT_ERROR); }

// Throws the failure `result` under the number `number`.
void CheckAs(HRESULT result, HRESULT number) {
    if (SUCCEEDED(result)) return;
    const ComError error = LastError(result);
    throw ComError(number, error.Description(), error.Source());
}

}  // namespace

ResponseBytes::ResponseBytes(VARIANT& body) : body_(body, false) {
    void* data = nullptr;
    if (V_VT(&body_) != (VT_ARRAY | VT_UI1)) return;
    SAFEARRAY* const array = V_ARRAY(&body_);
    if (SafeArrayGetDim(array) != 1 || FAILED(SafeArrayAccessData(array, &data))) return;
    bytes_ = {static_cast<const char*>(data), array->rgsabound[0].cElements};
}

ResponseBytes::~ResponseBytes() {
    if (*this) SafeArrayUnaccessData(V_ARRAY(&body_));
}

void SetHttpRequestFactory(HttpRequestFactory factory) { Factory() = std::move(factory); }

HttpRequest HttpRequest::Create() {
    HttpRequest request;
    request.request_ = CreateRequest();
    request.handler_ = std::make_shared<ComPtr<IDispatch>>();
    return request;
}

IXMLHTTPRequest& HttpRequest::Request() const {
    if (!request_) throw ObjectRequired();
    return *request_.Get();
}

void HttpRequest::SetReadyStateHandler(IDispatch* handler) {
    IXMLHTTPRequest& request = Request();
    const auto relay = platform::Create<ReadyStateRelay>(handler_);
    *handler_ = handler;
    Check(request.put_onreadystatechange(relay.Get()));
}

void HttpRequest::ClearReadyStateHandler() noexcept {
    if (!request_ || !*handler_) return;
    // The relay releases the handler whether or not the request releases the relay.
    const ComPtr<IDispatch> handler = std::exchange(*handler_, nullptr);
    if (FAILED(request_->put_onreadystatechange(nullptr))) SetErrorInfo(0, nullptr);
}

void HttpRequest::Abandon() noexcept {
    if (!request_) return;
    ClearReadyStateHandler();
    if (wine::CallsReleasedRequests()) HoldUntilComplete(request_);
    request_->abort();
}

void HttpRequest::Open(const wchar_t* method, const std::wstring& url, bool asynchronous) {
    OpenAs(method, url, _variant_t(asynchronous));
}

void HttpRequest::Open(const wchar_t* method, const std::wstring& url) {
    OpenAs(method, url, wine::NeverCompletesRefusedRequests() ? _variant_t(false) : Missing());
}

void HttpRequest::OpenAs(const wchar_t* method, const std::wstring& url, const VARIANT& asynchronous) {
    IXMLHTTPRequest& request = Request();
    if (!IsHttpAddress(url)) throw LastError(kInvalidUrl);
    const HRESULT result = request.open(ToBstr(method), ToBstr(url), asynchronous, Missing(), Missing());
    CheckAs(result, NumberOfOpen(result));
}

void HttpRequest::SetHeader(const wchar_t* name, const std::wstring& value) {
    Check(Request().setRequestHeader(ToBstr(name), ToBstr(value)));
}

void HttpRequest::Send() { SendBody(_variant_t()); }

// The text goes by value: some implementations send a text by reference as an empty body.
void HttpRequest::Send(const std::wstring& body) { SendBody(_variant_t(ToBstr(body))); }

void HttpRequest::SendBody(const VARIANT& body) {
    const HRESULT result = Request().send(body);
    CheckAs(result, NumberOfSend(result));
}

long HttpRequest::ReadyState() const {
    long state = 0;
    Check(Request().get_readyState(&state));
    return state;
}

long HttpRequest::Status() const {
    long status = 0;
    Check(Request().get_status(&status));
    return status;
}

std::wstring HttpRequest::StatusText() const {
    BSTR text = nullptr;
    Check(Request().get_statusText(&text));
    return TakeText(text);
}

std::wstring HttpRequest::ContentType() const {
    BSTR text = nullptr;
    if (FAILED(Request().getResponseHeader(InText(L"Content-Type"), &text))) SetErrorInfo(0, nullptr);
    return TakeText(text);
}

ResponseBytes HttpRequest::Bytes() const {
    VARIANT body;
    VariantInit(&body);
    if (FAILED(Request().get_responseBody(&body))) SetErrorInfo(0, nullptr);
    return ResponseBytes(body);
}

std::wstring HttpRequest::ResponseText() const {
    BSTR text = nullptr;
    Check(Request().get_responseText(&text));
    return TakeText(text);
}

msxml::Document HttpRequest::ResponseXml() const {
    ComPtr<IDispatch> response;
    msxml::Document document;
    const HRESULT result = Request().get_responseXML(response.GetAddressOf());
    // Windows gives an empty document in this case.
    if (result == E_FAIL && wine::FailsForUnknownEncodings()) return msxml::CreateDocument();
    Check(result);
    if (response) response.As(&document);
    return document;
}

void WaitUntilComplete(const HttpRequest& request) {
    while (request.ReadyState() != HttpRequest::kComplete) host::YieldToHost();
}

}  // namespace platform
