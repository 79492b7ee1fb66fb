// Many apartments at once, whose threads end in any order and in any state.
#include "apartments/Apartments.h"
#include "apartments/BareClient.h"
#include "apartments/ChildProcess.h"
#include "engine/HeapCensus.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace apartments {
namespace {

constexpr int kApartments = 16;

// The number of rounds that LEJIS_ROUNDS demands.
int Rounds() {
    constexpr int kRounds = 50;
    const char* const rounds = std::getenv("LEJIS_ROUNDS");
    return rounds ? std::atoi(rounds) : kRounds;
}

struct Case {
    const char* name;
    Order order;
    Ending ending;
};

constexpr Case kCases[] = {
    {"AsTheyComeAfterRelease", Order::kAsTheyCome, Ending::kReleases},
    {"FirstToLastWithoutRelease", Order::kFirstToLast, Ending::kForgetsToRelease},
    {"LastToFirstWithWorkUnderWay", Order::kLastToFirst, Ending::kLeavesWork},
    {"AllAtOnceWithWorkUnderWay", Order::kAllAtOnce, Ending::kLeavesWork},
};

bool AllDone(const Tally& tally) {
    const int all = kApartments * Rounds();
    std::fprintf(stderr, "%d of %d searches, %d of %d submissions\n", tally.searches, all, tally.submissions, all);
    return all > 0 && tally.searches == all && tally.submissions == all;
}

class EndingThreadsDeathTest : public testing::TestWithParam<Case> {};

TEST_P(EndingThreadsDeathTest, LoseNoEventAndHarmNobody) {
    const auto [name, order, ending] = GetParam();
    InChildProcess([=] {
        return AllDone(
            RunApartments(kApartments, Rounds(), order, ending, [] { return std::make_unique<LibraryClient>(); }));
    });
}

// Tells what is the platform's own when the test above fails.
TEST_P(EndingThreadsDeathTest, OfBareRequestsAreTheControl) {
    const auto [name, order, ending] = GetParam();
    InChildProcess([=] {
        return AllDone(
            RunApartments(kApartments, Rounds(), order, ending, [] { return std::make_unique<BareClient>(); }));
    });
}

INSTANTIATE_TEST_SUITE_P(All, EndingThreadsDeathTest, testing::ValuesIn(kCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Heap, IsChecked) { EXPECT_TRUE(fuzzing::HeapIsChecked()) << "the program's global flags are not set"; }

}  // namespace
}  // namespace apartments
