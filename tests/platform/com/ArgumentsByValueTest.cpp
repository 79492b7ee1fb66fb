#include "platform/com/MemberCall.h"

#include "deferred/Future.h"
#include "unit_support/LateBoundObject.h"
#include "unit_support/RecordingRunnable.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

unsigned long HoldersOf(IUnknown* object) {
    object->AddRef();
    return object->Release();
}

VARIANT ReferenceTo(VARIANT& value) {
    VARIANT reference{};
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &value;
    return reference;
}

VARIANT ReferenceTo(IDispatch*& object) {
    VARIANT reference{};
    V_VT(&reference) = VT_BYREF | VT_DISPATCH;
    V_DISPATCHREF(&reference) = &object;
    return reference;
}

TEST(ArgumentsByValue, TakeObjectsOutOfReferencesAndLeaveTheRestAlone) {
    const auto object = Create<support::LateBoundObject>(std::map<std::wstring, support::Member>{});
    IDispatch* dispatch = object.Get();
    _variant_t variable(dispatch);
    _variant_t number(3L);
    VARIANT arguments[] = {ReferenceTo(variable), ReferenceTo(dispatch), ReferenceTo(number), number};
    DISPPARAMS given{arguments, nullptr, 4, 0};
    {
        ArgumentsByValue taken(given);
        const VARIANT* const values = taken.All()->rgvarg;
        EXPECT_EQ(VT_DISPATCH, V_VT(&values[0]));
        EXPECT_EQ(dispatch, V_DISPATCH(&values[0]));
        EXPECT_EQ(VT_DISPATCH, V_VT(&values[1]));
        EXPECT_EQ(VT_BYREF | VT_VARIANT, V_VT(&values[2]));
        EXPECT_EQ(VT_I4, V_VT(&values[3]));
    }
    EXPECT_EQ(2u, HoldersOf(dispatch));
}

TEST(ArgumentsByValue, AreTheCallersOwnWhenNoReferenceHoldsAnObject) {
    _variant_t number(3L);
    VARIANT arguments[] = {ReferenceTo(number), number};
    DISPPARAMS given{arguments, nullptr, 2, 0};
    EXPECT_EQ(arguments, ArgumentsByValue(given).All()->rgvarg);
}

TEST(ArgumentsByValue, AreReleasedWhenTheMemberRefusesThem) {
    constexpr DISPID kExecute = 1;
    const auto stranger = Create<support::LateBoundObject>(std::map<std::wstring, support::Member>{});
    const auto future = Create<lejis::Future>();
    _variant_t variable(static_cast<IDispatch*>(stranger.Get()));
    _variant_t nothing(static_cast<IDispatch*>(nullptr));
    VARIANT arguments[] = {nothing, ReferenceTo(variable)};
    DISPPARAMS given{arguments, nullptr, 2, 0};
    EXPECT_EQ(DISP_E_TYPEMISMATCH, future->Dispatch()->Invoke(kExecute, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                                              &given, nullptr, nullptr, nullptr));
    EXPECT_EQ(2u, HoldersOf(static_cast<IDispatch*>(stranger.Get())));
}

}  // namespace
}  // namespace platform
