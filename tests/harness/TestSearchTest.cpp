// The harness, with its real message box: a window that is found, read and closed.
#include "harness/TestSearch.h"

#include "inquiry/LejisSearchRequest.h"
#include "support/ComCheck.h"
#include "support/MessageBoxCloser.h"
#include "unit_support/Answers.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

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
}

TEST_F(TestSearchTest, ShowsAFailureToStartTheSearchInsteadOfWaitingForEver) {
    support::MessageBoxCloser box(L"LEJIS Search Error");
    EXPECT_OK(Search(L"j&d", results.GetAddressOf()));
    EXPECT_EQ(nullptr, results);
    EXPECT_EQ(L"Internal error -2146827864: Object required", box.Text());
}

TEST_F(TestSearchTest, EndsWhenTheHostsYieldRaises) {
    host.onYield = [] { throw platform::ComError(static_cast<HRESULT>(0x80045555), L"enough"); };
    const auto request = platform::Create<LejisSearchRequest>();
    EXPECT_TRUE(support::FailedWith(
        platform::Create<TestSearch>()->Search(support::Bstr(L"jdoe"), request.Get(), results.GetAddressOf()),
        static_cast<long>(0x80045555), L"enough"));
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

TEST_F(TestSearchTest, WordsAFailedSearchWithReasonAndStatus) {
    const auto harness = platform::Create<TestSearch>();
    support::MessageBoxCloser box(L"LEJIS Search Error");
    host.onYield = [&] { harness->m_searchService_SearchFailed(L"closed", 503); };
    const auto request = platform::Create<LejisSearchRequest>();
    EXPECT_OK(harness->Search(support::Bstr(L"jdoe"), request.Get(), results.GetAddressOf()));
    EXPECT_EQ(L"Search failed. Reason: closed / Status code: 503", box.Text());
    http.Last().ClearHandler();
}

}  // namespace
}  // namespace lejis
