#include "foundation/QueryPrefixes.h"

#include "model/LejisVehicleIndexCard.h"
#include "platform/ComError.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

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

TEST(QueryPrefixes, ReadsTheTextOfTheFirstNodeSelected) {
    const auto element = Queryable(L"<r><j:A>1<j:B>2</j:B></j:A><j:A>3</j:A></r>");
    EXPECT_EQ(_variant_t(L"12"), GetChildText(element, L"j:A", Null()));
    EXPECT_EQ(_variant_t(L"2"), GetChildText(element, L"j:A/j:B", Null()));
    EXPECT_EQ(_variant_t(L"3"), GetChildText(element, L"j:A[2]", Null()));
}

TEST(QueryPrefixes, ReadsAnEmptyElementAsAnEmptyText) {
    const auto element = Queryable(L"<r><j:A/></r>");
    EXPECT_EQ(_variant_t(L""), GetChildText(element, L"j:A", _variant_t(L"otherwise")));
}

TEST(QueryPrefixes, ReturnsTheDefaultAsItIsWhenNothingIsSelected) {
    const auto element = Queryable(L"<r><j:A/></r>");
    EXPECT_EQ(Null(), GetChildText(element, L"j:B", Null()));
    EXPECT_EQ(_variant_t(L""), GetChildText(element, L"j:B", _variant_t(L"")));
    EXPECT_EQ(_variant_t(7L), GetChildText(element, L"ext:A", _variant_t(7L)));
}

TEST(QueryPrefixes, RaisesWithoutAnElement) {
    EXPECT_TRUE(Raises(support::kInvalidArgument, L"elem cannot be Nothing",
                       [] { GetChildText(nullptr, L"j:A", _variant_t(L"otherwise")); }));
    EXPECT_TRUE(
        Raises(support::kInvalidArgument, L"elem cannot be Nothing", [] { LejisUtils::RequireElement(nullptr); }));
    EXPECT_NO_THROW(LejisUtils::RequireElement(ParseElement(L"<r/>")));
}

TEST(QueryPrefixes, AsksTheHostForTheNumberOfAnInvalidArgument) {
    const support::TestHost host;
    EXPECT_TRUE(Raises(host.errorNumber, L"elem cannot be Nothing", [] { LejisUtils::RequireElement(nullptr); }));
    EXPECT_EQ((std::vector<long>{5}), host.errorKinds);
}

TEST(QueryPrefixes, LetsErrorsOfAnExpressionThrough) {
    const auto element = Queryable(L"<r/>");
    EXPECT_THROW(GetChildText(element, L"j:A[", Null()), platform::ComError);
    EXPECT_THROW(GetChildText(element, L"unknown:A", Null()), platform::ComError);
}

TEST(QueryPrefixes, DeclaresThePrefixesInTheirOrder) {
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

TEST(QueryPrefixes, MakesARequestAndItsPartsSelectable) {
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

TEST(QueryPrefixes, TakesTheElementOfAClientAndMakesItSelectable) {
    const auto element = ParseElement(L"<r><card:A>1</card:A></r>");
    const auto taken = LejisUtils::ElementToRead(element.Get());
    EXPECT_EQ(L"1", msxml::Text(msxml::SelectNode(taken, L"card:A")));
}

TEST(QueryPrefixes, TakesNothingElseForAnElement) {
    EXPECT_TRUE(
        Raises(support::kInvalidArgument, L"elem cannot be Nothing", [] { LejisUtils::ElementToRead(nullptr); }));
    const auto card = platform::Create<LejisVehicleIndexCard>();
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] { LejisUtils::ElementToRead(card->Dispatch()); }));
}

}  // namespace
}  // namespace lejis
