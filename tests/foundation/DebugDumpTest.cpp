#include "foundation/DebugDump.h"

#include "platform/Registry.h"
#include "platform/thread/ThreadState.h"
#include "services/LejisSearchWebService.h"
#include "services/LejisSubmissionWebService.h"
#include "support/Printing.h"
#include "support/TemporaryFolder.h"
#include "support/Xml.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/Incidents.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/Soap.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <optional>

namespace lejis {
namespace {

constexpr wchar_t kFlags[] = L"Software\\VB and VBA Program Settings\\TalvexSuite\\Flags";

// The user's flag for the length of a test.
class DebugFlag {
public:
    explicit DebugFlag(const std::optional<std::wstring>& value) {
        if (value) platform::WriteRegistryText(HKEY_CURRENT_USER, kFlags, L"DebugLejis", *value);
    }
    ~DebugFlag() { platform::DeleteRegistryTree(HKEY_CURRENT_USER, kFlags); }
    DebugFlag(const DebugFlag&) = delete;
    DebugFlag& operator=(const DebugFlag&) = delete;
};

class DebugDump : public testing::Test {
protected:
    DebugDump() { host.diagnosticsFolder = folder.Path(); }

    void Save() { LejisUtils::SaveDebugDocument(support::Parse(L"<x>1</x>"), L"Dump.xml"); }

    void Search() {
        search->URL = L"http://lejis-interface/search";
        log->ConnectTo(search->Dispatch());
        EXPECT_EQ(S_OK, search->Search(platform::Create<LejisSearchRequest>().Get()));
    }

    // The answer to the search comes in and is told.
    void Answer(const support::ScriptedHttp& http) {
        http.Last().Advance();
        host.timers.back()->Tick();
    }

    support::TestHost host;
    support::TemporaryFolder folder;
    const platform::Ref<LejisSearchWebService> search = platform::Create<LejisSearchWebService>();
    const platform::Ref<LejisSubmissionWebService> submission = platform::Create<LejisSubmissionWebService>();
    const platform::Ref<support::EventLog> log = support::EventLog::ForSearches();
};

TEST_F(DebugDump, IsWrittenWhenTheFlagIsExactlyY) {
    const DebugFlag flag(L"Y");
    Save();
    EXPECT_TRUE(folder.Holds(L"Dump.xml"));
    EXPECT_EQ(1, host.environmentsMade);
}

TEST_F(DebugDump, IsNotWrittenForAnyOtherFlag) {
    const std::optional<std::wstring> others[] = {std::nullopt, L"N", L"y", L"Yes", L"1", L"", L" Y", L"Y "};
    for (const auto& other : others) {
        const DebugFlag flag(other);
        Save();
        EXPECT_FALSE(folder.Holds(L"Dump.xml")) << (other ? support::Utf8(*other) : "no flag");
    }
}

TEST_F(DebugDump, IsNotWrittenForAFlagThatIsNoText) {
    const DWORD number = 'Y';
    ASSERT_EQ(ERROR_SUCCESS,
              RegSetKeyValueW(HKEY_CURRENT_USER, kFlags, L"DebugLejis", REG_DWORD, &number, sizeof number));
    const DebugFlag removedAtTheEnd(std::nullopt);
    Save();
    EXPECT_FALSE(folder.Holds(L"Dump.xml"));
}

TEST_F(DebugDump, FollowsTheFlagWhileTheHostRuns) {
    {
        const DebugFlag off(L"N");
        Save();
    }
    EXPECT_FALSE(folder.Holds(L"Dump.xml"));
    const DebugFlag on(L"Y");
    Save();
    EXPECT_TRUE(folder.Holds(L"Dump.xml"));
}

TEST_F(DebugDump, HasOneBackslashBeforeItsNameWhetherOrNotTheFolderEndsWithOne) {
    const DebugFlag flag(L"Y");
    for (const wchar_t* end : {L"", L"\\"}) {
        host.diagnosticsFolder = folder.Path() + L"\\missing" + end;
        try {
            Save();
            ADD_FAILURE() << "written into a missing folder";
        } catch (const platform::ComError& error) {
            const std::wstring path = folder.Path() + L"\\missing\\Dump.xml";
            EXPECT_TRUE(error.Description().starts_with(L"Cannot write '" + path + L"': "))
                << support::Utf8(error.Description());
        }
    }
}

TEST_F(DebugDump, IsRefusedWhereTheHostHasNoFolders) {
    const DebugFlag flag(L"Y");
    host.hasFolders = false;
    EXPECT_TRUE(support::Raises(support::kObjectRequired, L"Object required", [this] { Save(); }));
}

TEST_F(DebugDump, ReplacesTheFileOfTheDumpBefore) {
    const DebugFlag flag(L"Y");
    Save();
    LejisUtils::SaveDebugDocument(support::Parse(L"<second/>"), L"Dump.xml");
    const auto loaded = support::NewDocument();
    VARIANT_BOOL success = VARIANT_FALSE;
    loaded->load(_variant_t((folder.Path() + L"\\Dump.xml").c_str()), &success);
    EXPECT_TRUE(support::SameXml(loaded.Get(), L"<second/>"));
}

TEST_F(DebugDump, OfASubmissionHoldsRequestAndResponse) {
    const DebugFlag flag(L"Y");
    const support::ScriptedHttp http({.responseText = support::SubmissionResponse(L"0")});
    submission->URL = L"http://lejis-interface/submission";
    submission->Submit(*support::CleanIncident());
    EXPECT_TRUE(folder.Holds(L"LejisSubmitRequest.xml"));
    EXPECT_TRUE(folder.Holds(L"LejisSubmitResponse.xml"));
}

TEST_F(DebugDump, OfASubmissionThatNobodyWaitsForHoldsAnAnswerThatIsNoSuccess) {
    const DebugFlag flag(L"Y");
    const auto document = platform::Create<LejisSubmissionDocument>();
    document->Add(support::CleanIncident());
    submission->URL = L"http://lejis-interface/submission";
    for (const long status : {200L, 500L}) {
        const support::ScriptedHttp http({.status = status, .responseText = support::SoapFault(L"a", L"b")});
        submission->SubmitAsync(*document);
        EXPECT_TRUE(folder.Holds(L"LejisSubmitRequest.xml"));
        Answer(http);
        EXPECT_EQ(status == 500, folder.Holds(L"LejisSubmitResponse.xml"));
    }
}

TEST_F(DebugDump, OfASearchHoldsRequestAndResponse) {
    const DebugFlag flag(L"Y");
    const support::ScriptedHttp http({.responseText = support::InquiryResponse(L"")});
    Search();
    EXPECT_TRUE(folder.Holds(L"LejisSearchRequest.xml"));
    EXPECT_FALSE(folder.Holds(L"LejisSearchResponse.xml"));
    Answer(http);
    EXPECT_TRUE(folder.Holds(L"LejisSearchResponse.xml"));
    EXPECT_EQ(std::vector<std::wstring>{L"SearchCompleted: 0 cards"}, log->events);
}

TEST_F(DebugDump, OfARequestIsMadeBeforeTheRequestIsCheckedAgainstTheSchemas) {
    const DebugFlag flag(L"Y");
    const support::ScriptedHttp http({.status = 404});
    search->ValidateSchema = true;
    Search();
    EXPECT_TRUE(folder.Holds(L"LejisSearchRequest.xml"));
    submission->ValidateSchema = true;
    submission->URL = L"http://lejis-interface/submission";
    EXPECT_THROW(submission->Submit(*support::CleanIncident()), platform::ComError);
    EXPECT_TRUE(folder.Holds(L"LejisSubmitRequest.xml"));
    for (const auto& request : http.requests) EXPECT_EQ(L"GET", request->Seen().method);
}

TEST_F(DebugDump, OfAnIncidentThatFailsValidationIsNotMade) {
    const DebugFlag flag(L"Y");
    const support::ScriptedHttp http;
    EXPECT_THROW(submission->Submit(*platform::Create<LejisIncidentIndexCard>()), platform::ComError);
    EXPECT_FALSE(folder.Holds(L"LejisSubmitRequest.xml"));
}

TEST_F(DebugDump, ThatCannotBeWrittenEndsTheSubmissionBeforeItIsSent) {
    const DebugFlag flag(L"Y");
    host.diagnosticsFolder = folder.Path() + L"\\missing";
    const support::ScriptedHttp http({.responseText = support::SubmissionResponse(L"0")});
    try {
        submission->Submit(*support::CleanIncident());
        ADD_FAILURE() << "sent";
    } catch (const platform::ComError& error) {
        EXPECT_EQ(tvFatalError, error.Number());
        EXPECT_NE(std::wstring::npos, error.Description().find(L": Error in DoSubmit (line 2): Cannot write '"));
    }
    EXPECT_TRUE(http.requests.empty());
}

TEST_F(DebugDump, OfAnAnswerThatCannotBeWrittenIsAnInternalErrorWithItsPath) {
    const DebugFlag flag(L"Y");
    support::ScriptedHttp http({.responseText = support::SubmissionResponse(L"0")});
    const std::wstring missing = folder.Path() + L"\\missing";
    const std::wstring begin = L"Internal error in web service code: Cannot write '" + missing;
    http.script.onSend = [&] { host.diagnosticsFolder = missing; };
    submission->URL = L"http://lejis-interface/submission";
    try {
        submission->Submit(*support::CleanIncident());
        ADD_FAILURE() << "not noticed";
    } catch (const platform::ComError& error) {
        EXPECT_EQ(tvFatalError, error.Number());
        EXPECT_TRUE(error.Description().starts_with(begin + L"\\LejisSubmitResponse.xml': "));
        EXPECT_TRUE(error.Description().ends_with(L" (Line 4)"));
    }
    host.diagnosticsFolder = folder.Path();
    Search();
    Answer(http);
    ASSERT_EQ(1u, log->events.size());
    EXPECT_TRUE(log->events[0].starts_with(L"ServiceError: " + begin + L"\\LejisSearchResponse.xml': "));
}

TEST(BuiltInDebugFolder, LiesBelowTheUsersLocalDataAndIsMadeWhenFirstWrittenTo) {
    platform::thread::ReleaseParts();
    const DebugFlag flag(L"Y");
    const support::TemporaryFolder data;
    wchar_t before[MAX_PATH] = L"";
    GetEnvironmentVariableW(L"LOCALAPPDATA", before, MAX_PATH);
    SetEnvironmentVariableW(L"LOCALAPPDATA", data.Path().c_str());
    LejisUtils::SaveDebugDocument(support::Parse(L"<x/>"), L"Dump.xml");
    SetEnvironmentVariableW(L"LOCALAPPDATA", before);
    EXPECT_TRUE(data.Holds(L"TalvexSuite\\Diagnostics\\Dump.xml"));
}

}  // namespace
}  // namespace lejis
