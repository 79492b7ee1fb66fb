// The rows of the fault matrix that the platform under the tests never completes, or reports differently from Windows.
// The outcomes are recorded with the tests' results, where the matrix reads them and compares them with its table.
#include "services/LejisSearchWebService.h"
#include "services/LejisSubmissionWebService.h"

#include "platform/http/AbandonedRequests.h"
#include "support/Messages.h"
#include "support/Outcome.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/Incidents.h"
#include "unit_support/PlayedWindows.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::AnsweredCard;
using support::CleanIncident;
using support::EventLog;
using support::InquiryResponse;
using support::OutcomeOf;
using support::Script;
using support::ScriptedHttp;

namespace lejis {
namespace {

struct FaultRow {
    const char* name;
    // What a synchronous request does, and what an asynchronous one.
    Script synchronous;
    Script asynchronous;
};

constexpr HRESULT kUnreachable = static_cast<HRESULT>(0x800C0005);

Script Broken(long status) { return {.status = status, .hasStatusText = false}; }

FaultRow AsStatus(const char* name, long status) { return {name, Broken(status), Broken(status)}; }

const FaultRow kFaultRows[] = {
    AsStatus("ResetInTheBody", 12031),
    AsStatus("RedirectWithoutEnd", 12156),
    AsStatus("TimeLimitOfThePlatform", 12002),
    AsStatus("ConnectionAborted", 12030),
    AsStatus("AnswerThatIsNoHttp", 12152),
    AsStatus("CertificateRefused", 12019),
    {"NobodyListens", {.sendResult = kUnreachable}, Broken(12029)},
    {"UnknownHost", {.sendResult = kUnreachable}, Broken(12007)},
    {"ConnectFailsWhileWaited", Broken(12029), Broken(12029)},
    {"NoDocument", {.hasResponseXml = false}, {.hasResponseXml = false}},
    // The asynchronous one ends long after its client has given it up.
    {"SilenceWithoutEnd", {.readyStates = {1}}, {.readyStates = {1, 1, 4}}},
};

class ScriptedFault : public testing::TestWithParam<FaultRow> {
protected:
    ScriptedFault() { service->URL = L"http://lejis-interface/submission"; }

    void Record(const char* operation, const std::wstring& outcome) {
        RecordProperty(operation, support::Escaped(outcome));
        EXPECT_EQ(1u, http.requests.size()) << operation;
        http.requests.clear();
    }

    HRESULT Submit() {
        ComPtr<ICollection> warnings;
        return service->SubmitIncident(CleanIncident().Get(), warnings.GetAddressOf());
    }

    support::PlayedWindows windows;
    ScriptedHttp http{GetParam().synchronous};
    platform::Ref<LejisSubmissionWebService> service = platform::Create<LejisSubmissionWebService>();
};

TEST_P(ScriptedFault, IsToldToWhoeverWaits) {
    // Ends a wait that has no other end.
    support::TestHost host;
    host.onYield = [] { throw platform::ComError(static_cast<HRESULT>(0x80042222), L"The user has cancelled."); };
    Record("submit", OutcomeOf(Submit()));
    Record("delete", OutcomeOf(service->DeleteIncident(CleanIncident().Get())));
    service->ValidateSchema = true;
    // The only request is that for the description, which is asynchronous.
    http.script = GetParam().asynchronous;
    Record("wsdl", OutcomeOf(Submit()));
}

TEST_P(ScriptedFault, IsToldOnceToWhoeverSearches) {
    http.script = GetParam().asynchronous;
    const auto search = platform::Create<LejisSearchWebService>();
    search->URL = L"http://lejis-interface/search";
    const auto log = EventLog::ForSearches();
    log->ConnectTo(search->Dispatch());
    const auto request = platform::Create<LejisSearchRequest>();
    EXPECT_EQ(S_OK, search->Search(request.Get()));
    const ComPtr<support::ScriptedRequest> first = http.requests.back();
    first->Advance();
    support::PumpFor(250);
    Record("search", OutcomeOf(log->events));

    log->events.clear();
    http.script = {.responseText = InquiryResponse(AnsweredCard(L"1"))};
    EXPECT_EQ(S_OK, search->Search(request.Get()));
    first->Advance();
    http.Last().Advance();
    EXPECT_TRUE(support::PumpUntil([&] { return !log->events.empty(); }));
    support::PumpFor(120);
    platform::ReleaseCompleteRequests();
    EXPECT_EQ(std::vector<std::wstring>{L"SearchCompleted: 1 cards"}, log->events);
}

INSTANTIATE_TEST_SUITE_P(Matrix, ScriptedFault, testing::ValuesIn(kFaultRows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace lejis
