// The submission that nobody waits for: each outcome is one event.
#include "services/LejisSubmissionWebService.h"

#include "deferred/FutureManager.h"
#include "support/DeepXml.h"
#include "support/Messages.h"
#include "support/ServiceTexts.h"
#include "unit_support/Addresses.h"
#include "unit_support/EventLog.h"
#include "unit_support/Incidents.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::EventLog;
using support::kSubmissionUrl;
using support::Script;
using support::ScriptedHttp;

namespace lejis {
namespace {

struct SubmissionEventRow {
    const char* name;
    Script script;
    // Empty: no event at all.
    std::wstring event;
};

const std::wstring kUnexpectedEvent = L"ServiceError: " + support::kUnexpectedAnswer;

const SubmissionEventRow kSubmissionEventRows[] = {
    {"Taken", {.responseText = support::SubmissionResponse(L"0")}, L"SubmissionCompleted"},
    {"TakenWhateverTheCode", {.responseText = support::SubmissionResponse(L"100")}, L"SubmissionCompleted"},
    {"TakenWithoutAnswer", {.hasResponseXml = false}, L"SubmissionCompleted"},
    {"Unreachable",
     {.status = 12029},
     L"NetworkError: The LEJIS Interface is down or not accessible. Make sure the LEJIS Interface server role is "
     L"running on your Talvex server."},
    {"BadGateway", {.status = 502, .hasStatusText = false}, L"NetworkError: " + support::NoMessageText(502)},
    {"Fault",
     {.status = 500, .responseText = support::SoapFault(L"soap:Server", L"bad card")},
     L"ServiceError: bad card"},
    {"NoFault", {.status = 500, .responseText = support::Soap(L"<x/>")}, L"ServiceError: Unknown error"},
    {"Forbidden", {.status = 403, .responseText = support::Soap(L"<x/>")}, L"ServiceError: Unknown error"},
    {"EmptyAnswer", {.status = 500}, kUnexpectedEvent},
    {"NotXml", {.status = 404, .responseText = L"no such page"}, kUnexpectedEvent},
    {"NotSoap",
     {.status = 500, .responseText = L"<html/>"},
     L"ServiceError: Internal error in web service code: Object required"},
    {"NestedVeryDeep",
     {.status = 500, .responseText = support::SoapFault(L"a", support::Nested(support::kVeryDeep))},
     kUnexpectedEvent},
    {"NoDocument", {.status = 500, .hasResponseXml = false}, L""},
};

class SubmissionEvents : public testing::TestWithParam<SubmissionEventRow> {};

platform::Ref<LejisSubmissionDocument> Document() {
    auto document = platform::Create<LejisSubmissionDocument>();
    document->Add(support::CleanIncident());
    return document;
}

TEST_P(SubmissionEvents, AreAsDocumented) {
    ScriptedHttp http(GetParam().script);
    http.script.readyStates = {1, 2, 3, 4};
    const auto service = platform::Create<LejisSubmissionWebService>();
    service->URL = kSubmissionUrl;
    const auto log = EventLog::ForSubmissions();
    log->ConnectTo(service->Dispatch());
    service->SubmitAsync(*Document());
    EXPECT_TRUE(http.Last().Seen().asynchronous);
    for (int state = 0; state < 3; ++state) http.Last().Advance();
    EXPECT_TRUE(log->events.empty()) << "nothing is raised inside of the request's callback";
    support::PumpFor(250);
    const std::vector<std::wstring> expected =
        GetParam().event.empty() ? std::vector<std::wstring>{} : std::vector<std::wstring>{GetParam().event};
    EXPECT_EQ(expected, log->events);
    EXPECT_FALSE(http.Last().HasHandler()) << "the request and the service no longer hold each other";
}

INSTANTIATE_TEST_SUITE_P(Answers, SubmissionEvents, testing::ValuesIn(kSubmissionEventRows),
                         [](const auto& row) { return std::string(row.param.name); });

struct SendingFailure {
    const char* name;
    Script script;
    std::wstring event;
};

const SendingFailure kSendingFailures[] = {
    {"InvalidUrl",
     {.openResult = MK_E_SYNTAX},
     L"ConfigurationError: Invalid URL 'http://lejis-interface:8080/submission'."},
    {"Unreachable", {.sendResult = static_cast<HRESULT>(0x800C0005)}, L"NetworkError: The server is down."},
    {"Other",
     {.openResult = E_ACCESSDENIED},
     L"ConfigurationError: Internal error -2147024891: Error in DoSubmit (line 5): Access denied."},
};

class SubmissionSendingFailure : public testing::TestWithParam<SendingFailure> {};

TEST_P(SubmissionSendingFailure, IsAnEventAtOnce) {
    const ScriptedHttp http(GetParam().script);
    const auto service = platform::Create<LejisSubmissionWebService>();
    service->URL = kSubmissionUrl;
    const auto log = EventLog::ForSubmissions();
    log->ConnectTo(service->Dispatch());
    service->SubmitAsync(*Document());
    EXPECT_EQ(std::vector<std::wstring>{GetParam().event}, log->events);
    EXPECT_FALSE(http.Last().HasHandler()) << "the request and the service no longer hold each other";
}

INSTANTIATE_TEST_SUITE_P(Failures, SubmissionSendingFailure, testing::ValuesIn(kSendingFailures),
                         [](const auto& row) { return std::string(row.param.name); });

class SubmissionEventsLifetime : public testing::Test {
protected:
    SubmissionEventsLifetime() {
        service->URL = kSubmissionUrl;
        log->ConnectTo(service->Dispatch());
    }

    void Submit() { service->SubmitAsync(*Document()); }

    ScriptedHttp http{{.responseText = support::SubmissionResponse(L"0")}};
    ComPtr<LejisSubmissionWebService> service = platform::Create<LejisSubmissionWebService>();
    const ComPtr<EventLog> log = EventLog::ForSubmissions();
};

TEST_F(SubmissionEventsLifetime, TheServiceLivesUntilItsAnswerHasBeenToldEvenWhenItsClientLetsGo) {
    Submit();
    service.Reset();
    http.Last().Advance();
    EXPECT_TRUE(support::PumpUntil([&] { return !log->events.empty(); }));
    EXPECT_EQ(std::vector<std::wstring>{L"SubmissionCompleted"}, log->events);
}

TEST_F(SubmissionEventsLifetime, TheSubmissionUnderWayIsLeftAloneByOneThatCannotBeSent) {
    Submit();
    http.script.createResult = E_OUTOFMEMORY;
    Submit();
    EXPECT_TRUE(http.Last().HasHandler());
    http.Last().Advance();
    EXPECT_TRUE(support::PumpUntil([&] { return log->events.size() == 2; }));
    const std::vector<std::wstring> expected = {
        L"ConfigurationError: Internal error -2147024882: Error in DoSubmit (line 4): Out of memory.",
        L"SubmissionCompleted"};
    EXPECT_EQ(expected, log->events);
}

TEST_F(SubmissionEventsLifetime, ASubmissionThatAnotherReplacesBringsNoNews) {
    Submit();
    Submit();
    for (const auto& request : http.requests) request->Advance();
    support::PumpFor(250);
    EXPECT_EQ(std::vector<std::wstring>{L"SubmissionCompleted"}, log->events);
}

TEST_F(SubmissionEventsLifetime, AStateChangeOrARunWithoutARequestHarmsNothing) {
    EXPECT_EQ(S_OK, service->OnReadyStateChange());
    EXPECT_EQ(S_OK, service->Run());
    EXPECT_EQ(std::vector<std::wstring>{L"ServiceError: Internal error in web service code: Object required"},
              log->events);
}

}  // namespace
}  // namespace lejis
