#include "search/SearchOption.h"

#include "library/Members.h"
#include "text/Day.h"
#include "text/Number.h"

#include <algorithm>

namespace lejis_client {
namespace {

using Request = ILejisSearchRequest;
using Person = IPersonInquiryArguments;
using Vehicle = IVehicleInquiryArguments;
using Property = IPropertyInquiryArguments;
using Place = ILocationInquiryArguments;

// What the library's short numbers hold; it would take a larger one for 0.
constexpr long kMostOfShort = 32767;
constexpr long kMostOfLong = 2147483647;

std::wstring NoComplaint(const std::wstring&) { return {}; }

std::wstring DayComplaint(const std::wstring& value) {
    return ParseDay(value) ? L"" : L"'" + value + L"' is no day; write it as in 2024-03-09";
}

template <long least, long most>
std::wstring NumberComplaint(const std::wstring& value) {
    if (ParseNumber(value, least, most)) return {};
    return L"'" + value + L"' is no whole number from " + std::to_wstring(least) + L" to " + std::to_wstring(most);
}

template <auto block, auto put>
void PutText(Request* request, const std::wstring& value) {
    const auto arguments = Part(request, block);
    Check((arguments.Get()->*put)(_bstr_t(value.c_str())));
}

template <auto block, auto number>
void PutNumber(Request* request, const std::wstring& value) {
    const auto holder = Part(Part(request, block).Get(), number);
    Check(holder->put_Value(_variant_t(*ParseNumber(value, 0, kMostOfShort), VT_I4)));
}

void PutBirthDate(Request* request, const std::wstring& value) {
    const auto holder = Part(Part(request, &Request::get_personArguments).Get(), &Person::get_BirthDate);
    Check(holder->put_Value(_variant_t(*ParseDay(value), VT_DATE)));
}

void PutMax(Request* request, const std::wstring& value) {
    const auto controls = Part(request, &Request::get_InquiryControls);
    Check(controls->put_MaxIncidents(*ParseNumber(value, 1, kMostOfLong)));
}

void ExcludeOri(Request* request, const std::wstring& value) {
    const auto controls = Part(request, &Request::get_InquiryControls);
    const auto excluded = Part(controls.Get(), &ILejisInquiryControls::get_ExcludedORIIDs);
    Check(excluded->Add(_variant_t(value.c_str())));
}

template <auto put>
constexpr auto kPerson = PutText<&Request::get_personArguments, put>;
template <auto put>
constexpr auto kVehicle = PutText<&Request::get_VehicleArguments, put>;
template <auto put>
constexpr auto kProperty = PutText<&Request::get_PropertyArguments, put>;
template <auto put>
constexpr auto kPlace = PutText<&Request::get_LocationArguments, put>;
constexpr auto kWords = PutText<&Request::get_AdHocInquiryArguments, &ILejisAdHocInquiryArguments::put_QueryString>;

constexpr auto kShort = NumberComplaint<0, kMostOfShort>;

constexpr SearchOption kOptions[] = {
    {L"--surname", true, NoComplaint, kPerson<&Person::put_SurName>},
    {L"--given", true, NoComplaint, kPerson<&Person::put_GivenName>},
    {L"--middle", true, NoComplaint, kPerson<&Person::put_MiddleName>},
    {L"--dob", true, DayComplaint, PutBirthDate},
    {L"--ssn", true, NoComplaint, kPerson<&Person::put_SSN>},
    {L"--licence", true, NoComplaint, kPerson<&Person::put_DriversLicense>},
    {L"--license", true, NoComplaint, kPerson<&Person::put_DriversLicense>},
    {L"--licence-state", true, NoComplaint, kPerson<&Person::put_DriversLicenseState>},
    {L"--license-state", true, NoComplaint, kPerson<&Person::put_DriversLicenseState>},
    {L"--sex", true, NoComplaint, kPerson<&Person::put_SexNCIC>},
    {L"--race", true, NoComplaint, kPerson<&Person::put_RaceNCIC>},
    {L"--height", true, kShort, PutNumber<&Request::get_personArguments, &Person::get_Height>},
    {L"--weight", true, kShort, PutNumber<&Request::get_personArguments, &Person::get_Weight>},
    {L"--vin", true, NoComplaint, kVehicle<&Vehicle::put_VIN>},
    {L"--plate", true, NoComplaint, kVehicle<&Vehicle::put_LicensePlate>},
    {L"--plate-state", true, NoComplaint, kVehicle<&Vehicle::put_LicensePlateState>},
    {L"--vehicle-make", true, NoComplaint, kVehicle<&Vehicle::put_Make>},
    {L"--vehicle-model", true, NoComplaint, kVehicle<&Vehicle::put_Model>},
    {L"--vehicle-year", true, kShort, PutNumber<&Request::get_VehicleArguments, &Vehicle::get_Year>},
    {L"--vehicle-style", true, NoComplaint, kVehicle<&Vehicle::put_Style>},
    {L"--vehicle-color", true, NoComplaint, kVehicle<&Vehicle::put_Color>},
    {L"--serial", true, NoComplaint, kProperty<&Property::put_SerialNumber>},
    {L"--property-category", true, NoComplaint, kProperty<&Property::put_Category>},
    {L"--property-make", true, NoComplaint, kProperty<&Property::put_Make>},
    {L"--property-model", true, NoComplaint, kProperty<&Property::put_Model>},
    {L"--street-full", true, NoComplaint, kPlace<&Place::put_StreetFullText>},
    {L"--street", true, NoComplaint, kPlace<&Place::put_StreetName>},
    {L"--city", true, NoComplaint, kPlace<&Place::put_City>},
    {L"--state", true, NoComplaint, kPlace<&Place::put_State>},
    {L"--zip", true, NoComplaint, kPlace<&Place::put_ZIP>},
    {L"--text", true, NoComplaint, kWords},
    {L"--max", false, NumberComplaint<1, kMostOfLong>, PutMax},
    {L"--exclude-ori", false, NoComplaint, ExcludeOri, true},
};

}  // namespace

const SearchOption* FindSearchOption(const std::wstring& name) {
    const auto* const found =
        std::find_if(std::begin(kOptions), std::end(kOptions), [&](const auto& row) { return row.name == name; });
    return found == std::end(kOptions) ? nullptr : found;
}

std::vector<std::wstring_view> SearchOptionNames() {
    std::vector<std::wstring_view> names;
    for (const SearchOption& option : kOptions) names.push_back(option.name);
    return names;
}

bool HasCriterion(const SearchValues& values) {
    return std::any_of(values.begin(), values.end(), [](const auto& value) { return value.option->isCriterion; });
}

}  // namespace lejis_client
