#include "unit_support/Incidents.h"

#include "platform/Conversions.h"
#include "support/ComCheck.h"
#include "support/Xml.h"

namespace support {

platform::Ref<lejis::LejisIncidentIndexCard> CleanIncident() {
    auto incident = platform::Create<lejis::LejisIncidentIndexCard>();
    incident->OrganizationName = L"ERIE CITY POLICE";
    incident->OrganizationORI = L"PA0250100";
    incident->ActivityID = L"2007-000123";
    incident->SubmittedDate->Set(platform::ParseDate(L"2007-03-09"));
    return incident;
}

platform::Ref<lejis::LejisIncidentIndexCard> FullIncident() {
    auto incident = CleanIncident();
    incident->ChargeNCICCode = L"2299";
    incident->ActivityDateTime->Set(platform::ParseDate(L"2007-03-08 23:15:00"));
    incident->Location->City = L"ERIE";
    const auto person = platform::Create<lejis::LejisPersonIndexCard>();
    person->SurName = L"PUBLIC";
    const auto vehicle = platform::Create<lejis::LejisVehicleIndexCard>();
    vehicle->Make = L"FORD";
    const auto item = platform::Create<lejis::LejisPropertyIndexCard>();
    item->Make = L"SONY";
    incident->PersonIndexCards->AddObject(person->Dispatch());
    incident->VehicleIndexCards->AddObject(vehicle->Dispatch());
    incident->PropertyIndexCards->AddObject(item->Dispatch());
    return incident;
}

std::wstring XmlOf(const platform::Ref<lejis::LejisIncidentIndexCard>& incident) {
    BSTR text = nullptr;
    EXPECT_OK(incident->Write(NewDocument())->get_xml(&text));
    return Take(text);
}

}  // namespace support
