#include "platform/host/SuiteTimer.h"

#include "support/Messages.h"
#include "support/OwnTimer.h"

#include <gtest/gtest.h>

#include <memory>

using support::OwnTimerClass;
using support::PumpUntil;
using support::TimerKind;

namespace platform::host {
namespace {

constexpr long kInterval = 20;

class HeardTimer : public testing::TestWithParam<TimerKind> {
protected:
    OwnTimerClass registered_{GetParam()};
    int ticks_ = 0;
};

TEST_P(HeardTimer, TicksByItsOwnEvent) {
    const auto timer = StartSuiteTimer(kInterval, [this] { ++ticks_; });
    ASSERT_EQ(1u, registered_.timers.size());
    EXPECT_EQ(kInterval, registered_.timers[0]->intervalAtStart);
    EXPECT_TRUE(registered_.timers[0]->enabled);
    registered_.timers[0]->Tick();
    EXPECT_EQ(1, ticks_);
}

TEST_P(HeardTimer, IsStoppedAndNotHeardAnyMoreWhenItEnds) {
    auto timer = StartSuiteTimer(kInterval, [this] { ++ticks_; });
    ASSERT_EQ(1u, registered_.timers.size());
    timer->Stop();
    EXPECT_FALSE(registered_.timers[0]->enabled);
    timer.reset();
    ASSERT_EQ(1u, registered_.timers[0]->sinks.size());
    EXPECT_EQ(nullptr, registered_.timers[0]->sinks[0]);
}

// Work that ends its timer and sees whether it is there itself until its own end.
class LastWork {
public:
    std::function<void()> Once() {
        const auto part = std::make_shared<int>();
        part_ = part;
        return [this, part] {
            LastWork& self = *this;
            self.timer.reset();
            ++self.ticks;
            EXPECT_FALSE(self.part_.expired());
        };
    }

    std::unique_ptr<SuiteTimer> timer;
    int ticks = 0;

private:
    std::weak_ptr<int> part_;
};

TEST_P(HeardTimer, MayBeDestroyedByItsOwnTick) {
    LastWork work;
    work.timer = StartSuiteTimer(kInterval, work.Once());
    registered_.timers.at(0)->Tick();
    registered_.timers.at(0)->Tick();
    EXPECT_EQ(1, work.ticks);
}

INSTANTIATE_TEST_SUITE_P(Suite, HeardTimer,
                         testing::Values(TimerKind::kTellsClass, TimerKind::kTellsDefaultEvents,
                                         TimerKind::kTellsPoints));

class UnheardTimer : public testing::TestWithParam<TimerKind> {
protected:
    OwnTimerClass registered_{GetParam()};
    int ticks_ = 0;
};

TEST_P(UnheardTimer, IsReplacedByTheBuiltInOne) {
    const auto timer = StartSuiteTimer(kInterval, [this] { ++ticks_; });
    ASSERT_EQ(1u, registered_.timers.size());
    for (const auto& sink : registered_.timers[0]->sinks) EXPECT_EQ(nullptr, sink) << "nobody hears it any more";
    EXPECT_TRUE(PumpUntil([this] { return ticks_ > 1; }));
    timer->Stop();
    const int ticksBefore = ticks_;
    support::PumpFor(5 * kInterval);
    EXPECT_EQ(ticksBefore, ticks_);
}

INSTANTIATE_TEST_SUITE_P(Suite, UnheardTimer,
                         testing::Values(TimerKind::kHasNoEvents, TimerKind::kHasDualEvents, TimerKind::kHasTableEvents,
                                         TimerKind::kHasOtherEvents, TimerKind::kRefusesSinks,
                                         TimerKind::kCannotStart));

TEST(UnstoppableTimer, TicksOnUntilItIsDestroyed) {
    OwnTimerClass registered(TimerKind::kCannotStop);
    int ticks = 0;
    auto timer = StartSuiteTimer(kInterval, [&] { ++ticks; });
    ASSERT_EQ(1u, registered.timers.size());
    timer->Stop();
    registered.timers[0]->Tick();
    EXPECT_EQ(1, ticks);
    timer.reset();
    registered.timers[0]->Tick();
    EXPECT_EQ(1, ticks);
}

TEST(BuiltInTimer, MayBeDestroyedByItsOwnTick) {
    LastWork work;
    work.timer = StartSuiteTimer(kInterval, work.Once());
    EXPECT_TRUE(PumpUntil([&] { return work.ticks > 0; }));
    support::PumpFor(5 * kInterval);
    EXPECT_EQ(1, work.ticks);
}

TEST(BuiltInTimer, SendsNoMessageOnceItIsStopped) {
    const auto timer = StartSuiteTimer(kInterval, [] {});
    timer->Stop();
    Sleep(5 * kInterval);
    MSG message;
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE));
}

}  // namespace
}  // namespace platform::host
