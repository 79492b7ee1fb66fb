// The holders of a date or a number, and how clients reach those of a card.
#include "client/Client.h"
#include "client/LateBound.h"

#include <gtest/gtest.h>

namespace client {
namespace {

TEST(Holder, IsNullWhenNewAndNullAgainWhenSetToNull) {
    for (const wchar_t* name : {L"NullableDate", L"NullableInteger", L"NullableLong"}) {
        const LateBound holder = CreateLateBound(name);
        EXPECT_EQ(support::Null(), holder.Get(L"Value").value);
        const _variant_t value = std::wstring(name) == L"NullableDate" ? support::Date(L"2007-03-09") : _variant_t(7L);
        ASSERT_TRUE(Done(holder.Put(L"Value", value)));
        EXPECT_NE(support::Null(), holder.Get(L"Value").value);
        ASSERT_TRUE(Done(holder.Put(L"Value", support::Null())));
        EXPECT_EQ(support::Null(), holder.Get(L"Value").value);
    }
}

TEST(Holder, KeepsTheTypeOfItsKind) {
    const LateBound date = CreateLateBound(L"NullableDate");
    const LateBound integer = CreateLateBound(L"NullableInteger");
    const LateBound number = CreateLateBound(L"NullableLong");
    date.Put(L"Value", L"2007-03-09");
    integer.Put(L"Value", 3.5);
    number.Put(L"Value", 2.5);
    EXPECT_EQ(support::Date(L"2007-03-09"), date.Get(L"Value").value);
    EXPECT_EQ(_variant_t(short{4}), integer.Get(L"Value").value);
    EXPECT_EQ(_variant_t(2L, VT_I4), number.Get(L"Value").value);
}

TEST(Holder, TakesZeroForANumberOutOfRangeWithoutAnError) {
    const LateBound integer = CreateLateBound(L"NullableInteger");
    const LateBound number = CreateLateBound(L"NullableLong");
    EXPECT_TRUE(Done(integer.Put(L"Value", 40000L)));
    EXPECT_EQ(_variant_t(short{0}), integer.Get(L"Value").value);
    EXPECT_TRUE(Done(number.Put(L"Value", 3000000000.0)));
    EXPECT_EQ(_variant_t(0L, VT_I4), number.Get(L"Value").value);
}

TEST(Holder, KeepsItsValueWhenItRefusesAnother) {
    const auto integer = Create<NullableInteger, INullableInteger>();
    const auto date = Create<NullableDate, INullableDate>();
    _variant_t value;
    ASSERT_OK(integer->put_Value(_variant_t(short{510})));
    ASSERT_OK(date->put_Value(support::Date(L"2007-03-09")));
    EXPECT_TRUE(support::FailedWith(integer->put_Value(_variant_t(L"12")), kInvalidArgument,
                                    L"Cannot assign 'String'  to NullableInteger"));
    EXPECT_TRUE(support::FailedWith(date->put_Value(_variant_t(L"hello")), kInvalidArgument, L"Not a valid date."));
    ASSERT_OK(integer->get_Value(&value));
    EXPECT_EQ(_variant_t(short{510}), value);
    value.Clear();
    ASSERT_OK(date->get_Value(&value));
    EXPECT_EQ(support::Date(L"2007-03-09"), value);
}

TEST(Holder, NamesTheClassOfAnObjectThatItRefuses) {
    const LateBound holder = CreateLateBound(L"NullableDate");
    const _variant_t card = CreateLateBound(L"LejisPersonIndexCard").AsArgument();
    EXPECT_TRUE(RaisedBy(holder.Put(L"Value", card), kInvalidArgument,
                         L"Cannot assign 'LejisPersonIndexCard'  to NullableDate"));
}

TEST(Holder, HasItsValueAsDefaultMember) {
    const LateBound holder = CreateLateBound(L"NullableLong");
    EXPECT_EQ(DISPID_VALUE, holder.NumberOf(L"Value"));
    ASSERT_TRUE(Done(holder.InvokeNumber(DISPID_VALUE, DISPATCH_PROPERTYPUT, {12L}, {DISPID_PROPERTYPUT})));
    EXPECT_EQ(_variant_t(12L, VT_I4), holder.InvokeNumber(DISPID_VALUE, DISPATCH_PROPERTYGET).value);
}

TEST(Holder, OfACardIsTheCardsOwnAndNoCopy) {
    const auto person = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
    ComPtr<INullableInteger> height;
    ComPtr<INullableInteger> again;
    _variant_t value;
    ASSERT_OK(person->get_Height(height.GetAddressOf()));
    ASSERT_OK(height->put_Value(_variant_t(short{510})));
    ASSERT_OK(person->get_Height(again.GetAddressOf()));
    EXPECT_EQ(height, again);
    ASSERT_OK(again->get_Value(&value));
    EXPECT_EQ(_variant_t(short{510}), value);
}

TEST(Holder, OfACardCannotBeReplaced) {
    const LateBound person = CreateLateBound(L"LejisPersonIndexCard");
    const _variant_t other = CreateLateBound(L"NullableDate").AsArgument();
    for (const wchar_t* name : {L"BirthDate", L"Height", L"Weight", L"address"}) {
        EXPECT_TRUE(FAILED(person.Put(name, other).result));
    }
    EXPECT_EQ(support::Null(), person.Object(L"BirthDate").Get(L"Value").value);
}

TEST(Holder, OutlivesItsCard) {
    auto person = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
    ComPtr<INullableDate> birthDate;
    _variant_t value;
    ASSERT_OK(person->get_BirthDate(birthDate.GetAddressOf()));
    person.Reset();
    ASSERT_OK(birthDate->put_Value(support::Date(L"1970-01-31")));
    ASSERT_OK(birthDate->get_Value(&value));
    EXPECT_EQ(support::Date(L"1970-01-31"), value);
}

TEST(LejisCommon, WritesDatesAndTimes) {
    const auto common = Create<LejisCommon, ILejisCommon>();
    const DATE moment = support::Date(L"2007-03-09 14:05:00").date;
    BSTR text = nullptr;
    ASSERT_OK(common->LejisFormatDate(moment, &text));
    EXPECT_EQ(L"2007-03-09", support::Take(text));
    ASSERT_OK(common->LejisFormatTime(moment, &text));
    EXPECT_EQ(L"14:05:00", support::Take(text));
}

}  // namespace
}  // namespace client
