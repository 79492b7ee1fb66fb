#include "foundation/ElementWriter.h"

#include "support/ComCheck.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::NewDocument;
using support::Reparsed;
using support::SameXml;

TEST(ElementWriter, BeginsWithAnUnattachedElement) {
    const auto document = NewDocument();
    const ElementWriter writer(document, L"card:RMSVehicleIndexCards");
    EXPECT_TRUE(SameXml(writer.Element().Get(), L"<card:RMSVehicleIndexCards/>"));
    Microsoft::WRL::ComPtr<IXMLDOMElement> root;
    EXPECT_EQ(S_FALSE, document->get_documentElement(root.GetAddressOf()));
    EXPECT_EQ(document.Get(), writer.Document().Get().Get());
}

TEST(ElementWriter, WritesChildrenInTheOrderOfTheCalls) {
    ElementWriter writer(NewDocument(), L"card:r");
    writer.Boolean(L"ext:flag", true);
    writer.Id(L"j:id", L"1");
    writer.Text(L"j:text", L"2");
    ElementWriter child(writer.Document(), L"lejis:child");
    child.Text(L"ext:inner", L"3");
    writer.Child(child);
    EXPECT_TRUE(SameXml(writer.Element().Get(),
                        L"<card:r><ext:flag>true</ext:flag><j:id><j:ID>1</j:ID></j:id><j:text>2</j:text>"
                        L"<lejis:child><ext:inner>3</ext:inner></lejis:child></card:r>"));
}

TEST(ElementWriter, WritesTextsEvenWhenEmpty) {
    ElementWriter writer(NewDocument(), L"j:r");
    writer.Text(L"j:text", L"");
    writer.Id(L"j:id", L"");
    writer.Boolean(L"j:flag", false);
    writer.JurisdictionId(L"j:plate", L"", L"");
    EXPECT_TRUE(SameXml(writer.Element().Get(),
                        L"<j:r><j:text/><j:id><j:ID/></j:id><j:flag>false</j:flag>"
                        L"<j:plate><j:ID/><j:IDJurisdictionCode.ncicLSTA/></j:plate></j:r>"));
}

TEST(ElementWriter, LeavesOutOptionalChildrenWithoutText) {
    ElementWriter writer(NewDocument(), L"j:r");
    writer.OptionalText(L"j:text", L"");
    writer.OptionalId(L"j:id", L"");
    writer.OptionalMeasure(L"j:measure", L"", L"j:unit");
    writer.OptionalJurisdictionId(L"j:plate", L"", L"");
    writer.OptionalJurisdictionId(L"j:plate", L"ABC", L"");
    writer.OptionalJurisdictionId(L"j:plate", L"", L"PA");
    EXPECT_TRUE(SameXml(writer.Element().Get(), L"<j:r/>"));
}

TEST(ElementWriter, TakesBlanksForAText) {
    const auto document = NewDocument();
    ASSERT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    ElementWriter writer(document, L"j:r");
    writer.OptionalText(L"j:text", L" ");
    writer.OptionalId(L"j:id", L" ");
    writer.OptionalJurisdictionId(L"j:plate", L" ", L" ");
    EXPECT_TRUE(SameXml(writer.Element().Get(),
                        L"<j:r><j:text> </j:text><j:id><j:ID> </j:ID></j:id><j:plate><j:ID> </j:ID>"
                        L"<j:IDJurisdictionCode.ncicLSTA> </j:IDJurisdictionCode.ncicLSTA></j:plate></j:r>"));
}

TEST(ElementWriter, WritesOptionalChildrenThatHaveText) {
    ElementWriter writer(NewDocument(), L"j:r");
    writer.OptionalText(L"ext:text", L"1");
    writer.OptionalId(L"j:id", L"2");
    writer.OptionalJurisdictionId(L"j:plate", L"ABC", L"PA");
    EXPECT_TRUE(SameXml(writer.Element().Get(),
                        L"<j:r><ext:text>1</ext:text><j:id><j:ID>2</j:ID></j:id><j:plate><j:ID>ABC</j:ID>"
                        L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:plate></j:r>"));
}

TEST(ElementWriter, WritesAMeasureWithItsUnit) {
    ElementWriter writer(NewDocument(), L"card:r");
    writer.OptionalMeasure(L"j:measure", L"510", L"j:unit");
    EXPECT_TRUE(
        SameXml(Reparsed(writer.Element().Get()).Get(), L"<card:r><j:measure j:unit='ncic'>510</j:measure></card:r>"));
}

}  // namespace
}  // namespace lejis
