// Values of every type that automation has, as clients of many languages pass them to members of other types.
#include "client/LateBound.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace client {
namespace {

struct TypedValue {
    const char* name;
    VARTYPE type;
};

void PrintTo(const TypedValue& typed, std::ostream* out) { *out << typed.name; }

#define TYPED_VALUE(Type) \
    TypedValue { #Type, Type }

const TypedValue kIntegers[] = {TYPED_VALUE(VT_I1),  TYPED_VALUE(VT_UI1), TYPED_VALUE(VT_I2), TYPED_VALUE(VT_UI2),
                                TYPED_VALUE(VT_I4),  TYPED_VALUE(VT_UI4), TYPED_VALUE(VT_I8), TYPED_VALUE(VT_UI8),
                                TYPED_VALUE(VT_INT), TYPED_VALUE(VT_UINT)};

#undef TYPED_VALUE

// A variant of an integer type; all of them begin at the same place, and the others' bytes are of no meaning.
VARIANT Integer(VARTYPE type, long long number) {
    VARIANT value{};
    V_I8(&value) = number;
    V_VT(&value) = type;
    return value;
}

// The ways in which a client passes a value: itself, a typed variable, a variable of any type.
std::vector<VARIANT> Ways(VARIANT* value) {
    VARIANT typed{};
    V_VT(&typed) = static_cast<VARTYPE>(VT_BYREF | V_VT(value));
    V_BYREF(&typed) = &value->llVal;
    VARIANT variable{};
    V_VT(&variable) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&variable) = value;
    return {*value, typed, variable};
}

// Puts the variant as it stands; a copy would follow the reference.
Outcome PutAsItIs(const LateBound& object, const wchar_t* name, VARIANT value) {
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&value, &put, 1, 1};
    return object.InvokeWith(object.NumberOf(name), DISPATCH_PROPERTYPUT, &parameters);
}

class LateBoundInteger : public testing::TestWithParam<TypedValue> {
protected:
    void ExpectKept(const wchar_t* className, const wchar_t* member, long long number, const _variant_t& kept) {
        VARIANT value = Integer(GetParam().type, number);
        for (const VARIANT& way : Ways(&value)) {
            const LateBound object = CreateLateBound(className);
            EXPECT_TRUE(Done(PutAsItIs(object, member, way))) << "passed as " << V_VT(&way);
            EXPECT_EQ(kept, object.Get(member).value) << "passed as " << V_VT(&way);
        }
    }
};

TEST_P(LateBoundInteger, IsTakenByATextMember) { ExpectKept(L"LejisPersonIndexCard", L"SSN", 65, _variant_t(L"65")); }

TEST_P(LateBoundInteger, IsTakenByABooleanMember) {
    ExpectKept(L"LejisPersonIndexCard", L"CautionIndicator", 1, _variant_t(true));
    ExpectKept(L"LejisPersonIndexCard", L"CautionIndicator", 0, _variant_t(false));
}

TEST_P(LateBoundInteger, IsTakenByALongMember) {
    ExpectKept(L"LejisInquiryControls", L"MaxIncidents", 65, _variant_t(65L, VT_I4));
}

TEST_P(LateBoundInteger, IsTakenAsADate) {
    // A day of 1900: the small types hold no later one.
    VARIANT value = Integer(GetParam().type, 65);
    const LateBound common = CreateLateBound(L"LejisCommon");
    for (VARIANT& way : Ways(&value)) {
        DISPPARAMS parameters{&way, nullptr, 1, 0};
        const Outcome text = common.InvokeWith(common.NumberOf(L"LejisFormatDate"), DISPATCH_METHOD, &parameters);
        EXPECT_TRUE(Done(text)) << "passed as " << V_VT(&way);
        EXPECT_EQ(L"1900-03-05", text.Text()) << "passed as " << V_VT(&way);
    }
}

TEST_P(LateBoundInteger, IsTakenAsANumberOfAnItem) {
    const LateBound items = CreateLateBound(L"LejisInquiryControls").Object(L"ExcludedORIIDs");
    ASSERT_TRUE(Done(items.Call(L"Add", {L"first"})));
    VARIANT value = Integer(GetParam().type, 1);
    for (VARIANT& way : Ways(&value)) {
        DISPPARAMS parameters{&way, nullptr, 1, 0};
        const Outcome item = items.InvokeWith(DISPID_VALUE, DISPATCH_PROPERTYGET, &parameters);
        EXPECT_TRUE(Done(item)) << "passed as " << V_VT(&way);
        EXPECT_EQ(L"first", item.Text()) << "passed as " << V_VT(&way);
    }
}

// What a holder takes is its own decision: the types that the suite's language has, and Null.
TEST_P(LateBoundInteger, IsTakenByAHolderOnlyWhenItIsOfTheSuitesTypes) {
    const VARTYPE type = GetParam().type;
    const bool isTaken = type == VT_UI1 || type == VT_I2 || type == VT_I4;
    for (const wchar_t* holder : {L"NullableInteger", L"NullableLong"}) {
        VARIANT value = Integer(type, 65);
        for (const VARIANT& way : Ways(&value)) {
            const Outcome outcome = PutAsItIs(CreateLateBound(holder), L"Value", way);
            EXPECT_EQ(isTaken ? S_OK : DISP_E_EXCEPTION, outcome.result) << "passed as " << V_VT(&way);
            if (isTaken) continue;
            EXPECT_EQ(static_cast<long>(0x80040205), outcome.number);
            EXPECT_EQ(0U, outcome.description.find(L"Cannot assign '")) << "passed as " << V_VT(&way);
            EXPECT_EQ(ProgIdOf(holder), outcome.source);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfEveryType, LateBoundInteger, testing::ValuesIn(kIntegers),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LateBoundLargeInteger, IsTakenAsThePlatformConvertsIt) {
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    constexpr long long kLarge = 4'000'000'000;
    for (const VARTYPE type : {VARTYPE(VT_UI4), VARTYPE(VT_UINT), VARTYPE(VT_I8), VARTYPE(VT_UI8)}) {
        VARIANT value = Integer(type, kLarge);
        VARIANT converted{};
        // An overflow, or for the unsigned ones, on some versions of the platform, the same bits with a sign.
        const HRESULT outcome = VariantChangeType(&converted, &value, 0, VT_I4);
        for (const VARIANT& way : Ways(&value)) {
            const LateBound controls = CreateLateBound(L"LejisInquiryControls");
            EXPECT_TRUE(Done(PutAsItIs(card, L"SSN", way))) << "type " << type;
            EXPECT_EQ(L"4000000000", card.Get(L"SSN").Text()) << "type " << type;
            EXPECT_EQ(outcome, PutAsItIs(controls, L"MaxIncidents", way).result) << "type " << type;
            const _variant_t kept = FAILED(outcome) ? _variant_t(0L, VT_I4) : _variant_t(converted);
            EXPECT_EQ(kept, controls.Get(L"MaxIncidents").value) << "type " << type;
        }
    }
}

TEST(LateBoundNegativeInteger, KeepsItsSign) {
    for (const VARTYPE type : {VARTYPE(VT_I1), VARTYPE(VT_I2), VARTYPE(VT_I4), VARTYPE(VT_I8), VARTYPE(VT_INT)}) {
        const LateBound controls = CreateLateBound(L"LejisInquiryControls");
        const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
        VARIANT value = Integer(type, -7);
        for (const VARIANT& way : Ways(&value)) {
            EXPECT_TRUE(Done(PutAsItIs(controls, L"MaxIncidents", way))) << "type " << type;
            EXPECT_EQ(_variant_t(-7L, VT_I4), controls.Get(L"MaxIncidents").value) << "type " << type;
            EXPECT_TRUE(Done(PutAsItIs(card, L"SSN", way))) << "type " << type;
            EXPECT_EQ(L"-7", card.Get(L"SSN").Text()) << "type " << type;
        }
    }
}

// Some languages know calls only, and read a property as they call a method.
TEST(LateBoundProperty, IsReadByACallAlone) {
    const LateBound incident = CreateLateBound(L"LejisIncidentIndexCard");
    ASSERT_TRUE(Done(incident.Put(L"ActivityID", L"2007-0042")));
    const Outcome id = incident.Invoke(L"ActivityID", DISPATCH_METHOD);
    ASSERT_TRUE(Done(id));
    EXPECT_EQ(L"2007-0042", id.Text());
    const Outcome persons = incident.Invoke(L"PersonIndexCards", DISPATCH_METHOD);
    ASSERT_TRUE(Done(persons));
    ASSERT_EQ(VT_DISPATCH, V_VT(&persons.value));
    const LateBound items(persons.value);
    ASSERT_TRUE(Done(items.Call(L"Add", {L"a"})));
    ASSERT_TRUE(Done(items.Call(L"Add", {L"b"})));
    EXPECT_EQ(_variant_t(2L, VT_I4), items.Invoke(L"Count", DISPATCH_METHOD).value);
}

TEST(LateBoundProperty, OfACollectionIsReadByACallAlone) {
    const LateBound items = CreateLateBound(L"LejisIncidentIndexCard").Object(L"PersonIndexCards");
    ASSERT_TRUE(Done(items.Call(L"Add", {L"a"})));
    ASSERT_TRUE(Done(items.Call(L"Add", {L"b"})));
    EXPECT_EQ(L"b", items.InvokeNumber(DISPID_VALUE, DISPATCH_METHOD, {2L}).Text());
    const Outcome enumeration = items.InvokeNumber(DISPID_NEWENUM, DISPATCH_METHOD);
    ASSERT_TRUE(Done(enumeration));
    ASSERT_EQ(VT_UNKNOWN, V_VT(&enumeration.value));
    ComPtr<IEnumVARIANT> enumerator;
    ASSERT_OK(V_UNKNOWN(&enumeration.value)->QueryInterface(IID_PPV_ARGS(enumerator.GetAddressOf())));
    _variant_t item;
    EXPECT_EQ(S_OK, enumerator->Next(1, &item, nullptr));
    EXPECT_EQ(_variant_t(L"a"), item);
}

TEST(LateBoundProperty, ThatDoesNotExistIsNotFoundByACallEither) {
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, card.InvokeNumber(4711, DISPATCH_METHOD).result);
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, card.InvokeNumber(DISPID_NEWENUM, DISPATCH_METHOD).result);
}

// A call without arguments may come without the structure that would hold them.
TEST(LateBoundCall, WithoutParametersIsOneWithoutArguments) {
    const LateBound card = CreateLateBound(L"LejisPropertyIndexCard");
    ASSERT_TRUE(Done(card.Put(L"Make", L"SONY")));
    const Outcome make = card.InvokeWith(card.NumberOf(L"Make"), DISPATCH_PROPERTYGET, nullptr);
    EXPECT_TRUE(Done(make));
    EXPECT_EQ(L"SONY", make.Text());
    EXPECT_TRUE(Done(card.InvokeWith(card.NumberOf(L"LoadDefaults"), DISPATCH_METHOD, nullptr)));
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, card.InvokeWith(card.NumberOf(L"ToXmlElement"), DISPATCH_METHOD, nullptr).result);
}

}  // namespace
}  // namespace client
