// Each check at its limit and one step beyond.
#include "checking/ValidatorCase.h"
#include "platform/Dates.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lejis {
namespace {

using namespace validator_case;

TEST(LejisIncidentValidatorRules, WantsAnIdOfOneToThirtyCharacters) {
    const auto errors = [](const std::wstring& id) {
        const Incident incident = Clean();
        incident->ActivityID = id;
        return ErrorsOf(incident);
    };
    EXPECT_EQ(Errors{}, errors(L"1"));
    EXPECT_EQ(Errors{}, errors(std::wstring(30, L'x')));
    EXPECT_EQ(Errors{kIdTooLong}, errors(std::wstring(31, L'x')));
    EXPECT_EQ(Errors{kIdTooLong}, errors(L"1" + std::wstring(30, L' ')));
    EXPECT_EQ(Errors{kIdMissing}, errors(L""));
    EXPECT_EQ(Errors{kIdMissing}, errors(std::wstring(30, L' ')));
    EXPECT_EQ((Errors{kIdMissing, kIdTooLong}), errors(std::wstring(31, L' ')));
}

TEST(LejisIncidentValidatorRules, WantsASubmissionDate) {
    const Incident incident = Clean();
    incident->SubmittedDate->Set(std::nullopt);
    EXPECT_EQ(Errors{kDateMissing}, ErrorsOf(incident));
}

TEST(LejisIncidentValidatorRules, WantsAnOriOfNineCharacters) {
    const auto errors = [](const std::wstring& ori) {
        const Incident incident = Clean();
        incident->OrganizationORI = ori;
        return ErrorsOf(incident);
    };
    EXPECT_EQ(Errors{}, errors(L"PA0250100"));
    EXPECT_EQ(Errors{std::wstring(L"'PA025010") + kOriWrong}, errors(L"PA025010"));
    EXPECT_EQ(Errors{std::wstring(L"'PA02501000") + kOriWrong}, errors(L"PA02501000"));
    EXPECT_EQ(Errors{kOriMissing}, errors(std::wstring(9, L' ')));
    EXPECT_EQ((Errors{kOriMissing, std::wstring(L"'  ") + kOriWrong}), errors(L"  "));
}

TEST(LejisIncidentValidatorRules, WantsFiveCharactersOfZipOrNone) {
    const auto errors = [](const wchar_t* zip) {
        const Incident incident = Clean();
        incident->Location->ZIP = zip;
        AddPerson(incident)->address->ZIP = zip;
        return ErrorsOf(incident);
    };
    for (const wchar_t* zip : {L"", L"16501", L"ABCDE", L"     "}) EXPECT_EQ(Errors{}, errors(zip));
    for (const std::wstring zip : {L"1234", L"165011", L"123456789", L"12345-6789", L" "}) {
        EXPECT_EQ((Errors{L"Main record: '" + zip + kZipWrong, L"ANN LEE (Witness): '" + zip + kZipWrong}),
                  errors(zip.c_str()));
    }
}

TEST(LejisIncidentValidatorRules, WantsNineCharactersOfSsnOrNone) {
    const auto errors = [](const wchar_t* ssn) {
        const Incident incident = Clean();
        AddPerson(incident)->SSN = ssn;
        return ErrorsOf(incident);
    };
    for (const wchar_t* ssn : {L"", L"123456789", L"ABCDEFGHI"}) EXPECT_EQ(Errors{}, errors(ssn));
    for (const std::wstring ssn : {L"12345678", L"1234567890", L"123-45-6789", L" "}) {
        EXPECT_EQ(Errors{L"ANN LEE (Witness): '" + ssn + kSsnWrong}, errors(ssn.c_str()));
    }
}

TEST(LejisIncidentValidatorRules, WantsNoBirthDateInTheFuture) {
    const auto errors = [](std::optional<DATE> birthDate) {
        const Incident incident = Clean();
        AddPerson(incident)->BirthDate->Set(birthDate);
        return ErrorsOf(incident);
    };
    const DATE today = std::floor(platform::Now());
    EXPECT_EQ(Errors{}, errors(std::nullopt));
    EXPECT_EQ(Errors{}, errors(today));
    EXPECT_EQ(Errors{}, errors(platform::Now()));
    EXPECT_EQ(Errors{L"ANN LEE (Witness): DOB cannot be in the future."}, errors(platform::Now() + 0.01));
    EXPECT_EQ(Errors{L"ANN LEE (Witness): DOB cannot be in the future."}, errors(today + 1));
}

TEST(LejisIncidentValidatorRules, WantsTwoHundredCharactersOfCautionAtMost) {
    const Incident incident = Clean();
    const Person person = AddPerson(incident);
    person->SubjectCautionInformationCaveat = std::wstring(200, L'x');
    EXPECT_EQ(Errors{}, ErrorsOf(incident));
    person->SubjectCautionInformationCaveat = std::wstring(200, L'x') + L'y';
    EXPECT_EQ(Errors{L"ANN LEE (Witness): Caution information cannot be more than 200 characters. '" +
                     std::wstring(200, L'x') + L"y' is 201 characters long."},
              ErrorsOf(incident));
}

}  // namespace
}  // namespace lejis
