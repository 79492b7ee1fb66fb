// A request may call its handler without the structure that would hold arguments; the handler has none.
#include "services/LejisSearchWebService.h"
#include "support/Messages.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/ScriptedRequest.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

TEST(HandlerWithoutParameters, CompletesTheSearch) {
    const support::ScriptedHttp http({.responseText = support::InquiryResponse(support::AnsweredCard(L"1"))});
    const auto service = platform::Create<LejisSearchWebService>();
    const auto log = support::EventLog::ForSearches();
    log->ConnectTo(service->Dispatch());
    service->URL = L"http://127.0.0.1/search";
    EXPECT_EQ(S_OK, service->Search(platform::Create<LejisSearchRequest>().Get()));
    EXPECT_EQ(S_OK, service->Dispatch()->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, nullptr,
                                                nullptr, nullptr, nullptr));
    EXPECT_TRUE(support::PumpUntil([&] { return !log->events.empty(); }));
    EXPECT_EQ(std::vector<std::wstring>{L"SearchCompleted: 1 cards"}, log->events);
    http.Last().ClearHandler();
}

}  // namespace
}  // namespace lejis
