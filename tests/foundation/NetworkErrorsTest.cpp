#include "foundation/NetworkErrors.h"

#include "platform/http/Exchange.h"
#include "support/Printing.h"
#include "support/ServiceTexts.h"
#include "unit_support/ScriptedRequest.h"

#include <gtest/gtest.h>

#include <climits>

namespace lejis {
namespace {

TEST(NetworkErrors, KnowsAfterWhichStatusTryingAgainMayHelp) {
    for (const long status : {0L, 400L, 408L, 502L, 504L, 12001L, 12002L, 12019L, 12029L, 99999L, LONG_MAX}) {
        EXPECT_TRUE(LejisUtils::IsTransientStatus(status)) << status;
    }
    for (const long status :
         {LONG_MIN, -1L, 1L, 200L, 399L, 401L, 403L, 404L, 407L, 409L, 500L, 501L, 503L, 505L, 11999L, 12000L}) {
        EXPECT_FALSE(LejisUtils::IsTransientStatus(status)) << status;
    }
}

// The tests of the services cover each status that they tell of. They tell of none of these.
TEST(NetworkErrors, HasWordsForEveryStatus) {
    support::ScriptedHttp http;
    for (const int status : {-1, 200, 403, 404, 500, 503, 12000, 12003}) {
        http.script = {.status = status, .statusText = L"Some Reason"};
        EXPECT_EQ(support::kUnexpectedError, LejisUtils::GetNetworkErrorMessage(platform::HttpRequest::Create()));
        http.script.statusText.clear();
        EXPECT_EQ(support::NoMessageText(status), LejisUtils::GetNetworkErrorMessage(platform::HttpRequest::Create()));
    }
    http.script = {.status = 12007, .statusText = L"Some Reason"};
    EXPECT_EQ(L"Host not found.", LejisUtils::GetNetworkErrorMessage(platform::HttpRequest::Create()));
}

}  // namespace
}  // namespace lejis
