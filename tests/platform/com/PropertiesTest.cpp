#include "platform/com/Properties.h"

#include "inquiry/VehicleInquiryArguments.h"
#include "model/LejisVehicleIndexCard.h"
#include "platform/Text.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using lejis::LejisVehicleIndexCard;
using Microsoft::WRL::ComPtr;

TEST(Properties, KeepNullCharactersOfTexts) {
    const auto card = Create<LejisVehicleIndexCard>();
    EXPECT_OK(card->put_Make(ToBstr(std::wstring_view(L"a\0b", 3))));
    BSTR text = nullptr;
    EXPECT_OK(card->get_Make(&text));
    EXPECT_EQ(std::wstring(L"a\0b", 3), support::Take(text));
}

TEST(Properties, GiveAnEmptyTextRatherThanNone) {
    BSTR text = nullptr;
    EXPECT_OK(Create<LejisVehicleIndexCard>()->get_Make(&text));
    ASSERT_NE(nullptr, text);
    EXPECT_EQ(L"", support::Take(text));
}

TEST(Properties, TakeNullForAnEmptyText) {
    const auto card = Create<LejisVehicleIndexCard>();
    card->Make = L"FORD";
    EXPECT_OK(card->put_Make(nullptr));
    EXPECT_EQ(L"", card->Make);
    const auto block = Create<lejis::VehicleInquiryArguments>();
    block->Make = L"FORD";
    EXPECT_OK(block->put_Make(nullptr));
    EXPECT_EQ(L"", block->Make);
}

TEST(Properties, TakeATextOfTheSameObject) {
    const auto card = Create<LejisVehicleIndexCard>();
    card->Model = L"F150";
    card->VIN = L"1FTFW1ET5DFC10312";
    card->Make = card->VIN;
    card->VIN = card->Model;
    EXPECT_EQ(L"1FTFW1ET5DFC10312", card->Make);
    EXPECT_EQ(L"F150", card->Model);
    EXPECT_EQ(L"F150", card->VIN);
}

TEST(Properties, HandOutTheObjectItself) {
    const auto card = Create<LejisVehicleIndexCard>();
    ComPtr<INullableInteger> year;
    EXPECT_OK(card->get_Year(year.GetAddressOf()));
    EXPECT_EQ(card->Year.Get(), year.Get());
    EXPECT_OK(year->put_Value(_variant_t(2004L)));
    EXPECT_EQ(short{2004}, card->Year->Number());
}

TEST(Properties, WantAPlaceForTheirValue) {
    const auto card = Create<LejisVehicleIndexCard>();
    EXPECT_EQ(E_POINTER, card->get_Make(nullptr));
    EXPECT_EQ(E_POINTER, card->get_CautionIndicator(nullptr));
    EXPECT_EQ(E_POINTER, card->get_Year(nullptr));
}

}  // namespace
}  // namespace platform
