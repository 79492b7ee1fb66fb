#include "model/LejisIncidentIndexCard.h"

#include "foundation/NullableDate.h"
#include "model/IncidentElements.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using namespace incident_elements;
using support::ParseElement;
using support::Raises;

TEST(LejisIncidentIndexCardBadContent, FailsWithoutIdentifiersAndChangesNothing) {
    const Card card = Read(kFullCard);
    EXPECT_TRUE(Raises(support::kInvalidArgument, L"elem cannot be Nothing", [&] {
        ReadInto(card, Incident(std::wstring(kSubmitter) + L"<j:CaveatText>new</j:CaveatText>"));
    }));
    EXPECT_EQ(L"PA0250100", card->OrganizationORI);
    EXPECT_EQ(L"07-1234", card->ActivityID);
    EXPECT_EQ(L"2007-03-10", FormatNullableDate(*card->SubmittedDate));
    EXPECT_EQ(L"ERIE PD", card->OrganizationName);
    EXPECT_EQ(L"caveat", card->CaveatText);
    EXPECT_EQ(2u, card->PersonIndexCards->Count());
}

TEST(LejisIncidentIndexCardBadContent, FailsWithoutSubmitterAndKeepsWhatItReadBefore) {
    const Card card = Read(kFullCard);
    EXPECT_TRUE(Raises(support::kInvalidArgument, L"elem cannot be Nothing", [&] {
        ReadInto(card,
                 Incident(L"<card:LejisIndexUid><j:ActivityID><j:ID>NEW</j:ID></j:ActivityID></card:LejisIndexUid>"
                          L"<j:SubmissionSubmittedDate>2008-01-01</j:SubmissionSubmittedDate>"
                          L"<j:ActivityDate>2008-01-02</j:ActivityDate><j:CaveatText>new</j:CaveatText>"));
    }));
    EXPECT_EQ(L"", card->OrganizationORI);
    EXPECT_EQ(L"NEW", card->ActivityID);
    EXPECT_EQ(L"2008-01-01", FormatNullableDate(*card->SubmittedDate));
    EXPECT_EQ(L"ERIE PD", card->OrganizationName);
    EXPECT_EQ(L"2007-03-09 14:05:00", ActivityOf(card));
    EXPECT_EQ(L"caveat", card->CaveatText);
    EXPECT_EQ(2u, card->PersonIndexCards->Count());
}

TEST(LejisIncidentIndexCardBadContent, ReportsMissingPartsToItsClients) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    EXPECT_TRUE(support::FailedWith(card->FromXmlElement(ParseElement(Incident(kSubmitter)).Get()),
                                    support::kInvalidArgument, L"elem cannot be Nothing"));
    EXPECT_TRUE(
        support::FailedWith(card->FromXmlElement(nullptr), support::kInvalidArgument, L"elem cannot be Nothing"));
    EXPECT_OK(card->FromXmlElement(ParseElement(CompleteWith(L"")).Get()));
}

TEST(LejisIncidentIndexCardBadContent, HasNoSubmittedDateForABadText) {
    for (const wchar_t* text : {L"", L"hello", L"2007-02-30"}) {
        const Card card = Read(kFullCard);
        ReadInto(card, CompleteWith(std::wstring(L"<j:SubmissionSubmittedDate>") + text +
                                    L"</j:SubmissionSubmittedDate><j:CaveatText>new</j:CaveatText>"));
        EXPECT_EQ(std::nullopt, card->SubmittedDate->Date()) << support::Utf8(text);
        EXPECT_EQ(L"new", card->CaveatText) << support::Utf8(text);
    }
}

TEST(LejisIncidentIndexCardBadContent, KeepsItsFlagWhenTheTextIsNotBoolean) {
    const Card card = platform::Create<LejisIncidentIndexCard>();
    const auto read = [&](const wchar_t* text) {
        ReadInto(card,
                 CompleteWith(std::wstring(L"<ext:CautionIndicatorFlag>") + text + L"</ext:CautionIndicatorFlag>"));
        return card->CautionIndicator;
    };
    for (const bool before : {true, false}) {
        for (const wchar_t* text : {L"yes", L"", L"on"}) {
            card->CautionIndicator = before;
            EXPECT_EQ(before, read(text)) << support::Utf8(text);
        }
        ReadInto(card, CompleteWith(L""));
        EXPECT_EQ(before, card->CautionIndicator);
    }
    for (const wchar_t* text : {L"TRUE", L"true", L"1"}) {
        card->CautionIndicator = false;
        EXPECT_TRUE(read(text)) << support::Utf8(text);
    }
    for (const wchar_t* text : {L"False", L"0"}) {
        card->CautionIndicator = true;
        EXPECT_FALSE(read(text)) << support::Utf8(text);
    }
}

TEST(LejisIncidentIndexCardBadContent, KeepsCardsAsFarAsTheyCouldBeRead) {
    const Card card = Read(CompleteWith(
        L"<card:RMSPersonIndexCards><j:PersonSurName>FIRST</j:PersonSurName><j:PersonBirthDate>bad</j:PersonBirthDate>"
        L"<j:PersonSexCode>M</j:PersonSexCode><j:Residence><j:LocationAddress><j:LocationStreet>"
        L"<j:StreetName>MAIN</j:StreetName></j:LocationStreet></j:LocationAddress></j:Residence>"
        L"</card:RMSPersonIndexCards>"
        L"<card:RMSPersonIndexCards><j:PersonSurName>SECOND</j:PersonSurName><j:Residence><j:LocationAddress>"
        L"<j:LocationStreet><j:StreetNumberText>9999999999</j:StreetNumberText></j:LocationStreet></j:LocationAddress>"
        L"</j:Residence><j:PersonSSNID><j:ID>1</j:ID></j:PersonSSNID></card:RMSPersonIndexCards>"
        L"<card:RMSPersonIndexCards><j:PersonSurName>THIRD</j:PersonSurName></card:RMSPersonIndexCards>"
        L"<card:RMSVehicleIndexCards><j:VehicleModelYearDate>bad</j:VehicleModelYearDate></"
        L"card:RMSVehicleIndexCards>"));
    const auto persons = PersonsOf(card);
    ASSERT_EQ(3u, persons.size());
    EXPECT_EQ(L"FIRST", persons[0]->SurName);
    EXPECT_EQ(L"MAIN", persons[0]->address->StreetName);
    EXPECT_EQ(L"", persons[0]->SexNCIC);
    EXPECT_EQ(L"SECOND", persons[1]->SurName);
    EXPECT_EQ(L"", persons[1]->SSN);
    EXPECT_EQ(L"THIRD", persons[2]->SurName);
    EXPECT_EQ(1u, card->VehicleIndexCards->Count());
}

TEST(LejisIncidentIndexCardBadContent, FailsForALocationWhoseNumberIsTooGreat) {
    const Card card = Read(kFullCard);
    EXPECT_TRUE(Raises(DISP_E_OVERFLOW, L"Overflow", [&] {
        ReadInto(card, CompleteWith(L"<j:ActivityDate>2008-01-02</j:ActivityDate><j:IncidentLocation>"
                                    L"<j:LocationAddress><j:LocationStreet><j:StreetNumberText>9999999999"
                                    L"</j:StreetNumberText></j:LocationStreet></j:LocationAddress></j:IncidentLocation>"
                                    L"<j:ChargeNCICCode>0101</j:ChargeNCICCode>"));
    }));
    EXPECT_EQ(L"2008-01-02 00:00:00", ActivityOf(card));
    EXPECT_EQ(L"1313", card->ChargeNCICCode);
    EXPECT_EQ(2u, card->PersonIndexCards->Count());
}

}  // namespace
}  // namespace lejis
