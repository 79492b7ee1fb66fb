#include "platform/com/MemberCall.h"

#include "platform/com/Guard.h"
#include "platform/ComError.h"
#include "platform/Conversions.h"

#include <wrl/client.h>

#include <algorithm>
#include <span>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

bool IsObjectType(VARTYPE type) { return type == VT_DISPATCH || type == VT_UNKNOWN; }

bool IsObjectBehindReference(const VARIANT& argument) {
    const VARTYPE type = V_VT(&argument);
    if (type == (VT_BYREF | VT_VARIANT)) return IsObjectType(V_VT(V_VARIANTREF(&argument)));
    return (type & VT_BYREF) && IsObjectType(type & VT_TYPEMASK) && !(type & VT_ARRAY);
}

// Whether the arguments are there, as many as are named, and none refers to nothing: the platform's dispatcher follows
// all of them.
bool IsSound(const DISPPARAMS& parameters) {
    if (parameters.cNamedArgs > parameters.cArgs) return false;
    if (parameters.cNamedArgs > 0 && !parameters.rgdispidNamedArgs) return false;
    if (parameters.cArgs > 0 && !parameters.rgvarg) return false;
    return std::ranges::none_of(std::span(parameters.rgvarg, parameters.cArgs), RefersToNothing);
}

// Some clients know calls alone, and read a property by one.
WORD AllowPropertyGet(WORD flags) {
    return flags & DISPATCH_METHOD ? static_cast<WORD>(flags | DISPATCH_PROPERTYGET) : flags;
}

// What the dispatcher returns for an argument that it cannot convert. A member's own failure is an exception.
bool IsMismatch(HRESULT outcome) { return outcome == DISP_E_TYPEMISMATCH || outcome == E_NOINTERFACE; }

// In the members of the library, every pointer that is not a result is an object.
bool IsObject(const ELEMDESC& parameter) {
    if (parameter.paramdesc.wParamFlags & PARAMFLAG_FOUT) return false;
    const VARTYPE type = parameter.tdesc.vt;
    return type == VT_DISPATCH || type == VT_UNKNOWN || type == VT_PTR;
}

bool TakesObjects(ITypeInfo* information, DISPID member, WORD flags) {
    FUNCDESC* function = nullptr;
    for (UINT index = 0; SUCCEEDED(information->GetFuncDesc(index, &function)); ++index) {
        const bool isCalled = function->memid == member && (function->invkind & flags) != 0;
        const bool takesObjects = isCalled && std::any_of(function->lprgelemdescParam,
                                                          function->lprgelemdescParam + function->cParams, IsObject);
        information->ReleaseFuncDesc(function);
        if (isCalled) return takesObjects;
    }
    return false;
}

// Moves the thread's error object into the place that a late-bound client looks at, as far as it can be read.
void FillIn(EXCEPINFO& exception, HRESULT number) {
    exception = {};
    exception.scode = number;
    ComPtr<IErrorInfo> error;
    if (GetErrorInfo(0, error.GetAddressOf()) != S_OK) return;
    if (FAILED(error->GetDescription(&exception.bstrDescription))) exception.bstrDescription = nullptr;
    if (FAILED(error->GetSource(&exception.bstrSource))) exception.bstrSource = nullptr;
}

// Reports the failure as if the member itself had refused the argument.
HRESULT RaiseTypeMismatch(REFCLSID classId, EXCEPINFO* exception) {
    const HRESULT number = Guard(classId, [] { throw TypeMismatch(); });
    if (!exception) return number;
    FillIn(*exception, number);
    return DISP_E_EXCEPTION;
}

}  // namespace

ArgumentsByValue::ArgumentsByValue(const DISPPARAMS& given) : all_(given) {
    const std::span arguments(given.rgvarg, given.cArgs);
    // Most calls have no such argument, and pay nothing.
    if (std::ranges::none_of(arguments, IsObjectBehindReference)) return;
    arguments_.assign(arguments.begin(), arguments.end());
    // The copies below must not move.
    objects_.reserve(arguments_.size());
    for (VARIANT& argument : arguments_) {
        if (IsObjectBehindReference(argument)) argument = objects_.emplace_back(Dereference(argument));
    }
    all_.rgvarg = arguments_.data();
}

HRESULT MemberCall::Invoke(DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception, UINT* argument) const {
    DISPPARAMS none{};
    DISPPARAMS& given = parameters ? *parameters : none;
    if (!IsSound(given)) return E_INVALIDARG;
    const WORD kinds = AllowPropertyGet(flags);
    ArgumentsByValue arguments(given);
    const HRESULT outcome = information->Invoke(object, member, kinds, arguments.All(), result, exception, argument);
    // The dispatcher tells a number alone. A client's language names a value of the wrong type by itself, but no
    // language knows which object was expected.
    if (IsMismatch(outcome) && TakesObjects(information, member, kinds)) return RaiseTypeMismatch(classId, exception);
    return outcome;
}

}  // namespace platform
