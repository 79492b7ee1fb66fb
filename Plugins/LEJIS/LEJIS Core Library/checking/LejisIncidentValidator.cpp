#include "checking/LejisIncidentValidator.h"

#include "checking/RecordMessages.h"
#include "platform/com/ComObject.h"
#include "platform/Dates.h"
#include "platform/Text.h"

namespace lejis {
namespace {

constexpr size_t kLongestId = 30;
constexpr size_t kOriLength = 9;
constexpr size_t kZipLength = 5;
constexpr size_t kSsnLength = 9;

// Only the length matters, not whether the characters are digits.
bool IsEmptyOrHasLength(const platform::TextField& text, size_t length) {
    return text.empty() || text.size() == length;
}

}  // namespace

STDMETHODIMP LejisIncidentValidator::get_HasErrors(VARIANT_BOOL* result) {
    return Guard(result, [&] { return HasErrors(); });
}

STDMETHODIMP LejisIncidentValidator::Validate(ILejisIncidentIndexCard* incident, VARIANT_BOOL* result) {
    return Guard(result, [&] {
        // The list starts before the argument is examined: a refused argument leaves no errors of an earlier call.
        StartList();
        return Check(*platform::ImplementationOf<LejisIncidentIndexCard>(incident));
    });
}

bool LejisIncidentValidator::FindErrors(const LejisIncidentIndexCard& incident) {
    StartList();
    return Check(incident);
}

bool LejisIncidentValidator::Check(const LejisIncidentIndexCard& incident) {
    CheckIdentifiers(incident);
    // Organization name, caveat, charge description and charge code are accepted as they are, here and for persons.
    CheckAddress(kMainRecordLabel, *incident.Location);
    // One after the other: when an object of another class is refused, the errors of the persons before it are listed.
    incident.PersonIndexCards->ForEach<LejisPersonIndexCard>([this](const auto& person) { CheckPerson(person); });
    // Every property and vehicle card is accepted; an object of another class is not.
    incident.PropertyIndexCards->ItemsAs<LejisPropertyIndexCard>();
    incident.VehicleIndexCards->ItemsAs<LejisVehicleIndexCard>();
    return HasErrors();
}

void LejisIncidentValidator::CheckIdentifiers(const LejisIncidentIndexCard& incident) {
    if (platform::IsBlank(incident.ActivityID)) AddError(L"ID is required.");
    if (incident.ActivityID.size() > kLongestId) {
        AddError(L"ID is too long. Records submitted to LEJIS must have ID's between 1 and 30 characters long.");
    }
    if (!incident.SubmittedDate->Date()) AddError(L"Submission date is missing.");
    if (platform::IsBlank(incident.OrganizationORI)) {
        AddError(L"Agency ORI number cannot be blank. Check Agency settings in Administration.");
    }
    // A blank ORI is reported a second time here, on purpose.
    if (incident.OrganizationORI.size() != kOriLength) {
        AddError(platform::Join(
            {L"'", incident.OrganizationORI,
             L"' is not a valid ORI number. An ORI number must be 9 characters long. Check Agency settings in "
             L"Administration."}));
    }
}

void LejisIncidentValidator::CheckAddress(const std::wstring& label, const LejisStreetAddress& address) {
    if (IsEmptyOrHasLength(address.ZIP, kZipLength)) return;
    AddLabelledError(label, platform::Join({L"'", address.ZIP,
                                            L"' is not a valid ZIP code. ZIP codes submitted to LEJIS must be 5 digits "
                                            L"long, or left blank."}));
}

void LejisIncidentValidator::CheckPerson(const LejisPersonIndexCard& person) {
    const std::wstring label = LabelOf(person);
    CheckAddress(label, *person.address);
    if (!IsEmptyOrHasLength(person.SSN, kSsnLength)) {
        AddLabelledError(label, platform::Join({L"'", person.SSN,
                                                L"' is not a valid SSN. SSN's submitted to LEJIS must be 9 digits "
                                                L"long, or left blank."}));
    }
    if (person.BirthDate->Date() > platform::Now()) AddLabelledError(label, L"DOB cannot be in the future.");
    if (const auto message = CautionCaveatMessage(person)) AddLabelledError(label, *message);
}

void LejisIncidentValidator::AddError(const std::wstring& message) { Errors->AddText(message); }

void LejisIncidentValidator::AddLabelledError(const std::wstring& label, const std::wstring& message) {
    AddError(Labelled(label, message));
}

}  // namespace lejis
