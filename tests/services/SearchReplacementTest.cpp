// What becomes of a search under way when its service is asked to search again, and cannot.
#include "services/LejisSearchWebService.h"

#include "platform/Registry.h"
#include "support/Messages.h"
#include "unit_support/Addresses.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <functional>

using Microsoft::WRL::ComPtr;
using support::AnsweredCard;
using support::EventLog;
using support::InquiryResponse;
using support::kSearchUrl;
using support::ScriptedHttp;
using support::ScriptedRequest;

namespace lejis {
namespace {

using Events = std::vector<std::wstring>;

constexpr wchar_t kFound[] = L"SearchCompleted: 1 cards";

class SearchReplacement : public testing::Test {
protected:
    SearchReplacement() {
        service->URL = kSearchUrl;
        service->Username = L"jdoe";
        log->ConnectTo(service->Dispatch());
    }

    void Search() { EXPECT_EQ(S_OK, service->Search(request.Get())); }

    // A search that is under way, and stays so until its request is brought on.
    ScriptedRequest& Begin() {
        Search();
        EXPECT_TRUE(log->events.empty());
        return http.Last();
    }

    // The failure of the second search is told once, and the first ends in its own event.
    void ExpectBoth(ScriptedRequest& first, const std::wstring& failure) {
        EXPECT_EQ(Events{failure}, log->events);
        EXPECT_EQ(0, first.Seen().aborts);
        EXPECT_TRUE(first.HasHandler());
        first.Advance();
        EXPECT_TRUE(support::PumpUntil([&] { return log->events.size() == 2; }));
        support::PumpFor(150);
        EXPECT_EQ((Events{failure, kFound}), log->events);
        EXPECT_FALSE(first.HasHandler());
    }

    // The failure of the second search is told once, and nothing comes of the first.
    void ExpectSecondAlone(ScriptedRequest& first, const std::wstring& failure) {
        EXPECT_EQ(Events{failure}, log->events);
        EXPECT_EQ(1, first.Seen().aborts);
        EXPECT_FALSE(first.HasHandler());
        EXPECT_FALSE(http.Last().HasHandler());
        first.Advance();
        http.Last().Advance();
        support::PumpFor(150);
        EXPECT_EQ(Events{failure}, log->events);
    }

    ScriptedHttp http{{.responseText = InquiryResponse(AnsweredCard(L"2007-1"))}};
    platform::Ref<LejisSearchRequest> request = platform::Create<LejisSearchRequest>();
    platform::Ref<LejisSearchWebService> service = platform::Create<LejisSearchWebService>();
    ComPtr<EventLog> log = EventLog::ForSearches();
};

TEST_F(SearchReplacement, DoesNotComeOfASearchForNothing) {
    ScriptedRequest& first = Begin();
    EXPECT_EQ(S_OK, service->Search(nullptr));
    ExpectBoth(first, L"ConfigurationError: Internal error -2146827864: Object required");
}

TEST_F(SearchReplacement, DoesNotComeOfAUsernameThatBreaksTheEnvelope) {
    ScriptedRequest& first = Begin();
    service->Username = L"j&d";
    Search();
    ExpectBoth(first, L"ConfigurationError: Internal error -2146827864: Object required");
}

TEST_F(SearchReplacement, DoesNotComeOfADumpThatCannotBeWritten) {
    support::TestHost host;
    host.diagnosticsFolder = L"C:\\no such folder";
    ScriptedRequest& first = Begin();
    constexpr wchar_t kFlags[] = L"Software\\VB and VBA Program Settings\\TalvexSuite\\Flags";
    platform::WriteRegistryText(HKEY_CURRENT_USER, kFlags, L"DebugLejis", L"Y");
    Search();
    platform::DeleteRegistryTree(HKEY_CURRENT_USER, kFlags);
    ASSERT_EQ(1u, log->events.size());
    EXPECT_NE(std::wstring::npos, log->events[0].find(L"Cannot write 'C:\\no such folder\\LejisSearchRequest.xml'"));
    first.Advance();
    // The host's timers are the test's to tick.
    ASSERT_EQ(1u, host.timers.size());
    host.timers.back()->Tick();
    ASSERT_EQ(2u, log->events.size());
    EXPECT_EQ(kFound, log->events[1]);
}

TEST_F(SearchReplacement, DoesNotComeOfACheckAgainstTheSchemasThatFails) {
    ScriptedRequest& first = Begin();
    service->ValidateSchema = true;
    http.script = {.status = 404, .responseText = L"There is no such service."};
    Search();
    EXPECT_EQ(2u, http.requests.size());
    EXPECT_EQ(std::wstring(kSearchUrl) + L"?wsdl", http.Last().Seen().url);
    ExpectBoth(first, L"ConfigurationError: Internal error -2147220735: There is no such service.");
}

TEST_F(SearchReplacement, DoesNotComeOfARequestThatCannotBeMade) {
    ScriptedRequest& first = Begin();
    http.script.createResult = E_OUTOFMEMORY;
    Search();
    ExpectBoth(first, L"ConfigurationError: Internal error -2147024882: Out of memory.");
}

TEST_F(SearchReplacement, DoesNotKeepAnAnswerThatHasComeFromItsEvent) {
    Begin().Advance();
    EXPECT_EQ(S_OK, service->Search(nullptr));
    ASSERT_TRUE(support::PumpUntil([&] { return log->events.size() == 2; }));
    EXPECT_EQ(kFound, log->events[1]);
}

TEST_F(SearchReplacement, ByAnInvalidAddressReplacesTheSearch) {
    ScriptedRequest& first = Begin();
    service->URL = L"no url";
    Search();
    ExpectSecondAlone(first, L"ConfigurationError: Invalid URL 'no url'.");
}

TEST_F(SearchReplacement, ComesOfARequestThatCannotBeOpened) {
    ScriptedRequest& first = Begin();
    http.script.openResult = E_ACCESSDENIED;
    Search();
    ExpectSecondAlone(first, L"ConfigurationError: Internal error -2147024891: Access denied.");
}

TEST_F(SearchReplacement, ComesOfARequestThatCannotBeSent) {
    ScriptedRequest& first = Begin();
    http.script.sendResult = static_cast<HRESULT>(0x800C0005);
    Search();
    ExpectSecondAlone(first, L"NetworkError: The server is down.");
}

TEST_F(SearchReplacement, LosesAnAnswerThatHasComeToASearchThatCannotBeSent) {
    Begin().Advance();
    http.script.sendResult = static_cast<HRESULT>(0x800C0005);
    Search();
    support::PumpFor(250);
    EXPECT_EQ(Events{L"NetworkError: The server is down."}, log->events);
}

TEST_F(SearchReplacement, LeavesASearchAloneThatWasMadeWhileTheFailingOneWasSent) {
    http.script.sendResult = E_OUTOFMEMORY;
    http.script.onSend = [this] {
        http.script.onSend = [] {};
        http.script.sendResult = S_OK;
        Search();
    };
    Search();
    constexpr wchar_t kFailure[] = L"ConfigurationError: Internal error -2147024882: Out of memory.";
    EXPECT_EQ(Events{kFailure}, log->events);
    ASSERT_EQ(2u, http.requests.size());
    EXPECT_TRUE(http.Last().HasHandler());
    http.Last().Advance();
    EXPECT_TRUE(support::PumpUntil([&] { return log->events.size() == 2; }));
    EXPECT_EQ((Events{kFailure, kFound}), log->events);
}

}  // namespace
}  // namespace lejis
