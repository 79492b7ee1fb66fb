#include "model/LejisPersonIndexCard.h"

#include "foundation/NullableDate.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::ParseElement;
using support::Raises;

using Person = platform::Ref<LejisPersonIndexCard>;

const support::Names kPersonTexts = {L"OrganizationName",
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
                                     L"Involvement"};

// Its children stand in no particular order.
std::wstring FullCardWithBirthDate(const std::wstring& birthDate) {
    return L"<card:RMSPersonIndexCards>"
           L"<ext:CautionIndicatorFlag>True</ext:CautionIndicatorFlag>"
           L"<ext:PersonInvolvement>SUSPECT</ext:PersonInvolvement>"
           L"<j:CaveatText>CALL FIRST</j:CaveatText>"
           L"<j:SubjectCautionInformationCaveat>VIOLENT</j:SubjectCautionInformationCaveat>"
           L"<j:SubjectCautionInformationCode>05</j:SubjectCautionInformationCode>"
           L"<j:ChargeDescriptionText>SIMPLE ASSAULT</j:ChargeDescriptionText>"
           L"<j:ChargeNCICCode>1313</j:ChargeNCICCode>"
           L"<j:PersonRaceCode>W</j:PersonRaceCode>"
           L"<j:PersonWeightMeasure j:personWeightUnitCode='kg'>180</j:PersonWeightMeasure>"
           L"<j:PersonHeightMeasure>510</j:PersonHeightMeasure>"
           L"<j:PersonSexCode>M</j:PersonSexCode>"
           L"<j:PersonBirthDate>" +
           birthDate +
           L"</j:PersonBirthDate>"
           L"<j:PersonDriverLicenseID><j:ID>12345678</j:ID>"
           L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>"
           L"<j:PersonSSNID><j:ID>123456789</j:ID></j:PersonSSNID>"
           L"<j:Residence><j:LocationAddress><j:LocationCityName>ERIE</j:LocationCityName></j:LocationAddress>"
           L"</j:Residence>"
           L"<j:PersonMiddleName>Q</j:PersonMiddleName>"
           L"<j:PersonGivenName>JOHN</j:PersonGivenName>"
           L"<j:PersonSurName>PUBLIC</j:PersonSurName>"
           L"<j:IncidentJurisdictionalOrganization><j:OrganizationName>ERIE PD</j:OrganizationName>"
           L"</j:IncidentJurisdictionalOrganization>"
           L"</card:RMSPersonIndexCards>";
}

Person ReadPerson(const std::wstring& xml) {
    auto card = platform::Create<LejisPersonIndexCard>();
    card->Read(ElementReader(ParseElement(xml)));
    return card;
}

Person ReadPersonWith(const std::wstring& children) {
    return ReadPerson(L"<card:RMSPersonIndexCards>" + children + L"</card:RMSPersonIndexCards>");
}

// The fields that are read before the birth date.
void ExpectIdentity(const Person& card) {
    EXPECT_EQ(L"ERIE PD", card->OrganizationName);
    EXPECT_EQ(L"PUBLIC", card->SurName);
    EXPECT_EQ(L"Q", card->MiddleName);
    EXPECT_EQ(L"JOHN", card->GivenName);
    EXPECT_EQ(L"ERIE", card->address->City);
    EXPECT_EQ(L"123456789", card->SSN);
    EXPECT_EQ(L"12345678", card->DriversLicense);
    EXPECT_EQ(L"PA", card->DriversLicenseState);
}

TEST(LejisPersonIndexCardReading, FillsAllFieldsButTheCaveat) {
    const Person card = ReadPerson(FullCardWithBirthDate(L"1970-01-31"));
    ExpectIdentity(card);
    EXPECT_EQ(L"1970-01-31", FormatNullableDate(*card->BirthDate));
    EXPECT_EQ(L"M", card->SexNCIC);
    EXPECT_EQ(L"W", card->RaceNCIC);
    EXPECT_EQ(short{510}, card->Height->Number());
    EXPECT_EQ(short{180}, card->Weight->Number());
    EXPECT_EQ(L"1313", card->ChargeNCICCode);
    EXPECT_EQ(L"SIMPLE ASSAULT", card->ChargeDescriptionText);
    EXPECT_EQ(L"05", card->SubjectCautionInformationCode);
    EXPECT_EQ(L"VIOLENT", card->SubjectCautionInformationCaveat);
    EXPECT_EQ(L"SUSPECT", card->Involvement);
    EXPECT_TRUE(card->CautionIndicator);
    EXPECT_EQ(L"", card->CaveatText);
}

TEST(LejisPersonIndexCardReading, ReadsBackWhatWasWrittenButTheCaveat) {
    const auto document = support::NewDocument();
    const Person written = ReadPerson(FullCardWithBirthDate(L"1970-01-31"));
    written->CaveatText = L"CALL FIRST";
    const auto read = platform::Create<LejisPersonIndexCard>();
    read->Read(ElementReader(written->Write(document)));
    for (const wchar_t* name : kPersonTexts) {
        if (name == std::wstring(L"CaveatText")) continue;
        EXPECT_EQ(support::TextMember(written->Dispatch(), name), support::TextMember(read->Dispatch(), name));
    }
    EXPECT_EQ(L"", read->CaveatText);
    EXPECT_EQ(written->BirthDate->Date(), read->BirthDate->Date());
    EXPECT_EQ(written->Height->Number(), read->Height->Number());
    EXPECT_EQ(written->Weight->Number(), read->Weight->Number());
    EXPECT_EQ(written->address->City, read->address->City);
    EXPECT_TRUE(read->CautionIndicator);
}

TEST(LejisPersonIndexCardReading, BeginsFromAResetCard) {
    const Person card = ReadPerson(FullCardWithBirthDate(L"1970-01-31"));
    card->CaveatText = L"old";
    const auto addressBefore = card->address;
    const auto birthDateBefore = card->BirthDate;
    const auto heightBefore = card->Height;
    const auto weightBefore = card->Weight;
    card->Read(ElementReader(ParseElement(L"<card:RMSPersonIndexCards/>")));
    support::ExpectEmptyTexts(card->Dispatch(), kPersonTexts);
    EXPECT_FALSE(card->CautionIndicator);
    EXPECT_EQ(std::nullopt, birthDateBefore->Date());
    EXPECT_EQ(std::nullopt, heightBefore->Number());
    EXPECT_EQ(std::nullopt, weightBefore->Number());
    EXPECT_EQ(birthDateBefore.Get(), card->BirthDate.Get());
    EXPECT_EQ(heightBefore.Get(), card->Height.Get());
    EXPECT_EQ(weightBefore.Get(), card->Weight.Get());
    EXPECT_NE(addressBefore.Get(), card->address.Get());
    EXPECT_EQ(L"ERIE", addressBefore->City);
    EXPECT_EQ(L"", card->address->City);
}

TEST(LejisPersonIndexCardReading, FailsForABadBirthDateAndKeepsWhatItReadBefore) {
    for (const wchar_t* text : {L"", L"hello", L"1970-02-30"}) {
        const Person card = ReadPerson(FullCardWithBirthDate(L"1970-01-31"));
        EXPECT_TRUE(Raises(support::kInvalidArgument, L"Not a valid date.", [&] {
            card->Read(ElementReader(ParseElement(FullCardWithBirthDate(text))));
        })) << support::Utf8(text);
        ExpectIdentity(card);
        EXPECT_EQ(std::nullopt, card->BirthDate->Date());
        support::ExpectEmptyTexts(
            card->Dispatch(), {L"SexNCIC", L"RaceNCIC", L"ChargeNCICCode", L"ChargeDescriptionText",
                               L"SubjectCautionInformationCode", L"SubjectCautionInformationCaveat", L"Involvement"});
        EXPECT_EQ(std::nullopt, card->Height->Number());
        EXPECT_EQ(std::nullopt, card->Weight->Number());
        EXPECT_FALSE(card->CautionIndicator);
    }
}

TEST(LejisPersonIndexCardReading, RoundsMeasuresAndIgnoresInvalidOnes) {
    const struct {
        const wchar_t* text;
        std::optional<short> number;
    } rows[] = {{L"5.5", short{6}},   {L"6.5", short{6}},       {L" 180 ", short{180}}, {L"-5", short{-5}},
                {L"99999", short{0}}, {L"32767", short{32767}}, {L"abc", std::nullopt}, {L"", std::nullopt}};
    for (const auto& row : rows) {
        const std::wstring text = row.text;
        const Person card = ReadPersonWith(L"<j:PersonHeightMeasure>" + text + L"</j:PersonHeightMeasure>" +
                                           L"<j:PersonWeightMeasure>7</j:PersonWeightMeasure>");
        EXPECT_EQ(row.number, card->Height->Number()) << support::Utf8(text);
        EXPECT_EQ(short{7}, card->Weight->Number()) << support::Utf8(text);
        EXPECT_EQ(row.number,
                  ReadPersonWith(L"<j:PersonWeightMeasure>" + text + L"</j:PersonWeightMeasure>")->Weight->Number())
            << support::Utf8(text);
    }
}

TEST(LejisPersonIndexCardReading, ReadsTheFlagInAnyLetterCaseAndIgnoresOtherTexts) {
    const auto flag = [](const wchar_t* text) {
        return ReadPersonWith(std::wstring(L"<ext:CautionIndicatorFlag>") + text + L"</ext:CautionIndicatorFlag>")
            ->CautionIndicator;
    };
    for (const wchar_t* text : {L"true", L"TRUE", L"1"}) EXPECT_TRUE(flag(text)) << support::Utf8(text);
    for (const wchar_t* text : {L"FALSE", L"0", L"yes", L""}) EXPECT_FALSE(flag(text)) << support::Utf8(text);
}

TEST(LejisPersonIndexCardReading, LeavesTheNewAddressEmptyWithoutAResidence) {
    const Person card =
        ReadPersonWith(L"<j:LocationAddress><j:LocationCityName>ERIE</j:LocationCityName></j:LocationAddress>");
    EXPECT_EQ(L"", card->address->City);
}

TEST(LejisPersonIndexCardReading, ReadsEachFieldFromItsOwnPlace) {
    const Person card = ReadPersonWith(
        L"<ext:PersonSurName>x</ext:PersonSurName><j:OrganizationName>x</j:OrganizationName>"
        L"<j:PersonInvolvement>x</j:PersonInvolvement><j:PersonSSNID>x</j:PersonSSNID>"
        L"<card:PersonSexCode>x</card:PersonSexCode>"
        L"<ext:PersonBirthDate>x</ext:PersonBirthDate>");
    support::ExpectEmptyTexts(card->Dispatch(), kPersonTexts);
    EXPECT_EQ(std::nullopt, card->BirthDate->Date());
}

}  // namespace
}  // namespace lejis
