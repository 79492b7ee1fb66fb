#include "model/LejisVehicleIndexCard.h"
#include "platform/Conversions.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/LateBoundObject.h"

#include <gtest/gtest.h>

#include <ostream>

namespace platform {
namespace {

using support::Utf8;

struct NamedType {
    unsigned type;
    const wchar_t* name;
};

void PrintTo(const NamedType& row, std::ostream* out) { *out << support::Utf8(row.name); }

std::wstring NameOf(VARTYPE type) {
    // Nothing is read but the type, and nothing is to be freed.
    VARIANT value{};
    V_VT(&value) = type;
    return TypeName(value);
}

class TypeNames : public testing::TestWithParam<NamedType> {};

TEST_P(TypeNames, NamesAPlainType) { EXPECT_EQ(GetParam().name, NameOf(static_cast<VARTYPE>(GetParam().type))); }

INSTANTIATE_TEST_SUITE_P(
    All, TypeNames,
    testing::Values(NamedType{VT_EMPTY, L"Empty"}, NamedType{VT_NULL, L"Null"}, NamedType{VT_I2, L"Integer"},
                    NamedType{VT_I4, L"Long"}, NamedType{VT_R4, L"Single"}, NamedType{VT_R8, L"Double"},
                    NamedType{VT_CY, L"Currency"}, NamedType{VT_DATE, L"Date"}, NamedType{VT_BSTR, L"String"},
                    NamedType{VT_ERROR, L"Error"}, NamedType{VT_BOOL, L"Boolean"}, NamedType{VT_DECIMAL, L"Decimal"},
                    NamedType{VT_I1, L"SByte"}, NamedType{VT_UI1, L"Byte"}, NamedType{VT_UI2, L"UShort"},
                    NamedType{VT_UI4, L"ULong"}, NamedType{VT_I8, L"LongLong"}, NamedType{VT_UI8, L"ULongLong"},
                    NamedType{VT_INT, L"Long"}, NamedType{VT_UINT, L"ULong"}, NamedType{VT_RECORD, L"Unknown"}),
    [](const auto& row) { return "Type" + std::to_string(row.param.type); });

TEST(TypeNamesOfArrays, CarryParentheses) {
    EXPECT_EQ(L"Byte()", NameOf(VT_ARRAY | VT_UI1));
    EXPECT_EQ(L"String()", NameOf(VT_ARRAY | VT_BSTR));
    EXPECT_EQ(L"Variant()", NameOf(VT_ARRAY | VT_VARIANT));
    EXPECT_EQ(L"Object()", NameOf(VT_ARRAY | VT_DISPATCH));
}

TEST(TypeNamesOfObjects, AreTheirClasses) {
    const auto card = Create<lejis::LejisVehicleIndexCard>();
    EXPECT_EQ(L"LejisVehicleIndexCard", TypeName(_variant_t(card->Dispatch())));
    EXPECT_EQ(L"LejisVehicleIndexCard", TypeName(_variant_t(static_cast<IUnknown*>(card->Dispatch()))));
}

TEST(TypeNamesOfObjects, NameNoObject) {
    EXPECT_EQ(L"Nothing", TypeName(support::Nothing()));
    EXPECT_EQ(L"Nothing", TypeName(_variant_t(static_cast<IUnknown*>(nullptr))));
}

TEST(TypeNamesOfObjects, AreGeneralWithoutClassInformation) {
    const auto object = Create<support::LateBoundObject>(std::map<std::wstring, support::Member>{});
    EXPECT_EQ(L"Object", TypeName(_variant_t(static_cast<IDispatch*>(object.Get()))));
}

TEST(TypeNamesOfObjects, AreTheInterfaceWithoutAClass) {
    // What a DOM document answers is the platform's; it has type information of some name.
    const std::wstring name = TypeName(_variant_t(static_cast<IDispatch*>(support::NewDocument().Get())));
    EXPECT_NE(std::wstring::npos, name.find(L"DOMDocument")) << Utf8(name);
}

}  // namespace
}  // namespace platform
