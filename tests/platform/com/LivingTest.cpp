#include "platform/com/Module.h"

#include "deferred/FutureManager.h"
#include "model/LejisVehicleIndexCard.h"
#include "platform/com/Collection.h"
#include "support/Messages.h"
#include "unit_support/RecordingRunnable.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using Names = std::vector<std::string>;

Names Living() {
    Names names = living::Names();
    std::sort(names.begin(), names.end());
    return names;
}

TEST(Living, NamesEachObjectUntilItsEnd) {
    const Names before = Living();
    Microsoft::WRL::ComPtr<lejis::LejisVehicleIndexCard> vehicle = Create<lejis::LejisVehicleIndexCard>();
    Microsoft::WRL::ComPtr<Collection> first = Create<Collection>();
    Microsoft::WRL::ComPtr<Collection> second = Create<Collection>();
    Names expected = before;
    expected.insert(expected.end(), {"lejis::LejisVehicleIndexCard", "platform::Collection", "platform::Collection"});
    Names now = Living();
    for (const std::string& name : expected) {
        const auto found = std::find(now.begin(), now.end(), name);
        ASSERT_NE(now.end(), found) << name;
        now.erase(found);
    }
    vehicle.Reset();
    first.Reset();
    second.Reset();
    EXPECT_EQ(before, Living());
}

TEST(Living, NamesAPendingFutureButNotTheThreadsOwnManager) {
    const auto runnable = Create<support::RecordingRunnable>();
    lejis::LejisUtils::InvokeLater(runnable.Get());
    const Names names = Living();
    EXPECT_EQ(1, std::count(names.begin(), names.end(), "lejis::Future"));
    EXPECT_EQ(0, std::count(names.begin(), names.end(), "lejis::FutureManager"));
    EXPECT_TRUE(support::PumpUntil([&] { return runnable->runs > 0; }));
}

}  // namespace
}  // namespace platform
