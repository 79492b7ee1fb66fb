#include "foundation/NodeFactory.h"

#include "platform/ComError.h"
#include "platform/Conversions.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lejis {
namespace {

using Microsoft::WRL::ComPtr;
using support::NewDocument;
using support::SameXml;

constexpr wchar_t kJxdmNamespace[] = L"http://www.it.ojp.gov/jxdm/3.0.3";
constexpr wchar_t kLejisNamespace[] = L"http://lejis.example/lejis/jxdm/1.0/service";
constexpr wchar_t kExtensionNamespace[] = L"http://lejis.example/lejis/jxdm/1.0/card/extra";

void ExpectUnattached(const msxml::Element& element) {
    ComPtr<IXMLDOMNode> parent;
    EXPECT_EQ(S_FALSE, element->get_parentNode(parent.GetAddressOf()));
    EXPECT_EQ(nullptr, parent.Get());
}

std::wstring NodeName(const msxml::Element& element) {
    BSTR name = nullptr;
    EXPECT_OK(element->get_nodeName(&name));
    return support::Take(name);
}

std::vector<std::wstring> NamesOfChildren(const msxml::Element& element) {
    std::vector<std::wstring> names;
    for (const msxml::Element& child : msxml::ChildElements(element)) names.push_back(NodeName(child));
    return names;
}

TEST(NodeFactory, CreatesAnElementWithItsPrefixAndNamespace) {
    const auto element = NodeFactory::CreateQualifiedElement(NewDocument(), L"inq:Query", kLejisNamespace);
    EXPECT_EQ(L"inq:Query", NodeName(element));
    EXPECT_TRUE(SameXml(element.Get(), L"<lejis:Query/>"));
    ExpectUnattached(element);
}

TEST(NodeFactory, CreatesATextElement) {
    const auto element =
        NodeFactory::CreateTextElement(NewDocument(), L"j:CaveatText", std::wstring(L"a < b & c"), kJxdmNamespace);
    EXPECT_EQ(L"j:CaveatText", NodeName(element));
    EXPECT_TRUE(SameXml(element.Get(), L"<j:CaveatText>a &lt; b &amp; c</j:CaveatText>"));
    ExpectUnattached(element);
}

TEST(NodeFactory, WritesTextsAsTheyAre) {
    const auto document = NewDocument();
    ASSERT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    const auto padded = NodeFactory::CreateTextElement(document, L"j:ID", std::wstring(L"  x "), kJxdmNamespace);
    EXPECT_TRUE(SameXml(padded.Get(), L"<j:ID>  x </j:ID>"));
    const auto blank = NodeFactory::CreateTextElement(document, L"j:ID", std::wstring(L" "), kJxdmNamespace);
    EXPECT_TRUE(SameXml(blank.Get(), L"<j:ID> </j:ID>"));
}

TEST(NodeFactory, WritesAnEmptyElementForNoText) {
    for (const _variant_t& value : {support::Null(), _variant_t(), _variant_t(L"")}) {
        const auto element = NodeFactory::CreateTextElement(NewDocument(), L"j:ID", value, kJxdmNamespace);
        EXPECT_TRUE(SameXml(element.Get(), L"<j:ID/>")) << V_VT(&value);
    }
    EXPECT_TRUE(SameXml(NodeFactory::CreateTextElement(NewDocument(), L"j:ID", std::wstring(), kJxdmNamespace).Get(),
                        L"<j:ID/>"));
}

TEST(NodeFactory, ConvertsValuesToText) {
    const auto text = [](const _variant_t& value) {
        return NodeFactory::CreateTextElement(NewDocument(), L"j:ID", value, kJxdmNamespace);
    };
    EXPECT_TRUE(SameXml(text(_variant_t(2004L)).Get(), L"<j:ID>2004</j:ID>"));
    EXPECT_TRUE(SameXml(text(_variant_t(short{-5})).Get(), L"<j:ID>-5</j:ID>"));
    EXPECT_TRUE(SameXml(text(_variant_t(true)).Get(), L"<j:ID>True</j:ID>"));
    EXPECT_TRUE(SameXml(text(_variant_t(L"x")).Get(), L"<j:ID>x</j:ID>"));
}

TEST(NodeFactory, WritesBooleansInLowerCase) {
    const auto flag = [](bool value) {
        return NodeFactory::CreateBooleanElement(NewDocument(), L"ext:CautionIndicatorFlag", value,
                                                 kExtensionNamespace);
    };
    EXPECT_TRUE(SameXml(flag(true).Get(), L"<ext:CautionIndicatorFlag>true</ext:CautionIndicatorFlag>"));
    EXPECT_TRUE(SameXml(flag(false).Get(), L"<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag>"));
    ExpectUnattached(flag(true));
}

TEST(NodeFactory, CreatesAnIdentifier) {
    const auto element = NodeFactory::CreateIdElement(NewDocument(), L"j:ActivityID", L"07-1234");
    EXPECT_TRUE(SameXml(element.Get(), L"<j:ActivityID><j:ID>07-1234</j:ID></j:ActivityID>"));
    EXPECT_EQ(std::vector<std::wstring>{L"j:ID"}, NamesOfChildren(element));
    ExpectUnattached(element);
    EXPECT_TRUE(SameXml(NodeFactory::CreateIdElement(NewDocument(), L"j:ActivityID", L"").Get(),
                        L"<j:ActivityID><j:ID/></j:ActivityID>"));
}

TEST(NodeFactory, CreatesAnIdentifierOfAJurisdiction) {
    const auto element =
        NodeFactory::CreateJurisdictionIdElement(NewDocument(), L"j:VehicleLicensePlateID", L"ABC1234", L"PA");
    EXPECT_TRUE(
        SameXml(element.Get(),
                L"<j:VehicleLicensePlateID><j:ID>ABC1234</j:ID>"
                L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:VehicleLicensePlateID>"));
    EXPECT_EQ((std::vector<std::wstring>{L"j:ID", L"j:IDJurisdictionCode.ncicLSTA"}), NamesOfChildren(element));
    ExpectUnattached(element);
}

TEST(NodeFactory, KeepsIdentifiersInGjxdmWhateverTheirPrefix) {
    const auto id = NodeFactory::CreateIdElement(NewDocument(), L"ext:ActivityID", L"1");
    EXPECT_EQ(L"ext:ActivityID", NodeName(id));
    EXPECT_TRUE(SameXml(id.Get(), L"<j:ActivityID><j:ID>1</j:ID></j:ActivityID>"));
    const auto jurisdiction = NodeFactory::CreateJurisdictionIdElement(NewDocument(), L"card:PlateID", L"1", L"PA");
    EXPECT_TRUE(SameXml(jurisdiction.Get(),
                        L"<j:PlateID><j:ID>1</j:ID><j:IDJurisdictionCode.ncicLSTA>PA"
                        L"</j:IDJurisdictionCode.ncicLSTA></j:PlateID>"));
}

TEST(NodeFactory, LetsErrorsOfTheDomThrough) {
    EXPECT_THROW(NodeFactory::CreateQualifiedElement(NewDocument(), L"", kJxdmNamespace), platform::ComError);
}

}  // namespace
}  // namespace lejis
