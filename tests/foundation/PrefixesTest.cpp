#include "foundation/ElementName.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace lejis {
namespace {

struct PrefixRow {
    const wchar_t* prefix;
    const wchar_t* uri;
};

constexpr PrefixRow kPrefixRows[] = {
    {L"soap", L"http://schemas.xmlsoap.org/soap/envelope/"},
    {L"wsse", L"http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd"},
    {L"lejis", L"http://lejis.example/lejis/jxdm/1.0/service"},
    {L"j", L"http://www.it.ojp.gov/jxdm/3.0.3"},
    {L"ext", L"http://lejis.example/lejis/jxdm/1.0/card/extra"},
    {L"card", L"http://lejis.example/lejis/jxdm/1.0/card"},
    {L"inq", L"http://lejis.example/lejis/jxdm/1.0/service"},
};

TEST(Prefixes, FindTheNamespaceOfAName) {
    for (const PrefixRow& row : kPrefixRows) {
        const std::wstring name = std::wstring(row.prefix) + L":Local.Name";
        EXPECT_EQ(row.uri, NamespaceOf(name));
    }
}

TEST(Prefixes, NumberTheirNamespacesByTheFirstPrefixOfEach) {
    for (const PrefixRow& row : kPrefixRows) {
        const auto number = FindNamespace(row.uri);
        ASSERT_TRUE(number) << support::Utf8(row.uri);
        EXPECT_EQ(row.uri, std::wstring_view(Constants::kPrefixes[*number].uri));
    }
    EXPECT_EQ(NamespaceNumber{2}, FindNamespace(NamespaceOf(L"inq:Name")));
    for (const wchar_t* uri : {L"", L"http://www.it.ojp.gov/jxdm/3.0.4", L"http://www.it.ojp.gov/jxdm/3.0.3/"}) {
        EXPECT_EQ(std::nullopt, FindNamespace(uri)) << support::Utf8(uri);
    }
}

TEST(Prefixes, RefuseNamesWithoutAKnownPrefix) {
    for (const wchar_t* name : {L"", L"Name", L":Name", L"xsd:Name", L"J:Name", L"lejis2:Name"}) {
        EXPECT_THROW(NamespaceOf(name), std::logic_error) << support::Utf8(name);
    }
}

}  // namespace
}  // namespace lejis
