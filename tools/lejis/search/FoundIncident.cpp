#include "search/FoundIncident.h"

#include "library/Members.h"

#include <initializer_list>

namespace lejis_client {
namespace {

using Incident = ILejisIncidentIndexCard;
using Address = ILejisStreetAddress;
using Person = ILejisPersonIndexCard;
using Vehicle = ILejisVehicleIndexCard;

// The parts that say something, with the separator between them.
std::wstring Joined(std::initializer_list<std::wstring> parts, const wchar_t* separator = L" ") {
    std::wstring text;
    for (const std::wstring& part : parts) {
        if (part.empty()) continue;
        if (!text.empty()) text += separator;
        text += part;
    }
    return text;
}

std::wstring Labelled(const wchar_t* label, const std::wstring& text) { return text.empty() ? text : label + text; }

std::wstring NumberText(const _variant_t& number) { return number.vt == VT_NULL ? L"" : Text(_bstr_t(number)); }

std::wstring DayText(const _variant_t& day) {
    if (day.vt != VT_DATE) return {};
    _bstr_t text;
    Check(Create<LejisCommon, ILejisCommon>()->LejisFormatDate(day.date, text.GetAddress()));
    return Text(text);
}

std::wstring StreetText(Address* address) {
    const std::wstring whole = TextOf(address, &Address::get_StreetFullText);
    if (!whole.empty()) return whole;
    return Joined({NumberText(ValueOf(address, &Address::get_StreetNumber)),
                   TextOf(address, &Address::get_StreetDirection), TextOf(address, &Address::get_StreetName),
                   TextOf(address, &Address::get_StreetType), TextOf(address, &Address::get_StreetExtension)});
}

std::wstring PlaceText(Address* address) {
    const std::wstring town = Joined({TextOf(address, &Address::get_City), TextOf(address, &Address::get_State),
                                      TextOf(address, &Address::get_ZIP)});
    return Joined({StreetText(address), town}, L", ");
}

std::wstring PersonText(Person* person) {
    const std::wstring involvement = TextOf(person, &Person::get_Involvement);
    return Joined({TextOf(person, &Person::get_SurName), TextOf(person, &Person::get_GivenName),
                   involvement.empty() ? L"" : L"(" + involvement + L")"});
}

std::wstring VehicleText(Vehicle* vehicle) {
    const std::wstring kind = Joined({NumberText(ValueOf(vehicle, &Vehicle::get_Year)),
                                      TextOf(vehicle, &Vehicle::get_Color), TextOf(vehicle, &Vehicle::get_Make),
                                      TextOf(vehicle, &Vehicle::get_Model), TextOf(vehicle, &Vehicle::get_Style)});
    const std::wstring plate =
        Joined({TextOf(vehicle, &Vehicle::get_LicensePlate), TextOf(vehicle, &Vehicle::get_LicensePlateState)});
    return Joined({kind, Labelled(L"plate ", plate), Labelled(L"VIN ", TextOf(vehicle, &Vehicle::get_VIN))}, L", ");
}

template <typename Card>
std::vector<std::wstring> Lines(ICollection* cards, std::wstring (*text)(Card*)) {
    std::vector<std::wstring> lines;
    for (const auto& card : Objects<Card>(cards)) lines.push_back(text(card.Get()));
    std::erase(lines, L"");
    return lines;
}

}  // namespace

IncidentColumns ColumnsOf(Incident* incident) {
    return {TextOf(incident, &Incident::get_OrganizationORI), TextOf(incident, &Incident::get_ActivityID),
            DayText(ValueOf(incident, &Incident::get_ActivityDateTime)),
            Joined({TextOf(incident, &Incident::get_ChargeNCICCode),
                    TextOf(incident, &Incident::get_ChargeDescriptionText)}),
            PlaceText(Part(incident, &Incident::get_Location).Get())};
}

std::vector<std::wstring> PersonsOf(Incident* incident) {
    return Lines<Person>(Part(incident, &Incident::get_PersonIndexCards).Get(), PersonText);
}

std::vector<std::wstring> VehiclesOf(Incident* incident) {
    return Lines<Vehicle>(Part(incident, &Incident::get_VehicleIndexCards).Get(), VehicleText);
}

}  // namespace lejis_client
