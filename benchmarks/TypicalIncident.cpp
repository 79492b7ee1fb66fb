#include "TypicalIncident.h"

#include "platform/Conversions.h"

using Microsoft::WRL::ComPtr;

namespace benchmarks {
namespace {

void Fill(lejis::LejisStreetAddress& address) {
    address.SetStreetFullText(L"1410 PEACH STREET");
    address.StreetNumber->Set(1410L);
    address.SetStreetName(L"PEACH");
    address.SetStreetType(L"STREET");
    address.SetStreetDirection(L"W");
    address.SetCity(L"ERIE");
    address.SetState(L"PA");
    address.SetZIP(L"16501");
}

platform::Ref<lejis::LejisPersonIndexCard> Person(const wchar_t* involvement) {
    auto person = platform::Create<lejis::LejisPersonIndexCard>();
    person->SetOrganizationName(L"ERIE CITY POLICE");
    person->SetGivenName(L"JOHN");
    person->SetMiddleName(L"Q");
    person->SetSurName(L"PUBLIC");
    person->SetSSN(L"900123456");
    person->SetDriversLicense(L"12345678");
    person->SetDriversLicenseState(L"PA");
    person->SetSexNCIC(L"M");
    person->SetRaceNCIC(L"W");
    person->SetChargeNCICCode(L"2299");
    person->SetChargeDescriptionText(L"BURGLARY OF A RESIDENCE");
    person->SetInvolvement(involvement);
    person->BirthDate->Set(platform::ParseDate(L"1970-02-28"));
    person->Height->Set(short{510});
    person->Weight->Set(short{180});
    Fill(*person->address);
    return person;
}

platform::Ref<lejis::LejisVehicleIndexCard> Vehicle() {
    auto vehicle = platform::Create<lejis::LejisVehicleIndexCard>();
    vehicle->SetMake(L"FORD");
    vehicle->SetModel(L"F150");
    vehicle->SetStyle(L"PK");
    vehicle->SetColor(L"RED");
    vehicle->SetLicensePlate(L"ABC1234");
    vehicle->SetLicensePlateState(L"PA");
    vehicle->SetVIN(L"1FTFW1ET5DFC10312");
    vehicle->Year->Set(short{2004});
    return vehicle;
}

platform::Ref<lejis::LejisPropertyIndexCard> Item() {
    auto item = platform::Create<lejis::LejisPropertyIndexCard>();
    item->SetNibrsCategoryCode(L"26");
    item->SetCategory(L"RADIO/TV/VCR");
    item->SetMake(L"SONY");
    item->SetModel(L"BRAVIA");
    item->SetSerialID(L"SN-4711-0815");
    return item;
}

}  // namespace

platform::Ref<lejis::LejisIncidentIndexCard> TypicalIncident() {
    auto incident = platform::Create<lejis::LejisIncidentIndexCard>();
    incident->SetOrganizationName(L"ERIE CITY POLICE");
    incident->SetOrganizationORI(L"PA0250100");
    incident->SetActivityID(L"2007-000123");
    incident->SetCaveatText(L"Rear window forced");
    incident->SetChargeNCICCode(L"2299");
    incident->SetChargeDescriptionText(L"BURGLARY OF A RESIDENCE");
    incident->SubmittedDate->Set(platform::ParseDate(L"2007-03-09"));
    incident->ActivityDateTime->Set(platform::ParseDate(L"2007-03-08 23:15:00"));
    Fill(*incident->Location);
    incident->PersonIndexCards->AddObject(Person(L"VICTIM")->Dispatch());
    incident->PersonIndexCards->AddObject(Person(L"SUSPECT")->Dispatch());
    incident->VehicleIndexCards->AddObject(Vehicle()->Dispatch());
    incident->PropertyIndexCards->AddObject(Item()->Dispatch());
    return incident;
}

platform::Ref<lejis::LejisIncidentIndexCard> IncidentWithPersons(int persons) {
    auto incident = TypicalIncident();
    while (incident->PersonIndexCards->Count() < static_cast<size_t>(persons)) {
        incident->PersonIndexCards->AddObject(Person(L"WITNESS")->Dispatch());
    }
    return incident;
}

}  // namespace benchmarks
