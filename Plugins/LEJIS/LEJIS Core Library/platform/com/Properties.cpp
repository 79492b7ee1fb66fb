#include "platform/com/Properties.h"

#include "platform/Text.h"

#include <oleauto.h>

#include <new>

namespace platform {

HRESULT ReturnText(const std::wstring& value, BSTR* result) noexcept {
    if (!result) return E_POINTER;
    *result = SysAllocStringLen(value.data(), static_cast<UINT>(value.size()));
    return *result ? S_OK : E_OUTOFMEMORY;
}

HRESULT AssignText(std::wstring& value, BSTR newValue) noexcept {
    try {
        value.assign(newValue ? newValue : L"", SysStringLen(newValue));
        return S_OK;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

HRESULT ReturnFlag(bool value, VARIANT_BOOL* result) noexcept {
    if (!result) return E_POINTER;
    *result = value ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

}  // namespace platform
