#include "unit_support/EventLog.h"

#include "platform/ComError.h"

#include <TVLejisCore.h>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace support {
namespace {

std::wstring Described(const VARIANT& argument) {
    if (V_VT(&argument) == VT_BSTR) return std::wstring(V_BSTR(&argument) ? V_BSTR(&argument) : L"");
    ComPtr<ICollection> cards;
    long count = 0;
    Check(V_DISPATCH(&argument)->QueryInterface(IID_PPV_ARGS(cards.GetAddressOf())));
    Check(cards->get_Count(&count));
    return std::to_wstring(count) + L" cards";
}

}  // namespace

EventLog::EventLog(std::vector<std::wstring> names) : names_(std::move(names)) {}

platform::Ref<EventLog> EventLog::ForSubmissions() {
    return platform::Create<EventLog>(std::vector<std::wstring>{L"SubmissionCompleted", L"ConfigurationError",
                                                                L"NetworkError", L"ValidationError", L"ServiceError"});
}

platform::Ref<EventLog> EventLog::ForSearches() {
    return platform::Create<EventLog>(std::vector<std::wstring>{
        L"SearchCompleted", L"SearchFailed", L"ConfigurationError", L"NetworkError", L"ServiceError"});
}

void EventLog::ConnectTo(IDispatch* service) {
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IProvideClassInfo2> information;
    IID source;
    Check(service->QueryInterface(IID_PPV_ARGS(information.GetAddressOf())));
    Check(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source));
    Check(service->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())));
    ComPtr<IConnectionPoint> point;
    Check(container->FindConnectionPoint(source, point.GetAddressOf()));
    Check(point->Advise(this, &cookie_));
    point_ = point.Get();
}

void EventLog::Disconnect() {
    if (point_) point_->Unadvise(cookie_);
    point_ = nullptr;
}

STDMETHODIMP EventLog::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
    const auto number = static_cast<size_t>(event);
    std::wstring seen = number >= 1 && number <= names_.size() ? names_[number - 1] : L"unknown event";
    if (parameters->cArgs == 1) seen += L": " + Described(parameters->rgvarg[0]);
    events.push_back(seen);
    onEvent();
    return S_OK;
}

}  // namespace support
