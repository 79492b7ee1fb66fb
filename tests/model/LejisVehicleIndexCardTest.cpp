#include "model/LejisVehicleIndexCard.h"

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

const support::Names kVehicleTexts = {L"Make", L"Model",     L"Style", L"Color", L"LicensePlate", L"LicensePlateState",
                                      L"VIN",  L"CaveatText"};

constexpr wchar_t kFullVehicle[] =
    L"<card:RMSVehicleIndexCards>"
    L"<ext:VehicleMakeText>FORD</ext:VehicleMakeText>"
    L"<j:VehicleModelCodeText>F150</j:VehicleModelCodeText>"
    L"<j:VehicleID><j:ID>1FTFW1ET5DFC10312</j:ID></j:VehicleID>"
    L"<j:VehicleModelYearDate>2004</j:VehicleModelYearDate>"
    L"<ext:VehicleStyleText>PK</ext:VehicleStyleText>"
    L"<j:VehicleColorPrimaryText>RED</j:VehicleColorPrimaryText>"
    L"<j:VehicleLicensePlateID><j:ID>ABC1234</j:ID>"
    L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:VehicleLicensePlateID>"
    L"<j:CaveatText>dented</j:CaveatText>"
    L"<ext:CautionIndicatorFlag>true</ext:CautionIndicatorFlag>"
    L"</card:RMSVehicleIndexCards>";

constexpr wchar_t kEmptyVehicle[] =
    L"<card:RMSVehicleIndexCards><ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag>"
    L"</card:RMSVehicleIndexCards>";

using Vehicle = platform::Ref<LejisVehicleIndexCard>;

Vehicle ReadVehicle(const std::wstring& xml) {
    auto card = platform::Create<LejisVehicleIndexCard>();
    card->Read(ElementReader(ParseElement(xml)));
    return card;
}

Vehicle ReadVehicleWith(const std::wstring& children) {
    return ReadVehicle(L"<card:RMSVehicleIndexCards>" + children + L"</card:RMSVehicleIndexCards>");
}

testing::AssertionResult Writes(const Vehicle& card, const std::wstring& xml) {
    const auto document = NewDocument();
    EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    return SameXml(card->Write(document).Get(), xml);
}

TEST(LejisVehicleIndexCard, HasItsMembersInTheirOrder) {
    const auto card = platform::Create<LejisVehicleIndexCard>();
    EXPECT_TRUE(support::MembersInOrder(
        card->Dispatch(), {L"Make", L"Model", L"Style", L"Color", L"LicensePlate", L"LicensePlateState", L"VIN",
                           L"CautionIndicator", L"CaveatText", L"Year", L"ToXmlElement", L"FromXmlElement"}));
}

TEST(LejisVehicleIndexCard, KeepsWhatItsFieldsAreGiven) {
    const auto card = platform::Create<LejisVehicleIndexCard>();
    support::ExpectTextFields(card->Dispatch(), kVehicleTexts);
    support::ExpectFlagField(card->Dispatch(), L"CautionIndicator");
    EXPECT_EQ(std::nullopt, card->Year->Number());
}

TEST(LejisVehicleIndexCard, WritesOnlyTheFlagWhenNew) {
    EXPECT_TRUE(Writes(platform::Create<LejisVehicleIndexCard>(), kEmptyVehicle));
}

TEST(LejisVehicleIndexCard, WritesAllFieldsInTheirOrder) {
    const auto card = platform::Create<LejisVehicleIndexCard>();
    card->Make = L"FORD";
    card->Model = L"F150";
    card->Style = L"PK";
    card->Color = L"RED";
    card->LicensePlate = L"ABC1234";
    card->LicensePlateState = L"PA";
    card->VIN = L"1FTFW1ET5DFC10312";
    card->CautionIndicator = true;
    card->CaveatText = L"dented";
    card->Year->Set(short{2004});
    EXPECT_TRUE(Writes(card, kFullVehicle));
    EXPECT_TRUE(Writes(card, kFullVehicle));
}

TEST(LejisVehicleIndexCard, WritesThePlateOnlyWithItsState) {
    const auto card = platform::Create<LejisVehicleIndexCard>();
    card->LicensePlate = L"ABC1234";
    EXPECT_TRUE(Writes(card, kEmptyVehicle));
    card->LicensePlate = L"";
    card->LicensePlateState = L"PA";
    EXPECT_TRUE(Writes(card, kEmptyVehicle));
}

TEST(LejisVehicleIndexCard, WritesBlanksAsContent) {
    const auto card = platform::Create<LejisVehicleIndexCard>();
    card->Make = L" ";
    card->VIN = L"  ";
    EXPECT_TRUE(Writes(card,
                       L"<card:RMSVehicleIndexCards><ext:VehicleMakeText> </ext:VehicleMakeText>"
                       L"<j:VehicleID><j:ID>  </j:ID></j:VehicleID>"
                       L"<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag></card:RMSVehicleIndexCards>"));
}

TEST(LejisVehicleIndexCard, ReadsAllFields) {
    const Vehicle card = ReadVehicle(kFullVehicle);
    EXPECT_EQ(L"FORD", card->Make);
    EXPECT_EQ(L"F150", card->Model);
    EXPECT_EQ(L"PK", card->Style);
    EXPECT_EQ(L"RED", card->Color);
    EXPECT_EQ(L"ABC1234", card->LicensePlate);
    EXPECT_EQ(L"PA", card->LicensePlateState);
    EXPECT_EQ(L"1FTFW1ET5DFC10312", card->VIN);
    EXPECT_TRUE(card->CautionIndicator);
    EXPECT_EQ(L"dented", card->CaveatText);
    EXPECT_EQ(short{2004}, card->Year->Number());
    EXPECT_TRUE(Writes(card, kFullVehicle));
}

TEST(LejisVehicleIndexCard, ClearsWhatTheElementLacks) {
    const Vehicle card = ReadVehicle(kFullVehicle);
    const auto yearBefore = card->Year;
    card->Read(ElementReader(ParseElement(L"<card:RMSVehicleIndexCards/>")));
    support::ExpectEmptyTexts(card->Dispatch(), kVehicleTexts);
    EXPECT_FALSE(card->CautionIndicator);
    EXPECT_EQ(std::nullopt, card->Year->Number());
    EXPECT_NE(yearBefore.Get(), card->Year.Get());
    EXPECT_EQ(short{2004}, yearBefore->Number());
}

TEST(LejisVehicleIndexCard, LeavesYearNullWhenItsTextIsNotAShortNumber) {
    for (const wchar_t* text : {L"abc", L"40000", L"32768", L"", L"2004-01-01"}) {
        const Vehicle card = ReadVehicleWith(std::wstring(L"<j:VehicleModelYearDate>") + text +
                                             L"</j:VehicleModelYearDate>" + L"<j:CaveatText>after</j:CaveatText>");
        EXPECT_EQ(std::nullopt, card->Year->Number()) << support::Utf8(text);
        EXPECT_EQ(L"after", card->CaveatText) << support::Utf8(text);
    }
}

TEST(LejisVehicleIndexCard, RoundsTheYearItReads) {
    EXPECT_EQ(short{2004}, ReadVehicleWith(L"<j:VehicleModelYearDate>2004.5</j:VehicleModelYearDate>")->Year->Number());
    EXPECT_EQ(short{2006}, ReadVehicleWith(L"<j:VehicleModelYearDate>2005.5</j:VehicleModelYearDate>")->Year->Number());
}

TEST(LejisVehicleIndexCard, ReadsTheFlagInAnyLetterCaseAndIgnoresOtherTexts) {
    const auto flag = [](const wchar_t* text) {
        return ReadVehicleWith(std::wstring(L"<ext:CautionIndicatorFlag>") + text + L"</ext:CautionIndicatorFlag>")
            ->CautionIndicator;
    };
    for (const wchar_t* text : {L"true", L"TRUE", L"1", L"-1"}) EXPECT_TRUE(flag(text)) << support::Utf8(text);
    for (const wchar_t* text : {L"false", L"0", L"yes", L""}) EXPECT_FALSE(flag(text)) << support::Utf8(text);
}

TEST(LejisVehicleIndexCard, ReadsEachFieldFromItsOwnNamespace) {
    const Vehicle card = ReadVehicleWith(
        L"<j:VehicleMakeText>x</j:VehicleMakeText><ext:VehicleModelCodeText>x"
        L"</ext:VehicleModelCodeText><j:VehicleStyleText>x</j:VehicleStyleText>"
        L"<ext:CaveatText>x</ext:CaveatText><j:CautionIndicatorFlag>true"
        L"</j:CautionIndicatorFlag><j:VehicleID>x</j:VehicleID>");
    support::ExpectEmptyTexts(card->Dispatch(), kVehicleTexts);
    EXPECT_FALSE(card->CautionIndicator);
}

TEST(LejisVehicleIndexCard, ConvertsForClientsToAndFromElements) {
    const auto card = platform::Create<LejisVehicleIndexCard>();
    Microsoft::WRL::ComPtr<IDispatch> element;
    EXPECT_OK(card->FromXmlElement(ParseElement(kFullVehicle).Get()));
    EXPECT_OK(card->ToXmlElement(NewDocument().Get(), element.GetAddressOf()));
    EXPECT_TRUE(SameXml(element.Get(), kFullVehicle));
    EXPECT_TRUE(FailedWith(card->FromXmlElement(nullptr), support::kInvalidArgument, L"elem cannot be Nothing"));
    EXPECT_TRUE(FailedWith(card->ToXmlElement(nullptr, element.ReleaseAndGetAddressOf()), support::kObjectRequired,
                           L"Object required"));
    EXPECT_EQ(E_POINTER, card->ToXmlElement(NewDocument().Get(), nullptr));
}

}  // namespace
}  // namespace lejis
