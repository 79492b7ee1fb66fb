#include "submission/RetryPause.h"

#include <gtest/gtest.h>

#include <set>

namespace lejis_client {
namespace {

struct Range {
    ULONGLONG least = ~0ull;
    ULONGLONG most = 0;
    std::set<ULONGLONG> all;
};

Range PausesAfter(long attempts) {
    Range range;
    for (int draw = 0; draw < 200; ++draw) {
        const ULONGLONG pause = RetryPause(attempts);
        range.least = std::min(range.least, pause);
        range.most = std::max(range.most, pause);
        range.all.insert(pause);
    }
    return range;
}

TEST(RetryPause, DoublesWithEachAttemptByHalfMoreOrLess) {
    for (long attempts = 1; attempts <= 6; ++attempts) {
        const ULONGLONG middle = 1000ull << (attempts - 1);
        const Range range = PausesAfter(attempts);
        EXPECT_GE(range.least, middle / 2) << attempts;
        EXPECT_LE(range.most, std::min(middle, 40000ull) * 3 / 2) << attempts;
        EXPECT_LT(range.least, range.most - middle / 4) << attempts;
    }
}

TEST(RetryPause, StaysBelowAMinuteAndDiffers) {
    for (const long attempts : {7L, 11L, 100L, 2147483647L}) {
        const Range range = PausesAfter(attempts);
        EXPECT_GE(range.least, 20000u) << attempts;
        EXPECT_LE(range.most, 60000u) << attempts;
        EXPECT_GT(range.all.size(), 100u) << attempts;
    }
}

}  // namespace
}  // namespace lejis_client
