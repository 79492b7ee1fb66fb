#include "checking/FormattingRules.h"

#include "checking/CautionCaveat.h"
#include "checking/NcicOffenseCodes.h"
#include "checking/RecordLabels.h"
#include "foundation/NumberText.h"

namespace lejis {
namespace {

constexpr size_t kLongestName = 28;
constexpr size_t kLongestStreetNumber = 6;
constexpr size_t kLongZip = 9;
constexpr size_t kShortZip = 5;
constexpr short kHeaviest = 999;
constexpr short kFirstYear = 1900;

std::wstring LengthOf(const std::wstring& text) { return std::to_wstring(text.size()); }

}  // namespace

void FormattingRules::Apply(LejisIncidentIndexCard& incident) {
    ApplyShared(kMainRecordLabel, incident);
    Apply(kMainRecordLabel, *incident.Location.Get());
    for (const auto& person : incident.PersonIndexCards->ItemsAs<LejisPersonIndexCard>()) Apply(*person.Get());
    for (const auto& item : incident.PropertyIndexCards->ItemsAs<LejisPropertyIndexCard>()) Apply(*item.Get());
    for (const auto& vehicle : incident.VehicleIndexCards->ItemsAs<LejisVehicleIndexCard>()) Apply(*vehicle.Get());
}

void FormattingRules::Apply(LejisPersonIndexCard& person) {
    // Made once: the rules below may change what it is made of.
    const std::wstring label = LabelOf(person);
    Apply(label, *person.address.Get());
    TruncateName(label, L"First name", person.GivenName);
    TruncateName(label, L"Middle name", person.MiddleName);
    TruncateName(label, L"Last name", person.SurName);
    RequireCode(label, L"race", L"Race", L"ABIUW", person.RaceNCIC);
    RequireCode(label, L"sex", L"Sex", L"MFU", person.SexNCIC);
    DropWeight(label, *person.Weight.Get());
    ApplyShared(label, person);
    // Only warned of, not shortened: the validator then refuses it.
    if (const auto message = CautionCaveatMessage(person)) Warn(label, *message);
}

void FormattingRules::Apply(LejisPropertyIndexCard& property) {
    const std::wstring label = LabelOf(property);
    Truncate(label, L"Category", property.Category, 35);
    Truncate(label, L"Make", property.Make, 35);
    Truncate(label, L"Model", property.Model, 35);
}

void FormattingRules::Apply(LejisVehicleIndexCard& vehicle) {
    const std::wstring label = LabelOf(vehicle);
    DropYear(label, *vehicle.Year.Get());
    // Shorter than a property's model, and the make has no limit; both are LEJIS's own.
    Truncate(label, L"Model", vehicle.Model, 30);
    Truncate(label, L"Color", vehicle.Color, 30);
}

void FormattingRules::Apply(const std::wstring& label, LejisStreetAddress& address) {
    Truncate(label, L"Full street address", address.StreetFullText, 45);
    DropLongStreetNumber(label, *address.StreetNumber.Get());
    Truncate(label, L"Street name", address.StreetName, 30);
    Truncate(label, L"Street extension", address.StreetExtension, 10);
    Truncate(label, L"Street type", address.StreetType, 10);
    Truncate(label, L"Street directional", address.StreetDirection, 9);
    ShortenZip(label, address.ZIP);
}

template <typename Record>
void FormattingRules::ApplyShared(const std::wstring& label, Record& record) {
    Truncate(label, L"Agency name", record.OrganizationName, 75);
    Truncate(label, L"Caveat text", record.CaveatText, 200);
    Truncate(label, L"Charge description", record.ChargeDescriptionText, 200);
    RequireOffenseCode(label, record.ChargeNCICCode);
}

void FormattingRules::Truncate(const std::wstring& label, const std::wstring& field, std::wstring& value,
                               size_t limit) {
    if (value.size() <= limit) return;
    Warn(label, field + L" '" + value + L"' was too long (" + LengthOf(value) + L" characters) and was truncated to " +
                    std::to_wstring(limit) + L" characters.");
    value.resize(limit);
}

void FormattingRules::TruncateName(const std::wstring& label, const std::wstring& field, std::wstring& value) {
    if (value.size() <= kLongestName) return;
    Warn(label, field + L" '" + value + L"' was " + LengthOf(value) + L" characters long. Name was truncated to " +
                    std::to_wstring(kLongestName) + L" characters.");
    value.resize(kLongestName);
}

void FormattingRules::RequireOffenseCode(const std::wstring& label, std::wstring& code) {
    if (code.empty() || LejisUtils::IsNcicOffenseCode(code)) return;
    Warn(label,
         L"Charge NCIC code '" + code + L"' is not a valid NCIC offense code. Will submit a blank code instead.");
    code.clear();
}

void FormattingRules::RequireCode(const std::wstring& label, const std::wstring& kind, const std::wstring& list,
                                  std::wstring_view accepted, std::wstring& code) {
    if (code.empty() || (code.size() == 1 && accepted.find(code) != std::wstring_view::npos)) return;
    Warn(label, L"'" + code + L"' is not a valid NCIC " + kind + L" code, will submit 'U' (Unknown) instead. Check " +
                    list + L" Selection List settings in Administration and verify that NCIC Codes are set correctly.");
    code = L"U";
}

void FormattingRules::DropLongStreetNumber(const std::wstring& label, NullableLong& number) {
    const std::wstring text = NumberText(number);
    if (text.size() <= kLongestStreetNumber) return;
    Warn(label, L"Street address number '" + text + L"' was too long (" + LengthOf(text) +
                    L" characters) and was not submitted.");
    number.Set(std::nullopt);
}

void FormattingRules::ShortenZip(const std::wstring& label, std::wstring& zip) {
    // Exactly nine characters: with a hyphen there are ten, which the validator refuses.
    if (zip.size() != kLongZip) return;
    const std::wstring shortened = zip.substr(0, kShortZip);
    Warn(label, L"9-digit ZIP code '" + zip + L"' will be sent as '" + shortened + L"'");
    zip = shortened;
}

void FormattingRules::DropWeight(const std::wstring& label, NullableInteger& weight) {
    if (!weight.Number() || (*weight.Number() >= 0 && *weight.Number() <= kHeaviest)) return;
    // A negative weight is called too large as well.
    Warn(label, L"The specified weight '" + NumberText(weight) +
                    L" lbs.' is too large. The maximum for LEJIS is 999 lbs. Will not submit weight information.");
    weight.Set(std::nullopt);
}

void FormattingRules::DropYear(const std::wstring& label, NullableInteger& year) {
    if (!year.Number() || *year.Number() >= kFirstYear) return;
    Warn(label,
         L"'" + NumberText(year) + L"' is not a valid vehicle year (was before 1900). Will not submit vehicle year.");
    year.Set(std::nullopt);
}

void FormattingRules::Warn(const std::wstring& label, const std::wstring& message) {
    warnings_.AddText(Labelled(label, message));
}

}  // namespace lejis
