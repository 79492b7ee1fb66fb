// Incidents that the validator is given, and the texts of its errors.
#pragma once

#include "checking/LejisIncidentValidator.h"
#include "support/ComCheck.h"
#include "unit_support/Members.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lejis::validator_case {

using Errors = std::vector<std::wstring>;

inline constexpr wchar_t kIdMissing[] = L"ID is required.";
inline constexpr wchar_t kIdTooLong[] =
    L"ID is too long. Records submitted to LEJIS must have ID's between 1 and 30 characters long.";
inline constexpr wchar_t kDateMissing[] = L"Submission date is missing.";
inline constexpr wchar_t kOriMissing[] = L"Agency ORI number cannot be blank. Check Agency settings in Administration.";
inline constexpr wchar_t kOriWrong[] =
    L"' is not a valid ORI number. An ORI number must be 9 characters long. Check Agency "
    L"settings in Administration.";
inline constexpr wchar_t kZipWrong[] =
    L"' is not a valid ZIP code. ZIP codes submitted to LEJIS must be 5 digits long, or "
    L"left blank.";
inline constexpr wchar_t kSsnWrong[] =
    L"' is not a valid SSN. SSN's submitted to LEJIS must be 9 digits long, or left blank.";

using Incident = platform::Ref<LejisIncidentIndexCard>;
using Person = platform::Ref<LejisPersonIndexCard>;

// An incident in which nothing is wrong.
inline Incident Clean() {
    auto incident = platform::Create<LejisIncidentIndexCard>();
    incident->ActivityID = L"07-1234";
    incident->OrganizationORI = L"PA0250100";
    incident->SubmittedDate->Assign(support::Date(L"2007-03-10"));
    return incident;
}

inline Person AddPerson(const Incident& incident, const wchar_t* givenName = L"ANN") {
    auto person = platform::Create<LejisPersonIndexCard>();
    person->GivenName = givenName;
    person->SurName = L"LEE";
    person->Involvement = L"witness";
    incident->PersonIndexCards->AddObject(person->Dispatch());
    return person;
}

inline Errors ErrorsOf(const Incident& incident) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    const bool found = validator->FindErrors(*incident);
    EXPECT_EQ(found, validator->HasErrors());
    EXPECT_EQ(found, validator->Errors->Count() > 0);
    return support::Texts(*validator->Errors);
}

}  // namespace lejis::validator_case
