// The test search, as a client sees it that has windows of its own.
#include "client/LateBound.h"
#include "support/MessageBoxCloser.h"

#include <gtest/gtest.h>

namespace client {
namespace {

// A user name that breaks the request: the search fails before anything is sent.
constexpr wchar_t kBadUser[] = L"j&d";
constexpr wchar_t kReason[] = L"Internal error -2146827864: Object required";

TEST(Harness, ShowsWhyASearchCannotStartAndReturnsNothing) {
    const auto harness = Create<TestSearch, ITestSearch>();
    const auto request = Create<LejisSearchRequest, ILejisSearchRequest>();
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"client", WS_OVERLAPPEDWINDOW, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, window);
    bool isEnabled = true;
    support::MessageBoxCloser box(L"LEJIS Search Error", [&] { isEnabled = IsWindowEnabled(window); });
    ComPtr<ICollection> found;
    EXPECT_OK(harness->Search(support::Bstr(kBadUser), request.Get(), found.GetAddressOf()));
    EXPECT_EQ(nullptr, found);
    EXPECT_EQ(kReason, box.Text());
    EXPECT_FALSE(isEnabled) << "the client could start another search while the box is open";
    DestroyWindow(window);
}

TEST(Harness, DoesTheSameByName) {
    const LateBound harness = CreateLateBound(L"TestSearch");
    support::MessageBoxCloser box(L"LEJIS Search Error");
    const Outcome outcome = harness.Call(L"Search", {kBadUser, CreateLateBound(L"LejisSearchRequest").AsArgument()});
    ASSERT_TRUE(Done(outcome));
    ASSERT_EQ(VT_DISPATCH, V_VT(&outcome.value));
    EXPECT_EQ(nullptr, V_DISPATCH(&outcome.value));
    EXPECT_EQ(kReason, box.Text());
}

}  // namespace
}  // namespace client
