// Every answer to a search, and every failure of it, gives exactly one event of the documented kind, or none where that
// is documented.
#include "services/LejisSearchWebService.h"

#include "support/DeepXml.h"
#include "support/Messages.h"
#include "support/ServiceTexts.h"
#include "unit_support/Addresses.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"

#include <gtest/gtest.h>

using support::AnsweredCard;
using support::EventLog;
using support::InquiryResponse;
using support::kSearchUrl;
using support::Script;
using support::ScriptedHttp;
using support::Soap;

namespace lejis {
namespace {

struct SearchEventRow {
    const char* name;
    Script script;
    // Empty: no event at all.
    std::wstring event;
};

const std::wstring kInternal = L"ServiceError: Internal error in web service code: ";
const std::wstring kNoObject = kInternal + L"Object required";
const std::wstring kUnexpected = L"ServiceError: " + support::kUnexpectedAnswer;
const std::wstring kTooBroad =
    L"ServiceError: The LEJIS core server could not handle your search request. \r\n\r\n"
    L"A common cause of this is that you did not provide enough information in your search. \r\n"
    L"Try narrowing your search by entering additioanal search criteria. \r\n\r\n"
    L"Some LEJIS searches, such as a property search, require you to enter specific information\r\n"
    L"(for example, property searches require you to specify a property serial number in your search).";
const std::wstring kNetwork = L"NetworkError: " + support::kUnexpectedError;

std::wstring NoMessageText(int status) { return L"NetworkError: " + support::NoMessageText(status); }

Script Answered(const std::wstring& body, long status = 200) {
    return {.status = status, .statusText = L"Some Reason", .responseText = body};
}

Script WithoutText(long status) { return {.status = status, .hasStatusText = false}; }

std::wstring Counted(const std::wstring& count) { return L"<lejis:incidentcount>" + count + L"</lejis:incidentcount>"; }

std::wstring ManyCards(int count) {
    std::wstring cards;
    for (int number = 1; number <= count; ++number) cards += AnsweredCard(std::to_wstring(number));
    return cards;
}

const SearchEventRow kSearchEventRows[] = {
    {"OneCard", Answered(InquiryResponse(AnsweredCard(L"1") + Counted(L"1"))), L"SearchCompleted: 1 cards"},
    {"TwoCards", Answered(InquiryResponse(AnsweredCard(L"1") + AnsweredCard(L"2") + Counted(L"2"))),
     L"SearchCompleted: 2 cards"},
    {"MoreFoundThanReturned", Answered(InquiryResponse(AnsweredCard(L"1") + Counted(L"900"))),
     L"SearchCompleted: 1 cards"},
    {"CardsWithoutCount", Answered(InquiryResponse(AnsweredCard(L"1"))), L"SearchCompleted: 1 cards"},
    {"NothingFound", Answered(InquiryResponse(Counted(L"0"))), L"SearchCompleted: 0 cards"},
    {"NothingAtAll", Answered(InquiryResponse(L"")), L"SearchCompleted: 0 cards"},
    {"CountThatIsNotANumber", Answered(InquiryResponse(Counted(L"many"))), L"SearchCompleted: 0 cards"},
    {"CountWithoutCards", Answered(InquiryResponse(Counted(L"5"))), kTooBroad},
    {"NegativeCountWithoutCards", Answered(InquiryResponse(Counted(L"-1"))), kTooBroad},
    {"CountOutOfRange", Answered(InquiryResponse(Counted(L"99999999999"))), kInternal + L"Overflow"},
    {"CardWithoutIdentifiers", Answered(InquiryResponse(AnsweredCard(L"1") + L"<lejis:RMSIncidentIndexCard/>")),
     kInternal + L"elem cannot be Nothing"},
    {"CardsOneLevelTooDeep", Answered(InquiryResponse(L"<x>" + AnsweredCard(L"1") + L"</x>" + Counted(L"1"))),
     kTooBroad},
    {"ResponseDeepInTheBody",
     Answered(Soap(L"<a><l:LEJISIndexInquiryResponse xmlns:l='http://lejis.example/lejis/jxdm/1.0/service'/></a>")),
     L"SearchCompleted: 0 cards"},
    {"TenThousandCards", Answered(InquiryResponse(ManyCards(10000) + Counted(L"10000"))),
     L"SearchCompleted: 10000 cards"},
    {"NoResponseElement", Answered(Soap(L"<x/>")), kNoObject},
    {"ResponseElementOfAnotherNamespace", Answered(Soap(L"<LEJISIndexInquiryResponse/>")), kNoObject},
    {"FaultWithStatus200", Answered(support::SoapFault(L"soap:Server", L"x")), kNoObject},
    {"EmptyBody", Answered(Soap(L"")), kNoObject},
    {"NoBody", Answered(L"<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'/>"), kNoObject},
    {"NotSoap", Answered(L"<html/>"), kNoObject},
    {"NotXml", Answered(L"It works!"), kNoObject},
    {"Empty", Answered(L""), kNoObject},
    {"CutOff", Answered(InquiryResponse(AnsweredCard(L"1")).substr(0, 300)), kNoObject},
    {"Doctype", Answered(L"<!DOCTYPE x>" + InquiryResponse(L"")), kNoObject},
    {"NestedVeryDeep", Answered(InquiryResponse(support::Nested(support::kVeryDeep))), kNoObject},
    {"FaultNestedVeryDeep", Answered(support::SoapFault(L"a", support::Nested(support::kVeryDeep)), 500), kUnexpected},
    {"UnknownEncoding", {.status = 200, .responseXmlResult = E_FAIL}, kNoObject},
    {"NoDocument", {.status = 200, .hasResponseXml = false}, L""},
    {"Forbidden",
     {.status = 403, .statusText = L"The user is not known to JNET."},
     L"ConfigurationError: The user is not known to JNET."},
    {"ForbiddenWithoutReason", WithoutText(403), L"ConfigurationError: "},
    {"ForbiddenWithFault",
     {.status = 403, .statusText = L"Denied", .responseText = support::SoapFault(L"a", L"b")},
     L"ConfigurationError: Denied"},
    {"Fault", Answered(support::SoapFault(L"soap:Server", L"The index is closed."), 500),
     L"ServiceError: The index is closed."},
    {"FaultWithStatus404", Answered(support::SoapFault(L"soap:Server", L"gone"), 404), L"ServiceError: gone"},
    {"SoapWithoutFault", Answered(InquiryResponse(L""), 500), kUnexpected},
    {"Status500Empty", Answered(L"", 500), kUnexpected},
    {"Status500NotXml", Answered(L"oops", 500), kUnexpected},
    {"Status500Html", Answered(L"<html/>", 500), kNoObject},
    {"Status500WithoutDocument", {.status = 500, .hasResponseXml = false}, kNoObject},
    {"Status401", Answered(L"", 401), kUnexpected},
    {"Status404", Answered(L"no such page", 404), kUnexpected},
    {"Status503", Answered(L"", 503), kUnexpected},
    {"Status204", Answered(L"", 204), kUnexpected},
    {"Status400", Answered(L"", 400), kNetwork},
    {"Status408", Answered(L"", 408), kNetwork},
    {"Status502", Answered(InquiryResponse(L""), 502), kNetwork},
    {"Status504WithoutText", WithoutText(504), NoMessageText(504)},
    {"ClosedEarly", WithoutText(0), NoMessageText(0)},
    {"WinInet12001", WithoutText(12001), NoMessageText(12001)},
    {"WinInet12002", WithoutText(12002), L"NetworkError: The connection timed-out."},
    {"WinInet12007", WithoutText(12007), L"NetworkError: Host not found."},
    {"WinInet12019", WithoutText(12019),
     L"NetworkError: The LEJIS server couldn't complete your request. The most likely cause is an invalid LEJIS "
     L"certificate configured in the LEJIS Interface or an invalid JNET User ID for your user account."},
    {"WinInet12029", WithoutText(12029),
     L"NetworkError: The LEJIS Interface is down or not accessible. Make sure the LEJIS Interface server role is "
     L"running on your Talvex server."},
    {"WinInet12030", WithoutText(12030), L"NetworkError: Network error: Connection aborted."},
    {"WinInet12031", WithoutText(12031), L"NetworkError: Network error: Connection reset."},
};

class SearchEvents : public testing::TestWithParam<SearchEventRow> {};

std::vector<std::wstring> Expected(const std::wstring& event) {
    return event.empty() ? std::vector<std::wstring>{} : std::vector<std::wstring>{event};
}

TEST_P(SearchEvents, AreAsDocumented) {
    ScriptedHttp http(GetParam().script);
    http.script.readyStates = {1, 2, 3, 4};
    const auto service = platform::Create<LejisSearchWebService>();
    service->URL = kSearchUrl;
    const auto log = EventLog::ForSearches();
    log->ConnectTo(service->Dispatch());
    const auto request = platform::Create<LejisSearchRequest>();
    EXPECT_EQ(S_OK, service->Search(request.Get()));
    for (int state = 0; state < 3; ++state) http.Last().Advance();
    EXPECT_TRUE(log->events.empty()) << "nothing is raised inside of the request's callback";
    if (!GetParam().event.empty()) support::PumpUntil([&] { return !log->events.empty(); });
    support::PumpFor(GetParam().event.empty() ? 250 : 120);
    EXPECT_EQ(Expected(GetParam().event), log->events);
    EXPECT_FALSE(http.Last().HasHandler()) << "the request and the service no longer hold each other";

    // And the object is ready for the next search.
    log->events.clear();
    http.script = Answered(InquiryResponse(AnsweredCard(L"9")));
    EXPECT_EQ(S_OK, service->Search(request.Get()));
    http.Last().Advance();
    support::PumpUntil([&] { return !log->events.empty(); });
    EXPECT_EQ(Expected(L"SearchCompleted: 1 cards"), log->events);
}

INSTANTIATE_TEST_SUITE_P(Answers, SearchEvents, testing::ValuesIn(kSearchEventRows),
                         [](const auto& row) { return std::string(row.param.name); });

const SearchEventRow kSearchSendingFailures[] = {
    {"InvalidUrl", {.openResult = MK_E_SYNTAX}, L"ConfigurationError: Invalid URL 'http://lejis-interface/search'."},
    {"InvalidUrlAsInvalidArgument",
     {.openResult = E_INVALIDARG},
     L"ConfigurationError: Invalid URL 'http://lejis-interface/search'."},
    {"InvalidUrlWhenItIsSent",
     {.sendResult = static_cast<HRESULT>(0x800C0002)},
     L"ConfigurationError: Invalid URL 'http://lejis-interface/search'."},
    {"Unreachable", {.sendResult = static_cast<HRESULT>(0x800C0005)}, L"NetworkError: The server is down."},
    {"Other", {.openResult = E_ACCESSDENIED}, L"ConfigurationError: Internal error -2147024891: Access denied."},
};

class SearchSendingFailure : public testing::TestWithParam<SearchEventRow> {};

TEST_P(SearchSendingFailure, IsAnEventAtOnceAndNoError) {
    const ScriptedHttp http(GetParam().script);
    const auto service = platform::Create<LejisSearchWebService>();
    service->URL = kSearchUrl;
    const auto log = EventLog::ForSearches();
    log->ConnectTo(service->Dispatch());
    EXPECT_EQ(S_OK, service->Search(platform::Create<LejisSearchRequest>().Get()));
    EXPECT_EQ(Expected(GetParam().event), log->events);
    EXPECT_FALSE(http.Last().HasHandler());
    support::PumpFor(150);
    EXPECT_EQ(1u, log->events.size());
}

INSTANTIATE_TEST_SUITE_P(Failures, SearchSendingFailure, testing::ValuesIn(kSearchSendingFailures),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SearchAddress, ThatIsInvalidIsAnEventAtOnceAndNothingIsSent) {
    for (const std::wstring url :
         {L"", L"no url", L"ftp://host/", L"file:///C:/answer.xml", L"http://", L"http:///x"}) {
        for (const bool validates : {false, true}) {
            const ScriptedHttp http;
            const auto service = platform::Create<LejisSearchWebService>();
            service->URL = url;
            service->ValidateSchema = validates;
            const auto log = EventLog::ForSearches();
            log->ConnectTo(service->Dispatch());
            EXPECT_EQ(S_OK, service->Search(platform::Create<LejisSearchRequest>().Get()));
            EXPECT_EQ(Expected(L"ConfigurationError: Invalid URL '" + url + L"'."), log->events);
            EXPECT_EQ(0, http.Last().Seen().sends);
            EXPECT_FALSE(http.Last().HasHandler());
        }
    }
}

TEST(SearchEventsOfAStricterPlatform, ComeToAHandlerThatIsCalledWithoutParameters) {
    ScriptedHttp http({.responseText = InquiryResponse(AnsweredCard(L"1")), .callsWithoutParameters = true});
    const auto service = platform::Create<LejisSearchWebService>();
    service->URL = kSearchUrl;
    const auto log = EventLog::ForSearches();
    log->ConnectTo(service->Dispatch());
    EXPECT_EQ(S_OK, service->Search(platform::Create<LejisSearchRequest>().Get()));
    http.Last().Advance();
    EXPECT_TRUE(support::PumpUntil([&] { return !log->events.empty(); }));
    EXPECT_EQ(Expected(L"SearchCompleted: 1 cards"), log->events);
}

TEST(SearchEventsOfAStricterPlatform, PartTheServiceFromARequestThatKeepsItsHandler) {
    ScriptedHttp http({.responseText = InquiryResponse(AnsweredCard(L"1")), .clearHandlerResult = E_FAIL});
    Microsoft::WRL::ComPtr<LejisSearchWebService> service = platform::Create<LejisSearchWebService>();
    service->URL = kSearchUrl;
    const auto log = EventLog::ForSearches();
    log->ConnectTo(service->Dispatch());
    EXPECT_EQ(S_OK, service->Search(platform::Create<LejisSearchRequest>().Get()));
    const Microsoft::WRL::ComPtr<support::ScriptedRequest> request = http.requests.back();
    http.requests.clear();
    request->Advance();
    EXPECT_TRUE(support::PumpUntil([&] { return !log->events.empty(); }));
    support::PumpFor(120);
    EXPECT_TRUE(request->HasHandler());
    service.Reset();
    // The service, as long as it lives, holds its request.
    request->AddRef();
    EXPECT_EQ(1u, request->Release()) << "nobody but this test";
}

}  // namespace
}  // namespace lejis
