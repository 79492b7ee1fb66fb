#include "platform/com/LateBound.h"

#include "platform/ComError.h"
#include "platform/Text.h"

#include <oleauto.h>

#include <algorithm>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

ComError ErrorIn(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
    const HRESULT number =
        exception.scode != 0 ? exception.scode : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, exception.wCode);
    std::wstring description = TakeText(exception.bstrDescription);
    std::wstring source = TakeText(exception.bstrSource);
    SysFreeString(exception.bstrHelpFile);
    if (description.empty()) description = LastError(number).Description();
    return ComError(number, std::move(description), std::move(source));
}

_variant_t InvokeMember(IDispatch* object, const wchar_t* name, WORD kind, DISPPARAMS& parameters) {
    DISPID member = DISPID_UNKNOWN;
    auto* writableName = const_cast<LPOLESTR>(name);
    Check(object->GetIDsOfNames(IID_NULL, &writableName, 1, LOCALE_USER_DEFAULT, &member));
    _variant_t result;
    EXCEPINFO exception{};
    const HRESULT outcome =
        object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, &result, &exception, nullptr);
    if (outcome == DISP_E_EXCEPTION) throw ErrorIn(exception);
    Check(outcome);
    return result;
}

}  // namespace

_variant_t CallMember(IDispatch* object, const wchar_t* name, std::vector<_variant_t> arguments) {
    // Automation passes arguments in reverse order.
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    return InvokeMember(object, name, DISPATCH_METHOD, parameters);
}

_variant_t GetMember(IDispatch* object, const wchar_t* name) {
    DISPPARAMS parameters{};
    return InvokeMember(object, name, DISPATCH_PROPERTYGET, parameters);
}

void PutMember(IDispatch* object, const wchar_t* name, _variant_t value) {
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&value, &put, 1, 1};
    InvokeMember(object, name, DISPATCH_PROPERTYPUT, parameters);
}

ComPtr<IDispatch> CreateRegistered(const wchar_t* progId) {
    CLSID classId;
    if (FAILED(CLSIDFromProgID(progId, &classId))) return nullptr;
    ComPtr<IDispatch> object;
    Check(CoCreateInstance(classId, nullptr, CLSCTX_ALL, IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

}  // namespace platform
