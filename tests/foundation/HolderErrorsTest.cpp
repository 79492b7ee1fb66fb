// What none of the nullable holders takes, and what only one kind of them takes.
#include "foundation/HolderErrors.h"

#include "foundation/NullableDate.h"
#include "foundation/NullableNumber.h"
#include "platform/Conversions.h"
#include "support/ComCheck.h"
#include "unit_support/LateBoundObject.h"
#include "unit_support/Raises.h"
#include "unit_support/TestHost.h"

#include <gtest/gtest.h>

#include <oleauto.h>

#include <functional>
#include <ostream>

namespace lejis {
namespace {

using support::FailedWith;
using support::kInvalidArgument;

struct Refused {
    const char* name;
    std::function<_variant_t()> make;
    const wchar_t* typeName;
};

void PrintTo(const Refused& row, std::ostream* out) { *out << row.name; }

// A number of a type that has no constructor of its own.
_variant_t OfType(VARTYPE type) {
    _variant_t five(5L);
    _variant_t value;
    EXPECT_OK(VariantChangeType(&value, &five, 0, type));
    EXPECT_EQ(type, V_VT(&value));
    return value;
}

_variant_t OfBits(VARTYPE type) {
    _variant_t value;
    V_VT(&value) = type;
    V_I4(&value) = 5;
    return value;
}

_variant_t ArrayOfBytes() {
    _variant_t value;
    V_ARRAY(&value) = SafeArrayCreateVector(VT_UI1, 0, 2);
    V_VT(&value) = VT_ARRAY | VT_UI1;
    return value;
}

_variant_t Library() { return _variant_t(platform::Create<NullableLong>()->Dispatch()); }

_variant_t Foreign() {
    const auto object = platform::Create<support::LateBoundObject>(std::map<std::wstring, support::Member>{});
    return _variant_t(static_cast<IDispatch*>(object.Get()));
}

const Refused kRefusedByAll[] = {
    {"Empty", [] { return _variant_t(); }, L"Empty"},
    {"Boolean", [] { return _variant_t(true); }, L"Boolean"},
    {"Currency", [] { return OfType(VT_CY); }, L"Currency"},
    {"Decimal", [] { return OfType(VT_DECIMAL); }, L"Decimal"},
    {"MissingArgument", [] { return _variant_t(long{DISP_E_PARAMNOTFOUND}, VT_ERROR); }, L"Error"},
    {"SignedByte", [] { return OfType(VT_I1); }, L"SByte"},
    {"UnsignedShort", [] { return OfType(VT_UI2); }, L"UShort"},
    {"UnsignedLong", [] { return OfType(VT_UI4); }, L"ULong"},
    {"LongLong", [] { return OfType(VT_I8); }, L"LongLong"},
    {"UnsignedLongLong", [] { return OfType(VT_UI8); }, L"ULongLong"},
    {"MachineInteger", [] { return OfBits(VT_INT); }, L"Long"},
    {"UnsignedMachineInteger", [] { return OfBits(VT_UINT); }, L"ULong"},
    {"Array", ArrayOfBytes, L"Byte()"},
    {"ObjectOfTheLibrary", Library, L"NullableLong"},
    {"ForeignObject", Foreign, L"Object"},
    {"NoObject", support::Nothing, L"Nothing"},
    {"NoUnknownObject", [] { return _variant_t(static_cast<IUnknown*>(nullptr)); }, L"Nothing"},
};

const Refused kRefusedByNumbers[] = {
    {"Text", [] { return _variant_t(L"12"); }, L"String"},
    {"Date", [] { return support::Date(L"2007-03-09"); }, L"Date"},
};

const Refused kRefusedByDates[] = {
    {"Integer", [] { return _variant_t(short{5}); }, L"Integer"}, {"Long", [] { return _variant_t(5L); }, L"Long"},
    {"Single", [] { return _variant_t(5.0f); }, L"Single"},       {"Double", [] { return _variant_t(5.0); }, L"Double"},
    {"Byte", [] { return _variant_t(BYTE{5}); }, L"Byte"},
};

// The value, and the same value by reference, are refused and leave what the holder held.
template <typename Holder>
void ExpectRefused(const wchar_t* holderName, const _variant_t& held, const Refused& refused) {
    const auto holder = platform::Create<Holder>();
    EXPECT_OK(holder->put_Value(held));
    _variant_t value = refused.make();
    _variant_t reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &value;
    const std::wstring text = std::wstring(L"Cannot assign '") + refused.typeName + L"'  to " + holderName;
    EXPECT_TRUE(FailedWith(holder->put_Value(value), kInvalidArgument, text));
    EXPECT_TRUE(FailedWith(holder->put_Value(reference), kInvalidArgument, text));
    _variant_t after;
    EXPECT_OK(holder->get_Value(&after));
    EXPECT_EQ(held, after);
}

class RefusedByAll : public testing::TestWithParam<Refused> {};
class RefusedByNumbers : public testing::TestWithParam<Refused> {};
class RefusedByDates : public testing::TestWithParam<Refused> {};

TEST_P(RefusedByAll, IsNamedInTheError) {
    ExpectRefused<NullableDate>(L"NullableDate", support::Date(L"2007-03-09"), GetParam());
    ExpectRefused<NullableInteger>(L"NullableInteger", _variant_t(short{3}), GetParam());
    ExpectRefused<NullableLong>(L"NullableLong", _variant_t(3L), GetParam());
}

TEST_P(RefusedByNumbers, IsNamedInTheError) {
    ExpectRefused<NullableInteger>(L"NullableInteger", _variant_t(short{3}), GetParam());
    ExpectRefused<NullableLong>(L"NullableLong", _variant_t(3L), GetParam());
}

TEST_P(RefusedByDates, IsNamedInTheError) {
    ExpectRefused<NullableDate>(L"NullableDate", support::Date(L"2007-03-09"), GetParam());
}

const auto kNameOf = [](const testing::TestParamInfo<Refused>& row) { return std::string(row.param.name); };
INSTANTIATE_TEST_SUITE_P(All, RefusedByAll, testing::ValuesIn(kRefusedByAll), kNameOf);
INSTANTIATE_TEST_SUITE_P(All, RefusedByNumbers, testing::ValuesIn(kRefusedByNumbers), kNameOf);
INSTANTIATE_TEST_SUITE_P(All, RefusedByDates, testing::ValuesIn(kRefusedByDates), kNameOf);

TEST(HolderErrors, KeepAnEmptyHolderEmpty) {
    const auto holder = platform::Create<NullableInteger>();
    EXPECT_TRUE(FailedWith(holder->put_Value(_variant_t(L"12")), kInvalidArgument,
                           L"Cannot assign 'String'  to NullableInteger"));
    EXPECT_EQ(std::nullopt, holder->Number());
}

TEST(HolderErrors, NameTheHolderAsTheirSource) {
    const auto holder = platform::Create<NullableDate>();
    EXPECT_EQ(L"TVLejisCore.NullableDate", support::TakeError(holder->put_Value(_variant_t(L"hello"))).source);
}

TEST(HolderErrors, CarryTheHostsNumberOfAnInvalidArgument) {
    const support::TestHost host;
    const auto number = platform::Create<NullableLong>();
    EXPECT_TRUE(
        FailedWith(number->put_Value(_variant_t(true)), host.errorNumber, L"Cannot assign 'Boolean'  to NullableLong"));
    const auto date = platform::Create<NullableDate>();
    EXPECT_TRUE(FailedWith(date->put_Value(_variant_t(L"hello")), host.errorNumber, L"Not a valid date."));
    EXPECT_EQ((std::vector<long>{5, 5}), host.errorKinds);
}

}  // namespace
}  // namespace lejis
