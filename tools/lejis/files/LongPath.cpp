#include "files/LongPath.h"

#include <windows.h>

namespace lejis_client {
namespace {

// Folders may have no more, for they have to hold a short file name.
constexpr std::size_t kLongestWithoutPrefix = MAX_PATH - 13;

}  // namespace

std::wstring WholePath(const std::wstring& path) {
    std::wstring whole(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
    return whole.empty() ? path : whole;
}

std::wstring LongPath(const std::wstring& path) {
    if (path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\")) return path;
    const std::wstring whole = WholePath(path);
    if (whole.size() < kLongestWithoutPrefix) return path;
    return whole.starts_with(L"\\\\") ? L"\\\\?\\UNC" + whole.substr(1) : L"\\\\?\\" + whole;
}

}  // namespace lejis_client
