#include "checking/FormattingRules.h"

#include "checking/NcicOffenseCodes.h"
#include "checking/RecordMessages.h"
#include "foundation/NullableNumber.h"
#include "platform/Text.h"

namespace lejis {
namespace {

constexpr size_t kLongestName = 28;
constexpr size_t kLongestStreetNumber = 6;
constexpr size_t kLongZip = 9;
constexpr size_t kShortZip = 5;
constexpr short kHeaviest = 999;
constexpr short kFirstYear = 1900;

std::wstring LengthOf(std::wstring_view text) { return std::to_wstring(text.size()); }

}  // namespace

void FormattingRules::Apply(LejisIncidentIndexCard& incident) {
    ApplyShared(kMainRecordLabel, incident);
    Apply(kMainRecordLabel, *incident.Location);
    for (const auto& person : incident.PersonIndexCards->ItemsAs<LejisPersonIndexCard>()) Apply(*person);
    for (const auto& item : incident.PropertyIndexCards->ItemsAs<LejisPropertyIndexCard>()) Apply(*item);
    for (const auto& vehicle : incident.VehicleIndexCards->ItemsAs<LejisVehicleIndexCard>()) Apply(*vehicle);
}

void FormattingRules::Apply(LejisPersonIndexCard& person) {
    // The label is made once, because the rules below may change its parts.
    const std::wstring label = LabelOf(person);
    Apply(label, *person.address);
    TruncateName(label, L"First name", person.GivenName);
    TruncateName(label, L"Middle name", person.MiddleName);
    TruncateName(label, L"Last name", person.SurName);
    ReplaceUnknownCode(label, L"race", L"Race", L"ABIUW", person.RaceNCIC);
    ReplaceUnknownCode(label, L"sex", L"Sex", L"MFU", person.SexNCIC);
    DropWeight(label, *person.Weight);
    ApplyShared(label, person);
    // The caveat gets a warning and is not shortened: the validator then refuses it.
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
    DropYear(label, *vehicle.Year);
    // The limit of the model is shorter than a property's, and the make has no limit. LEJIS has it so.
    Truncate(label, L"Model", vehicle.Model, 30);
    Truncate(label, L"Color", vehicle.Color, 30);
}

void FormattingRules::Apply(const std::wstring& label, LejisStreetAddress& address) {
    Truncate(label, L"Full street address", address.StreetFullText, 45);
    DropLongStreetNumber(label, *address.StreetNumber);
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
    DropUnknownOffenseCode(label, record.ChargeNCICCode);
}

void FormattingRules::Truncate(const std::wstring& label, std::wstring_view name, platform::TextField& text,
                               size_t limit) {
    if (text.size() <= limit) return;
    const std::wstring whole = text;
    Warn(label, platform::Join({name, L" '", whole, L"' was too long (", LengthOf(whole),
                                L" characters) and was truncated to ", std::to_wstring(limit), L" characters."}));
    text = whole.substr(0, limit);
}

void FormattingRules::TruncateName(const std::wstring& label, std::wstring_view name, platform::TextField& text) {
    if (text.size() <= kLongestName) return;
    const std::wstring whole = text;
    Warn(label,
         platform::Join({name, L" '", whole, L"' was ", LengthOf(whole), L" characters long. Name was truncated to ",
                         std::to_wstring(kLongestName), L" characters."}));
    text = whole.substr(0, kLongestName);
}

void FormattingRules::DropUnknownOffenseCode(const std::wstring& label, platform::TextField& code) {
    const std::wstring whole = code;
    if (whole.empty() || LejisUtils::IsNcicOffenseCode(whole)) return;
    Warn(label, platform::Join({L"Charge NCIC code '", whole,
                                L"' is not a valid NCIC offense code. Will submit a blank code instead."}));
    code = L"";
}

void FormattingRules::ReplaceUnknownCode(const std::wstring& label, std::wstring_view kind, std::wstring_view list,
                                         std::wstring_view accepted, platform::TextField& code) {
    const std::wstring whole = code;
    if (whole.empty() || (whole.size() == 1 && accepted.find(whole) != std::wstring_view::npos)) return;
    Warn(label,
         platform::Join({L"'", whole, L"' is not a valid NCIC ", kind,
                         L" code, will submit 'U' (Unknown) instead. Check ", list,
                         L" Selection List settings in Administration and verify that NCIC Codes are set correctly."}));
    code = L"U";
}

void FormattingRules::ShortenZip(const std::wstring& label, platform::TextField& zip) {
    // This takes exactly nine characters: with a hyphen there are ten, which the validator refuses.
    if (zip.size() != kLongZip) return;
    const std::wstring whole = zip;
    const std::wstring shortened = whole.substr(0, kShortZip);
    Warn(label, platform::Join({L"9-digit ZIP code '", whole, L"' will be sent as '", shortened, L"'"}));
    zip = shortened;
}

void FormattingRules::DropLongStreetNumber(const std::wstring& label, NullableLong& number) {
    const std::wstring text = NumberText(number);
    if (text.size() <= kLongestStreetNumber) return;
    Warn(label, L"Street address number '" + text + L"' was too long (" + LengthOf(text) +
                    L" characters) and was not submitted.");
    number.Set(std::nullopt);
}

void FormattingRules::DropWeight(const std::wstring& label, NullableInteger& weight) {
    if (!weight.Number() || (*weight.Number() >= 0 && *weight.Number() <= kHeaviest)) return;
    // The warning calls a negative weight too large as well.
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
