#include "model/LejisIncidentIndexCard.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/NullableDate.h"
#include "foundation/QueryPrefixes.h"
#include "model/FieldReading.h"
#include "platform/Conversions.h"
#include "platform/Text.h"

namespace lejis {
namespace {

template <typename Card>
void WriteCards(ElementWriter& incident, const Collection& cards) {
    for (const auto& card : cards.ItemsAs<Card>()) incident.Child(card->Write(incident.Document()));
}

ElementReader RequiredChild(const ElementReader& element, const ElementPath& name) {
    auto child = element.Child(name);
    if (!child) LejisUtils::RequireElement(nullptr);
    return *std::move(child);
}

template <typename Card>
platform::Ref<Collection> ReadCardsOf(const std::vector<ElementReader>& elements) {
    auto cards = platform::Create<Collection>();
    for (const ElementReader& element : elements) {
        const auto card = platform::Create<Card>();
        try {
            card->Read(element);
        } catch (const platform::ComError&) {
            // This is deliberate: a card that cannot be read to its end is kept as far as it could be read.
        }
        cards->AddObject(card->Dispatch());
    }
    return cards;
}

template <typename Card>
bool AnyHasCaution(const Collection& cards) {
    // The first card with a caution ends the search: the cards after it are not looked at.
    for (long index = 1; index <= static_cast<long>(cards.Count()); ++index) {
        if (cards.ItemAs<Card>(index)->CautionIndicator) return true;
    }
    return false;
}

}  // namespace

msxml::Element LejisIncidentIndexCard::Write(const OutputDocument& document) const {
    ElementWriter identifiers(document, L"card:LejisIndexUid");
    identifiers.Id(L"j:OrganizationORIID", OrganizationORI);
    identifiers.Id(L"j:ActivityID", ActivityID);
    ElementWriter submitter(document, L"j:SubmissionSubmitter.Organization");
    submitter.Text(L"j:OrganizationName", OrganizationName);
    ElementWriter location(document, L"j:IncidentLocation");
    location.Child(Location->Write(document));

    ElementWriter incident(document, L"lejis:RMSIncidentIndexCard");
    incident.Child(identifiers);
    incident.Text(L"j:SubmissionSubmittedDate", FormatNullableDate(*SubmittedDate));
    incident.Child(submitter);
    incident.OptionalText(L"j:ActivityDate", FormatNullableDate(*ActivityDateTime));
    incident.OptionalText(L"j:ActivityTime", FormatNullableTime(*ActivityDateTime));
    incident.Child(location);
    incident.Text(L"j:CaveatText", CaveatText);
    incident.OptionalText(L"j:ChargeNCICCode", ChargeNCICCode);
    incident.OptionalText(L"j:ChargeDescriptionText", ChargeDescriptionText);
    // This is more than the incident's own flag: the index shows the caution of any card at the incident.
    incident.Boolean(L"ext:CautionIndicatorFlag", NeedsCaution());
    // Vehicles are written before property and read after it; both orders are deliberate.
    WriteCards<LejisPersonIndexCard>(incident, *PersonIndexCards);
    WriteCards<LejisVehicleIndexCard>(incident, *VehicleIndexCards);
    WriteCards<LejisPropertyIndexCard>(incident, *PropertyIndexCards);
    return incident.Element();
}

void LejisIncidentIndexCard::Read(const ElementReader& incident) {
    ReadIdentifiers(incident);
    ReadActivityDateTime(incident);
    if (const auto location = incident.Child(L"j:IncidentLocation")) Location->Read(*location);
    ChargeNCICCode = incident.Text(L"j:ChargeNCICCode");
    ChargeDescriptionText = incident.Text(L"j:ChargeDescriptionText");
    CaveatText = incident.Text(L"j:CaveatText");
    texts_.Fit();
    ReadFlag(incident.Text(L"ext:CautionIndicatorFlag"), CautionIndicator);
    ReadCards(incident);
}

STDMETHODIMP LejisIncidentIndexCard::HasCaution(VARIANT_BOOL* result) {
    return Guard(result, [&] { return NeedsCaution(); });
}

bool LejisIncidentIndexCard::NeedsCaution() const {
    return CautionIndicator || AnyHasCaution<LejisPersonIndexCard>(*PersonIndexCards) ||
           AnyHasCaution<LejisPropertyIndexCard>(*PropertyIndexCards) ||
           AnyHasCaution<LejisVehicleIndexCard>(*VehicleIndexCards);
}

void LejisIncidentIndexCard::ReadIdentifiers(const ElementReader& incident) {
    const ElementReader identifiers = RequiredChild(incident, L"card:LejisIndexUid");
    OrganizationORI = identifiers.Text(L"j:OrganizationORIID/j:ID");
    ActivityID = identifiers.Text(L"j:ActivityID/j:ID");
    SubmittedDate->Set(platform::ParseDate(incident.Text(L"j:SubmissionSubmittedDate")));
    const ElementReader submitter = RequiredChild(incident, L"j:SubmissionSubmitter.Organization");
    OrganizationName = submitter.Text(L"j:OrganizationName");
}

void LejisIncidentIndexCard::ReadActivityDateTime(const ElementReader& incident) {
    const std::wstring text =
        platform::Join({incident.Text(L"j:ActivityDate"), L" ", incident.Text(L"j:ActivityTime")});
    ActivityDateTime->Set(platform::ParseDate(platform::TrimBlanks(text)));
}

void LejisIncidentIndexCard::ReadCards(const ElementReader& incident) {
    PersonIndexCards = ReadCardsOf<LejisPersonIndexCard>(incident.Children(L"card:RMSPersonIndexCards"));
    PropertyIndexCards = ReadCardsOf<LejisPropertyIndexCard>(incident.Children(L"card:RMSPropertyIndexCards"));
    VehicleIndexCards = ReadCardsOf<LejisVehicleIndexCard>(incident.Children(L"card:RMSVehicleIndexCards"));
}

}  // namespace lejis
