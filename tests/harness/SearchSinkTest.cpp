#include "harness/SearchOutcome.h"

#include "platform/com/Collection.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace lejis {
namespace {

class SearchSinkTest : public testing::Test {
protected:
    // Raises the event as the service does: the arguments stand last one first.
    HRESULT Raise(DISPID event, std::vector<_variant_t> arguments) {
        std::ranges::reverse(arguments);
        DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        return platform::Create<SearchSink>(outcome_)->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                                              &parameters, nullptr, nullptr, nullptr);
    }

    SearchOutcome outcome_;
};

TEST_F(SearchSinkTest, KnowsNothingBeforeAnEvent) {
    EXPECT_FALSE(outcome_.IsKnown());
    EXPECT_FALSE(outcome_.IsFailure());
    EXPECT_EQ(nullptr, outcome_.Results());
}

TEST_F(SearchSinkTest, KeepsTheCardsFound) {
    const auto cards = platform::Create<platform::Collection>();
    EXPECT_OK(Raise(1, {_variant_t(cards->Dispatch())}));
    EXPECT_TRUE(outcome_.IsKnown());
    EXPECT_FALSE(outcome_.IsFailure());
    EXPECT_EQ(cards.Get(), outcome_.Results().Get());
}

TEST_F(SearchSinkTest, WordsAFailedSearchWithReasonAndStatus) {
    EXPECT_OK(Raise(2, {_variant_t(L"closed"), _variant_t(503L)}));
    EXPECT_TRUE(outcome_.IsKnown());
    EXPECT_TRUE(outcome_.IsFailure());
    EXPECT_EQ(L"Search failed. Reason: closed / Status code: 503", outcome_.FailureMessage());
}

TEST_F(SearchSinkTest, KeepsTheMessageOfEveryOtherFailure) {
    for (const DISPID event : {3, 4, 5}) {
        outcome_ = {};
        EXPECT_OK(Raise(event, {_variant_t(L"The index is closed.")}));
        EXPECT_TRUE(outcome_.IsKnown());
        EXPECT_TRUE(outcome_.IsFailure());
        EXPECT_EQ(L"The index is closed.", outcome_.FailureMessage());
    }
}

}  // namespace
}  // namespace lejis
