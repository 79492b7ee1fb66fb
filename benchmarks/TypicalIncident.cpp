#include "TypicalIncident.h"

#include "platform/Conversions.h"

using Microsoft::WRL::ComPtr;

namespace benchmarks {
namespace {

void Fill(lejis::LejisStreetAddress& address) {
    address.StreetFullText = L"1410 PEACH STREET";
    address.StreetNumber->Set(1410L);
    address.StreetName = L"PEACH";
    address.StreetType = L"STREET";
    address.StreetDirection = L"W";
    address.City = L"ERIE";
    address.State = L"PA";
    address.ZIP = L"16501";
}

platform::Ref<lejis::LejisPersonIndexCard> Person(const wchar_t* involvement) {
    auto person = platform::Create<lejis::LejisPersonIndexCard>();
    person->OrganizationName = L"ERIE CITY POLICE";
    person->GivenName = L"JOHN";
    person->MiddleName = L"Q";
    person->SurName = L"PUBLIC";
    person->SSN = L"900123456";
    person->DriversLicense = L"12345678";
    person->DriversLicenseState = L"PA";
    person->SexNCIC = L"M";
    person->RaceNCIC = L"W";
    person->ChargeNCICCode = L"2299";
    person->ChargeDescriptionText = L"BURGLARY OF A RESIDENCE";
    person->Involvement = involvement;
    person->BirthDate->Set(platform::ParseDate(L"1970-02-28"));
    person->Height->Set(short{510});
    person->Weight->Set(short{180});
    Fill(*person->address);
    return person;
}

platform::Ref<lejis::LejisVehicleIndexCard> Vehicle() {
    auto vehicle = platform::Create<lejis::LejisVehicleIndexCard>();
    vehicle->Make = L"FORD";
    vehicle->Model = L"F150";
    vehicle->Style = L"PK";
    vehicle->Color = L"RED";
    vehicle->LicensePlate = L"ABC1234";
    vehicle->LicensePlateState = L"PA";
    vehicle->VIN = L"1FTFW1ET5DFC10312";
    vehicle->Year->Set(short{2004});
    return vehicle;
}

platform::Ref<lejis::LejisPropertyIndexCard> Item() {
    auto item = platform::Create<lejis::LejisPropertyIndexCard>();
    item->NibrsCategoryCode = L"26";
    item->Category = L"RADIO/TV/VCR";
    item->Make = L"SONY";
    item->Model = L"BRAVIA";
    item->SerialID = L"SN-4711-0815";
    return item;
}

}  // namespace

platform::Ref<lejis::LejisIncidentIndexCard> TypicalIncident() {
    auto incident = platform::Create<lejis::LejisIncidentIndexCard>();
    incident->OrganizationName = L"ERIE CITY POLICE";
    incident->OrganizationORI = L"PA0250100";
    incident->ActivityID = L"2007-000123";
    incident->CaveatText = L"Rear window forced";
    incident->ChargeNCICCode = L"2299";
    incident->ChargeDescriptionText = L"BURGLARY OF A RESIDENCE";
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
