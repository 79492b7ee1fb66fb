#include "checking/LejisIncidentFormatter.h"

#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Incidents.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lejis {
namespace {

using Microsoft::WRL::ComPtr;
using support::FailedWith;
using support::Texts;
using Warnings = std::vector<std::wstring>;
using Incident = platform::Ref<LejisIncidentIndexCard>;

// What too long texts are made of; no warning uses it.
constexpr wchar_t kFiller = L'#';

// An incident in which every rule has something to mend; persons' caveats do not reach the rules.
Incident AllWrong() {
    auto incident = platform::Create<LejisIncidentIndexCard>();
    const std::wstring text(300, kFiller);
    const auto person = support::AddNew<LejisPersonIndexCard>(incident->PersonIndexCards);
    const auto property = support::AddNew<LejisPropertyIndexCard>(incident->PropertyIndexCards);
    const auto vehicle = support::AddNew<LejisVehicleIndexCard>(incident->VehicleIndexCards);
    for (LejisStreetAddress* address : {incident->Location.Get(), person->address.Get()}) {
        for (platform::TextField* field : {&address->StreetFullText, &address->StreetName, &address->StreetExtension,
                                           &address->StreetType, &address->StreetDirection}) {
            *field = text;
        }
        address->StreetNumber->Set(1234567);
        address->ZIP = L"123456789";
    }
    for (platform::TextField* field :
         {&incident->OrganizationName, &incident->CaveatText, &incident->ChargeDescriptionText,
          &incident->ChargeNCICCode, &person->GivenName, &person->MiddleName, &person->SurName, &person->RaceNCIC,
          &person->SexNCIC, &person->OrganizationName, &person->CaveatText, &person->ChargeDescriptionText,
          &person->ChargeNCICCode, &person->SubjectCautionInformationCaveat, &property->Category, &property->Make,
          &property->Model, &vehicle->Model, &vehicle->Color}) {
        *field = text;
    }
    person->Weight->Set(short{1000});
    vehicle->Year->Set(short{1899});
    return incident;
}

// What a warning is about: its text without the label, the filler and what follows the length.
std::wstring Subject(const std::wstring& warning) {
    std::wstring subject = warning;
    std::erase(subject, kFiller);
    subject = subject.substr(subject.find(L": ") + 2);
    return subject.substr(0, subject.find(L"characters"));
}

TEST(LejisIncidentFormatter, HasItsMembersInTheirOrder) {
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    EXPECT_TRUE(support::MembersInOrder(formatter->Dispatch(), {L"Warnings", L"HasWarnings", L"Format"}));
}

TEST(LejisIncidentFormatter, HasNoWarningsWhenNew) {
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    VARIANT_BOOL has = VARIANT_TRUE;
    EXPECT_OK(formatter->get_HasWarnings(&has));
    EXPECT_EQ(VARIANT_FALSE, has);
    EXPECT_EQ(0u, formatter->Warnings->Count());
    EXPECT_EQ(E_POINTER, formatter->get_HasWarnings(nullptr));
}

TEST(LejisIncidentFormatter, AppliesItsRulesInTheirOrder) {
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    formatter->Shape(*AllWrong());
    Warnings subjects = Texts(*formatter->Warnings);
    std::transform(subjects.begin(), subjects.end(), subjects.begin(), Subject);
    const Warnings address = {L"Full street address '' was too long (300 ",
                              L"Street address number '1234567' was too long (7 ",
                              L"Street name '' was too long (300 ",
                              L"Street extension '' was too long (300 ",
                              L"Street type '' was too long (300 ",
                              L"Street directional '' was too long (300 ",
                              L"9-digit ZIP code '123456789' will be sent as '12345'"};
    Warnings expected = {L"Agency name '' was too long (300 ", L"Caveat text '' was too long (300 ",
                         L"Charge description '' was too long (300 ",
                         L"Charge NCIC code '' is not a valid NCIC offense code. Will submit a blank code instead."};
    expected.insert(expected.end(), address.begin(), address.end());
    expected.insert(expected.end(), address.begin(), address.end());
    const Warnings rest = {
        L"First name '' was 300 ",
        L"Middle name '' was 300 ",
        L"Last name '' was 300 ",
        L"'' is not a valid NCIC race code, will submit 'U' (Unknown) instead. Check Race Selection List settings in "
        L"Administration and verify that NCIC Codes are set correctly.",
        L"'' is not a valid NCIC sex code, will submit 'U' (Unknown) instead. Check Sex Selection List settings in "
        L"Administration and verify that NCIC Codes are set correctly.",
        L"The specified weight '1000 lbs.' is too large. The maximum for LEJIS is 999 lbs. Will not submit weight "
        L"information.",
        L"Agency name '' was too long (300 ",
        L"Charge description '' was too long (300 ",
        L"Charge NCIC code '' is not a valid NCIC offense code. Will submit a blank code instead.",
        L"Caution information cannot be more than 200 ",
        L"Category '' was too long (300 ",
        L"Make '' was too long (300 ",
        L"Model '' was too long (300 ",
        L"'1899' is not a valid vehicle year (was before 1900). Will not submit vehicle year.",
        L"Model '' was too long (300 ",
        L"Color '' was too long (300 "};
    expected.insert(expected.end(), rest.begin(), rest.end());
    EXPECT_EQ(expected, subjects);
}

TEST(LejisIncidentFormatter, ShapesRecordsInTheOrderOfTheirCollections) {
    const auto incident = platform::Create<LejisIncidentIndexCard>();
    for (const wchar_t* name : {L"FIRST", L"SECOND"}) {
        const auto vehicle = support::AddNew<LejisVehicleIndexCard>(incident->VehicleIndexCards);
        vehicle->Make = name;
        vehicle->Year->Set(short{1899});
        const auto property = support::AddNew<LejisPropertyIndexCard>(incident->PropertyIndexCards);
        property->Make = name;
        property->Category = std::wstring(36, L'x');
        const auto person = support::AddNew<LejisPersonIndexCard>(incident->PersonIndexCards);
        person->SurName = name;
        person->SexNCIC = L"m";
    }
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    formatter->Shape(*incident);
    Warnings labels;
    for (const std::wstring& warning : Texts(*formatter->Warnings)) {
        labels.push_back(warning.substr(0, warning.find(L':')));
    }
    EXPECT_EQ((Warnings{L" FIRST", L" SECOND", L"FIRST", L"SECOND", L"Vehicle  FIRST   ", L"Vehicle  SECOND   "}),
              labels);
}

TEST(LejisIncidentFormatter, LeavesTheCallersIncidentAsItIs) {
    const Incident incident = AllWrong();
    const std::wstring before = support::XmlOf(incident);
    const auto person = incident->PersonIndexCards->ItemsAs<LejisPersonIndexCard>()[0];
    platform::Create<LejisIncidentFormatter>()->Shape(*incident);
    EXPECT_EQ(before, support::XmlOf(incident));
    EXPECT_EQ(300u, incident->OrganizationName.size());
    EXPECT_EQ(300u, person->CaveatText.size());
    EXPECT_EQ(person.Get(), incident->PersonIndexCards->ItemsAs<LejisPersonIndexCard>()[0].Get());
}

TEST(LejisIncidentFormatter, BeginsANewListEachTime) {
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    ComPtr<ILejisIncidentIndexCard> copy;
    VARIANT_BOOL has = VARIANT_FALSE;
    EXPECT_OK(formatter->Format(AllWrong().Get(), copy.GetAddressOf()));
    EXPECT_OK(formatter->get_HasWarnings(&has));
    EXPECT_EQ(VARIANT_TRUE, has);
    const auto before = formatter->Warnings;
    EXPECT_OK(formatter->Format(platform::Create<LejisIncidentIndexCard>().Get(), copy.ReleaseAndGetAddressOf()));
    EXPECT_OK(formatter->get_HasWarnings(&has));
    EXPECT_EQ(VARIANT_FALSE, has);
    EXPECT_NE(before.Get(), formatter->Warnings.Get());
    EXPECT_NE(0u, before->Count());
}

TEST(LejisIncidentFormatter, RefusesForeignObjectsAmongTheCards) {
    using Cards = platform::Ref<Collection> LejisIncidentIndexCard::*;
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    for (const Cards cards : {&LejisIncidentIndexCard::PersonIndexCards, &LejisIncidentIndexCard::VehicleIndexCards,
                              &LejisIncidentIndexCard::PropertyIndexCards}) {
        const auto incident = platform::Create<LejisIncidentIndexCard>();
        ((*incident).*cards)->AddObject(platform::Create<LejisStreetAddress>()->Dispatch());
        ComPtr<ILejisIncidentIndexCard> copy;
        EXPECT_TRUE(
            FailedWith(formatter->Format(incident.Get(), copy.GetAddressOf()), DISP_E_TYPEMISMATCH, L"Type mismatch"));
        EXPECT_EQ(nullptr, copy.Get());
    }
}

TEST(LejisIncidentFormatter, EmptiesItsListForAnArgumentThatItRefuses) {
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    formatter->Shape(*AllWrong());
    const auto before = formatter->Warnings;
    const size_t count = before->Count();
    ASSERT_NE(0u, count);
    ComPtr<ILejisIncidentIndexCard> copy;
    EXPECT_TRUE(
        FailedWith(formatter->Format(nullptr, copy.GetAddressOf()), support::kObjectRequired, L"Object required"));
    EXPECT_EQ(0u, formatter->Warnings->Count());
    EXPECT_EQ(count, before->Count());
}

TEST(LejisIncidentFormatter, NeedsAnIncident) {
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    ComPtr<ILejisIncidentIndexCard> copy;
    EXPECT_TRUE(
        FailedWith(formatter->Format(nullptr, copy.GetAddressOf()), support::kObjectRequired, L"Object required"));
    EXPECT_EQ(E_POINTER, formatter->Format(platform::Create<LejisIncidentIndexCard>().Get(), nullptr));
}

}  // namespace
}  // namespace lejis
