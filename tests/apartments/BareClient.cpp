#include "apartments/BareClient.h"

#include "apartments/Address.h"
#include "support/ComCheck.h"

using support::Bstr;

namespace apartments {
namespace {

constexpr wchar_t kEnvelope[] =
    L"<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'><soap:Body/></soap:Envelope>";

bool IsComplete(const ComPtr<IXMLHTTPRequest>& request) {
    constexpr long kComplete = 4;
    long state = 0;
    request->get_readyState(&state);
    return state == kComplete;
}

}  // namespace

ComPtr<IXMLHTTPRequest> BareClient::Send(const std::wstring& url, bool asynchronous) {
    const _variant_t none(DISP_E_PARAMNOTFOUND, VT_ERROR);
    ComPtr<IXMLHTTPRequest> request;
    CoCreateInstance(__uuidof(XMLHTTP60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(request.GetAddressOf()));
    request->open(Bstr(L"POST"), Bstr(url), _variant_t(asynchronous), none, none);
    request->setRequestHeader(Bstr(L"Content-Type"), Bstr(L"text/xml;charset=utf-8"));
    request->send(_variant_t(kEnvelope));
    return request;
}

void BareClient::Work(Tally& tally) {
    request_ = Send(SearchAddress(), true);
    if (IsComplete(Send(SubmissionAddress(), false))) ++tally.submissions;
    if (PumpPatiently([this] { return IsComplete(request_); })) ++tally.searches;
}

void BareClient::Begin() { request_ = Send(SearchAddress(), true); }

}  // namespace apartments
