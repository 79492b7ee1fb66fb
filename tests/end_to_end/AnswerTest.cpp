// What a clerk learns of the codes that a submission is answered with, and of addresses. What every server can do wrong
// is in the fault matrix.
#include "end_to_end/EndToEndTest.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

namespace end_to_end {
namespace {

struct Answer {
    const char* name;
    const char* fault;
    // 0: the submission succeeds.
    long number;
    std::wstring description;
};

const Answer kAnswers[] = {
    {"Code0", R"({"kind": "response-code", "text": "0"})", 0, L""},
    {"Code0AndWords", R"({"kind": "response-code", "text": "0 all is well"})", 0, L""},
    {"BareWord", R"({"kind": "response-code", "text": "Thanks"})", 0, L""},
    {"Code100", R"({"kind": "response-code", "text": "100 core offline"})", tvTransientError,
     L"LEJIS server is up, but LEJIS core system is offline."},
    {"Code7", R"({"kind": "response-code", "text": "7 bad card"})", tvTransientError,
     L"Unexpected error returned from LEJIS: 7 bad card"},
    {"NoCode", R"({"kind": "response-code", "text": ""})", tvFatalError,
     L"Internal error in web service code: Subscript out of range (Line 7)"},
};

class AnswerOverTheWire : public EndToEndTest, public testing::WithParamInterface<Answer> {};

TEST_P(AnswerOverTheWire, IsAsDocumentedAndTheNextSubmissionSucceeds) {
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

INSTANTIATE_TEST_SUITE_P(Server, AnswerOverTheWire, testing::ValuesIn(kAnswers),
                         [](const auto& row) { return std::string(row.param.name); });

class Address : public EndToEndTest {
protected:
    HRESULT SubmitTo(const std::wstring& url) {
        ComPtr<ICollection> warnings;
        EXPECT_OK(service->put_URL(support::Bstr(url)));
        return service->SubmitIncident(NewIncident().Get(), warnings.GetAddressOf());
    }
};

TEST_F(Address, ThatIsInvalidIsNamedInTheError) {
    for (const wchar_t* url : {L"", L"no url", L"://", L"lejis-interface", L"ftp://127.0.0.1/", L"file:///C:/x.xml",
                               L"http://", L"http:///services", L"http://:8080/services"}) {
        EXPECT_TRUE(support::FailedWith(SubmitTo(url), tvTransientError, L"Invalid URL '" + std::wstring(url) + L"'"));
    }
}

TEST_F(Address, ThatCannotBeReachedIsThatOfAServerThatIsDown) {
    // Nobody listens on port 1.
    EXPECT_TRUE(support::FailedWith(SubmitTo(L"http://127.0.0.1:1/"), tvTransientError,
                                    L"The LEJIS Interface service is down. It may need to be restarted."));
}

}  // namespace
}  // namespace end_to_end
