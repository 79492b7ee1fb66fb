// What reading a card asks of MSXML. A call is cheap and a query is not, and an answer brings thousands of cards: what
// is added here is paid by every clerk who waits for a search.
#include "model/LejisIncidentIndexCard.h"
#include "support/Xml.h"
#include "unit_support/CountingElement.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using Microsoft::WRL::ComPtr;

constexpr wchar_t kPerson[] =
    L"<card:RMSPersonIndexCards>"
    L"<j:IncidentJurisdictionalOrganization><j:OrganizationName>ERIE CITY POLICE</j:OrganizationName>"
    L"</j:IncidentJurisdictionalOrganization>"
    L"<j:PersonSurName>PUBLIC</j:PersonSurName><j:PersonGivenName>JOHN</j:PersonGivenName>"
    L"<j:PersonMiddleName>Q</j:PersonMiddleName>"
    L"<j:Residence><j:LocationAddress><j:LocationStreet>"
    L"<j:StreetFullText>1410 PEACH STREET</j:StreetFullText><j:StreetNumberText>1410</j:StreetNumberText>"
    L"<j:StreetPredirectionalText>W</j:StreetPredirectionalText><j:StreetName>PEACH</j:StreetName>"
    L"<j:StreetTypeText>STREET</j:StreetTypeText><j:StreetPostdirectionalText/><j:StreetExtensionText/>"
    L"</j:LocationStreet><j:LocationCityName>ERIE</j:LocationCityName>"
    L"<j:LocationStateCode.ncicLSTA>PA</j:LocationStateCode.ncicLSTA>"
    L"<j:LocationPostalCodeID><j:ID>16501</j:ID></j:LocationPostalCodeID></j:LocationAddress></j:Residence>"
    L"<j:PersonSSNID><j:ID>900123456</j:ID></j:PersonSSNID>"
    L"<j:PersonDriverLicenseID><j:ID>12345678</j:ID>"
    L"<j:IDJurisdictionCode.ncicLSTA>PA</j:IDJurisdictionCode.ncicLSTA></j:PersonDriverLicenseID>"
    L"<j:PersonBirthDate>1970-02-28</j:PersonBirthDate><j:PersonSexCode>M</j:PersonSexCode>"
    L"<j:PersonHeightMeasure>510</j:PersonHeightMeasure><j:PersonWeightMeasure>180</j:PersonWeightMeasure>"
    L"<j:PersonRaceCode>W</j:PersonRaceCode><j:ChargeNCICCode>2299</j:ChargeNCICCode>"
    L"<j:ChargeDescriptionText>BURGLARY OF A RESIDENCE</j:ChargeDescriptionText>"
    L"<ext:PersonInvolvement>VICTIM</ext:PersonInvolvement>"
    L"<ext:CautionIndicatorFlag>true</ext:CautionIndicatorFlag></card:RMSPersonIndexCards>";

constexpr int kElementsOfPerson = 37;

template <typename Card>
int CallsToRead(const platform::Ref<Card>& card, const wchar_t* xml) {
    int calls = 0;
    const support::Element element = support::ParseElement(xml);
    card->Read(ElementReader(msxml::Element(platform::Create<support::CountingElement>(element.Get(), calls).Get())));
    return calls;
}

TEST(CallsOfReading, AreAtMostSevenForAnElementOfAPersonCard) {
    const auto person = platform::Create<LejisPersonIndexCard>();
    EXPECT_LE(CallsToRead(person, kPerson), 7 * kElementsOfPerson);
    EXPECT_EQ(L"900123456", person->SSN);
    EXPECT_EQ(L"16501", person->address->ZIP);
    EXPECT_EQ(L"PA", person->DriversLicenseState);
    EXPECT_TRUE(person->CautionIndicator);
}

TEST(CallsOfReading, AreNoMoreForAnElementThatACardDoesNotKnow) {
    const auto address = platform::Create<LejisStreetAddress>();
    const int calls = CallsToRead(address, L"<j:Residence><j:LocationAddress/></j:Residence>");
    EXPECT_LE(CallsToRead(address, L"<j:Residence><j:y>1</j:y><j:LocationAddress/></j:Residence>"), calls + 7);
}

TEST(CallsOfReading, AreThreeForAnElementOfAnotherNamespaceWhateverItHolds) {
    const auto address = platform::Create<LejisStreetAddress>();
    const int calls = CallsToRead(address, L"<j:Residence><j:LocationAddress/></j:Residence>");
    EXPECT_LE(CallsToRead(address, L"<j:Residence><x><j:y>1</j:y><z/></x><j:LocationAddress/></j:Residence>"),
              calls + 3);
}

}  // namespace
}  // namespace lejis
