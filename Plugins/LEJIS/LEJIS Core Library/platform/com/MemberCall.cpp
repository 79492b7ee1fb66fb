#include "platform/com/MemberCall.h"

#include "platform/com/Arguments.h"
#include "platform/com/ArgumentsByValue.h"
#include "platform/com/Guard.h"
#include "platform/ComError.h"

#include <wrl/client.h>

#include <algorithm>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

// Some clients know calls alone, and read a property by one.
WORD WithReading(WORD flags) {
    return flags & DISPATCH_METHOD ? static_cast<WORD>(flags | DISPATCH_PROPERTYGET) : flags;
}

// What the dispatcher returns for an argument that it cannot convert. A member's own failure is an exception.
bool IsMismatch(HRESULT outcome) { return outcome == DISP_E_TYPEMISMATCH || outcome == E_NOINTERFACE; }

// The library passes pointers for nothing else.
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

// Moves the thread's error object into the place that a client by name looks at. What cannot be had of it is left out.
void FillIn(EXCEPINFO& exception, HRESULT number) {
    exception = {};
    exception.scode = number;
    ComPtr<IErrorInfo> error;
    if (GetErrorInfo(0, error.GetAddressOf()) != S_OK) return;
    if (FAILED(error->GetDescription(&exception.bstrDescription))) exception.bstrDescription = nullptr;
    if (FAILED(error->GetSource(&exception.bstrSource))) exception.bstrSource = nullptr;
}

// The failure as it would be if the member itself had refused the argument.
HRESULT RaiseTypeMismatch(REFCLSID classId, EXCEPINFO* exception) {
    const HRESULT number = Guard(classId, [] { throw TypeMismatch(); });
    if (!exception) return number;
    FillIn(*exception, number);
    return DISP_E_EXCEPTION;
}

}  // namespace

HRESULT MemberCall::Invoke(DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception, UINT* argument) const {
    DISPPARAMS none{};
    DISPPARAMS& given = parameters ? *parameters : none;
    if (!IsSound(given)) return E_INVALIDARG;
    const WORD kinds = WithReading(flags);
    ArgumentsByValue arguments(given);
    const HRESULT outcome = information->Invoke(object, member, kinds, arguments.All(), result, exception, argument);
    // The dispatcher tells a number alone; a value of the wrong type is named by the client's own language, but no
    // language knows which object was expected.
    if (IsMismatch(outcome) && TakesObjects(information, member, kinds)) return RaiseTypeMismatch(classId, exception);
    return outcome;
}

}  // namespace platform
