// The harness, with its real message box: a window that is found, read and closed.
#include "harness/TestSearch.h"

#include "inquiry/LejisSearchRequest.h"
#include "platform/com/Module.h"
#include "support/ComCheck.h"
#include "support/MessageBoxCloser.h"
#include "unit_support/Answers.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using Microsoft::WRL::ComPtr;
using support::ScriptedHttp;

namespace lejis {
namespace {

class TestSearchTest : public testing::Test {
protected:
    // Searches while the host's yields bring the answer; the timer of the deferred call is the host's too.
    HRESULT Search(const wchar_t* user, ICollection** found) {
        host.onYield = [this] {
            if (!http.requests.empty() && http.Last().HasHandler()) http.Last().Advance();
            if (!host.timers.empty()) host.timers.back()->Tick();
        };
        const auto request = platform::Create<LejisSearchRequest>();
        return platform::Create<TestSearch>()->Search(support::Bstr(user), request.Get(), found);
    }

    // The answer to one of the searches sent so far comes in and is told.
    void Answer(size_t search) {
        http.requests.at(search)->Advance();
        host.timers.back()->Tick();
    }

    static std::wstring IdOfFirst(const ComPtr<ICollection>& cards) {
        _variant_t first;
        ComPtr<ILejisIncidentIndexCard> card;
        BSTR id = nullptr;
        if (!cards) return L"(nothing)";
        EXPECT_OK(cards->get_Item(1, &first));
        EXPECT_OK(V_DISPATCH(&first)->QueryInterface(IID_PPV_ARGS(card.GetAddressOf())));
        EXPECT_OK(card->get_ActivityID(&id));
        return support::Take(id);
    }

    support::TestHost host;
    ScriptedHttp http{{.responseText = support::InquiryResponse(support::AnsweredCard(L"1"))}};
    ComPtr<ICollection> results;
};

TEST_F(TestSearchTest, ReturnsTheCardsFound) {
    ASSERT_OK(Search(L"jdoe", results.GetAddressOf()));
    long count = 0;
    EXPECT_OK(results->get_Count(&count));
    EXPECT_EQ(1, count);
    EXPECT_EQ(L"http://localhost:8080/lejis-core-Rev01/services/search", http.Last().Seen().url);
    EXPECT_NE(std::wstring::npos, http.Last().Seen().body.find(L">jdoe</wsse:Username>"));
    EXPECT_GE(host.yields, 1);
}

TEST_F(TestSearchTest, ShowsAFailureAndReturnsNothing) {
    http.script = {.status = 500, .responseText = support::SoapFault(L"soap:Server", L"The index is closed.")};
    support::MessageBoxCloser box(L"LEJIS Search Error");
    EXPECT_OK(Search(L"jdoe", results.GetAddressOf()));
    EXPECT_EQ(nullptr, results);
    EXPECT_EQ(L"The index is closed.", box.Text());
    EXPECT_EQ(LoadIconW(nullptr, IDI_HAND), box.Icon());
    EXPECT_EQ(std::vector<std::wstring>{L"OK"}, box.Buttons());
}

TEST_F(TestSearchTest, ShowsAFailureToStartTheSearchInsteadOfWaitingForEver) {
    support::MessageBoxCloser box(L"LEJIS Search Error");
    EXPECT_OK(Search(L"j&d", results.GetAddressOf()));
    EXPECT_EQ(nullptr, results);
    EXPECT_EQ(L"Internal error -2146827864: Object required", box.Text());
}

TEST_F(TestSearchTest, ShowsItsBoxAboveAllWindowsOfTheTask) {
    const HWND window =
        CreateWindowExW(0, L"STATIC", L"client", WS_OVERLAPPEDWINDOW, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, window);
    bool isEnabled = true;
    support::MessageBoxCloser box(L"LEJIS Search Error", [&] { isEnabled = IsWindowEnabled(window); });
    EXPECT_OK(Search(L"j&d", results.GetAddressOf()));
    EXPECT_FALSE(isEnabled) << "the client could start another search while the box is open";
    EXPECT_TRUE(IsWindowEnabled(window)) << "after the box the client goes on";
    DestroyWindow(window);
}

TEST_F(TestSearchTest, HearsItsOwnSearchWhenAnotherOneIsNestedInIt) {
    const auto harness = platform::Create<TestSearch>();
    const auto request = platform::Create<LejisSearchRequest>();
    ComPtr<ICollection> nested;
    size_t answered = 0;
    host.onYield = [&] {
        if (http.requests.size() == 1) {
            http.script.responseText = support::InquiryResponse(support::AnsweredCard(L"2"));
            EXPECT_OK(harness->Search(support::Bstr(L"jdoe"), request.Get(), nested.GetAddressOf()));
        } else if (answered < http.requests.size()) {
            // The answer to the first search comes while the nested one waits for its own.
            Answer(answered++);
        }
    };
    EXPECT_OK(harness->Search(support::Bstr(L"jdoe"), request.Get(), results.GetAddressOf()));
    EXPECT_EQ(L"1", IdOfFirst(results));
    EXPECT_EQ(L"2", IdOfFirst(nested));
    for (const auto& sent : http.requests) sent->ClearHandler();
}

TEST_F(TestSearchTest, IsNotEndedByTheFailureOfANestedSearch) {
    const auto harness = platform::Create<TestSearch>();
    const auto request = platform::Create<LejisSearchRequest>();
    ComPtr<ICollection> nested;
    support::MessageBoxCloser box(L"LEJIS Search Error");
    bool isNested = false;
    host.onYield = [&] {
        if (!std::exchange(isNested, true)) {
            EXPECT_OK(harness->Search(support::Bstr(L"j&d"), request.Get(), nested.GetAddressOf()));
            EXPECT_EQ(L"Internal error -2146827864: Object required", box.Text());
        } else {
            Answer(0);
        }
    };
    EXPECT_OK(harness->Search(support::Bstr(L"jdoe"), request.Get(), results.GetAddressOf()));
    EXPECT_EQ(L"1", IdOfFirst(results));
    EXPECT_EQ(nullptr, nested);
    for (const auto& sent : http.requests) sent->ClearHandler();
}

TEST_F(TestSearchTest, EndsWhenTheHostsYieldRaises) {
    host.onYield = [] { throw platform::ComError(static_cast<HRESULT>(0x80045555), L"enough"); };
    const auto request = platform::Create<LejisSearchRequest>();
    EXPECT_TRUE(support::FailedWith(
        platform::Create<TestSearch>()->Search(support::Bstr(L"jdoe"), request.Get(), results.GetAddressOf()),
        static_cast<long>(0x80045555), L"enough"));
    EXPECT_EQ(0, std::ranges::count(platform::living::Names(), "lejis::SearchSink"))
        << "nobody hears of a search that has ended";
    http.Last().ClearHandler();
}

TEST_F(TestSearchTest, HasNoTimeLimitOfItsOwn) {
    constexpr int kLong = 10'000;
    host.onYield = [this] {
        if (host.yields == kLong) throw platform::ComError(static_cast<HRESULT>(0x80045555), L"enough");
    };
    const auto request = platform::Create<LejisSearchRequest>();
    EXPECT_TRUE(support::FailedWith(
        platform::Create<TestSearch>()->Search(support::Bstr(L"jdoe"), request.Get(), results.GetAddressOf()),
        static_cast<long>(0x80045555), L"enough"));
    EXPECT_EQ(kLong, host.yields);
    http.Last().ClearHandler();
}

}  // namespace
}  // namespace lejis
