#include "support/Printing.h"

#include <windows.h>

#include <cstdio>

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
