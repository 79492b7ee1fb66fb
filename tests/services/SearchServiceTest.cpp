// What a search sends, and what its client may do meanwhile.
#include "services/LejisSearchWebService.h"

#include "support/ComCheck.h"
#include "support/Messages.h"
#include "support/Xml.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::AnsweredCard;
using support::EventLog;
using support::InquiryResponse;
using support::ScriptedHttp;
using support::Sent;

namespace lejis {
namespace {

using Headers = std::vector<std::pair<std::wstring, std::wstring>>;

class SearchService : public testing::Test {
protected:
    SearchService() {
        service->URL = L"http://lejis-interface/search";
        service->Username = L"jdoe";
        log->ConnectTo(service->Dispatch());
    }

    void Search() { EXPECT_EQ(S_OK, service->Search(request.Get())); }
    bool AwaitEvent() {
        return support::PumpUntil([&] { return !log->events.empty(); });
    }

    ScriptedHttp http{{.responseText = InquiryResponse(AnsweredCard(L"2007-1"))}};
    platform::Ref<LejisSearchRequest> request = platform::Create<LejisSearchRequest>();
    ComPtr<LejisSearchWebService> service = platform::Create<LejisSearchWebService>();
    ComPtr<EventLog> log = EventLog::ForSearches();
};

TEST_F(SearchService, PostsToTheUrlWithoutWaiting) {
    Search();
    const Sent& sent = http.Last().Seen();
    EXPECT_EQ(L"POST", sent.method);
    EXPECT_EQ(L"http://lejis-interface/search", sent.url);
    EXPECT_TRUE(sent.asynchronous);
    EXPECT_FALSE(sent.isUserGiven);
    EXPECT_TRUE(http.Last().HasHandler());
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
}

TEST_F(SearchService, CarriesTheTwoHeadersInTheirOrder) {
    Search();
    const Headers expected = {{L"SOAPAction", L"http://lejis.example/lejis/1.0/service/jxdm/searchIndex"},
                              {L"Content-Type", L"text/xml;charset=utf-8"}};
    EXPECT_EQ(expected, http.Last().Seen().headers);
    http.Last().ClearHandler();
}

TEST_F(SearchService, SendsTheUserAndTheInquiry) {
    request->personArguments->SurName = L"PUBLIC";
    Search();
    EXPECT_TRUE(http.Last().Seen().body.starts_with(L"<soap:Envelope "));
    EXPECT_TRUE(support::SameXml(
        support::Parse(http.Last().Seen().body).Get(),
        L"<soap:Envelope><soap:Header><wsse:Security><wsse:UsernameToken><wsse:Username>jdoe</wsse:Username>"
        L"</wsse:UsernameToken></wsse:Security></soap:Header><soap:Body><inq:LEJISIndexInquiry>"
        L"<inq:PersonInquiryArguments><j:PersonSurName>PUBLIC</j:PersonSurName><j:PersonGivenName/>"
        L"<j:PersonMiddleName/></inq:PersonInquiryArguments><lejis:InquiryControls>"
        L"<lejis:irrinfo>false</lejis:irrinfo></lejis:InquiryControls></inq:LEJISIndexInquiry></soap:Body>"
        L"</soap:Envelope>"));
    http.Last().ClearHandler();
}

TEST_F(SearchService, WritesNoEmptyUsernameAway) {
    service->Username.clear();
    Search();
    EXPECT_NE(std::wstring::npos, http.Last().Seen().body.find(L"<wsse:Username"));
    http.Last().ClearHandler();
}

TEST_F(SearchService, TakesTheUsernameAsItStands) {
    service->Username = L"j&amp;d<!-- note -->oe";
    Search();
    EXPECT_NE(std::wstring::npos, http.Last().Seen().body.find(L"j&amp;d<!-- note -->oe"));
    http.Last().ClearHandler();
}

TEST_F(SearchService, ReportsAUsernameThatBreaksTheEnvelope) {
    for (const wchar_t* name : {L"j&d", L"<", L"</wsse:Username>", L"<!DOCTYPE x>"}) {
        log->events.clear();
        service->Username = name;
        Search();
        EXPECT_EQ(std::vector<std::wstring>{L"ConfigurationError: Internal error -2146827864: Object required"},
                  log->events);
    }
    EXPECT_TRUE(http.requests.empty());
}

TEST_F(SearchService, ReportsAMissingRequestAndAForeignOne) {
    EXPECT_EQ(S_OK, service->Search(nullptr));
    EXPECT_EQ(std::vector<std::wstring>{L"ConfigurationError: Internal error -2146827864: Object required"},
              log->events);
}

TEST_F(SearchService, HasNoResultsBeforeTheFirstSuccess) {
    ComPtr<ICollection> results;
    EXPECT_EQ(S_OK, service->get_results(results.GetAddressOf()));
    EXPECT_EQ(nullptr, results);
}

TEST_F(SearchService, KeepsTheResultsOfTheLastSuccess) {
    Search();
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    log->events.clear();
    http.script.status = 403;
    Search();
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    ComPtr<ICollection> results;
    long count = 0;
    EXPECT_OK(service->get_results(results.GetAddressOf()));
    ASSERT_NE(nullptr, results);
    EXPECT_OK(results->get_Count(&count));
    EXPECT_EQ(1, count);
}

TEST_F(SearchService, HasItsResultsBeforeItRaisesTheirEvent) {
    ComPtr<ICollection> results;
    log->onEvent = [&] { EXPECT_OK(service->get_results(results.GetAddressOf())); };
    Search();
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    EXPECT_NE(nullptr, results);
}

TEST_F(SearchService, LivesUntilItsEventWhenItsClientLetsGo) {
    Search();
    service.Reset();
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    EXPECT_EQ(std::vector<std::wstring>{L"SearchCompleted: 1 cards"}, log->events);
}

TEST_F(SearchService, MayBeReleasedInsideOfItsEvent) {
    Search();
    log->onEvent = [&] {
        log->Disconnect();
        service.Reset();
    };
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    support::PumpFor(120);
    EXPECT_EQ(1u, log->events.size());
}

TEST_F(SearchService, MayBeAskedAgainInsideOfItsEvent) {
    Search();
    log->onEvent = [&] {
        if (log->events.size() == 1) Search();
    };
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    EXPECT_EQ(2u, http.requests.size());
    http.Last().Advance();
    EXPECT_TRUE(support::PumpUntil([&] { return log->events.size() == 2; }));
    support::PumpFor(120);
    EXPECT_EQ(2u, log->events.size());
}

TEST_F(SearchService, NeedsNoSink) {
    log->Disconnect();
    Search();
    http.Last().Advance();
    support::PumpFor(200);
    ComPtr<ICollection> results;
    EXPECT_OK(service->get_results(results.GetAddressOf()));
    EXPECT_NE(nullptr, results);
}

TEST_F(SearchService, ForgetsTheSearchThatAnotherReplaces) {
    Search();
    support::ScriptedRequest& first = http.Last();
    http.script.responseText = InquiryResponse(AnsweredCard(L"1") + AnsweredCard(L"2"));
    Search();
    first.Advance();
    support::PumpFor(200);
    EXPECT_TRUE(log->events.empty());
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    EXPECT_EQ(std::vector<std::wstring>{L"SearchCompleted: 2 cards"}, log->events);
}

TEST_F(SearchService, EndsTheRequestThatAnotherOneReplaces) {
    Search();
    EXPECT_EQ(0, http.Last().Seen().aborts);
    Search();
    EXPECT_EQ(1, http.requests.front()->Seen().aborts);
    EXPECT_FALSE(http.requests.front()->HasHandler());
    EXPECT_EQ(0, http.Last().Seen().aborts);
    http.Last().ClearHandler();
}

TEST_F(SearchService, ForgetsAnAnswerThatCameWhileItsReplacementWasSent) {
    Search();
    http.Last().Advance();
    http.script.responseText = InquiryResponse(AnsweredCard(L"1") + AnsweredCard(L"2"));
    http.script.readyStates = {1, 4};
    Search();
    support::PumpFor(200);
    EXPECT_TRUE(log->events.empty()) << "the first answer is lost, the second has not come";
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    EXPECT_EQ(std::vector<std::wstring>{L"SearchCompleted: 2 cards"}, log->events);
}

TEST_F(SearchService, RaisesOneEventForACompletionReportedTwice) {
    Search();
    http.Last().Advance();
    http.Last().Advance();
    EXPECT_TRUE(AwaitEvent());
    support::PumpFor(200);
    EXPECT_EQ(1u, log->events.size());
}

TEST_F(SearchService, BearsAStateChangeOrARunWithoutASearch) {
    EXPECT_EQ(S_OK, service->OnReadyStateChange());
    EXPECT_EQ(S_OK, service->Run());
    EXPECT_TRUE(log->events.empty());
}

}  // namespace
}  // namespace lejis
