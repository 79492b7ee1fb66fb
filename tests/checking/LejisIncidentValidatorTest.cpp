#include "checking/LejisIncidentValidator.h"

#include "checking/ValidatorCase.h"
#include "platform/Dates.h"
#include "support/ComCheck.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using Microsoft::WRL::ComPtr;
using support::FailedWith;
using namespace validator_case;

TEST(LejisIncidentValidator, HasItsMembersInTheirOrder) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    EXPECT_TRUE(support::MembersInOrder(validator->Dispatch(), {L"Errors", L"HasErrors", L"Validate"}));
}

TEST(LejisIncidentValidator, HasNoErrorsWhenNew) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    VARIANT_BOOL has = VARIANT_TRUE;
    EXPECT_OK(validator->get_HasErrors(&has));
    EXPECT_EQ(VARIANT_FALSE, has);
    EXPECT_EQ(0u, validator->Errors->Count());
    EXPECT_EQ(E_POINTER, validator->get_HasErrors(nullptr));
}

TEST(LejisIncidentValidator, AnswersTrueForErrorsAndFalseForNone) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    VARIANT_BOOL found = VARIANT_TRUE;
    EXPECT_OK(validator->Validate(Clean().Get(), &found));
    EXPECT_EQ(VARIANT_FALSE, found);
    EXPECT_OK(validator->get_HasErrors(&found));
    EXPECT_EQ(VARIANT_FALSE, found);
    EXPECT_OK(validator->Validate(platform::Create<LejisIncidentIndexCard>().Get(), &found));
    EXPECT_EQ(VARIANT_TRUE, found);
    EXPECT_OK(validator->get_HasErrors(&found));
    EXPECT_EQ(VARIANT_TRUE, found);
}

TEST(LejisIncidentValidator, ReportsAllThatAnEmptyIncidentLacks) {
    EXPECT_EQ((Errors{kIdMissing, kDateMissing, kOriMissing, std::wstring(L"'") + kOriWrong}),
              ErrorsOf(platform::Create<LejisIncidentIndexCard>()));
}

TEST(LejisIncidentValidator, AcceptsACleanIncident) {
    const Incident incident = Clean();
    AddPerson(incident);
    EXPECT_EQ(Errors{}, ErrorsOf(incident));
}

TEST(LejisIncidentValidator, ReportsEverythingInTheOrderOfItsChecks) {
    const auto incident = platform::Create<LejisIncidentIndexCard>();
    incident->ActivityID = std::wstring(31, L' ');
    incident->Location->ZIP = L"1";
    for (const wchar_t* name : {L"ANN", L"BOB"}) {
        const Person person = AddPerson(incident, name);
        person->address->ZIP = L"2";
        person->SSN = L"3";
        person->BirthDate->Set(platform::Now() + 1);
        person->SubjectCautionInformationCaveat = std::wstring(201, L'x');
    }
    Errors expected = {kIdMissing,
                       kIdTooLong,
                       kDateMissing,
                       kOriMissing,
                       std::wstring(L"'") + kOriWrong,
                       std::wstring(L"Main record: '1") + kZipWrong};
    for (const std::wstring label : {L"ANN LEE (Witness): ", L"BOB LEE (Witness): "}) {
        expected.push_back(label + L"'2" + kZipWrong);
        expected.push_back(label + L"'3" + kSsnWrong);
        expected.push_back(label + L"DOB cannot be in the future.");
        expected.push_back(label + L"Caution information cannot be more than 200 characters. '" +
                           std::wstring(201, L'x') + L"' is 201 characters long.");
    }
    EXPECT_EQ(expected, ErrorsOf(incident));
}

TEST(LejisIncidentValidator, AcceptsAnyVehicleAnyPropertyAndAnyTextOfTheRest) {
    const Incident incident = Clean();
    const std::wstring longText(1000, L'x');
    const auto vehicle = platform::Create<LejisVehicleIndexCard>();
    vehicle->Model = longText;
    vehicle->Year->Set(short{1});
    incident->VehicleIndexCards->AddObject(vehicle->Dispatch());
    const auto property = platform::Create<LejisPropertyIndexCard>();
    property->Make = longText;
    incident->PropertyIndexCards->AddObject(property->Dispatch());
    const Person person = AddPerson(incident);
    for (platform::TextField* field :
         {&incident->OrganizationName, &incident->CaveatText, &incident->ChargeDescriptionText,
          &incident->ChargeNCICCode, &person->OrganizationName, &person->CaveatText, &person->ChargeDescriptionText,
          &person->ChargeNCICCode}) {
        *field = longText;
    }
    EXPECT_EQ(Errors{}, ErrorsOf(incident));
}

TEST(LejisIncidentValidator, BeginsANewListEachTime) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    validator->FindErrors(*platform::Create<LejisIncidentIndexCard>());
    const auto before = validator->Errors;
    EXPECT_EQ(4u, before->Count());
    EXPECT_FALSE(validator->FindErrors(*Clean()));
    EXPECT_NE(before.Get(), validator->Errors.Get());
    EXPECT_EQ(0u, validator->Errors->Count());
    EXPECT_EQ(4u, before->Count());
}

TEST(LejisIncidentValidator, RefusesForeignObjectsAmongTheCards) {
    using Cards = platform::Ref<Collection> LejisIncidentIndexCard::*;
    const auto validator = platform::Create<LejisIncidentValidator>();
    for (const Cards cards : {&LejisIncidentIndexCard::PersonIndexCards, &LejisIncidentIndexCard::VehicleIndexCards,
                              &LejisIncidentIndexCard::PropertyIndexCards}) {
        const Incident incident = Clean();
        ((*incident).*cards)->AddObject(platform::Create<LejisStreetAddress>()->Dispatch());
        VARIANT_BOOL found = VARIANT_FALSE;
        EXPECT_TRUE(FailedWith(validator->Validate(incident.Get(), &found), DISP_E_TYPEMISMATCH, L"Type mismatch"));
    }
}

TEST(LejisIncidentValidator, ChecksThePersonsBeforeAForeignObject) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    const Incident incident = Clean();
    AddPerson(incident)->SSN = L"3";
    incident->PersonIndexCards->AddObject(platform::Create<LejisStreetAddress>()->Dispatch());
    AddPerson(incident, L"BOB")->SSN = L"3";
    VARIANT_BOOL found = VARIANT_FALSE;
    EXPECT_TRUE(FailedWith(validator->Validate(incident.Get(), &found), DISP_E_TYPEMISMATCH, L"Type mismatch"));
    EXPECT_EQ((Errors{std::wstring(L"ANN LEE (Witness): '3") + kSsnWrong}), support::Texts(*validator->Errors));
}

TEST(LejisIncidentValidator, EmptiesItsListForAnArgumentThatItRefuses) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    validator->FindErrors(*platform::Create<LejisIncidentIndexCard>());
    const auto before = validator->Errors;
    VARIANT_BOOL found = VARIANT_FALSE;
    EXPECT_TRUE(FailedWith(validator->Validate(nullptr, &found), support::kObjectRequired, L"Object required"));
    EXPECT_EQ(0u, validator->Errors->Count());
    EXPECT_EQ(4u, before->Count());
}

TEST(LejisIncidentValidator, NeedsAnIncident) {
    const auto validator = platform::Create<LejisIncidentValidator>();
    VARIANT_BOOL found = VARIANT_FALSE;
    EXPECT_TRUE(FailedWith(validator->Validate(nullptr, &found), support::kObjectRequired, L"Object required"));
    EXPECT_EQ(E_POINTER, validator->Validate(Clean().Get(), nullptr));
}

}  // namespace
}  // namespace lejis
