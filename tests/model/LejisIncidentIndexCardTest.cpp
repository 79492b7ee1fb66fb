// The card's members; what it writes and reads stands in the files beside this one.
#include "model/LejisIncidentIndexCard.h"

#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Incidents.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::FailedWith;
using support::NewDocument;

const support::Names kIncidentTexts = {L"OrganizationName", L"OrganizationORI", L"ActivityID",
                                       L"CaveatText",       L"ChargeNCICCode",  L"ChargeDescriptionText"};

TEST(LejisIncidentIndexCard, HasItsMembersInTheirOrder) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    EXPECT_TRUE(support::MembersInOrder(
        card->Dispatch(), {L"OrganizationName", L"OrganizationORI", L"ActivityID", L"CaveatText", L"ChargeNCICCode",
                           L"ChargeDescriptionText", L"CautionIndicator", L"SubmittedDate", L"ActivityDateTime",
                           L"Location", L"PersonIndexCards", L"VehicleIndexCards", L"PropertyIndexCards",
                           L"ToXmlElement", L"FromXmlElement", L"HasCaution"}));
}

TEST(LejisIncidentIndexCard, KeepsWhatItsFieldsAreGiven) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    support::ExpectTextFields(card->Dispatch(), kIncidentTexts);
    support::ExpectFlagField(card->Dispatch(), L"CautionIndicator");
}

TEST(LejisIncidentIndexCard, OwnsEmptyPartsWhenNew) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    EXPECT_EQ(std::nullopt, card->SubmittedDate->Date());
    EXPECT_EQ(std::nullopt, card->ActivityDateTime->Date());
    EXPECT_NE(card->SubmittedDate.Get(), card->ActivityDateTime.Get());
    EXPECT_EQ(L"", card->Location->City);
    EXPECT_EQ(0u, card->PersonIndexCards->Count());
    EXPECT_EQ(0u, card->VehicleIndexCards->Count());
    EXPECT_EQ(0u, card->PropertyIndexCards->Count());
}

TEST(LejisIncidentIndexCard, HandsOutItsOwnParts) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    Microsoft::WRL::ComPtr<ICollection> persons;
    EXPECT_OK(card->get_PersonIndexCards(persons.GetAddressOf()));
    EXPECT_OK(persons->Add(_variant_t(platform::Create<LejisPersonIndexCard>()->Dispatch())));
    EXPECT_EQ(1u, card->PersonIndexCards->Count());
    Microsoft::WRL::ComPtr<INullableDate> submitted;
    EXPECT_OK(card->get_SubmittedDate(submitted.GetAddressOf()));
    EXPECT_OK(submitted->put_Value(_variant_t(L"2007-03-09")));
    EXPECT_EQ(39150.0, card->SubmittedDate->Date());
}

TEST(LejisIncidentIndexCard, HasCautionWhenItOrAnyOfItsCardsIsFlagged) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    support::AddNew<LejisPersonIndexCard>(card->PersonIndexCards);
    support::AddNew<LejisPropertyIndexCard>(card->PropertyIndexCards);
    support::AddNew<LejisVehicleIndexCard>(card->VehicleIndexCards);
    bool* const flags[] = {&card->CautionIndicator,
                           &support::AddNew<LejisPersonIndexCard>(card->PersonIndexCards)->CautionIndicator,
                           &support::AddNew<LejisPropertyIndexCard>(card->PropertyIndexCards)->CautionIndicator,
                           &support::AddNew<LejisVehicleIndexCard>(card->VehicleIndexCards)->CautionIndicator};
    EXPECT_FALSE(card->NeedsCaution());
    for (bool* flag : flags) {
        *flag = true;
        EXPECT_TRUE(card->NeedsCaution()) << flag - flags[0];
        VARIANT_BOOL caution = VARIANT_FALSE;
        EXPECT_OK(card->HasCaution(&caution));
        EXPECT_EQ(VARIANT_TRUE, caution);
        *flag = false;
    }
    EXPECT_FALSE(card->NeedsCaution());
    EXPECT_EQ(E_POINTER, card->HasCaution(nullptr));
}

TEST(LejisIncidentIndexCard, RefusesForeignObjectsAmongItsCards) {
    using Cards = platform::Ref<Collection> LejisIncidentIndexCard::*;
    for (const Cards cards : {&LejisIncidentIndexCard::PersonIndexCards, &LejisIncidentIndexCard::VehicleIndexCards,
                              &LejisIncidentIndexCard::PropertyIndexCards}) {
        const auto card = platform::Create<LejisIncidentIndexCard>();
        ((*card).*cards)->AddObject(platform::Create<LejisStreetAddress>()->Dispatch());
        Microsoft::WRL::ComPtr<IDispatch> element;
        VARIANT_BOOL caution = VARIANT_TRUE;
        EXPECT_TRUE(FailedWith(card->ToXmlElement(NewDocument().Get(), element.GetAddressOf()), DISP_E_TYPEMISMATCH,
                               L"Type mismatch"));
        EXPECT_TRUE(FailedWith(card->HasCaution(&caution), DISP_E_TYPEMISMATCH, L"Type mismatch"));
    }
}

TEST(LejisIncidentIndexCard, LooksForACautionAmongPersonsThenPropertyThenVehiclesAndStopsAtTheFirst) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    const auto foreign = platform::Create<LejisStreetAddress>();
    card->VehicleIndexCards->AddObject(foreign->Dispatch());
    const auto item = support::AddNew<LejisPropertyIndexCard>(card->PropertyIndexCards);
    item->CautionIndicator = true;
    EXPECT_TRUE(card->NeedsCaution());
    item->CautionIndicator = false;
    card->PropertyIndexCards->AddObject(foreign->Dispatch());
    support::AddNew<LejisPersonIndexCard>(card->PersonIndexCards)->CautionIndicator = true;
    card->PersonIndexCards->AddObject(foreign->Dispatch());
    EXPECT_TRUE(card->NeedsCaution());
    card->CautionIndicator = true;
    EXPECT_TRUE(card->NeedsCaution());
}

TEST(LejisIncidentIndexCard, NeedsADocumentToWriteTo) {
    const auto card = platform::Create<LejisIncidentIndexCard>();
    Microsoft::WRL::ComPtr<IDispatch> element;
    EXPECT_TRUE(
        FailedWith(card->ToXmlElement(nullptr, element.GetAddressOf()), support::kObjectRequired, L"Object required"));
    EXPECT_TRUE(FailedWith(card->ToXmlElement(card->Dispatch(), element.GetAddressOf()), DISP_E_TYPEMISMATCH,
                           L"Type mismatch"));
    EXPECT_EQ(nullptr, element.Get());
}

}  // namespace
}  // namespace lejis
