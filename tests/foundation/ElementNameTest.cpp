#include "foundation/ElementName.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

TEST(ElementName, HasTheNamespaceOfItsPrefix) {
    constexpr ElementName kNames[] = {L"soap:N", L"wsse:N", L"lejis:N", L"j:N", L"ext:N", L"card:N", L"inq:N"};
    const std::wstring_view uris[] = {
        L"http://schemas.xmlsoap.org/soap/envelope/",
        L"http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd",
        L"http://lejis.example/lejis/jxdm/1.0/service",
        L"http://www.it.ojp.gov/jxdm/3.0.3",
        L"http://lejis.example/lejis/jxdm/1.0/card/extra",
        L"http://lejis.example/lejis/jxdm/1.0/card",
        L"http://lejis.example/lejis/jxdm/1.0/service",
    };
    for (size_t index = 0; index < std::size(kNames); ++index) {
        EXPECT_EQ(uris[index], kNames[index].NamespaceUri());
        EXPECT_EQ(L"N", kNames[index].LocalName());
    }
}

TEST(ElementName, KeepsWhatStandsBehindItsPrefix) {
    EXPECT_EQ(L"IDJurisdictionCode.ncicLSTA", ElementName(L"j:IDJurisdictionCode.ncicLSTA").LocalName());
}

TEST(ElementName, HasTheSameKeyWithEachPrefixOfANamespace) {
    EXPECT_EQ(ElementName(L"lejis:Name").Key(), ElementName(L"inq:Name").Key());
    EXPECT_EQ(ElementName(L"j:Name").Key(),
              ElementName(*FindNamespace(L"http://www.it.ojp.gov/jxdm/3.0.3"), L"Name").Key());
}

TEST(ElementName, HasAnotherKeyInAnotherNamespaceAndMostlyForAnotherLocalName) {
    const ElementName name(L"j:Name");
    EXPECT_NE(name.Key(), ElementName(L"ext:Name").Key());
    EXPECT_NE(name.Key(), ElementName(L"j:Names").Key());
    EXPECT_NE(name.Key(), ElementName(L"j:Namf").Key());
    EXPECT_NE(name.Key(), ElementName(L"j:Nane").Key());
    EXPECT_EQ(name.Key(), ElementName(L"j:Nume").Key());
}

TEST(ElementName, KnowsNoOtherNamespaces) {
    for (const wchar_t* uri : {L"", L"http://www.it.ojp.gov/jxdm/3.0.4", L"http://www.it.ojp.gov/jxdm/3.0.3/"}) {
        EXPECT_EQ(std::nullopt, FindNamespace(uri));
    }
}

TEST(ElementPath, HasAStepForEachName) {
    constexpr ElementPath kOne = L"j:a";
    ASSERT_EQ(1u, kOne.Steps().size());
    constexpr ElementPath kThree = L"j:a/ext:b.c/card:d";
    ASSERT_EQ(3u, kThree.Steps().size());
    EXPECT_EQ(L"a", kThree.Steps()[0].LocalName());
    EXPECT_EQ(L"b.c", kThree.Steps()[1].LocalName());
    EXPECT_EQ(ElementName(L"card:d").Key(), kThree.Steps()[2].Key());
}

}  // namespace
}  // namespace lejis
