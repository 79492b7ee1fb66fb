// How scripts and other clients of the late-bound kind may call the members.
#include "client/LateBound.h"
#include "support/WineVersion.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <string>

namespace client {
namespace {

// A variable that is passed by reference.
template <typename Value>
_variant_t Reference(VARTYPE type, Value* value) {
    _variant_t reference;
    V_VT(&reference) = static_cast<VARTYPE>(VT_BYREF | type);
    V_BYREF(&reference) = value;
    return reference;
}

// Puts a reference without letting it be copied into a value.
Outcome PutReference(const LateBound& object, const wchar_t* name, VARIANT reference) {
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&reference, &put, 1, 1};
    Outcome outcome;
    outcome.result = object.Pointer()->Invoke(object.NumberOf(name), IID_NULL, LOCALE_USER_DEFAULT,
                                              DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr);
    return outcome;
}

TEST(LateBoundName, MayBeWrittenInAnyCase) {
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    ASSERT_TRUE(Done(card.Put(L"GIVENNAME", L"JOHN")));
    EXPECT_EQ(L"JOHN", card.Get(L"givenname").Text());
    EXPECT_NE(nullptr, V_DISPATCH(&static_cast<const VARIANT&>(card.Get(L"Address").value)));
    EXPECT_EQ(card.NumberOf(L"address"), card.NumberOf(L"ADDRESS"));
}

TEST(LateBoundName, ThatIsUnknownHasNoNumber) {
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    wchar_t name[] = L"Nickname";
    LPOLESTR names[] = {name};
    DISPID number = 1;
    EXPECT_EQ(DISP_E_UNKNOWNNAME, card.Pointer()->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &number));
    EXPECT_EQ(DISPID_UNKNOWN, number);
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND, card.InvokeNumber(4711, DISPATCH_METHOD).result);
}

TEST(LateBoundName, OfAnArgumentHasANumberToo) {
    const LateBound future = CreateLateBound(L"Future");
    wchar_t method[] = L"Execute";
    wchar_t second[] = L"OBSERVER";
    wchar_t first[] = L"runnable";
    LPOLESTR names[] = {method, second, first};
    DISPID numbers[3] = {};
    ASSERT_OK(future.Pointer()->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, numbers));
    EXPECT_EQ(1, numbers[0]);
    EXPECT_EQ(1, numbers[1]);
    EXPECT_EQ(0, numbers[2]);
}

TEST(LateBoundArgument, MayBeNamed) {
    const LateBound common = CreateLateBound(L"LejisCommon");
    const Outcome named = common.Invoke(L"LejisFormatDate", DISPATCH_METHOD, {support::Date(L"2007-03-09")}, {0});
    ASSERT_TRUE(Done(named));
    EXPECT_EQ(L"2007-03-09", named.Text());
}

TEST(LateBoundArgument, CountMustBeRight) {
    const LateBound common = CreateLateBound(L"LejisCommon");
    const LateBound card = CreateLateBound(L"LejisPropertyIndexCard");
    const _variant_t date = support::Date(L"2007-03-09");
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, common.Call(L"LejisFormatDate", {date, date}).result);
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, common.Call(L"LejisFormatDate").result);
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, card.Call(L"ToXmlElement").result);
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, card.Call(L"ToXmlElement", {support::Nothing(), 1L}).result);
    // Taken for an index into a collection, which a text is not.
    EXPECT_EQ(DISP_E_NOTACOLLECTION, card.Invoke(L"Make", DISPATCH_PROPERTYGET, {1L}).result);
    EXPECT_TRUE(Done(card.Call(L"LoadDefaults")));
}

TEST(LateBoundArgument, IsConvertedToTheDeclaredType) {
    const LateBound common = CreateLateBound(L"LejisCommon");
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    EXPECT_EQ(L"2007-03-09", common.Call(L"LejisFormatDate", {L"2007-03-09"}).Text());
    ASSERT_TRUE(Done(card.Put(L"SSN", 123456789L)));
    EXPECT_EQ(L"123456789", card.Get(L"SSN").Text());
    ASSERT_TRUE(Done(card.Put(L"CautionIndicator", 1L)));
    EXPECT_EQ(_variant_t(true), card.Get(L"CautionIndicator").value);
    ASSERT_TRUE(Done(card.Put(L"CautionIndicator", L"False")));
    EXPECT_EQ(_variant_t(false), card.Get(L"CautionIndicator").value);
}

TEST(LateBoundArgument, ThatCannotBeConvertedIsRefused) {
    const LateBound common = CreateLateBound(L"LejisCommon");
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    ASSERT_TRUE(Done(card.Put(L"GivenName", L"JOHN")));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, common.Call(L"LejisFormatDate", {L"tomorrow, perhaps"}).result);
    EXPECT_EQ(DISP_E_TYPEMISMATCH, card.Put(L"CautionIndicator", L"maybe").result);
    EXPECT_EQ(DISP_E_TYPEMISMATCH, card.Put(L"GivenName", support::Null()).result);
    EXPECT_EQ(L"JOHN", card.Get(L"GivenName").Text());
}

TEST(LateBoundArgument, MayBeAVariableOfAnyKind) {
    const LateBound holder = CreateLateBound(L"NullableLong");
    short i2 = 1;
    long i4 = 2;
    double r8 = 3;
    _variant_t variant(4L);
    _variant_t null = support::Null();
    const auto kept = [&] { return holder.Get(L"Value").value; };
    EXPECT_OK(PutReference(holder, L"Value", Reference(VT_I2, &i2)).result);
    EXPECT_EQ(_variant_t(1L, VT_I4), kept());
    EXPECT_OK(PutReference(holder, L"Value", Reference(VT_I4, &i4)).result);
    EXPECT_EQ(_variant_t(2L, VT_I4), kept());
    EXPECT_OK(PutReference(holder, L"Value", Reference(VT_R8, &r8)).result);
    EXPECT_EQ(_variant_t(3L, VT_I4), kept());
    EXPECT_OK(PutReference(holder, L"Value", Reference(VT_VARIANT, static_cast<VARIANT*>(&variant))).result);
    EXPECT_EQ(_variant_t(4L, VT_I4), kept());
    EXPECT_OK(PutReference(holder, L"Value", Reference(VT_VARIANT, static_cast<VARIANT*>(&null))).result);
    EXPECT_EQ(support::Null(), kept());
}

TEST(LateBoundArgument, MayBeATextOrADateVariable) {
    const LateBound holder = CreateLateBound(L"NullableDate");
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    const _bstr_t text = support::Bstr(L"2007-03-09");
    BSTR pointer = text;
    DATE date = support::Date(L"2007-03-10").date;
    EXPECT_OK(PutReference(holder, L"Value", Reference(VT_BSTR, &pointer)).result);
    EXPECT_EQ(support::Date(L"2007-03-09"), holder.Get(L"Value").value);
    EXPECT_OK(PutReference(holder, L"Value", Reference(VT_DATE, &date)).result);
    EXPECT_EQ(support::Date(L"2007-03-10"), holder.Get(L"Value").value);
    EXPECT_OK(PutReference(card, L"GivenName", Reference(VT_BSTR, &pointer)).result);
    EXPECT_EQ(L"2007-03-09", card.Get(L"GivenName").Text());
}

TEST(LateBoundArgument, MayBeAVariableThatHoldsAnObject) {
    const LateBound validator = CreateLateBound(L"LejisIncidentValidator");
    _variant_t incident = CreateLateBound(L"LejisIncidentIndexCard").AsArgument();
    IDispatch* pointer = V_DISPATCH(&incident);
    EXPECT_EQ(_variant_t(true), validator.Call(L"Validate", {incident}).value) << "errors were found";
    VARIANT references[] = {Reference(VT_VARIANT, static_cast<VARIANT*>(&incident)), Reference(VT_DISPATCH, &pointer)};
    for (VARIANT& reference : references) {
        DISPPARAMS parameters{&reference, nullptr, 1, 0};
        _variant_t result;
        EXPECT_OK(validator.Pointer()->Invoke(validator.NumberOf(L"Validate"), IID_NULL, LOCALE_USER_DEFAULT,
                                              DISPATCH_METHOD, &parameters, &result, nullptr, nullptr));
        EXPECT_EQ(_variant_t(true), result);
    }
}

TEST(LateBoundMember, ThatIsReadOnlyCannotBeSet) {
    // Wine 10 takes the value for an argument that the property does not have; Wine 8 and Windows find no such member.
    const HRESULT refusal = support::WineVersion() >= 10 ? DISP_E_BADPARAMCOUNT : DISP_E_MEMBERNOTFOUND;
    const LateBound system = CreateLateBound(L"LejisContributingSystem");
    EXPECT_EQ(refusal, system.Put(L"CompanyName", L"Other").result);
    EXPECT_EQ(L"Talvex", system.Get(L"CompanyName").Text());
}

TEST(LateBoundMember, ToleratesNoPlaceForAResult) {
    const LateBound card = CreateLateBound(L"LejisPersonIndexCard");
    DISPPARAMS none{};
    EXPECT_OK(card.Pointer()->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, nullptr, nullptr,
                                     nullptr));
    EXPECT_TRUE(FAILED(card.Pointer()->GetIDsOfNames(IID_NULL, nullptr, 0, LOCALE_USER_DEFAULT, nullptr)));
}

TEST(LateBoundMember, FailsWithoutAPlaceForTheException) {
    const LateBound manager = CreateLateBound(L"FutureManager");
    _variant_t nothing = support::Nothing();
    DISPPARAMS parameters{&nothing, nullptr, 1, 0};
    EXPECT_TRUE(FAILED(manager.Pointer()->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                                 nullptr, nullptr, nullptr)));
}

}  // namespace
}  // namespace client
