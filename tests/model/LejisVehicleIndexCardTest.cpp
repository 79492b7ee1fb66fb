#include "model/LejisVehicleIndexCard.h"

#include "support/ComCheck.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::NewDocument;
using support::ParseElement;
using support::SameXml;

Microsoft::WRL::ComPtr<LejisVehicleIndexCard> Read(const std::wstring& xml) {
    auto card = platform::Create<LejisVehicleIndexCard>();
    card->FromXmlElement(ParseElement(xml));
    return card;
}

TEST(LejisVehicleIndexCard, WritesOnlyTheFlagWhenNew) {
    const auto card = platform::Create<LejisVehicleIndexCard>();
    EXPECT_TRUE(SameXml(card->ToXmlElement(NewDocument()).Get(),
                        L"<card:RMSVehicleIndexCards><ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag>"
                        L"</card:RMSVehicleIndexCards>"));
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
    EXPECT_TRUE(SameXml(card->ToXmlElement(NewDocument()).Get(),
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
                        L"</card:RMSVehicleIndexCards>"));
}

TEST(LejisVehicleIndexCard, LeavesYearNullWhenItsTextIsNoShortNumber) {
    for (const wchar_t* text : {L"abc", L"40000", L""}) {
        const auto card = Read(std::wstring(L"<card:RMSVehicleIndexCards><j:VehicleModelYearDate>") + text +
                               L"</j:VehicleModelYearDate></card:RMSVehicleIndexCards>");
        EXPECT_EQ(std::nullopt, card->Year->Number()) << text;
    }
}

}  // namespace
}  // namespace lejis
