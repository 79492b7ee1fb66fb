// Nobody answers at the address.
#include "end_to_end/Client.h"
#include "end_to_end/SearchSink.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

namespace kit_tests {
namespace {

constexpr wchar_t kDeadAddress[] = L"http://127.0.0.1:1/";

TEST(DeadServer, EndsASearchInANetworkError) {
    ComPtr<ILejisSearchWebService> service;
    ComPtr<ILejisSearchRequest> request;
    ASSERT_OK(CoCreateInstance(__uuidof(LejisSearchWebService), nullptr, CLSCTX_INPROC_SERVER,
                               IID_PPV_ARGS(service.GetAddressOf())));
    ASSERT_OK(CoCreateInstance(__uuidof(LejisSearchRequest), nullptr, CLSCTX_INPROC_SERVER,
                               IID_PPV_ARGS(request.GetAddressOf())));
    EXPECT_OK(service->put_URL(support::Bstr(kDeadAddress)));
    EXPECT_OK(service->put_Username(support::Bstr(L"jdoe")));
    end_to_end::SearchSink sink(service.Get());
    EXPECT_OK(service->Search(request.Get()));
    const std::vector<std::wstring> events = sink.AwaitEvents();
    ASSERT_EQ(1u, events.size());
    EXPECT_TRUE(events[0].starts_with(L"NetworkError: ")) << support::Utf8(events[0]);
}

TEST(DeadServer, MakesASubmissionOneToTryAgain) {
    const auto service = end_to_end::NewService(kDeadAddress);
    ComPtr<ICollection> warnings;
    EXPECT_EQ(tvTransientError, service->SubmitIncident(end_to_end::NewIncident().Get(), warnings.GetAddressOf()));
}

}  // namespace
}  // namespace kit_tests
