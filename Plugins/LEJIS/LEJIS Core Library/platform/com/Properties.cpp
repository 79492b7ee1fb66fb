#include "platform/com/Properties.h"

namespace platform {

HRESULT ReturnText(const TextArgument& value, BSTR* result) noexcept {
    if (!result) return E_POINTER;
    *result = SysAllocStringLen(value.View().data(), static_cast<UINT>(value.View().size()));
    return *result ? S_OK : E_OUTOFMEMORY;
}

HRESULT ReturnFlag(bool value, VARIANT_BOOL* result) noexcept {
    if (!result) return E_POINTER;
    *result = value ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

}  // namespace platform
