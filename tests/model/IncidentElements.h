// Elements that incident cards are read from.
#pragma once

#include "foundation/NullableDate.h"
#include "model/LejisIncidentIndexCard.h"
#include "support/Xml.h"

#include <string>

namespace lejis::incident_elements {

using Card = platform::Ref<LejisIncidentIndexCard>;

inline constexpr wchar_t kIdentifiers[] =
    L"<card:LejisIndexUid><j:OrganizationORIID><j:ID>PA0250100</j:ID></j:OrganizationORIID>"
    L"<j:ActivityID><j:ID>07-1234</j:ID></j:ActivityID></card:LejisIndexUid>";
inline constexpr wchar_t kSubmitter[] =
    L"<j:SubmissionSubmitter.Organization><j:OrganizationName>ERIE PD</j:OrganizationName>"
    L"</j:SubmissionSubmitter.Organization>";

inline std::wstring Incident(const std::wstring& children) {
    return L"<lejis:RMSIncidentIndexCard>" + children + L"</lejis:RMSIncidentIndexCard>";
}

inline std::wstring CompleteWith(const std::wstring& children) {
    return Incident(std::wstring(kIdentifiers) + kSubmitter + children);
}

inline const std::wstring kFullCard = CompleteWith(
    L"<j:SubmissionSubmittedDate>2007-03-10</j:SubmissionSubmittedDate>"
    L"<j:ActivityDate>2007-03-09</j:ActivityDate><j:ActivityTime>14:05:00</j:ActivityTime>"
    L"<j:IncidentLocation><j:LocationAddress><j:LocationCityName>ERIE</j:LocationCityName></j:LocationAddress>"
    L"</j:IncidentLocation><j:CaveatText>caveat</j:CaveatText><j:ChargeNCICCode>1313</j:ChargeNCICCode>"
    L"<j:ChargeDescriptionText>SIMPLE ASSAULT</j:ChargeDescriptionText>"
    L"<ext:CautionIndicatorFlag>TRUE</ext:CautionIndicatorFlag>"
    L"<card:RMSPropertyIndexCards><j:PropertyMakeName>SONY</j:PropertyMakeName></card:RMSPropertyIndexCards>"
    L"<card:RMSPersonIndexCards><j:PersonSurName>FIRST</j:PersonSurName></card:RMSPersonIndexCards>"
    L"<card:RMSVehicleIndexCards><ext:VehicleMakeText>FORD</ext:VehicleMakeText></card:RMSVehicleIndexCards>"
    L"<card:RMSPersonIndexCards><j:PersonSurName>SECOND</j:PersonSurName></card:RMSPersonIndexCards>");

inline void ReadInto(const Card& card, const std::wstring& xml) {
    card->Read(ElementReader(support::ParseElement(xml)));
}

inline Card Read(const std::wstring& xml) {
    auto card = platform::Create<LejisIncidentIndexCard>();
    ReadInto(card, xml);
    return card;
}

inline std::wstring ActivityOf(const Card& card) {
    return FormatNullableDate(*card->ActivityDateTime) + L" " + FormatNullableTime(*card->ActivityDateTime);
}

inline auto PersonsOf(const Card& card) { return card->PersonIndexCards->ItemsAs<LejisPersonIndexCard>(); }

}  // namespace lejis::incident_elements
