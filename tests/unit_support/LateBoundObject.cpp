#include "unit_support/LateBoundObject.h"

#include "platform/ComError.h"
#include "platform/Text.h"

#include <olectl.h>

namespace support {

LateBoundObject::LateBoundObject(std::map<std::wstring, Member> members) : members_(members.begin(), members.end()) {}

STDMETHODIMP LateBoundObject::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

STDMETHODIMP LateBoundObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) {
    for (size_t index = 0; index < members_.size(); ++index) {
        if (!platform::EqualIgnoringCase(members_[index].first, names[0])) continue;
        numbers[0] = static_cast<DISPID>(index) + 1;
        return S_OK;
    }
    numbers[0] = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP LateBoundObject::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT*) {
    if (member < 1 || static_cast<size_t>(member) > members_.size()) return DISP_E_MEMBERNOTFOUND;
    std::vector<_variant_t> arguments;
    for (UINT left = parameters->cArgs; left > 0; --left) arguments.emplace_back(parameters->rgvarg[left - 1]);
    try {
        _variant_t value = members_[static_cast<size_t>(member) - 1].second(arguments, kind);
        if (result) *result = value.Detach();
        return S_OK;
    } catch (const platform::ComError& error) {
        *exception = EXCEPINFO{};
        exception->scode = error.Number();
        exception->bstrDescription = platform::ToBstr(error.Description()).Detach();
        exception->bstrSource = platform::ToBstr(error.Source()).Detach();
        return DISP_E_EXCEPTION;
    }
}

STDMETHODIMP LateBoundObject::FindConnectionPoint(REFIID, IConnectionPoint** point) {
    *point = nullptr;
    return CONNECT_E_NOCONNECTION;
}

}  // namespace support
