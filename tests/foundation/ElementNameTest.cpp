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

TEST(ElementName, KeepsTheLocalNameAfterItsPrefix) {
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

}  // namespace
}  // namespace lejis
