#include "model/LejisIncidentIndexCard.h"

#include "foundation/NullableDate.h"
#include "model/IncidentElements.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/Members.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using namespace incident_elements;
using support::NewDocument;
using support::ParseElement;

TEST(LejisIncidentIndexCardReading, FillsAllFields) {
    const Card card = Read(kFullCard);
    EXPECT_EQ(L"PA0250100", card->OrganizationORI);
    EXPECT_EQ(L"07-1234", card->ActivityID);
    EXPECT_EQ(L"ERIE PD", card->OrganizationName);
    EXPECT_EQ(L"2007-03-10", FormatNullableDate(*card->SubmittedDate));
    EXPECT_EQ(L"2007-03-09 14:05:00", ActivityOf(card));
    EXPECT_EQ(L"ERIE", card->Location->City);
    EXPECT_EQ(L"caveat", card->CaveatText);
    EXPECT_EQ(L"1313", card->ChargeNCICCode);
    EXPECT_EQ(L"SIMPLE ASSAULT", card->ChargeDescriptionText);
    EXPECT_TRUE(card->CautionIndicator);
}

TEST(LejisIncidentIndexCardReading, FillsItsCollectionsInDocumentOrder) {
    const Card card = Read(kFullCard);
    ASSERT_EQ(2u, card->PersonIndexCards->Count());
    EXPECT_EQ(L"FIRST", PersonsOf(card)[0]->SurName);
    EXPECT_EQ(L"SECOND", PersonsOf(card)[1]->SurName);
    ASSERT_EQ(1u, card->PropertyIndexCards->Count());
    EXPECT_EQ(L"SONY", card->PropertyIndexCards->ItemsAs<LejisPropertyIndexCard>()[0]->Make);
    ASSERT_EQ(1u, card->VehicleIndexCards->Count());
    EXPECT_EQ(L"FORD", card->VehicleIndexCards->ItemsAs<LejisVehicleIndexCard>()[0]->Make);
}

TEST(LejisIncidentIndexCardReading, ReadsBackWhatWasWritten) {
    const Card written = Read(kFullCard);
    const auto document = NewDocument();
    const auto read = platform::Create<LejisIncidentIndexCard>();
    const auto element = written->Write(document);
    read->Read(ElementReader(element));
    const auto again = read->Write(NewDocument());
    BSTR text = nullptr;
    ASSERT_OK(element->get_xml(&text));
    // The declarations are the element's own, so its text stands alone.
    EXPECT_TRUE(support::SameXml(again.Get(), support::Take(text)));
}

TEST(LejisIncidentIndexCardReading, ReplacesFieldsAndCards) {
    const Card card = Read(kFullCard);
    const auto personsBefore = card->PersonIndexCards;
    ReadInto(card, CompleteWith(L"<card:RMSPersonIndexCards><j:PersonSurName>NEW</j:PersonSurName>"
                                L"</card:RMSPersonIndexCards>"));
    support::ExpectEmptyTexts(card->Dispatch(), {L"CaveatText", L"ChargeNCICCode", L"ChargeDescriptionText"});
    EXPECT_EQ(std::nullopt, card->SubmittedDate->Date());
    EXPECT_EQ(std::nullopt, card->ActivityDateTime->Date());
    ASSERT_EQ(1u, card->PersonIndexCards->Count());
    EXPECT_EQ(L"NEW", PersonsOf(card)[0]->SurName);
    EXPECT_EQ(0u, card->PropertyIndexCards->Count());
    EXPECT_EQ(0u, card->VehicleIndexCards->Count());
    EXPECT_NE(personsBefore.Get(), card->PersonIndexCards.Get());
    EXPECT_EQ(2u, personsBefore->Count());
}

TEST(LejisIncidentIndexCardReading, KeepsItsHoldersAndALocationThatTheElementLacks) {
    const Card card = Read(kFullCard);
    const auto submittedBefore = card->SubmittedDate;
    const auto locationBefore = card->Location;
    ReadInto(card, CompleteWith(L""));
    EXPECT_EQ(submittedBefore.Get(), card->SubmittedDate.Get());
    EXPECT_EQ(locationBefore.Get(), card->Location.Get());
    EXPECT_EQ(L"ERIE", card->Location->City);
    ReadInto(card, CompleteWith(L"<j:IncidentLocation/>"));
    EXPECT_EQ(L"", card->Location->City);
}

TEST(LejisIncidentIndexCardReading, JoinsDateAndTimeOfTheActivity) {
    const struct {
        const wchar_t* children;
        const wchar_t* activity;
    } rows[] = {
        {L"<j:ActivityDate>2007-03-09</j:ActivityDate>", L"2007-03-09 00:00:00"},
        {L"<j:ActivityDate>2007-03-09</j:ActivityDate><j:ActivityTime/>", L"2007-03-09 00:00:00"},
        {L"<j:ActivityTime>14:05:00</j:ActivityTime>", L"1899-12-30 14:05:00"},
        {L"<j:ActivityTime>14:05:00</j:ActivityTime><j:ActivityDate>2007-03-09</j:ActivityDate>",
         L"2007-03-09 14:05:00"},
        {L"<j:ActivityDate>2007-03-09</j:ActivityDate><j:ActivityTime>soon</j:ActivityTime>", L" "},
        {L"<j:ActivityDate>soon</j:ActivityDate><j:ActivityTime>14:05:00</j:ActivityTime>", L" "},
        {L"<ext:ActivityDate>2007-03-09</ext:ActivityDate>", L" "},
        {L"", L" "},
    };
    for (const auto& row : rows) {
        const Card card = Read(kFullCard);
        ReadInto(card, CompleteWith(row.children));
        EXPECT_EQ(row.activity, ActivityOf(card)) << support::Utf8(row.children);
    }
}

TEST(LejisIncidentIndexCardReading, TakesTheCautionOfItsCardsForItsOwn) {
    const Card written =
        Read(CompleteWith(L"<card:RMSVehicleIndexCards><ext:CautionIndicatorFlag>true"
                          L"</ext:CautionIndicatorFlag></card:RMSVehicleIndexCards>"));
    EXPECT_FALSE(written->CautionIndicator);
    const auto document = NewDocument();
    const auto read = platform::Create<LejisIncidentIndexCard>();
    read->Read(ElementReader(written->Write(document)));
    EXPECT_TRUE(read->CautionIndicator);
}

TEST(LejisIncidentIndexCardReading, TakesOnlyItsOwnChildrenForCards) {
    const Card card =
        Read(CompleteWith(L"<j:Wrapper><card:RMSPersonIndexCards/></j:Wrapper><j:RMSPersonIndexCards/>"
                          L"<card:RMSPersonIndexCard/>"));
    EXPECT_EQ(0u, card->PersonIndexCards->Count());
}

}  // namespace
}  // namespace lejis
