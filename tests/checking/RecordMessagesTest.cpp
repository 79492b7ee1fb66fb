#include "checking/RecordMessages.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

struct PersonNames {
    const wchar_t* given;
    const wchar_t* middle;
    const wchar_t* surname;
    const wchar_t* involvement;
    const wchar_t* label;
};

TEST(RecordLabels, NameAPerson) {
    constexpr PersonNames kPersons[] = {
        {L"JOHN", L"Q", L"PUBLIC", L"VICTIM", L"JOHN Q PUBLIC (Victim)"},
        {L"ANN", L"", L"LEE", L"witness", L"ANN LEE (Witness)"},
        {L"", L"", L"LEE", L"", L" LEE"},
        {L"", L"Q", L"LEE", L"PERSON OF INTEREST", L" Q LEE (Person Of Interest)"},
        {L"ANN", L" ", L"LEE", L" ", L"ANN   LEE ( )"},
        {L"", L"", L"", L"", L" "},
    };
    for (const PersonNames& row : kPersons) {
        const auto person = platform::Create<LejisPersonIndexCard>();
        person->GivenName = row.given;
        person->MiddleName = row.middle;
        person->SurName = row.surname;
        person->Involvement = row.involvement;
        EXPECT_EQ(row.label, LabelOf(*person));
    }
}

TEST(RecordLabels, NameAnItemOfProperty) {
    constexpr struct {
        const wchar_t* make;
        const wchar_t* model;
        const wchar_t* serial;
        const wchar_t* label;
    } kItems[] = {
        {L"SONY", L"BRAVIA", L"S-1", L"SONY BRAVIA (S-1)"},
        {L"SONY", L"BRAVIA", L"", L"SONY BRAVIA"},
        {L"SONY", L"", L"", L"SONY"},
        {L"", L"BRAVIA", L"", L"BRAVIA"},
        {L"", L"", L"S-1", L"(S-1)"},
        {L"", L"", L"", L""},
        {L"  SONY", L"BRAVIA ", L"", L"SONY BRAVIA"},
        {L"SONY", L"", L"S-1", L"SONY  (S-1)"},
    };
    for (const auto& row : kItems) {
        const auto property = platform::Create<LejisPropertyIndexCard>();
        property->Make = row.make;
        property->Model = row.model;
        property->SerialID = row.serial;
        EXPECT_EQ(row.label, LabelOf(*property));
    }
}

TEST(RecordLabels, NameAVehicleWithTwoBlanksAtTheEnd) {
    const auto vehicle = platform::Create<LejisVehicleIndexCard>();
    EXPECT_EQ(L"Vehicle     ", LabelOf(*vehicle));
    vehicle->Color = L"RED";
    vehicle->Make = L"FORD";
    vehicle->Model = L"F150";
    EXPECT_EQ(L"Vehicle RED FORD F150  ", LabelOf(*vehicle));
}

TEST(RecordLabels, StandBeforeTheMessage) {
    EXPECT_EQ(L"Main record: wrong", Labelled(kMainRecordLabel, L"wrong"));
    EXPECT_EQ(L": wrong", Labelled(L"", L"wrong"));
}

}  // namespace
}  // namespace lejis
