#include "end_to_end/SearchSink.h"

#include "support/ComCheck.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

namespace end_to_end {
namespace {

constexpr const wchar_t* kNames[] = {L"SearchCompleted", L"SearchFailed", L"ConfigurationError", L"NetworkError",
                                     L"ServiceError"};
constexpr DISPID kSearchCompleted = 1;

}  // namespace

SearchSink::SearchSink(ILejisSearchWebService* service) {
    ComPtr<IConnectionPointContainer> container;
    EXPECT_OK(service->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())));
    EXPECT_OK(container->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), point_.GetAddressOf()));
    EXPECT_OK(point_->Advise(this, &cookie_));
}

SearchSink::~SearchSink() { point_->Unadvise(cookie_); }

std::vector<std::wstring> SearchSink::AwaitEvents() {
    support::PumpUntil([&] { return !events_.empty(); });
    support::PumpFor(150);
    return TakeEvents();
}

std::vector<std::wstring> SearchSink::TakeEvents() { return std::exchange(events_, {}); }

STDMETHODIMP SearchSink::QueryInterface(REFIID iid, void** object) {
    const bool known =
        iid == __uuidof(IUnknown) || iid == __uuidof(IDispatch) || iid == __uuidof(_LejisSearchWebServiceEvents);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP SearchSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
    if (event < 1 || event > 5) return DISP_E_MEMBERNOTFOUND;
    std::wstring seen = kNames[event - 1];
    if (event == kSearchCompleted) {
        found_.Reset();
        V_DISPATCH(&parameters->rgvarg[0])->QueryInterface(IID_PPV_ARGS(found_.GetAddressOf()));
    } else {
        seen += std::wstring(L": ") + V_BSTR(&parameters->rgvarg[0]);
    }
    events_.push_back(seen);
    return S_OK;
}

}  // namespace end_to_end
