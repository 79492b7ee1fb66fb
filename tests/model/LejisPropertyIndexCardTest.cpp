#include "model/LejisPropertyIndexCard.h"

#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::FailedWith;
using support::NewDocument;
using support::ParseElement;
using support::SameXml;

const support::Names kPropertyTexts = {L"NibrsCategoryCode", L"Category",  L"Make", L"Model",
                                       L"SerialID",          L"CaveatText"};

constexpr wchar_t kFullProperty[] =
    L"<card:RMSPropertyIndexCards>"
    L"<j:PropertyCategoryCode.nibrsPropertyCategory>26</j:PropertyCategoryCode.nibrsPropertyCategory>"
    L"<j:PropertyTypeText>TELEVISION</j:PropertyTypeText>"
    L"<j:PropertyMakeName>SONY</j:PropertyMakeName>"
    L"<j:PropertyModelName>BRAVIA</j:PropertyModelName>"
    L"<j:PropertySerialID><j:ID>S-1</j:ID></j:PropertySerialID>"
    L"<j:CaveatText>scratched</j:CaveatText>"
    L"<ext:CautionIndicatorFlag>true</ext:CautionIndicatorFlag>"
    L"</card:RMSPropertyIndexCards>";

constexpr wchar_t kEmptyProperty[] =
    L"<card:RMSPropertyIndexCards><ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag>"
    L"</card:RMSPropertyIndexCards>";

using Property = platform::Ref<LejisPropertyIndexCard>;

Property ReadProperty(const std::wstring& xml) {
    auto card = platform::Create<LejisPropertyIndexCard>();
    card->Read(ElementReader(ParseElement(xml)));
    return card;
}

testing::AssertionResult Writes(const Property& card, const std::wstring& xml) {
    const auto document = NewDocument();
    EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    return SameXml(card->Write(document).Get(), xml);
}

void ExpectEmpty(const Property& card) {
    support::ExpectEmptyTexts(card->Dispatch(), kPropertyTexts);
    EXPECT_FALSE(card->CautionIndicator);
}

TEST(LejisPropertyIndexCard, HasItsMembersInTheirOrder) {
    const auto card = platform::Create<LejisPropertyIndexCard>();
    EXPECT_TRUE(support::MembersInOrder(
        card->Dispatch(), {L"NibrsCategoryCode", L"Category", L"Make", L"Model", L"SerialID", L"CautionIndicator",
                           L"CaveatText", L"LoadDefaults", L"ToXmlElement", L"FromXmlElement"}));
}

TEST(LejisPropertyIndexCard, KeepsWhatItsFieldsAreGiven) {
    const auto card = platform::Create<LejisPropertyIndexCard>();
    support::ExpectTextFields(card->Dispatch(), kPropertyTexts);
    support::ExpectFlagField(card->Dispatch(), L"CautionIndicator");
}

TEST(LejisPropertyIndexCard, IsEmptiedByLoadDefaults) {
    const Property card = ReadProperty(kFullProperty);
    EXPECT_OK(card->LoadDefaults());
    ExpectEmpty(card);
}

TEST(LejisPropertyIndexCard, WritesOnlyTheFlagWhenNew) {
    EXPECT_TRUE(Writes(platform::Create<LejisPropertyIndexCard>(), kEmptyProperty));
}

TEST(LejisPropertyIndexCard, WritesAllFieldsInTheirOrder) {
    const auto card = platform::Create<LejisPropertyIndexCard>();
    card->NibrsCategoryCode = L"26";
    card->Category = L"TELEVISION";
    card->Make = L"SONY";
    card->Model = L"BRAVIA";
    card->SerialID = L"S-1";
    card->CaveatText = L"scratched";
    card->CautionIndicator = true;
    EXPECT_TRUE(Writes(card, kFullProperty));
    EXPECT_TRUE(Writes(card, kFullProperty));
}

TEST(LejisPropertyIndexCard, WritesBlanksAsContent) {
    const auto card = platform::Create<LejisPropertyIndexCard>();
    card->Make = L" ";
    card->SerialID = L" ";
    EXPECT_TRUE(Writes(card,
                       L"<card:RMSPropertyIndexCards><j:PropertyMakeName> </j:PropertyMakeName>"
                       L"<j:PropertySerialID><j:ID> </j:ID></j:PropertySerialID>"
                       L"<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag></card:RMSPropertyIndexCards>"));
}

TEST(LejisPropertyIndexCard, ReadsAllFields) {
    const Property card = ReadProperty(kFullProperty);
    EXPECT_EQ(L"26", card->NibrsCategoryCode);
    EXPECT_EQ(L"TELEVISION", card->Category);
    EXPECT_EQ(L"SONY", card->Make);
    EXPECT_EQ(L"BRAVIA", card->Model);
    EXPECT_EQ(L"S-1", card->SerialID);
    EXPECT_EQ(L"scratched", card->CaveatText);
    EXPECT_TRUE(card->CautionIndicator);
    EXPECT_TRUE(Writes(card, kFullProperty));
}

TEST(LejisPropertyIndexCard, ClearsWhatTheElementLacks) {
    const Property card = ReadProperty(kFullProperty);
    card->Read(ElementReader(ParseElement(L"<card:RMSPropertyIndexCards/>")));
    ExpectEmpty(card);
}

TEST(LejisPropertyIndexCard, ReadsTheFlagInAnyLetterCaseAndIgnoresOtherTexts) {
    const auto flag = [](const wchar_t* text) {
        return ReadProperty(std::wstring(L"<card:RMSPropertyIndexCards><ext:CautionIndicatorFlag>") + text +
                            L"</ext:CautionIndicatorFlag></card:RMSPropertyIndexCards>")
            ->CautionIndicator;
    };
    for (const wchar_t* text : {L"true", L"True", L"2"}) EXPECT_TRUE(flag(text)) << support::Utf8(text);
    for (const wchar_t* text : {L"False", L"0", L"yes", L""}) EXPECT_FALSE(flag(text)) << support::Utf8(text);
}

TEST(LejisPropertyIndexCard, ReadsEachFieldFromItsOwnNamespace) {
    ExpectEmpty(
        ReadProperty(L"<card:RMSPropertyIndexCards><ext:PropertyTypeText>x</ext:PropertyTypeText>"
                     L"<ext:PropertyMakeName>x</ext:PropertyMakeName><PropertyModelName>x</PropertyModelName>"
                     L"<j:PropertySerialID>x</j:PropertySerialID><card:CaveatText>x</card:CaveatText>"
                     L"<j:CautionIndicatorFlag>true</j:CautionIndicatorFlag></card:RMSPropertyIndexCards>"));
}

TEST(LejisPropertyIndexCard, ConvertsForClientsToAndFromElements) {
    const auto card = platform::Create<LejisPropertyIndexCard>();
    Microsoft::WRL::ComPtr<IDispatch> element;
    EXPECT_OK(card->FromXmlElement(ParseElement(kFullProperty).Get()));
    EXPECT_OK(card->ToXmlElement(NewDocument().Get(), element.GetAddressOf()));
    EXPECT_TRUE(SameXml(element.Get(), kFullProperty));
    EXPECT_TRUE(FailedWith(card->FromXmlElement(nullptr), support::kInvalidArgument, L"elem cannot be Nothing"));
    EXPECT_TRUE(FailedWith(card->ToXmlElement(nullptr, element.ReleaseAndGetAddressOf()), support::kObjectRequired,
                           L"Object required"));
}

}  // namespace
}  // namespace lejis
