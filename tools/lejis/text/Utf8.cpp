#include "text/Utf8.h"

#include <windows.h>

namespace lejis_client {
namespace {

std::wstring Decoded(std::string_view text, DWORD flags) {
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_UTF8, flags, text.data(), length, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, flags, text.data(), length, result.data(), size);
    return result;
}

}  // namespace

std::string Utf8(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring Utf16(std::string_view text) { return Decoded(text, 0); }

std::optional<std::wstring> ValidUtf16(std::string_view text) {
    std::wstring result = Decoded(text, MB_ERR_INVALID_CHARS);
    if (result.empty() && !text.empty()) return std::nullopt;
    return result;
}

}  // namespace lejis_client
