// What a clerk learns when the other side fails, for every failure that can be played over a socket. The others are
// played by a scripted request in the tests of the services.
#include "end_to_end/EndToEndTest.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/ServiceTexts.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::kUnexpectedError;
using support::NoMessageText;
using support::PartiallyOffline;

namespace end_to_end {
namespace {

struct Failure {
    const char* name;
    const char* fault;
    // 0: the submission succeeds.
    long number;
    std::wstring description;
};

const Failure kFailures[] = {
    {"Code0", R"({"kind": "response-code", "text": "0"})", 0, L""},
    {"Code0AndWords", R"({"kind": "response-code", "text": "0 all is well"})", 0, L""},
    {"BareWord", R"({"kind": "response-code", "text": "Thanks"})", 0, L""},
    {"Code100", R"({"kind": "response-code", "text": "100 core offline"})", tvTransientError,
     L"LEJIS server is up, but LEJIS core system is offline."},
    {"Code7", R"({"kind": "response-code", "text": "7 bad card"})", tvTransientError,
     L"Unexpected error returned from LEJIS: 7 bad card"},
    {"NoCode", R"({"kind": "response-code", "text": ""})", tvFatalError,
     L"Internal error in web service code: Subscript out of range (Line 7)"},
    {"SoapFault", R"({"kind": "soap-fault", "status": 500, "message": "The card is malformed."})", tvFatalError,
     L"The card is malformed."},
    {"Status400", R"({"kind": "http-status", "status": 400})", tvTransientError, kUnexpectedError},
    {"Status400WithoutReason", R"({"kind": "http-status", "status": 400, "reason": ""})", tvTransientError,
     NoMessageText(400)},
    {"Status401", R"({"kind": "http-status", "status": 401})", tvTransientError, PartiallyOffline(401)},
    {"Status403", R"({"kind": "http-status", "status": 403, "reason": "User unknown"})", tvFatalError, L"User unknown"},
    {"Status403WithoutReason", R"({"kind": "http-status", "status": 403, "reason": ""})", tvFatalError, L""},
    {"Status404", R"({"kind": "http-status", "status": 404, "body": "no such page", "content_type": "text/plain"})",
     tvTransientError, PartiallyOffline(404)},
    {"Status408", R"({"kind": "http-status", "status": 408})", tvTransientError, kUnexpectedError},
    {"Status500", R"({"kind": "http-status", "status": 500})", tvTransientError, PartiallyOffline(500)},
    {"Status500WithBody", R"({"kind": "http-status", "status": 500, "body": "<html/>", "content_type": "text/html"})",
     tvTransientError, PartiallyOffline(500)},
    {"Status502", R"({"kind": "http-status", "status": 502, "body": "bad gateway"})", tvTransientError,
     kUnexpectedError},
    {"Status503", R"({"kind": "http-status", "status": 503})", tvTransientError, PartiallyOffline(503)},
    {"Status504", R"({"kind": "http-status", "status": 504})", tvTransientError, kUnexpectedError},
    {"Slow", R"({"kind": "slow", "seconds": 1})", 0, L""},
    {"Trickle", R"({"kind": "trickle", "seconds": 1})", 0, L""},
    {"NotXml", R"({"kind": "not-xml"})", tvTransientError, PartiallyOffline(200)},
    {"InvalidXml", R"({"kind": "invalid-xml"})", tvTransientError, PartiallyOffline(200)},
    {"Empty", R"({"kind": "empty"})", tvTransientError, PartiallyOffline(200)},
    {"Truncated", R"({"kind": "truncated"})", tvTransientError, PartiallyOffline(200)},
    {"TruncatedHeaders", R"({"kind": "truncated-headers"})", tvTransientError, PartiallyOffline(200)},
    {"NoResponseElement", R"({"kind": "no-response-element"})", tvTransientError,
     L"The server did not return a submissionResponse code."},
    {"NoBody", R"({"kind": "no-body"})", tvFatalError, L"Internal error in web service code: Object required (Line 6)"},
    {"Doctype", R"({"kind": "doctype"})", tvTransientError, PartiallyOffline(200)},
    // Every time: the platform tries once more when a kept connection turns out to be closed.
    {"ClosedBeforeAnswering", R"({"kind": "close", "when": "every"})", tvTransientError, NoMessageText(0)},
};

class FailureOverTheWire : public EndToEndTest, public testing::WithParamInterface<Failure> {};

TEST_P(FailureOverTheWire, IsAsDocumentedAndTheNextSubmissionSucceeds) {
    Play(GetParam().fault);
    ComPtr<ICollection> warnings;
    const HRESULT result = service->SubmitIncident(NewIncident().Get(), warnings.GetAddressOf());
    if (GetParam().number == 0) {
        EXPECT_OK(result);
    } else {
        EXPECT_TRUE(support::FailedWith(result, GetParam().number, GetParam().description));
    }
    StopFaults();
    EXPECT_OK(service->SubmitIncident(NewIncident().Get(), warnings.ReleaseAndGetAddressOf()));
    EXPECT_EQ(1u, IncidentsHeld());
}

INSTANTIATE_TEST_SUITE_P(Server, FailureOverTheWire, testing::ValuesIn(kFailures),
                         [](const auto& row) { return std::string(row.param.name); });

class Failures : public EndToEndTest {
protected:
    HRESULT SubmitTo(const std::wstring& url) {
        ComPtr<ICollection> warnings;
        EXPECT_OK(service->put_URL(support::Bstr(url)));
        return service->SubmitIncident(NewIncident().Get(), warnings.GetAddressOf());
    }
};

TEST_F(Failures, AnAddressThatIsNoneIsNamed) {
    for (const wchar_t* url : {L"", L"no url", L"://", L"lejis-interface"}) {
        EXPECT_TRUE(support::FailedWith(SubmitTo(url), tvTransientError, L"Invalid URL '" + std::wstring(url) + L"'"));
    }
}

TEST_F(Failures, AServerThatCannotBeReachedIsDown) {
    // Nobody listens on port 1.
    EXPECT_TRUE(support::FailedWith(SubmitTo(L"http://127.0.0.1:1/"), tvTransientError,
                                    L"The LEJIS Interface service is down. It may need to be restarted."));
}

TEST_F(Failures, AConnectionThatIsResetIsTransientWhicheverWayThePlatformSeesIt) {
    Play(R"({"kind": "reset", "when": "every"})");
    const HRESULT result = SubmitTo(SubmissionUrl());
    EXPECT_EQ(tvTransientError, result);
    const std::wstring description = support::TakeError(result).description;
    EXPECT_TRUE(description == NoMessageText(0) ||
                description == L"The LEJIS Interface service is down. It may need to be restarted.")
        << support::Utf8(description);
}

TEST_F(Failures, OfADeletionAreTheSame) {
    Play(R"({"kind": "response-code", "text": "100 core offline"})");
    EXPECT_TRUE(support::FailedWith(service->DeleteIncident(NewIncident().Get()), tvTransientError,
                                    L"LEJIS server is up, but LEJIS core system is offline."));
    EXPECT_OK(service->DeleteIncident(NewIncident().Get()));
}

}  // namespace
}  // namespace end_to_end
