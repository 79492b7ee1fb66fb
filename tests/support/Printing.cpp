#include "support/Printing.h"

#include <oleauto.h>
#include <windows.h>

#include <cstdio>
#include <ostream>

namespace support {

std::string Utf8(const std::wstring& text) {
    const int wide = static_cast<int>(text.size());
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, text.data(), wide, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), wide, result.data(), bytes, nullptr, nullptr);
    return result;
}

std::wstring Wide(const std::string& text) {
    const int bytes = static_cast<int>(text.size());
    const int wide = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
    std::wstring result(static_cast<size_t>(wide), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, result.data(), wide);
    return result;
}

std::string Hexadecimal(long number) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(number));
    return text;
}

}  // namespace support

void PrintTo(const _variant_t& value, std::ostream* out) {
    _variant_t text;
    *out << "type " << V_VT(&value);
    if (FAILED(VariantChangeType(&text, const_cast<_variant_t*>(&value), VARIANT_ALPHABOOL, VT_BSTR))) return;
    *out << " '" << support::Utf8(std::wstring(V_BSTR(&text), SysStringLen(V_BSTR(&text)))) << "'";
}
