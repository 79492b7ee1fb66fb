#include "model/LejisIncidentIndexCard.h"

#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Incidents.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::NewDocument;
using support::SameXml;

using Incident = platform::Ref<LejisIncidentIndexCard>;

constexpr wchar_t kLocation[] =
    L"<j:IncidentLocation><j:LocationAddress><j:LocationStreet><j:StreetFullText/><j:StreetNumberText/>"
    L"<j:StreetPredirectionalText/><j:StreetName/><j:StreetTypeText/><j:StreetPostdirectionalText/>"
    L"<j:StreetExtensionText/></j:LocationStreet><j:LocationCityName/></j:LocationAddress></j:IncidentLocation>";

constexpr wchar_t kIdentifiers[] =
    L"<card:LejisIndexUid><j:OrganizationORIID><j:ID/></j:OrganizationORIID><j:ActivityID><j:ID/></j:ActivityID>"
    L"</card:LejisIndexUid><j:SubmissionSubmittedDate/>"
    L"<j:SubmissionSubmitter.Organization><j:OrganizationName/></j:SubmissionSubmitter.Organization>";

// A card that is empty but for what is given.
std::wstring CardWith(const std::wstring& dates, const std::wstring& charges, const std::wstring& flag,
                      const std::wstring& cards = {}) {
    return std::wstring(L"<lejis:RMSIncidentIndexCard>") + kIdentifiers + dates + kLocation + L"<j:CaveatText/>" +
           charges + L"<ext:CautionIndicatorFlag>" + flag + L"</ext:CautionIndicatorFlag>" + cards +
           L"</lejis:RMSIncidentIndexCard>";
}

testing::AssertionResult Writes(const Incident& card, const std::wstring& xml) {
    const auto document = NewDocument();
    EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    return SameXml(card->Write(document).Get(), xml);
}

TEST(LejisIncidentIndexCardWriting, WritesWhatIsRequiredWhenNew) {
    EXPECT_TRUE(Writes(platform::Create<LejisIncidentIndexCard>(), CardWith(L"", L"", L"false")));
}

TEST(LejisIncidentIndexCardWriting, WritesAllFieldsInTheirOrder) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    card->OrganizationName = L"ERIE PD";
    card->OrganizationORI = L"PA0250100";
    card->ActivityID = L"07-1234";
    card->CaveatText = L" as is ";
    card->ChargeNCICCode = L"1313";
    card->ChargeDescriptionText = L"SIMPLE ASSAULT";
    card->CautionIndicator = true;
    card->SubmittedDate->Assign(support::Date(L"2007-03-10 08:00:00"));
    card->ActivityDateTime->Assign(support::Date(L"2007-03-09 14:05:00"));
    card->Location->City = L"ERIE";
    EXPECT_TRUE(
        Writes(card,
               L"<lejis:RMSIncidentIndexCard>"
               L"<card:LejisIndexUid><j:OrganizationORIID><j:ID>PA0250100</j:ID></j:OrganizationORIID>"
               L"<j:ActivityID><j:ID>07-1234</j:ID></j:ActivityID></card:LejisIndexUid>"
               L"<j:SubmissionSubmittedDate>2007-03-10</j:SubmissionSubmittedDate>"
               L"<j:SubmissionSubmitter.Organization><j:OrganizationName>ERIE PD</j:OrganizationName>"
               L"</j:SubmissionSubmitter.Organization>"
               L"<j:ActivityDate>2007-03-09</j:ActivityDate><j:ActivityTime>14:05:00</j:ActivityTime>"
               L"<j:IncidentLocation><j:LocationAddress><j:LocationStreet><j:StreetFullText/><j:StreetNumberText/>"
               L"<j:StreetPredirectionalText/><j:StreetName/><j:StreetTypeText/><j:StreetPostdirectionalText/>"
               L"<j:StreetExtensionText/></j:LocationStreet><j:LocationCityName>ERIE</j:LocationCityName>"
               L"</j:LocationAddress></j:IncidentLocation>"
               L"<j:CaveatText> as is </j:CaveatText>"
               L"<j:ChargeNCICCode>1313</j:ChargeNCICCode>"
               L"<j:ChargeDescriptionText>SIMPLE ASSAULT</j:ChargeDescriptionText>"
               L"<ext:CautionIndicatorFlag>true</ext:CautionIndicatorFlag>"
               L"</lejis:RMSIncidentIndexCard>"));
}

TEST(LejisIncidentIndexCardWriting, WritesBlankChargesAsContent) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    card->ChargeNCICCode = L" ";
    card->ChargeDescriptionText = L"  ";
    EXPECT_TRUE(Writes(card, CardWith(L"",
                                      L"<j:ChargeNCICCode> </j:ChargeNCICCode>"
                                      L"<j:ChargeDescriptionText>  </j:ChargeDescriptionText>",
                                      L"false")));
}

TEST(LejisIncidentIndexCardWriting, WritesMidnightAsATime) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    card->ActivityDateTime->Assign(support::Date(L"2007-03-09"));
    EXPECT_TRUE(Writes(card, CardWith(L"<j:ActivityDate>2007-03-09</j:ActivityDate>"
                                      L"<j:ActivityTime>00:00:00</j:ActivityTime>",
                                      L"", L"false")));
}

TEST(LejisIncidentIndexCardWriting, WritesPersonsThenVehiclesThenProperty) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    support::AddNew<LejisPropertyIndexCard>(card->PropertyIndexCards)->Make = L"SONY";
    support::AddNew<LejisVehicleIndexCard>(card->VehicleIndexCards)->Make = L"FORD";
    support::AddNew<LejisPersonIndexCard>(card->PersonIndexCards)->SurName = L"FIRST";
    support::AddNew<LejisPersonIndexCard>(card->PersonIndexCards)->SurName = L"SECOND";
    const auto element = card->Write(NewDocument());
    std::wstring order;
    for (const auto& child : msxml::ChildElements(element)) {
        const std::wstring name(msxml::LocalName(child));
        if (name.ends_with(L"IndexCards")) order += name + L"(" + std::wstring(msxml::Text(child)) + L") ";
    }
    EXPECT_EQ(
        L"RMSPersonIndexCards(FIRSTfalse) RMSPersonIndexCards(SECONDfalse) RMSVehicleIndexCards(FORDfalse) "
        L"RMSPropertyIndexCards(SONYfalse) ",
        order);
}

TEST(LejisIncidentIndexCardWriting, WritesTheCardsOfEachKindAfterItsFlag) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    support::AddNew<LejisPropertyIndexCard>(card->PropertyIndexCards);
    support::AddNew<LejisVehicleIndexCard>(card->VehicleIndexCards);
    EXPECT_TRUE(Writes(card, CardWith(L"", L"", L"false",
                                      L"<card:RMSVehicleIndexCards><ext:CautionIndicatorFlag>false"
                                      L"</ext:CautionIndicatorFlag></card:RMSVehicleIndexCards>"
                                      L"<card:RMSPropertyIndexCards><ext:CautionIndicatorFlag>false"
                                      L"</ext:CautionIndicatorFlag></card:RMSPropertyIndexCards>")));
}

TEST(LejisIncidentIndexCardWriting, WritesTheCautionOfItsCardsAndKeepsItsOwn) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    support::AddNew<LejisVehicleIndexCard>(card->VehicleIndexCards);
    support::AddNew<LejisVehicleIndexCard>(card->VehicleIndexCards)->CautionIndicator = true;
    EXPECT_TRUE(Writes(card, CardWith(L"", L"", L"true",
                                      L"<card:RMSVehicleIndexCards><ext:CautionIndicatorFlag>false"
                                      L"</ext:CautionIndicatorFlag></card:RMSVehicleIndexCards>"
                                      L"<card:RMSVehicleIndexCards><ext:CautionIndicatorFlag>true"
                                      L"</ext:CautionIndicatorFlag></card:RMSVehicleIndexCards>")));
    EXPECT_FALSE(card->CautionIndicator);
}

}  // namespace
}  // namespace lejis
