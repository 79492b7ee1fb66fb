#include "foundation/NullableDate.h"

#include "platform/com/LateBound.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using support::FailedWith;

constexpr DATE kNinthOfMarch = 39150;

_variant_t ValueOf(const platform::Ref<NullableDate>& holder) {
    _variant_t value(7L);
    EXPECT_OK(holder->get_Value(&value));
    return value;
}

TEST(NullableDate, IsNullWhenNew) {
    const auto holder = platform::Create<NullableDate>();
    EXPECT_EQ(support::Null(), ValueOf(holder));
    EXPECT_EQ(L"", FormatNullableDate(*holder));
    EXPECT_EQ(L"", FormatNullableTime(*holder));
    EXPECT_EQ(E_POINTER, holder->get_Value(nullptr));
}

TEST(NullableDate, HoldsADate) {
    const auto holder = platform::Create<NullableDate>();
    EXPECT_OK(holder->put_Value(_variant_t(kNinthOfMarch + 0.25, VT_DATE)));
    EXPECT_EQ(_variant_t(kNinthOfMarch + 0.25, VT_DATE), ValueOf(holder));
}

TEST(NullableDate, HoldsADateValueThatHasNoText) {
    const auto holder = platform::Create<NullableDate>();
    EXPECT_OK(holder->put_Value(_variant_t(1e10, VT_DATE)));
    EXPECT_EQ(_variant_t(1e10, VT_DATE), ValueOf(holder));
}

TEST(NullableDate, ReadsTextsThatAreDates) {
    const auto holder = platform::Create<NullableDate>();
    EXPECT_OK(holder->put_Value(_variant_t(L"2007-03-09")));
    EXPECT_EQ(_variant_t(kNinthOfMarch, VT_DATE), ValueOf(holder));
    EXPECT_EQ(L"2007-03-09", FormatNullableDate(*holder));
    EXPECT_EQ(L"00:00:00", FormatNullableTime(*holder));
    EXPECT_OK(holder->put_Value(_variant_t(L"2007-03-09 06:00:00")));
    EXPECT_EQ(_variant_t(kNinthOfMarch + 0.25, VT_DATE), ValueOf(holder));
    EXPECT_OK(holder->put_Value(_variant_t(L"12:00:00")));
    EXPECT_EQ(_variant_t(0.5, VT_DATE), ValueOf(holder));
}

TEST(NullableDate, IsEmptiedByNull) {
    const auto holder = platform::Create<NullableDate>();
    EXPECT_OK(holder->put_Value(_variant_t(kNinthOfMarch, VT_DATE)));
    EXPECT_OK(holder->put_Value(support::Null()));
    EXPECT_EQ(support::Null(), ValueOf(holder));
    EXPECT_EQ(std::nullopt, holder->Date());
}

TEST(NullableDate, RefusesTextsThatAreNoDatesAndKeepsItsValue) {
    const auto holder = platform::Create<NullableDate>();
    EXPECT_OK(holder->put_Value(_variant_t(kNinthOfMarch, VT_DATE)));
    for (const wchar_t* text : {L"hello", L"", L" ", L"2007-02-30", L"25:00:00"}) {
        EXPECT_TRUE(FailedWith(holder->put_Value(_variant_t(text)), support::kInvalidArgument, L"Not a valid date."))
            << support::Utf8(text);
    }
    EXPECT_EQ(_variant_t(kNinthOfMarch, VT_DATE), ValueOf(holder));
}

TEST(NullableDate, RefusesNoTextAtAll) {
    const auto holder = platform::Create<NullableDate>();
    VARIANT noText{};
    V_VT(&noText) = VT_BSTR;
    EXPECT_TRUE(FailedWith(holder->put_Value(noText), support::kInvalidArgument, L"Not a valid date."));
}

TEST(NullableDate, TakesWhatScriptsPassByReference) {
    const auto holder = platform::Create<NullableDate>();
    _variant_t date(L"2007-03-09");
    _variant_t reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &date;
    EXPECT_OK(holder->put_Value(reference));
    EXPECT_EQ(_variant_t(kNinthOfMarch, VT_DATE), ValueOf(holder));
    DATE later = kNinthOfMarch + 1;
    V_VT(&reference) = VT_BYREF | VT_DATE;
    V_DATEREF(&reference) = &later;
    EXPECT_OK(holder->put_Value(reference));
    EXPECT_EQ(_variant_t(later, VT_DATE), ValueOf(holder));
}

TEST(NullableDate, HasValueAsItsDefaultMember) {
    const auto holder = platform::Create<NullableDate>();
    platform::PutMember(holder->Dispatch(), L"Value", _variant_t(L"2007-03-09"));
    DISPPARAMS none{};
    _variant_t value;
    EXPECT_OK(holder->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr,
                             nullptr));
    EXPECT_EQ(_variant_t(kNinthOfMarch, VT_DATE), value);
}

}  // namespace
}  // namespace lejis
