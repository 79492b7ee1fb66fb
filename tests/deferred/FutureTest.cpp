#include "deferred/Future.h"

#include "deferred/FutureManager.h"
#include "platform/com/Module.h"
#include "platform/thread/ThreadState.h"
#include "support/ComCheck.h"
#include "support/Messages.h"
#include "unit_support/Raises.h"
#include "unit_support/RecordingRunnable.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <utility>

using Microsoft::WRL::ComPtr;
using support::kInvalidArgument;
using support::PumpFor;
using support::PumpUntil;
using support::Raises;
using support::RecordingObserver;
using support::RecordingRunnable;

namespace lejis {
namespace {

bool IsCompleted(IFuture* future) {
    VARIANT_BOOL completed = VARIANT_FALSE;
    EXPECT_EQ(S_OK, future->get_Completed(&completed));
    return completed != VARIANT_FALSE;
}

unsigned long HoldersOf(IRunnable& runnable) {
    runnable.AddRef();
    return runnable.Release();
}

TEST(Future, IsNotCompletedWhenNew) { EXPECT_FALSE(IsCompleted(platform::Create<Future>().Get())); }

TEST(Future, RunsOnceAfterItsDelayAndThenTellsTheObserver) {
    const auto future = platform::Create<Future>();
    const auto runnable = platform::Create<RecordingRunnable>();
    const auto observer = platform::Create<RecordingObserver>();
    const ULONGLONG start = GetTickCount64();
    future->Schedule(runnable.Get(), observer.Get());
    EXPECT_EQ(0, runnable->runs) << "not inside of the call that scheduled it";
    EXPECT_TRUE(PumpUntil([&] { return runnable->runs > 0; }));
    EXPECT_GE(GetTickCount64() - start, 90u);
    EXPECT_TRUE(IsCompleted(future.Get()));
    EXPECT_EQ(std::vector<IFuture*>{future.Get()}, observer->completed);
    PumpFor(250);
    EXPECT_EQ(1, runnable->runs);
}

TEST(Future, NeedsNoObserver) {
    const auto future = platform::Create<Future>();
    const auto runnable = platform::Create<RecordingRunnable>();
    future->Schedule(runnable.Get(), nullptr);
    EXPECT_TRUE(PumpUntil([&] { return IsCompleted(future.Get()); }));
    EXPECT_EQ(1, runnable->runs);
}

TEST(Future, RaisesWithoutRunnableAndStartsNoTimer) {
    const support::TestHost host;
    const auto future = platform::Create<Future>();
    EXPECT_TRUE(Raises(host.errorNumber, L"runnable cannot be Nothing", [&] { future->Schedule(nullptr, nullptr); }));
    EXPECT_TRUE(host.timers.empty());
}

TEST(Future, ThatIsReleasedBeforeItsTickNeverRuns) {
    const auto runnable = platform::Create<RecordingRunnable>();
    {
        const auto future = platform::Create<Future>();
        future->Schedule(runnable.Get(), nullptr);
    }
    PumpFor(200);
    EXPECT_EQ(0, runnable->runs);
}

TEST(Future, WhoseRunnableFailsIsNotCompletedAndTellsNobody) {
    const auto future = platform::Create<Future>();
    const auto runnable = platform::Create<RecordingRunnable>();
    const auto observer = platform::Create<RecordingObserver>();
    runnable->result = E_FAIL;
    future->Schedule(runnable.Get(), observer.Get());
    EXPECT_TRUE(PumpUntil([&] { return runnable->runs > 0; }));
    PumpFor(200);
    EXPECT_EQ(1, runnable->runs);
    EXPECT_FALSE(IsCompleted(future.Get()));
    EXPECT_TRUE(observer->completed.empty());
}

TEST(Future, UsesTheHostsTimerOneForEachFuture) {
    const support::TestHost host;
    const auto runnable = platform::Create<RecordingRunnable>();
    const auto first = platform::Create<Future>();
    const auto second = platform::Create<Future>();
    first->Schedule(runnable.Get(), nullptr);
    second->Schedule(runnable.Get(), nullptr);
    ASSERT_EQ(2u, host.timers.size());
    EXPECT_EQ(100, host.timers[0]->interval);
    EXPECT_TRUE(host.timers[0]->enabled);
}

TEST(Future, StopsTheHostsTimerBeforeItRuns) {
    const support::TestHost host;
    const auto runnable = platform::Create<RecordingRunnable>();
    const auto future = platform::Create<Future>();
    future->Schedule(runnable.Get(), nullptr);
    support::HostTimer& timer = *host.timers[0].Get();
    bool enabledWhileItRan = true;
    runnable->onRun = [&] { enabledWhileItRan = timer.enabled; };
    timer.Tick();
    EXPECT_EQ(1, runnable->runs);
    EXPECT_FALSE(enabledWhileItRan);
}

TEST(Future, StopsTheHostsTimerWhenItIsReleasedAndHearsNoLateTick) {
    const support::TestHost host;
    const auto runnable = platform::Create<RecordingRunnable>();
    Microsoft::WRL::ComPtr<Future> future = platform::Create<Future>();
    future->Schedule(runnable.Get(), nullptr);
    future.Reset();
    EXPECT_FALSE(host.timers[0]->enabled);
    host.timers[0]->Tick();
    EXPECT_EQ(0, runnable->runs);
}

// The work is held by the future alone, which it gives other work.
TEST(Future, HoldsItsWorkUntilTheWorkEnds) {
    const support::TestHost host;
    const auto future = platform::Create<Future>();
    Microsoft::WRL::ComPtr<RecordingRunnable> runnable = platform::Create<RecordingRunnable>();
    IRunnable* const running = runnable.Get();
    unsigned long held = 0;
    runnable->onRun = [&] {
        future->Schedule(platform::Create<RecordingRunnable>().Get(), nullptr);
        held = HoldersOf(*running);
    };
    future->Schedule(std::exchange(runnable, nullptr).Get(), nullptr);
    host.timers[0]->Tick();
    EXPECT_EQ(1u, held);
}

TEST(Future, LivesUntilItsTickEndsWhenItsWorkLetsGoOfIt) {
    const support::TestHost host;
    Microsoft::WRL::ComPtr<Future> future = platform::Create<Future>();
    const auto runnable = platform::Create<RecordingRunnable>();
    std::ptrdiff_t living = 0;
    runnable->onRun = [&] {
        future.Reset();
        living = std::ranges::count(platform::living::Names(), "lejis::Future");
    };
    future->Schedule(runnable.Get(), nullptr);
    host.timers[0]->Tick();
    EXPECT_EQ(1, living);
    EXPECT_EQ(0, std::ranges::count(platform::living::Names(), "lejis::Future"));
}

TEST(Future, RunsWorkThatItsOwnWorkGivesItAndTellsTheObserverOfEach) {
    const auto future = platform::Create<Future>();
    const auto first = platform::Create<RecordingRunnable>();
    const auto second = platform::Create<RecordingRunnable>();
    const auto firstObserver = platform::Create<RecordingObserver>();
    const auto secondObserver = platform::Create<RecordingObserver>();
    first->onRun = [&] { future->Schedule(second.Get(), secondObserver.Get()); };
    future->Schedule(first.Get(), firstObserver.Get());
    ASSERT_TRUE(PumpUntil([&] { return first->runs > 0; }));
    EXPECT_EQ(0, second->runs) << "not inside of the work that gave it";
    EXPECT_EQ(1u, firstObserver->completed.size());
    EXPECT_TRUE(secondObserver->completed.empty());
    ASSERT_TRUE(PumpUntil([&] { return second->runs > 0; }));
    PumpFor(250);
    EXPECT_EQ(1, first->runs);
    EXPECT_EQ(1, second->runs);
    EXPECT_EQ(1u, firstObserver->completed.size());
    EXPECT_EQ(1u, secondObserver->completed.size());
}

TEST(Future, LetsItsWorkRepeatItself) {
    const auto future = platform::Create<Future>();
    const auto runnable = platform::Create<RecordingRunnable>();
    const auto observer = platform::Create<RecordingObserver>();
    runnable->onRun = [&] {
        if (runnable->runs < 3) future->Schedule(runnable.Get(), observer.Get());
    };
    future->Schedule(runnable.Get(), observer.Get());
    EXPECT_TRUE(PumpUntil([&] { return observer->completed.size() == 3; }));
    PumpFor(250);
    EXPECT_EQ(3, runnable->runs);
    EXPECT_EQ(1u, HoldersOf(*runnable)) << "work that holds its future would never end";
}

TEST(Future, RunsWorkThatFailingWorkGaveIt) {
    const auto future = platform::Create<Future>();
    const auto failing = platform::Create<RecordingRunnable>();
    const auto next = platform::Create<RecordingRunnable>();
    failing->result = E_FAIL;
    failing->onRun = [&] { future->Schedule(next.Get(), nullptr); };
    future->Schedule(failing.Get(), nullptr);
    EXPECT_TRUE(PumpUntil([&] { return next->runs > 0; }));
    EXPECT_TRUE(IsCompleted(future.Get()));
}

TEST(Future, HearsNoTickOfATimerThatGoesOnAfterItWasStopped) {
    const support::TestHost host;
    const auto future = platform::Create<Future>();
    const auto runnable = platform::Create<RecordingRunnable>();
    runnable->onRun = [&] { host.timers[0]->Tick(); };
    future->Schedule(runnable.Get(), nullptr);
    host.timers[0]->Tick();
    host.timers[0]->Tick();
    EXPECT_EQ(1, runnable->runs);
}

TEST(FutureManager, TracksAFutureUntilItHasRun) {
    const auto manager = platform::Create<FutureManager>();
    const auto runnable = platform::Create<RecordingRunnable>();
    manager->RunLater(runnable.Get());
    EXPECT_EQ(1u, manager->PendingCount());
    EXPECT_TRUE(PumpUntil([&] { return runnable->runs > 0; }));
    EXPECT_EQ(0u, manager->PendingCount());
}

TEST(FutureManager, RunsTwoInTheirOrderEachOnce) {
    const auto manager = platform::Create<FutureManager>();
    std::vector<int> order;
    const auto first = platform::Create<RecordingRunnable>();
    const auto second = platform::Create<RecordingRunnable>();
    first->onRun = [&] { order.push_back(1); };
    second->onRun = [&] { order.push_back(2); };
    manager->RunLater(first.Get());
    manager->RunLater(second.Get());
    EXPECT_TRUE(PumpUntil([&] { return order.size() == 2; }));
    PumpFor(150);
    EXPECT_EQ((std::vector<int>{1, 2}), order);
}

TEST(FutureManager, LetsARunnableScheduleAnotherWhichDoesNotRunInsideOfIt) {
    const auto manager = platform::Create<FutureManager>();
    const auto outer = platform::Create<RecordingRunnable>();
    const auto inner = platform::Create<RecordingRunnable>();
    int runsOfInnerInsideOfOuter = -1;
    outer->onRun = [&] {
        manager->RunLater(inner.Get());
        runsOfInnerInsideOfOuter = inner->runs;
    };
    manager->RunLater(outer.Get());
    EXPECT_TRUE(PumpUntil([&] { return inner->runs > 0; }));
    EXPECT_EQ(0, runsOfInnerInsideOfOuter);
    EXPECT_EQ(1, outer->runs);
}

TEST(FutureManager, RaisesWithoutRunnableAndTracksNothing) {
    const auto manager = platform::Create<FutureManager>();
    EXPECT_TRUE(Raises(kInvalidArgument, L"runnable cannot be Nothing", [&] { manager->RunLater(nullptr); }));
    EXPECT_EQ(0u, manager->PendingCount());
}

TEST(FutureManager, IsKeptAliveByItsPendingFutures) {
    const auto runnable = platform::Create<RecordingRunnable>();
    platform::Create<FutureManager>()->RunLater(runnable.Get());
    EXPECT_TRUE(PumpUntil([&] { return runnable->runs > 0; }));
}

TEST(FutureManager, GoesOnTrackingAFutureWhoseRunnableFails) {
    const support::TestHost host;
    const auto manager = platform::Create<FutureManager>();
    const auto runnable = platform::Create<RecordingRunnable>();
    runnable->result = E_FAIL;
    manager->RunLater(runnable.Get());
    host.timers[0]->Tick();
    EXPECT_EQ(1u, manager->PendingCount());
    EXPECT_EQ(2u, HoldersOf(*runnable));
}

TEST(FutureManager, EndsWithItsFuturesWhoseRunnableFailed) {
    const auto runnable = platform::Create<RecordingRunnable>();
    runnable->result = E_FAIL;
    Microsoft::WRL::ComPtr<FutureManager> manager = platform::Create<FutureManager>();
    manager->RunLater(runnable.Get());
    ASSERT_TRUE(PumpUntil([&] { return runnable->runs > 0; }));
    EXPECT_EQ(2u, HoldersOf(*runnable));
    manager.Reset();
    EXPECT_EQ(1u, HoldersOf(*runnable));
}

// Something else that a thread keeps.
struct OtherPart final : platform::thread::ThreadPart {
    void Release() noexcept override { ++releases; }

    int releases = 0;
};

TEST(InvokeLater, LetsTheThreadReleaseItsPartsWhenItsWorkHasRun) {
    std::thread([] {
        EXPECT_OK(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
        const auto& part = platform::thread::ThisThreads<OtherPart>();
        {
            const auto runnable = platform::Create<RecordingRunnable>();
            LejisUtils::InvokeLater(runnable.Get());
            EXPECT_TRUE(PumpUntil([&] { return runnable->runs > 0; }));
            EXPECT_EQ(0, part.releases);
        }
        EXPECT_EQ(1, part.releases) << "the shared manager is no object of a client's";
        CoUninitialize();
    }).join();
}

TEST(InvokeLater, KeepsTheRunnableAliveUntilItHasRunAndNoLonger) {
    bool ran = false;
    {
        const auto runnable = platform::Create<RecordingRunnable>();
        runnable->onRun = [&] { ran = true; };
        LejisUtils::InvokeLater(runnable.Get());
    }
    EXPECT_TRUE(platform::module::InUse()) << "a pending call keeps the library in memory";
    EXPECT_TRUE(PumpUntil([&] { return ran; }));
    EXPECT_FALSE(platform::module::InUse()) << "the shared manager alone does not";
}

}  // namespace
}  // namespace lejis
