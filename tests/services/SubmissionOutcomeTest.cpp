// What a submission that is waited for ends in, for every answer of the server and every failure of the connection.
#include "services/LejisSubmissionWebService.h"

#include "support/DeepXml.h"
#include "support/Printing.h"
#include "support/ServiceTexts.h"
#include "unit_support/Addresses.h"
#include "unit_support/Incidents.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"

#include <gtest/gtest.h>

using support::CleanIncident;
using support::kSubmissionUrl;
using support::kUnexpectedAnswer;
using support::kUnexpectedError;
using support::kVeryDeep;
using support::Nested;
using support::PartiallyOffline;
using support::Script;
using support::ScriptedHttp;
using support::Soap;
using support::SoapFault;
using support::SubmissionResponse;

namespace lejis {
namespace {

struct Outcome {
    const char* name;
    Script script;
    // 0: the submission is taken.
    long number;
    std::wstring description;
};

Script Answered(long status, std::wstring body, std::wstring statusText = L"Some Reason") {
    return {.status = status, .statusText = std::move(statusText), .responseText = std::move(body)};
}

Script WithoutStatusText(long status) { return {.status = status, .hasStatusText = false}; }

Script Accepted(const std::wstring& text) { return Answered(200, SubmissionResponse(text), L"OK"); }

const Outcome kOutcomes[] = {
    {"Zero", Accepted(L"0"), 0, L""},
    {"ZeroAndWords", Accepted(L"0 Accepted, thank you"), 0, L""},
    {"BareWord", Accepted(L"OK"), 0, L""},
    {"ZeroPointFour", Accepted(L"0.4"), 0, L""},
    {"ZeroAndLineEnd", Accepted(L"0\n12 cards accepted"), 0, L""},
    {"ZeroAndTab", Accepted(L"0\t100 cards accepted"), 0, L""},
    {"ZeroAndExponent", Accepted(L"0e5"), 0, L""},
    {"OneAndExponent", Accepted(L"1e2 bad card"), tvTransientError,
     L"Unexpected error returned from LEJIS: 1e2 bad card"},
    {"SignAlone", Accepted(L"- 100"), 0, L""},
    {"NumberAndLetters", Accepted(L"100abc"), tvTransientError,
     L"LEJIS server is up, but LEJIS core system is offline."},
    {"CoreOffline", Accepted(L"100 core is down"), tvTransientError,
     L"LEJIS server is up, but LEJIS core system is offline."},
    {"OtherCode", Accepted(L"7 bad card"), tvTransientError, L"Unexpected error returned from LEJIS: 7 bad card"},
    {"NegativeCode", Accepted(L"-1 no"), tvTransientError, L"Unexpected error returned from LEJIS: -1 no"},
    {"EmptyCode", Accepted(L""), tvFatalError, L"Internal error in web service code: Subscript out of range (Line 7)"},
    {"CodeOutOfRange", Accepted(L"40000 x"), tvFatalError, L"Internal error in web service code: Overflow (Line 7)"},
    {"CodeBeyondEveryNumber", Accepted(std::wstring(400, L'9')), tvFatalError,
     L"Internal error in web service code: Overflow (Line 7)"},
    {"NoResponseElement", Answered(200, Soap(L"<other/>")), tvTransientError,
     L"The server did not return a submissionResponse code."},
    {"ResponseElementTooDeep",
     Answered(200, Soap(L"<other><l:submissionResponse xmlns:l='http://lejis.example/lejis/jxdm/1.0/service'>0"
                        L"</l:submissionResponse></other>")),
     tvTransientError, L"The server did not return a submissionResponse code."},
    {"ResponseElementOfAnotherNamespace", Answered(200, Soap(L"<submissionResponse>0</submissionResponse>")),
     tvTransientError, L"The server did not return a submissionResponse code."},
    {"NoBody", Answered(200, L"<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'/>"), tvFatalError,
     L"Internal error in web service code: Object required (Line 6)"},
    {"NotXml", Answered(200, L"It works!"), tvTransientError, PartiallyOffline(200)},
    {"Empty", Answered(200, L""), tvTransientError, PartiallyOffline(200)},
    {"NotSoap", Answered(200, L"<html/>"), tvTransientError, PartiallyOffline(200)},
    {"SoapOfAnotherVersion",
     Answered(200, L"<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'><s:Body/></s:Envelope>"),
     tvTransientError, PartiallyOffline(200)},
    {"Doctype", Answered(200, L"<!DOCTYPE x>" + SubmissionResponse(L"0")), tvTransientError, PartiallyOffline(200)},
    {"NestedVeryDeep", Answered(200, SubmissionResponse(Nested(kVeryDeep, L"0"))), tvTransientError,
     PartiallyOffline(200)},
    {"NestedAsDeepAsParses", Accepted(Nested(250, L"0")), 0, L""},
    {"UnknownEncoding", {.status = 200, .responseXmlResult = E_FAIL}, tvTransientError, PartiallyOffline(200)},
    {"NoDocument", {.status = 200, .hasResponseXml = false}, tvTransientError, PartiallyOffline(200)},
    {"Fault", Answered(500, SoapFault(L"soap:Server", L"The card is malformed.")), tvFatalError,
     L"The card is malformed."},
    {"FaultWithoutText", Answered(500, Soap(L"<soap:Fault/>")), tvFatalError, L""},
    {"FaultWithStatus200", Answered(200, SoapFault(L"soap:Server", L"x")), tvTransientError,
     L"The server did not return a submissionResponse code."},
    {"SoapWithoutFault", Answered(500, SubmissionResponse(L"0")), tvTransientError, kUnexpectedAnswer},
    {"SoapWithStatus404", Answered(404, Soap(L"<x/>")), tvTransientError, kUnexpectedAnswer},
    {"ErrorWithoutSoap", Answered(500, L"<html/>"), tvTransientError, PartiallyOffline(500)},
    {"NotFound", Answered(404, L"no such page"), tvTransientError, PartiallyOffline(404)},
    {"NotAuthorized", Answered(401, L""), tvTransientError, PartiallyOffline(401)},
    {"Unavailable", Answered(503, L""), tvTransientError, PartiallyOffline(503)},
    {"Forbidden", Answered(403, SoapFault(L"a", L"b"), L"User unknown"), tvFatalError, L"User unknown"},
    {"ForbiddenWithoutReason", WithoutStatusText(403), tvFatalError, L""},
    {"BadRequest", Answered(400, L""), tvTransientError, kUnexpectedError},
    {"RequestTimeout", Answered(408, L""), tvTransientError, kUnexpectedError},
    {"BadGateway", Answered(502, SubmissionResponse(L"0")), tvTransientError, kUnexpectedError},
    {"GatewayTimeout", Answered(504, L""), tvTransientError, kUnexpectedError},
    {"BadGatewayWithoutReason", WithoutStatusText(502), tvTransientError, support::NoMessageText(502)},
    {"ClosedEarly", WithoutStatusText(0), tvTransientError, support::NoMessageText(0)},
    {"WinInet12001", WithoutStatusText(12001), tvTransientError, support::NoMessageText(12001)},
    {"WinInet12002", WithoutStatusText(12002), tvTransientError, L"The connection timed-out."},
    {"WinInet12007", WithoutStatusText(12007), tvTransientError, L"Host not found."},
    {"WinInet12019", WithoutStatusText(12019), tvTransientError,
     L"The LEJIS server couldn't complete your request. The most likely cause is an invalid LEJIS certificate "
     L"configured in the LEJIS Interface or an invalid JNET User ID for your user account."},
    {"WinInet12029", Answered(12029, L"", L"Unknown"), tvTransientError,
     L"The LEJIS Interface is down or not accessible. Make sure the LEJIS Interface server role is running on your "
     L"Talvex server."},
    {"WinInet12030", WithoutStatusText(12030), tvTransientError, L"Network error: Connection aborted."},
    {"WinInet12031", WithoutStatusText(12031), tvTransientError, L"Network error: Connection reset."},
    {"WinInet12152WithText", Answered(12152, L"", L"Unknown"), tvTransientError, kUnexpectedError},
    {"InvalidUrl",
     {.openResult = MK_E_SYNTAX},
     tvTransientError,
     L"Invalid URL 'http://lejis-interface:8080/submission'"},
    {"InvalidUrlAsInvalidArgument",
     {.openResult = E_INVALIDARG},
     tvTransientError,
     L"Invalid URL 'http://lejis-interface:8080/submission'"},
    {"InvalidUrlAsUnknownScheme",
     {.openResult = static_cast<HRESULT>(0x800C000D)},
     tvTransientError,
     L"Invalid URL 'http://lejis-interface:8080/submission'"},
    {"Unreachable",
     {.sendResult = static_cast<HRESULT>(0x800C0005)},
     tvTransientError,
     L"The LEJIS Interface service is down. It may need to be restarted."},
    {"UnreachableAsWineReportsIt",
     {.sendResult = static_cast<HRESULT>(0x800C0008)},
     tvTransientError,
     L"The LEJIS Interface service is down. It may need to be restarted."},
    {"OtherFailureOfOpen",
     {.openResult = E_ACCESSDENIED},
     tvFatalError,
     L"Internal error -2147024891: Error in DoSubmit (line 5): Access denied. (Line 1)"},
    {"OtherFailureOfSend",
     {.sendResult = E_OUTOFMEMORY},
     tvFatalError,
     L"Internal error -2147024882: Error in DoSubmit (line 7): Out of memory. (Line 1)"},
};

class SubmissionOutcome : public testing::TestWithParam<Outcome> {};

TEST_P(SubmissionOutcome, IsAsDocumented) {
    const ScriptedHttp http(GetParam().script);
    const auto service = platform::Create<LejisSubmissionWebService>();
    service->URL = kSubmissionUrl;
    const auto submit = [&] { service->Submit(*CleanIncident()); };
    if (GetParam().number == 0) {
        EXPECT_NO_THROW(submit());
    } else {
        EXPECT_TRUE(support::Raises(GetParam().number, GetParam().description, submit));
    }
    EXPECT_EQ(1u, http.requests.size());
}

TEST_P(SubmissionOutcome, IsTheSameForADeletion) {
    const ScriptedHttp http(GetParam().script);
    const auto service = platform::Create<LejisSubmissionWebService>();
    service->URL = kSubmissionUrl;
    const auto withdraw = [&] { service->Withdraw(*CleanIncident()); };
    if (GetParam().number == 0) {
        EXPECT_NO_THROW(withdraw());
    } else {
        EXPECT_TRUE(support::Raises(GetParam().number, GetParam().description, withdraw));
    }
}

INSTANTIATE_TEST_SUITE_P(Answers, SubmissionOutcome, testing::ValuesIn(kOutcomes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SubmissionService, SucceedsAfterAFailure) {
    ScriptedHttp http(Answered(503, L""));
    const auto service = platform::Create<LejisSubmissionWebService>();
    service->URL = kSubmissionUrl;
    EXPECT_TRUE(support::Raises(tvTransientError, PartiallyOffline(503), [&] { service->Submit(*CleanIncident()); }));
    http.script = Accepted(L"0");
    EXPECT_NO_THROW(service->Submit(*CleanIncident()));
}

}  // namespace
}  // namespace lejis
