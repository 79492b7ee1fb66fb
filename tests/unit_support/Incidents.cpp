#include "unit_support/Incidents.h"

#include "platform/Conversions.h"

using Microsoft::WRL::ComPtr;

namespace support {

platform::Ref<lejis::LejisIncidentIndexCard> CleanIncident() {
    auto incident = platform::Create<lejis::LejisIncidentIndexCard>();
    incident->SetOrganizationName(L"ERIE CITY POLICE");
    incident->SetOrganizationORI(L"PA0250100");
    incident->SetActivityID(L"2007-000123");
    incident->SubmittedDate->Set(platform::ParseDate(L"2007-03-09"));
    return incident;
}

platform::Ref<lejis::LejisIncidentIndexCard> FullIncident() {
    auto incident = CleanIncident();
    incident->SetChargeNCICCode(L"2299");
    incident->ActivityDateTime->Set(platform::ParseDate(L"2007-03-08 23:15:00"));
    incident->Location->SetCity(L"ERIE");
    const auto person = platform::Create<lejis::LejisPersonIndexCard>();
    person->SetSurName(L"PUBLIC");
    const auto vehicle = platform::Create<lejis::LejisVehicleIndexCard>();
    vehicle->SetMake(L"FORD");
    const auto item = platform::Create<lejis::LejisPropertyIndexCard>();
    item->SetMake(L"SONY");
    incident->PersonIndexCards->AddObject(person->Dispatch());
    incident->VehicleIndexCards->AddObject(vehicle->Dispatch());
    incident->PropertyIndexCards->AddObject(item->Dispatch());
    return incident;
}

}  // namespace support
