// What a submission sends, and when it sends nothing.
#include "services/LejisSubmissionWebService.h"

#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/EventLog.h"
#include "unit_support/Incidents.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"
#include "unit_support/TestHost.h"
#include "Version.h"

#include <gtest/gtest.h>

#include <utility>

using support::CleanIncident;
using support::FullIncident;
using support::Script;
using support::ScriptedHttp;
using support::Sent;

namespace lejis {
namespace {

using Headers = std::vector<std::pair<std::wstring, std::wstring>>;

class SubmissionRequest : public testing::Test {
protected:
    SubmissionRequest() { service->URL = L"http://lejis-interface/submission"; }

    const Sent& Submitted(const LejisIncidentIndexCard& incident) {
        service->Submit(incident);
        return http.Last().Seen();
    }

    ScriptedHttp http{Script{.responseText = support::SubmissionResponse(L"0")}};
    Microsoft::WRL::ComPtr<LejisSubmissionWebService> service = platform::Create<LejisSubmissionWebService>();
};

// The card as the formatter's copy writes it.
constexpr wchar_t kBareCard[] =
    L"<lejis:RMSIncidentIndexCard><card:LejisIndexUid>"
    L"<j:OrganizationORIID><j:ID>PA0250100</j:ID></j:OrganizationORIID>"
    L"<j:ActivityID><j:ID>2007-000123</j:ID></j:ActivityID></card:LejisIndexUid>"
    L"<j:SubmissionSubmittedDate>2007-03-09</j:SubmissionSubmittedDate>"
    L"<j:SubmissionSubmitter.Organization><j:OrganizationName>ERIE CITY POLICE</j:OrganizationName>"
    L"</j:SubmissionSubmitter.Organization>"
    L"<j:IncidentLocation><j:LocationAddress><j:LocationStreet><j:StreetFullText/><j:StreetNumberText/>"
    L"<j:StreetPredirectionalText/><j:StreetName/><j:StreetTypeText/><j:StreetPostdirectionalText/>"
    L"<j:StreetExtensionText/></j:LocationStreet><j:LocationCityName/></j:LocationAddress></j:IncidentLocation>"
    L"<j:CaveatText/><ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag></lejis:RMSIncidentIndexCard>";

std::wstring ExpectedRequest() {
    return std::wstring(L"<soap:Envelope><soap:Body><lejis:SubmitRmsIndex>") + kBareCard +
           L"<lejis:ContributingSystem><ext:companyName>Talvex</ext:companyName>"
           L"<ext:systemName>TalvexSuite</ext:systemName><ext:systemVersion>" PUBLIC_VERSION L"</ext:systemVersion>"
           L"</lejis:ContributingSystem></lejis:SubmitRmsIndex></soap:Body></soap:Envelope>";
}

TEST_F(SubmissionRequest, IsPostedToTheUrlAndWaitedFor) {
    const Sent& sent = Submitted(*CleanIncident());
    EXPECT_EQ(L"POST", sent.method);
    EXPECT_EQ(L"http://lejis-interface/submission", sent.url);
    EXPECT_FALSE(sent.asynchronous);
    EXPECT_FALSE(sent.isUserGiven);
    EXPECT_EQ(1, sent.sends);
}

TEST_F(SubmissionRequest, CarriesTheTwoHeadersInTheirOrder) {
    const Headers expected = {{L"SOAPAction", L"http://lejis.example/lejis/jxdm/1.0/service/submitRmsIndex"},
                              {L"Content-Type", L"text/xml;charset=utf-8"}};
    EXPECT_EQ(expected, Submitted(*CleanIncident()).headers);
}

TEST_F(SubmissionRequest, IsTheEnvelopeAsText) {
    const Sent& sent = Submitted(*CleanIncident());
    ASSERT_TRUE(sent.bodyIsText);
    EXPECT_TRUE(sent.body.starts_with(L"<soap:Envelope ")) << "no declaration stands before the envelope";
    EXPECT_NE(std::wstring::npos, sent.body.find(L"<lejis:ContributingSystem")) << "the prefix is part of the layout";
    EXPECT_TRUE(support::SameXml(support::Parse(sent.body).Get(), ExpectedRequest()));
}

TEST_F(SubmissionRequest, HoldsATextOfOneBlank) {
    const auto incident = CleanIncident();
    incident->CaveatText = L" ";
    EXPECT_NE(std::wstring::npos, Submitted(*incident).body.find(L"> </j:CaveatText>"));
}

TEST_F(SubmissionRequest, OfADeletionHoldsNothingButTheIdentifiersAndTheSubmittedDate) {
    service->Withdraw(*FullIncident());
    EXPECT_TRUE(support::SameXml(support::Parse(http.Last().Seen().body).Get(), ExpectedRequest()));
}

TEST_F(SubmissionRequest, OfADeletionIsNeitherShapedNorChecked) {
    const auto incident = platform::Create<LejisIncidentIndexCard>();
    incident->OrganizationName = std::wstring(80, L'A');
    service->Withdraw(*incident);
    EXPECT_NE(std::wstring::npos, http.Last().Seen().body.find(std::wstring(80, L'A')));
}

TEST_F(SubmissionRequest, HoldsTheShapedCopyAndTheCallersCardStaysAsItIs) {
    const auto incident = CleanIncident();
    incident->OrganizationName = std::wstring(76, L'A');
    const auto warnings = service->Submit(*incident);
    EXPECT_EQ(std::wstring::npos, http.Last().Seen().body.find(std::wstring(76, L'A')));
    EXPECT_NE(std::wstring::npos, http.Last().Seen().body.find(std::wstring(75, L'A')));
    EXPECT_EQ(1u, warnings->Count());
    EXPECT_EQ(76u, incident->OrganizationName.size());
}

TEST_F(SubmissionRequest, OfACleanIncidentHasNoWarnings) { EXPECT_EQ(0u, service->Submit(*CleanIncident())->Count()); }

TEST_F(SubmissionRequest, IsNotMadeForAnIncidentThatFailsValidation) {
    const auto incident = CleanIncident();
    incident->ActivityID = L"";
    incident->OrganizationORI = L"PA";
    EXPECT_TRUE(support::Raises(tvFatalError, L"ID is required.", [&] { service->Submit(*incident); }));
    EXPECT_TRUE(http.requests.empty());
}

TEST_F(SubmissionRequest, IsNotSentToAnInvalidAddress) {
    for (const std::wstring url : {L"", L"no url", L"ftp://host/", L"file:///C:/answer.xml", L"http://"}) {
        for (const bool validates : {false, true}) {
            service->URL = url;
            service->ValidateSchema = validates;
            const std::wstring told = L"Invalid URL '" + url + L"'";
            EXPECT_TRUE(support::Raises(tvTransientError, told, [&] { service->Submit(*CleanIncident()); }));
            EXPECT_TRUE(support::Raises(tvTransientError, told, [&] { service->Withdraw(*CleanIncident()); }));
            EXPECT_EQ(0, http.Last().Seen().sends);
        }
    }
}

TEST_F(SubmissionRequest, IsNotSentWhenTheWsdlOfItsServiceCannotBeFetched) {
    service->ValidateSchema = true;
    http.script = {.status = 404, .responseText = L"There is no such service."};
    EXPECT_TRUE(support::Raises(tvFatalError,
                                L"Internal error -2147220735: Error in DoSubmit (line 3): There is no such service. "
                                L"(Line 1)",
                                [&] { service->Submit(*CleanIncident()); }));
    ASSERT_EQ(1u, http.requests.size());
    EXPECT_EQ(L"http://lejis-interface/submission?wsdl", http.Last().Seen().url);
}

TEST_F(SubmissionRequest, IsWaitedForWithOneYieldAfterEachLookThatFindsItIncomplete) {
    support::TestHost host;
    http.script.readyStates = {1, 2, 3, 3, 4};
    service->Submit(*CleanIncident());
    EXPECT_EQ(4, host.yields);
}

TEST_F(SubmissionRequest, ThatIsCompleteAtOnceNeedsNoYield) {
    support::TestHost host;
    service->Submit(*CleanIncident());
    EXPECT_EQ(0, host.yields);
}

TEST_F(SubmissionRequest, IsGivenUpWhenTheHostsYieldRaises) {
    support::TestHost host;
    host.onYield = [] { throw platform::ComError(static_cast<HRESULT>(0x80042222), L"The user has cancelled."); };
    http.script.readyStates = {1};
    EXPECT_TRUE(support::Raises(tvFatalError,
                                L"Internal error -2147212766: Error in DoSubmit (line 8): The user has cancelled. "
                                L"(Line 1)",
                                [&] { service->Submit(*CleanIncident()); }));
    host.onYield = [] {};
    http.script.readyStates = {4};
    EXPECT_NO_THROW(service->Submit(*CleanIncident()));
}

TEST_F(SubmissionRequest, PassesASubmissionErrorOfTheHostOnWithItsNumberAndSource) {
    support::TestHost host;
    http.script.readyStates = {1};
    for (const long number : {long{tvTransientError}, long{tvFatalError}}) {
        host.onYield = [number] { throw platform::ComError(number, L"Not now.", L"TalvexSuite"); };
        try {
            service->Submit(*CleanIncident());
            ADD_FAILURE() << "not raised";
        } catch (const platform::ComError& error) {
            EXPECT_EQ(number, error.Number());
            EXPECT_EQ(L"Error in DoSubmit (line 8): Not now.", error.Description());
            EXPECT_EQ(L"TalvexSuite", error.Source());
        }
    }
}

TEST_F(SubmissionRequest, LosesItsAnswerToASubmissionMadeWhileItWaits) {
    support::TestHost host;
    // The first alone would never be complete.
    http.script.readyStates = {1};
    host.onYield = [&] {
        if (host.yields > 1) throw platform::ComError(static_cast<HRESULT>(0x80042222), L"The user has cancelled.");
        http.script.readyStates = {4};
        http.script.responseText = support::SubmissionResponse(L"7 of the second");
        EXPECT_TRUE(support::Raises(tvTransientError, L"Unexpected error returned from LEJIS: 7 of the second",
                                    [&] { service->Submit(*CleanIncident()); }));
    };
    EXPECT_TRUE(support::Raises(tvTransientError, L"Unexpected error returned from LEJIS: 7 of the second",
                                [&] { service->Submit(*CleanIncident()); }));
    EXPECT_EQ(2u, http.requests.size());
}

TEST_F(SubmissionRequest, LivesUntilItIsSentAlsoWhenASubmissionMadeMeanwhileReplacesIt) {
    int sends = 0;
    http.script.onSend = [&] {
        if (++sends > 1) return;
        support::ScriptedRequest& first = http.Last();
        first.AddRef();
        http.requests.clear();
        service->Submit(*CleanIncident());
        EXPECT_EQ(1u, first.Release());
    };
    EXPECT_NO_THROW(service->Submit(*CleanIncident()));
    EXPECT_EQ(2, sends);
}

TEST_F(SubmissionRequest, TakesNoTimeLimitFromTheTimeout) {
    support::TestHost host;
    http.script.readyStates = std::vector<long>(50, 1);
    http.script.readyStates.push_back(4);
    service->Timeout = 1;
    EXPECT_NO_THROW(service->Submit(*CleanIncident()));
    EXPECT_EQ(50, host.yields);
    EXPECT_EQ(1, service->Timeout);
}

// A careless client releases the service while the host works.
TEST_F(SubmissionRequest, KeepsTheServiceUntilTheEndOfTheWait) {
    support::TestHost host;
    const auto sink = support::EventLog::ForSubmissions();
    sink->ConnectTo(service->Dispatch());
    http.script.readyStates = {1, 4};
    bool lived = false;
    host.onYield = [&] {
        service.Reset();
        // The service, as long as it lives, holds its sink.
        sink->AddRef();
        lived = sink->Release() > 1;
    };
    Microsoft::WRL::ComPtr<ICollection> warnings;
    EXPECT_OK(service.Get()->SubmitIncident(CleanIncident().Get(), warnings.GetAddressOf()));
    EXPECT_EQ(1, host.yields);
    EXPECT_TRUE(lived);
}

}  // namespace
}  // namespace lejis
