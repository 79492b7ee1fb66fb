// The host suite's components where they are registered, and what stands in for them where they are not.
#include "foundation/QueryPrefixes.h"
#include "platform/host/SuiteHost.h"
#include "platform/thread/ThreadState.h"
#include "support/Messages.h"
#include "unit_support/Raises.h"
#include "unit_support/TestHost.h"

#include "foundation/NullableNumber.h"

#include <gtest/gtest.h>

namespace platform::host {
namespace {

int ticks = 0;

void CALLBACK CountTick(HWND, UINT, UINT_PTR, DWORD) { ++ticks; }

TEST(SuiteHost, GivesTheNumberOfEveryArgumentError) {
    const support::TestHost host;
    EXPECT_EQ(host.errorNumber, InvalidArgument(L"x").Number());
    EXPECT_TRUE(support::Raises(host.errorNumber, L"elem cannot be Nothing",
                                [] { lejis::LejisUtils::GetChildText(nullptr, L"x", L""); }));
    EXPECT_TRUE(support::Raises(host.errorNumber, L"Cannot assign 'String'  to NullableInteger",
                                [] { Create<lejis::NullableInteger>()->Assign(_variant_t(L"12")); }));
    EXPECT_EQ((std::vector<long>{5, 5, 5}), host.errorKinds);
}

TEST(SuiteHost, HasOneInstanceOfItsServicesHoweverOftenTheyAreUsed) {
    const support::TestHost host;
    YieldToHost();
    InvalidArgument(L"x");
    YieldToHost();
    EXPECT_EQ(1, host.servicesMade);
    EXPECT_EQ(2, host.yields);
}

TEST(SuiteHost, ThatAnswersWithASuccessNumberOrAnErrorDoesNotHideTheError) {
    support::TestHost host;
    host.errorNumber = 5;
    EXPECT_EQ(support::kInvalidArgument, InvalidArgument(L"x").Number());
    host.failsToNumber = true;
    EXPECT_EQ(support::kInvalidArgument, InvalidArgument(L"x").Number());
    EXPECT_EQ(L"x", InvalidArgument(L"x").Description());
}

TEST(SuiteHost, ReportsAnErrorOfItsYieldWithNumberAndText) {
    support::TestHost host;
    host.onYield = [] { throw ComError(static_cast<HRESULT>(0x80045555), L"shutting down"); };
    EXPECT_TRUE(support::Raises(static_cast<long>(0x80045555), L"shutting down", [] { YieldToHost(); }));
}

TEST(BuiltInHost, HasOneNumberForArgumentErrorsInTheRangeOfComponents) {
    thread::ReleaseParts();
    EXPECT_EQ(support::kInvalidArgument, InvalidArgument(L"x").Number());
    EXPECT_EQ(L"x", InvalidArgument(L"x").Description());
}

TEST(BuiltInHost, DispatchesWaitingMessagesWhenItYields) {
    thread::ReleaseParts();
    ticks = 0;
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, CountTick);
    EXPECT_TRUE(support::PumpUntil([] {
        YieldToHost();
        return ticks > 0;
    }));
    KillTimer(nullptr, timer);
}

TEST(BuiltInHost, SleepsWhenThereIsNothingToDispatch) {
    thread::ReleaseParts();
    support::PumpFor(50);
    const ULONGLONG start = GetTickCount64();
    for (int yields = 0; yields < 20; ++yields) YieldToHost();
    // Twenty empty yields sleep; without a sleep they would be over at once.
    EXPECT_GE(GetTickCount64() - start, 50u);
}

TEST(BuiltInHost, LeavesTheQuitMessageForTheClientsOwnLoop) {
    PostQuitMessage(42);
    PumpMessages();
    PumpMessages();
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
    EXPECT_EQ(42u, message.wParam);
}

}  // namespace
}  // namespace platform::host
