#include "platform/http/Exchange.h"

#include "platform/ComError.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(Exchange, HasTheAnswerOfItsRequest) {
    const support::ScriptedHttp http(
        {.status = 500, .statusText = L"No", .responseText = L"<a/>", .contentType = L"x/y"});
    const Exchange exchange(HttpRequest::Create());
    EXPECT_EQ(500, exchange.Status());
    EXPECT_EQ(L"No", exchange.StatusText());
    EXPECT_EQ(L"x/y", exchange.ContentType());
    EXPECT_EQ(L"<a/>", exchange.ResponseText());
    EXPECT_EQ("<a/>", exchange.Bytes().View());
    EXPECT_TRUE(support::SameXml(exchange.ResponseXml().Get(), L"<a/>"));
}

TEST(Exchange, AsksTheRequestOnce) {
    const support::ScriptedHttp http({.responseText = L"<a/>"});
    const Exchange exchange(HttpRequest::Create());
    EXPECT_EQ(0, http.Last().Seen().asksForStatus);
    EXPECT_EQ(0, http.Last().Seen().asksForDocument);
    for (int time = 0; time < 3; ++time) {
        exchange.Status();
        EXPECT_EQ(exchange.ResponseXml(), exchange.ResponseXml());
    }
    EXPECT_EQ(1, http.Last().Seen().asksForStatus);
    EXPECT_EQ(1, http.Last().Seen().asksForDocument);
}

TEST(Exchange, AsksOnceForWhatIsNotThere) {
    const support::ScriptedHttp http({.hasResponseXml = false});
    const Exchange exchange(HttpRequest::Create());
    for (int time = 0; time < 3; ++time) EXPECT_EQ(nullptr, exchange.ResponseXml());
    EXPECT_EQ(1, http.Last().Seen().asksForDocument);
}

TEST(Exchange, KeepsTheRequestThatItWasMadeOf) {
    support::ScriptedHttp http({.status = 200});
    HttpRequest request = HttpRequest::Create();
    const Exchange exchange(request);
    http.script.status = 500;
    request = HttpRequest::Create();
    EXPECT_EQ(200, exchange.Status());
}

TEST(Exchange, HasNoBytesWhereTheRequestGivesNone) {
    const support::ScriptedHttp http({.contentType = L"", .hasResponseBody = false});
    const Exchange exchange(HttpRequest::Create());
    EXPECT_FALSE(exchange.Bytes());
    EXPECT_EQ(L"", exchange.ContentType());
    // No failure stays for the client to find.
    Microsoft::WRL::ComPtr<IErrorInfo> left;
    EXPECT_EQ(S_FALSE, GetErrorInfo(0, left.GetAddressOf()));
}

TEST(Exchange, OfNoRequestRaises) {
    const Exchange exchange{HttpRequest()};
    EXPECT_TRUE(support::Raises(support::kObjectRequired, L"Object required", [&] { exchange.Status(); }));
}

TEST(ResponseBytes, AreTakenFromAnArrayOfBytesAlone) {
    VARIANT text;
    V_VT(&text) = VT_BSTR;
    V_BSTR(&text) = SysAllocString(L"<a/>");
    EXPECT_FALSE(ResponseBytes(text));
    VARIANT words;
    V_VT(&words) = VT_ARRAY | VT_UI2;
    V_ARRAY(&words) = SafeArrayCreateVector(VT_UI2, 0, 4);
    EXPECT_FALSE(ResponseBytes(words));
    SAFEARRAYBOUND bounds[] = {{2, 0}, {3, 0}};
    VARIANT table;
    V_VT(&table) = VT_ARRAY | VT_UI1;
    V_ARRAY(&table) = SafeArrayCreate(VT_UI1, 2, bounds);
    EXPECT_FALSE(ResponseBytes(table));
    VARIANT empty;
    VariantInit(&empty);
    EXPECT_FALSE(ResponseBytes(empty));
}

}  // namespace
}  // namespace platform
