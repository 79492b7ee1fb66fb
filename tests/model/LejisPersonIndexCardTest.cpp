// The card's members and what it writes; what it reads stands in LejisPersonIndexCardReadingTest.cpp.
#include "model/LejisPersonIndexCard.h"

#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::NewDocument;
using support::Reparsed;
using support::SameXml;

using Person = platform::Ref<LejisPersonIndexCard>;

constexpr wchar_t kOrganization[] =
    L"<j:IncidentJurisdictionalOrganization><j:OrganizationName/></j:IncidentJurisdictionalOrganization>";
constexpr wchar_t kResidence[] =
    L"<j:Residence><j:LocationAddress><j:LocationStreet><j:StreetFullText/><j:StreetNumberText/>"
    L"<j:StreetPredirectionalText/><j:StreetName/><j:StreetTypeText/><j:StreetPostdirectionalText/>"
    L"<j:StreetExtensionText/></j:LocationStreet><j:LocationCityName/></j:LocationAddress></j:Residence>";
constexpr wchar_t kFlag[] = L"<ext:CautionIndicatorFlag>false</ext:CautionIndicatorFlag>";

// A card that is empty except for these children, which follow the residence.
std::wstring CardWith(const std::wstring& children) {
    return std::wstring(L"<card:RMSPersonIndexCards>") + kOrganization + kResidence + children + kFlag +
           L"</card:RMSPersonIndexCards>";
}

testing::AssertionResult Writes(const Person& card, const std::wstring& xml) {
    const auto document = NewDocument();
    EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    return SameXml(Reparsed(card->Write(document).Get()).Get(), xml);
}

TEST(LejisPersonIndexCard, HasItsMembersInTheirOrder) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    EXPECT_TRUE(support::MembersInOrder(card->Dispatch(), {L"OrganizationName",
                                                           L"GivenName",
                                                           L"MiddleName",
                                                           L"SurName",
                                                           L"SSN",
                                                           L"DriversLicense",
                                                           L"DriversLicenseState",
                                                           L"SexNCIC",
                                                           L"RaceNCIC",
                                                           L"ChargeNCICCode",
                                                           L"ChargeDescriptionText",
                                                           L"SubjectCautionInformationCode",
                                                           L"SubjectCautionInformationCaveat",
                                                           L"CaveatText",
                                                           L"Involvement",
                                                           L"CautionIndicator",
                                                           L"address",
                                                           L"BirthDate",
                                                           L"Height",
                                                           L"Weight",
                                                           L"ToXmlElement",
                                                           L"FromXmlElement"}));
}

TEST(LejisPersonIndexCard, KeepsWhatItsFieldsAreGiven) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    support::ExpectTextFields(
        card->Dispatch(),
        {L"OrganizationName", L"GivenName", L"MiddleName", L"SurName", L"SSN", L"DriversLicense",
         L"DriversLicenseState", L"SexNCIC", L"RaceNCIC", L"ChargeNCICCode", L"ChargeDescriptionText",
         L"SubjectCautionInformationCode", L"SubjectCautionInformationCaveat", L"CaveatText", L"Involvement"});
    support::ExpectFlagField(card->Dispatch(), L"CautionIndicator");
}

TEST(LejisPersonIndexCard, OwnsEmptyPartsWhenNew) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    EXPECT_EQ(std::nullopt, card->BirthDate->Date());
    EXPECT_EQ(std::nullopt, card->Height->Number());
    EXPECT_EQ(std::nullopt, card->Weight->Number());
    EXPECT_EQ(L"", card->address->City);
    EXPECT_NE(card->Height.Get(), card->Weight.Get());
}

TEST(LejisPersonIndexCard, KeepsTheSpellingOfItsAddress) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    Microsoft::WRL::ComPtr<ITypeInfo> information;
    ASSERT_OK(card->GetTypeInfo(0, LOCALE_USER_DEFAULT, information.GetAddressOf()));
    const wchar_t* anySpelling = L"ADDRESS";
    MEMBERID member = 0;
    ASSERT_OK(information->GetIDsOfNames(const_cast<LPOLESTR*>(&anySpelling), 1, &member));
    BSTR name = nullptr;
    ASSERT_OK(information->GetDocumentation(member, &name, nullptr, nullptr, nullptr));
    EXPECT_EQ(L"address", support::Take(name));
}

TEST(LejisPersonIndexCard, WritesThreeChildrenWhenNew) {
    EXPECT_TRUE(Writes(platform::Create<LejisPersonIndexCard>(), CardWith(L"")));
}

TEST(LejisPersonIndexCard, WritesAllFieldsInTheirOrder) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    card->OrganizationName = L"ERIE PD";
    card->GivenName = L"JOHN";
    card->MiddleName = L"Q";
    card->SurName = L"PUBLIC";
    card->SSN = L"123456789";
    card->DriversLicense = L"12345678";
    card->DriversLicenseState = L"PA";
    card->SexNCIC = L"M";
    card->RaceNCIC = L"W";
    card->ChargeNCICCode = L"1313";
    card->ChargeDescriptionText = L"SIMPLE ASSAULT";
    card->SubjectCautionInformationCode = L"05";
    card->SubjectCautionInformationCaveat = L"VIOLENT";
    card->CaveatText = L"CALL FIRST";
    card->Involvement = L"SUSPECT";
    card->CautionIndicator = true;
    card->address->City = L"ERIE";
    card->BirthDate->Assign(support::Date(L"1970-01-31 10:00:00"));
    card->Height->Set(short{510});
    card->Weight->Set(short{180});
    EXPECT_TRUE(Writes(card,
                       L"<card:RMSPersonIndexCards>"
                       L"<j:IncidentJurisdictionalOrganization><j:OrganizationName>ERIE PD</j:OrganizationName>"
                       L"</j:IncidentJurisdictionalOrganization>"
                       L"<j:PersonSurName>PUBLIC</j:PersonSurName>"
                       L"<j:PersonGivenName>JOHN</j:PersonGivenName>"
                       L"<j:PersonMiddleName>Q</j:PersonMiddleName>"
                       L"<j:Residence><j:LocationAddress><j:LocationStreet><j:StreetFullText/><j:StreetNumberText/>"
                       L"<j:StreetPredirectionalText/><j:StreetName/><j:StreetTypeText/><j:StreetPostdirectionalText/>"
                       L"<j:StreetExtensionText/></j:LocationStreet><j:LocationCityName>ERIE</j:LocationCityName>"
                       L"</j:LocationAddress></j:Residence>"
                       L"<j:PersonSSNID><j:ID>123456789</j:ID></j:PersonSSNID>"
                       L"<j:PersonDriverLicenseID><j:ID>12345678</j:ID>"
                       L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>"
                       L"<j:PersonBirthDate>1970-01-31</j:PersonBirthDate>"
                       L"<j:PersonSexCode>M</j:PersonSexCode>"
                       L"<j:PersonHeightMeasure j:personHeightUnitCode='ncic'>510</j:PersonHeightMeasure>"
                       L"<j:PersonWeightMeasure j:personWeightUnitCode='ncic'>180</j:PersonWeightMeasure>"
                       L"<j:PersonRaceCode>W</j:PersonRaceCode>"
                       L"<j:ChargeNCICCode>1313</j:ChargeNCICCode>"
                       L"<j:ChargeDescriptionText>SIMPLE ASSAULT</j:ChargeDescriptionText>"
                       L"<j:SubjectCautionInformationCode>05</j:SubjectCautionInformationCode>"
                       L"<j:SubjectCautionInformationCaveat>VIOLENT</j:SubjectCautionInformationCaveat>"
                       L"<j:CaveatText>CALL FIRST</j:CaveatText>"
                       L"<ext:PersonInvolvement>SUSPECT</ext:PersonInvolvement>"
                       L"<ext:CautionIndicatorFlag>true</ext:CautionIndicatorFlag>"
                       L"</card:RMSPersonIndexCards>"));
}

TEST(LejisPersonIndexCard, WritesTheLicenceOnlyWithItsState) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    card->DriversLicense = L"12345678";
    EXPECT_TRUE(Writes(card, CardWith(L"")));
    card->DriversLicense = L"";
    card->DriversLicenseState = L"PA";
    EXPECT_TRUE(Writes(card, CardWith(L"")));
}

TEST(LejisPersonIndexCard, WritesEachMeasureByItself) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    card->Height->Set(short{510});
    EXPECT_TRUE(
        Writes(card, CardWith(L"<j:PersonHeightMeasure j:personHeightUnitCode='ncic'>510</j:PersonHeightMeasure>")));
    card->Height->Set(std::nullopt);
    card->Weight->Set(short{0});
    EXPECT_TRUE(
        Writes(card, CardWith(L"<j:PersonWeightMeasure j:personWeightUnitCode='ncic'>0</j:PersonWeightMeasure>")));
}

TEST(LejisPersonIndexCard, WritesBlanksAsContent) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    card->SSN = L" ";
    card->CaveatText = L"  ";
    EXPECT_TRUE(
        Writes(card, CardWith(L"<j:PersonSSNID><j:ID> </j:ID></j:PersonSSNID><j:CaveatText>  </j:CaveatText>")));
}

TEST(LejisPersonIndexCard, IsNotChangedByWriting) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    card->SurName = L"  LEE ";
    card->Write(NewDocument());
    EXPECT_EQ(L"  LEE ", card->SurName);
    EXPECT_TRUE(Writes(card, std::wstring(L"<card:RMSPersonIndexCards>") + kOrganization +
                                 L"<j:PersonSurName>  LEE </j:PersonSurName>" + kResidence + kFlag +
                                 L"</card:RMSPersonIndexCards>"));
}

TEST(LejisPersonIndexCard, RefusesNoElementAndNoDocument) {
    const auto card = platform::Create<LejisPersonIndexCard>();
    Microsoft::WRL::ComPtr<IDispatch> element;
    EXPECT_TRUE(
        support::FailedWith(card->FromXmlElement(nullptr), support::kInvalidArgument, L"elem cannot be Nothing"));
    EXPECT_TRUE(support::FailedWith(card->ToXmlElement(nullptr, element.GetAddressOf()), support::kObjectRequired,
                                    L"Object required"));
}

}  // namespace
}  // namespace lejis
