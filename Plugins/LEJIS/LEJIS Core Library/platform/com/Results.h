// How values of the inside become results of COM methods.
#pragma once

#include "platform/com/Ref.h"
#include "platform/Text.h"

#include <comutil.h>
#include <windows.h>
#include <wrl/client.h>

#include <string_view>
#include <utility>

namespace platform {

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

}  // namespace platform
