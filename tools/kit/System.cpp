#include "System.h"

#include <windows.h>

namespace kit {
namespace {

constexpr bool kIs64BitProgram = sizeof(void*) == 8;

bool IsUnder64BitWindows() {
    BOOL isWow64 = FALSE;
    IsWow64Process(GetCurrentProcess(), &isWow64);
    return isWow64 != FALSE;
}

}  // namespace

bool HasBothBitnesses() { return kIs64BitProgram || IsUnder64BitWindows(); }

std::wstring WindowsFolder() {
    wchar_t path[MAX_PATH] = {};
    GetWindowsDirectoryW(path, MAX_PATH);
    return path;
}

std::wstring SystemFolder(const std::wstring& bits) {
    const wchar_t* name = L"System32";
    if (bits == L"x86" && HasBothBitnesses()) name = L"SysWOW64";
    // To a 32-bit program System32 is the 32-bit one.
    if (bits == L"x64" && !kIs64BitProgram) name = L"Sysnative";
    return WindowsFolder() + L"\\" + name;
}

std::string WineVersion() {
    using GetVersion = const char*(CDECL*)();
    const FARPROC function = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version");
    return function ? reinterpret_cast<GetVersion>(reinterpret_cast<void*>(function))() : "";
}

}  // namespace kit
