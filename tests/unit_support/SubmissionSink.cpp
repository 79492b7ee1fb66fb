#include "unit_support/SubmissionSink.h"

#include "platform/ComError.h"

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace support {
namespace {

ComPtr<IConnectionPoint> PointOf(IDispatch* service) {
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    Check(service->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())));
    Check(container->FindConnectionPoint(__uuidof(_LejisSubmissionWebServiceEvents), point.GetAddressOf()));
    return point;
}

constexpr const wchar_t* kNames[] = {
    L"?", L"SubmissionCompleted", L"ConfigurationError", L"NetworkError", L"ValidationError", L"ServiceError"};

}  // namespace

DWORD SubmissionSink::Connect(IDispatch* service, const ComPtr<SubmissionSink>& sink) {
    DWORD cookie = 0;
    Check(PointOf(service)->Advise(sink.Get(), &cookie));
    return cookie;
}

SubmissionSink::Connection::Connection(IDispatch* service)
    : service_(service), sink_(platform::Create<SubmissionSink>()), cookie_(Connect(service, sink_)) {}

SubmissionSink::Connection::~Connection() { PointOf(service_.Get())->Unadvise(cookie_); }

STDMETHODIMP SubmissionSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                    UINT*) {
    std::wstring seen = event >= 1 && event <= 5 ? kNames[event] : L"unknown event";
    if (parameters->cArgs == 1) seen.append(L": ").append(V_BSTR(&parameters->rgvarg[0]));
    events.push_back(seen);
    return S_OK;
}

}  // namespace support
