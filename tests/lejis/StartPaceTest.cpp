#include "submission/StartPace.h"

#include <gtest/gtest.h>

namespace lejis_client {
namespace {

constexpr ULONGLONG kBegin = 1000000;

// How many are begun in ten seconds by somebody who looks at a clock of such ticks and begins all that may start.
int StartsInTenSeconds(long rate, ULONGLONG tick) {
    StartPace pace(rate);
    int starts = 0;
    for (ULONGLONG now = kBegin; now < kBegin + 10000; now += tick) {
        while (pace.MayStart(now)) {
            pace.Started(now);
            ++starts;
        }
    }
    return starts;
}

TEST(StartPace, IsTheRateWhateverTheClock) {
    for (const long rate : {1L, 2L, 7L, 60L, 150L, 300L, 501L, 999L, 1000L}) {
        for (const ULONGLONG tick : {1u, 10u, 16u}) {
            SCOPED_TRACE(testing::Message() << rate << " a second, a tick of " << tick << " ms");
            const int expected = static_cast<int>(10 * rate);
            const int starts = StartsInTenSeconds(rate, tick);
            // The first one, and what a late look makes up for.
            EXPECT_GE(starts, expected * 98 / 100);
            EXPECT_LE(starts, expected + 2 + static_cast<int>(rate / 25));
        }
    }
}

TEST(StartPace, MakesUpForNoLongerPause) {
    StartPace pace(100);
    pace.Started(kBegin);
    int starts = 0;
    for (; pace.MayStart(kBegin + 5000); ++starts) pace.Started(kBegin + 5000);
    EXPECT_LE(starts, 3);
}

TEST(StartPace, NamesTheTickOfTheNextStart) {
    StartPace pace(300);
    pace.Started(kBegin);
    for (int start = 0; start < 100; ++start) {
        const ULONGLONG next = pace.Next();
        EXPECT_TRUE(pace.MayStart(next));
        EXPECT_FALSE(pace.MayStart(next - 1));
        pace.Started(next);
    }
}

TEST(StartPace, TakesBackWhatNeededNoTime) {
    StartPace pace(1);
    pace.Started(kBegin);
    EXPECT_FALSE(pace.MayStart(kBegin));
    pace.TakeBack();
    EXPECT_TRUE(pace.MayStart(kBegin));
}

}  // namespace
}  // namespace lejis_client
