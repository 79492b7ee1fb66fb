#include "foundation/LejisUtils.h"

#include "model/LejisVehicleIndexCard.h"
#include "platform/ComError.h"
#include "platform/http/Exchange.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/ServiceTexts.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <climits>

namespace lejis {
namespace {

using LejisUtils::GetChildText;
using support::Null;
using support::ParseElement;
using support::Raises;

// An element whose document can be queried with the library's prefixes.
msxml::Element Queryable(const wchar_t* xml) {
    const msxml::Element element = ParseElement(xml);
    LejisUtils::SetSelectionNamespaces(msxml::OwnerDocument(element));
    return element;
}

_variant_t PropertyOf(const msxml::Document& document, const wchar_t* name) {
    _variant_t value;
    EXPECT_OK(document->getProperty(support::Bstr(name), &value));
    return value;
}

TEST(LejisUtils, ReadsTheTextOfTheFirstNodeSelected) {
    const auto element = Queryable(L"<r><j:A>1<j:B>2</j:B></j:A><j:A>3</j:A></r>");
    EXPECT_EQ(_variant_t(L"12"), GetChildText(element, L"j:A", Null()));
    EXPECT_EQ(_variant_t(L"2"), GetChildText(element, L"j:A/j:B", Null()));
    EXPECT_EQ(_variant_t(L"3"), GetChildText(element, L"j:A[2]", Null()));
}

TEST(LejisUtils, ReadsAnEmptyElementAsAnEmptyText) {
    const auto element = Queryable(L"<r><j:A/></r>");
    EXPECT_EQ(_variant_t(L""), GetChildText(element, L"j:A", _variant_t(L"otherwise")));
}

TEST(LejisUtils, ReturnsTheDefaultAsItIsWhenNothingIsSelected) {
    const auto element = Queryable(L"<r><j:A/></r>");
    EXPECT_EQ(Null(), GetChildText(element, L"j:B", Null()));
    EXPECT_EQ(_variant_t(L""), GetChildText(element, L"j:B", _variant_t(L"")));
    EXPECT_EQ(_variant_t(7L), GetChildText(element, L"ext:A", _variant_t(7L)));
}

TEST(LejisUtils, RaisesWithoutAnElement) {
    EXPECT_TRUE(Raises(support::kInvalidArgument, L"elem cannot be Nothing",
                       [] { GetChildText(nullptr, L"j:A", _variant_t(L"otherwise")); }));
    EXPECT_TRUE(
        Raises(support::kInvalidArgument, L"elem cannot be Nothing", [] { LejisUtils::RequireElement(nullptr); }));
    EXPECT_NO_THROW(LejisUtils::RequireElement(ParseElement(L"<r/>")));
}

TEST(LejisUtils, AsksTheHostForTheNumberOfAnInvalidArgument) {
    const support::TestHost host;
    EXPECT_TRUE(Raises(host.errorNumber, L"elem cannot be Nothing", [] { LejisUtils::RequireElement(nullptr); }));
    EXPECT_EQ((std::vector<long>{5}), host.errorKinds);
}

TEST(LejisUtils, LetsErrorsOfAnExpressionThrough) {
    const auto element = Queryable(L"<r/>");
    EXPECT_THROW(GetChildText(element, L"j:A[", Null()), platform::ComError);
    EXPECT_THROW(GetChildText(element, L"unknown:A", Null()), platform::ComError);
}

TEST(LejisUtils, DeclaresThePrefixesInTheirOrder) {
    const auto document = support::NewDocument();
    LejisUtils::SetSelectionNamespaces(document);
    EXPECT_EQ(_variant_t(L"XPath"), PropertyOf(document, L"SelectionLanguage"));
    EXPECT_EQ(_variant_t(L"xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/' "
                         L"xmlns:wsse='http://docs.oasis-open.org/wss/2004/01/"
                         L"oasis-200401-wss-wssecurity-secext-1.0.xsd' "
                         L"xmlns:lejis='http://lejis.example/lejis/jxdm/1.0/service' "
                         L"xmlns:j='http://www.it.ojp.gov/jxdm/3.0.3' "
                         L"xmlns:ext='http://lejis.example/lejis/jxdm/1.0/card/extra' "
                         L"xmlns:card='http://lejis.example/lejis/jxdm/1.0/card' "
                         L"xmlns:inq='http://lejis.example/lejis/jxdm/1.0/service'"),
              PropertyOf(document, L"SelectionNamespaces"));
}

TEST(LejisUtils, MakesARequestAndItsPartsSelectable) {
    const auto document =
        support::Parse(L"<soap:Envelope><soap:Body><lejis:Query>q</lejis:Query></soap:Body></soap:Envelope>");
    LejisUtils::SetSelectionNamespaces(document);
    EXPECT_NE(nullptr, msxml::SelectNode(document, L"soap:Envelope/soap:Body").Get());
    for (const wchar_t* expression : {L"//lejis:Query", L"//inq:Query"}) {
        const auto query = msxml::SelectNode(document, expression);
        ASSERT_NE(nullptr, query.Get());
        EXPECT_EQ(L"q", msxml::Text(query));
    }
}

TEST(LejisUtils, TakesTheElementOfAClientAndMakesItSelectable) {
    const auto element = ParseElement(L"<r><card:A>1</card:A></r>");
    const auto taken = LejisUtils::ElementToRead(element.Get());
    EXPECT_EQ(L"1", msxml::Text(msxml::SelectNode(taken, L"card:A")));
}

TEST(LejisUtils, TakesNothingElseForAnElement) {
    EXPECT_TRUE(
        Raises(support::kInvalidArgument, L"elem cannot be Nothing", [] { LejisUtils::ElementToRead(nullptr); }));
    const auto card = platform::Create<LejisVehicleIndexCard>();
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] { LejisUtils::ElementToRead(card->Dispatch()); }));
}

TEST(LejisUtils, KnowsAfterWhichStatusTryingAgainMayHelp) {
    for (const long status : {0L, 400L, 408L, 502L, 504L, 12001L, 12002L, 12019L, 12029L, 99999L, LONG_MAX}) {
        EXPECT_TRUE(LejisUtils::IsTransientStatus(status)) << status;
    }
    for (const long status :
         {LONG_MIN, -1L, 1L, 200L, 399L, 401L, 403L, 404L, 407L, 409L, 500L, 501L, 503L, 505L, 11999L, 12000L}) {
        EXPECT_FALSE(LejisUtils::IsTransientStatus(status)) << status;
    }
}

// What the services tell of each status stands in their own tests; these are told by none of them.
TEST(LejisUtils, HasWordsForEveryStatus) {
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
