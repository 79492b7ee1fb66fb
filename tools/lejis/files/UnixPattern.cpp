#include "files/UnixPattern.h"

#include <windows.h>

#include <filesystem>

namespace lejis_client {
namespace {

using WineDosFileName = wchar_t*(CDECL*)(const char* unixName);

WineDosFileName FindWineDosFileName() {
    const FARPROC function = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_dos_file_name");
    return reinterpret_cast<WineDosFileName>(reinterpret_cast<void*>(function));
}

std::wstring DosFolder(const std::wstring& folder) {
    static const WineDosFileName wineDosFileName = FindWineDosFileName();
    if (!wineDosFileName) return folder;
    const auto utf8 = std::filesystem::path(folder).u8string();
    wchar_t* const name = wineDosFileName(reinterpret_cast<const char*>(utf8.c_str()));
    if (!name) return folder;
    const std::wstring result = name;
    HeapFree(GetProcessHeap(), 0, name);
    return result.back() == L'\\' ? result : result + L'\\';
}

}  // namespace

std::wstring WindowsPattern(const std::wstring& pattern) {
    if (!pattern.starts_with(L'/')) return pattern;
    const std::size_t length = pattern.find_last_of(L"\\/") + 1;
    return DosFolder(pattern.substr(0, length)) + pattern.substr(length);
}

}  // namespace lejis_client
