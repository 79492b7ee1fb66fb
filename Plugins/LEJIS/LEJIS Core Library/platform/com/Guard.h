// The edge between the library's inside, which throws exceptions, and its COM clients, which get results.
#pragma once

#include "platform/com/UnknownObject.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <comutil.h>
#include <windows.h>
#include <wrl/client.h>

#include <string_view>
#include <utility>

namespace platform {

// How values of the inside become results of COM methods.
inline void Return(BSTR* result, std::wstring_view text) { *result = ToBstr(text).Detach(); }
inline void Return(VARIANT_BOOL* result, bool flag) { *result = flag ? VARIANT_TRUE : VARIANT_FALSE; }
inline void Return(long* result, long number) { *result = number; }
inline void Return(VARIANT* result, _variant_t value) { *result = value.Detach(); }

template <typename Interface, typename Object>
void Return(Interface** result, Microsoft::WRL::ComPtr<Object> object) {
    *result = object.Detach();
}

template <typename Interface, typename Object>
void Return(Interface** result, const Ref<Object>& object) {
    *result = Microsoft::WRL::ComPtr<Object>(object).Detach();
}

// The exception being handled, of whatever type, as a ComError. Call this in a catch (...) only.
ComError CaughtError();

// Turns the exception being handled into the thread's error object and its number. `classId` names the source.
HRESULT ReportException(REFCLSID classId) noexcept;

// Runs `work` and turns any exception into the result. It first empties the thread's error object, so that a failing
// call to the platform cannot pick up the description of an earlier failure.
template <typename Work>
HRESULT Guard(REFCLSID classId, Work&& work) noexcept {
    SetErrorInfo(0, nullptr);
    try {
        std::forward<Work>(work)();
        return S_OK;
    } catch (...) {
        return ReportException(classId);
    }
}

// The same for work with a result, which is cleared first and set when the work succeeds.
template <typename Result, typename Work>
HRESULT Guard(REFCLSID classId, Result* result, Work&& work) noexcept {
    if (!result) return E_POINTER;
    *result = Result{};
    return Guard(classId, [&] { Return(result, std::forward<Work>(work)()); });
}

}  // namespace platform
