#include "platform/com/ComObject.h"

#include "model/LejisPersonIndexCard.h"
#include "model/LejisStreetAddress.h"
#include "model/LejisVehicleIndexCard.h"
#include "platform/com/Module.h"
#include "platform/Text.h"
#include "support/ComCheck.h"
#include "unit_support/LateBoundObject.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using lejis::LejisPersonIndexCard;
using lejis::LejisStreetAddress;
using lejis::LejisVehicleIndexCard;
using Microsoft::WRL::ComPtr;
using support::Raises;

HRESULT NumberOf(IDispatch* object, const wchar_t* name, DISPID* number) {
    auto* writable = const_cast<LPOLESTR>(name);
    return object->GetIDsOfNames(IID_NULL, &writable, 1, LOCALE_USER_DEFAULT, number);
}

template <typename Interface>
ComPtr<Interface> As(IUnknown* object) {
    ComPtr<Interface> found;
    EXPECT_OK(object->QueryInterface(IID_PPV_ARGS(found.GetAddressOf())));
    return found;
}

TEST(ComObject, HasOneIdentityForAllItsInterfaces) {
    const auto card = Create<LejisVehicleIndexCard>();
    ComPtr<IUnknown> identity;
    ASSERT_OK(card->QueryInterface(IID_PPV_ARGS(identity.GetAddressOf())));
    for (const IID& iid : {__uuidof(ILejisVehicleIndexCard), __uuidof(IDispatch), __uuidof(ISupportErrorInfo),
                           __uuidof(IProvideClassInfo), __uuidof(IProvideClassInfo2)}) {
        ComPtr<IUnknown> part;
        ASSERT_OK(card->QueryInterface(iid, reinterpret_cast<void**>(part.GetAddressOf())));
        ComPtr<IUnknown> whole;
        ASSERT_OK(part.As(&whole));
        EXPECT_EQ(identity.Get(), whole.Get());
    }
}

TEST(ComObject, RefusesInterfacesThatItLacks) {
    const auto card = Create<LejisVehicleIndexCard>();
    void* object = card.Get();
    EXPECT_EQ(E_NOINTERFACE, card->QueryInterface(__uuidof(ILejisPersonIndexCard), &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(E_POINTER, card->QueryInterface(__uuidof(IUnknown), nullptr));
}

TEST(ComObject, KeepsTheModuleInUseWhileItLives) {
    ASSERT_FALSE(module::InUse());
    Microsoft::WRL::ComPtr<LejisVehicleIndexCard> card = Create<LejisVehicleIndexCard>();
    EXPECT_TRUE(module::InUse());
    card.Reset();
    EXPECT_FALSE(module::InUse());
}

TEST(ComObject, SupportsErrorsOnItsOwnInterfaces) {
    const auto card = Create<LejisVehicleIndexCard>();
    const auto support = As<ISupportErrorInfo>(card.Get());
    EXPECT_EQ(S_OK, support->InterfaceSupportsErrorInfo(__uuidof(ILejisVehicleIndexCard)));
    EXPECT_EQ(S_FALSE, support->InterfaceSupportsErrorInfo(__uuidof(ILejisPersonIndexCard)));
}

TEST(ComObject, KeepsTheErrorObjectWhileAClientAsksForIt) {
    const auto card = Create<LejisVehicleIndexCard>();
    ASSERT_TRUE(FAILED(card->FromXmlElement(nullptr)));
    const auto support = As<ISupportErrorInfo>(card.Get());
    EXPECT_EQ(S_OK, support->InterfaceSupportsErrorInfo(__uuidof(ILejisVehicleIndexCard)));
    ComPtr<IErrorInfo> error;
    EXPECT_EQ(S_OK, GetErrorInfo(0, error.GetAddressOf()));
}

TEST(ComObject, OutlivesItsClientWhileItsClassInformationIsHeld) {
    Microsoft::WRL::ComPtr<LejisVehicleIndexCard> card = Create<LejisVehicleIndexCard>();
    const auto information = As<IProvideClassInfo2>(card.Get());
    card.Reset();
    ComPtr<ILejisVehicleIndexCard> again;
    EXPECT_OK(information->QueryInterface(IID_PPV_ARGS(again.GetAddressOf())));
    EXPECT_TRUE(again);
}

TEST(ComObject, NamesItsClassAndInterface) {
    const auto card = Create<LejisVehicleIndexCard>();
    ComPtr<ITypeInfo> information;
    BSTR name = nullptr;
    ASSERT_OK(As<IProvideClassInfo>(card.Get())->GetClassInfo(information.GetAddressOf()));
    ASSERT_OK(information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    EXPECT_EQ(L"LejisVehicleIndexCard", support::Take(name));
    ASSERT_OK(card->GetTypeInfo(0, LOCALE_USER_DEFAULT, information.ReleaseAndGetAddressOf()));
    ASSERT_OK(information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    EXPECT_EQ(L"ILejisVehicleIndexCard", support::Take(name));
}

TEST(ComObject, PaysNothingForItsAutomation) {
    EXPECT_EQ(sizeof(ILejisVehicleIndexCard), sizeof(DispatchOf<::LejisVehicleIndexCard, ILejisVehicleIndexCard>));
}

TEST(ComObject, HasOneTypeInformation) {
    const auto card = Create<LejisVehicleIndexCard>();
    UINT count = 0;
    EXPECT_OK(card->GetTypeInfoCount(&count));
    EXPECT_EQ(1u, count);
    ComPtr<ITypeInfo> information;
    EXPECT_EQ(DISP_E_BADINDEX, card->GetTypeInfo(1, LOCALE_USER_DEFAULT, information.GetAddressOf()));
    EXPECT_EQ(E_POINTER, card->GetTypeInfoCount(nullptr));
    EXPECT_EQ(E_POINTER, card->GetTypeInfo(0, LOCALE_USER_DEFAULT, nullptr));
}

TEST(ComObject, HasNoDefaultEventsWithoutEvents) {
    const auto card = Create<LejisVehicleIndexCard>();
    const auto information = As<IProvideClassInfo2>(card.Get());
    GUID events = __uuidof(IUnknown);
    EXPECT_OK(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events));
    EXPECT_TRUE(events == GUID_NULL);
    EXPECT_EQ(E_INVALIDARG, information->GetGUID(0, &events));
    EXPECT_EQ(E_POINTER, information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr));
}

TEST(ComObject, FindsItsMembersByNameInAnyLetterCase) {
    const auto card = Create<LejisVehicleIndexCard>();
    DISPID number = 0;
    DISPID same = 0;
    EXPECT_OK(NumberOf(card->Dispatch(), L"CaveatText", &number));
    EXPECT_OK(NumberOf(card->Dispatch(), L"caveattext", &same));
    EXPECT_EQ(number, same);
    EXPECT_EQ(DISP_E_UNKNOWNNAME, NumberOf(card->Dispatch(), L"Wheels", &number));
    EXPECT_EQ(E_INVALIDARG, card->GetIDsOfNames(IID_NULL, nullptr, 1, LOCALE_USER_DEFAULT, &number));
}

TEST(ComObject, GivesAutomationTheReasonOfAFailure) {
    const auto card = Create<LejisVehicleIndexCard>();
    DISPID reader = 0;
    ASSERT_OK(NumberOf(card->Dispatch(), L"FromXmlElement", &reader));
    _variant_t nothing = support::Nothing();
    DISPPARAMS parameters{&nothing, nullptr, 1, 0};
    EXCEPINFO exception{};
    EXPECT_EQ(DISP_E_EXCEPTION, card->Invoke(reader, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                             nullptr, &exception, nullptr));
    EXPECT_EQ(support::kInvalidArgument, exception.scode);
    EXPECT_EQ(L"elem cannot be Nothing", TakeText(exception.bstrDescription));
    EXPECT_EQ(L"TVLejisCore.LejisVehicleIndexCard", TakeText(exception.bstrSource));
}

TEST(ComObject, TakesNoParametersForNoArguments) {
    const auto card = Create<LejisVehicleIndexCard>();
    DISPID reader = 0;
    DISPID make = 0;
    ASSERT_OK(NumberOf(card->Dispatch(), L"FromXmlElement", &reader));
    ASSERT_OK(NumberOf(card->Dispatch(), L"Make", &make));
    _variant_t result;
    card->Make = L"FORD";
    EXPECT_EQ(DISP_E_BADPARAMCOUNT,
              card->Invoke(reader, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr));
    EXPECT_OK(
        card->Invoke(make, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, nullptr, &result, nullptr, nullptr));
    EXPECT_EQ(_variant_t(L"FORD"), result);
}

// The call of a member that takes one argument, with these parameters.
HRESULT InvokeReader(const platform::Ref<LejisVehicleIndexCard>& card, DISPPARAMS parameters) {
    DISPID reader = 0;
    EXPECT_OK(NumberOf(card->Dispatch(), L"FromXmlElement", &reader));
    return card->Invoke(reader, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
}

TEST(ComObject, RefusesArgumentsThatAreNotThere) {
    const auto card = Create<LejisVehicleIndexCard>();
    _variant_t argument(1L);
    DISPID name = 0;
    EXPECT_EQ(E_INVALIDARG, InvokeReader(card, {nullptr, nullptr, 1, 0}));
    EXPECT_EQ(E_INVALIDARG, InvokeReader(card, {&argument, nullptr, 1, 1}));
    EXPECT_EQ(E_INVALIDARG, InvokeReader(card, {&argument, &name, 1, 2}));
}

TEST(ComObject, RefusesReferencesToNothing) {
    const auto card = Create<LejisVehicleIndexCard>();
    VARIANT number{};
    V_VT(&number) = VT_BYREF | VT_I4;
    VARIANT reference{};
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    EXPECT_EQ(E_INVALIDARG, InvokeReader(card, {&number, nullptr, 1, 0}));
    EXPECT_EQ(E_INVALIDARG, InvokeReader(card, {&reference, nullptr, 1, 0}));
    V_VARIANTREF(&reference) = &number;
    EXPECT_EQ(E_INVALIDARG, InvokeReader(card, {&reference, nullptr, 1, 0}));
}

TEST(ImplementationOf, FindsTheObjectOfAnInterface) {
    const auto card = Create<LejisPersonIndexCard>();
    EXPECT_EQ(card.Get(), ImplementationOf<LejisPersonIndexCard>(card->Dispatch()).Get());
    EXPECT_EQ(card.Get(), ImplementationOf<LejisPersonIndexCard>(As<ISupportErrorInfo>(card.Get()).Get()).Get());
}

TEST(ImplementationOf, RaisesForNoObjectAndForOthers) {
    EXPECT_TRUE(
        Raises(support::kObjectRequired, L"Object required", [] { ImplementationOf<LejisPersonIndexCard>(nullptr); }));
    const auto address = Create<LejisStreetAddress>();
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch",
                       [&] { ImplementationOf<LejisPersonIndexCard>(address->Dispatch()); }));
    const auto foreign = Create<support::LateBoundObject>(std::map<std::wstring, support::Member>{});
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch",
                       [&] { ImplementationOf<LejisPersonIndexCard>(static_cast<IDispatch*>(foreign.Get())); }));
}

}  // namespace
}  // namespace platform
