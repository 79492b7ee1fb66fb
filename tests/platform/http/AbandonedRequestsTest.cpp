#include "platform/http/AbandonedRequests.h"

#include "platform/http/HttpRequest.h"
#include "support/ComCheck.h"
#include "unit_support/ScriptedRequest.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::ScriptedRequest;

namespace platform {
namespace {

// How many hold the request beside the test.
unsigned long HoldersOf(ScriptedRequest& request) {
    request.AddRef();
    return request.Release() - 1;
}

TEST(AbandonedRequests, AreHeldUntilTheyAreComplete) {
    const support::ScriptedHttp http;
    const auto request = Create<ScriptedRequest>(support::Script{.readyStates = {1, 4}});
    EXPECT_OK(request->open(support::Bstr(L"GET"), nullptr, _variant_t(true), _variant_t(), _variant_t()));
    HoldUntilComplete(ComPtr<IXMLHTTPRequest>(request.Get()));
    ReleaseCompleteRequests();
    EXPECT_EQ(1u, HoldersOf(*request.Get()));
    request->Advance();
    EXPECT_EQ(1u, HoldersOf(*request.Get())) << "not released inside of what the connection calls";
    HttpRequest::Create();
    EXPECT_EQ(0u, HoldersOf(*request.Get()));
}

TEST(AbandonedRequests, AreNotHeldWhenTheyAreCompleteAlready) {
    const auto request = Create<ScriptedRequest>(support::Script{});
    HoldUntilComplete(ComPtr<IXMLHTTPRequest>(request.Get()));
    EXPECT_EQ(0u, HoldersOf(*request.Get()));
}

}  // namespace
}  // namespace platform
