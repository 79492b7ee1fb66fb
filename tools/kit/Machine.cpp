#include "Machine.h"

#include "Files.h"
#include "System.h"
#include "text/Utf8.h"

#include <shlobj.h>
#include <windows.h>

namespace kit {
namespace {

using Facts = std::vector<std::pair<std::string, std::string>>;

// GetVersionEx tells programs without a manifest of an older Windows.
std::string WindowsVersion() {
    using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    const FARPROC function = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    if (function) reinterpret_cast<GetVersion>(reinterpret_cast<void*>(function))(&version);
    return std::to_string(version.dwMajorVersion) + "." + std::to_string(version.dwMinorVersion) + "." +
           std::to_string(version.dwBuildNumber) + (HasBothBitnesses() ? ", 64 bit" : ", 32 bit");
}

std::string FileVersion(const std::wstring& path) {
    if (!Exists(path)) return "is not there";
    std::string block(GetFileVersionInfoSizeW(path.c_str(), nullptr), '\0');
    VS_FIXEDFILEINFO* info = nullptr;
    UINT size = 0;
    if (!GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) ||
        !VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&info), &size)) {
        return "has no version";
    }
    return std::to_string(HIWORD(info->dwFileVersionMS)) + "." + std::to_string(LOWORD(info->dwFileVersionMS)) + "." +
           std::to_string(HIWORD(info->dwFileVersionLS)) + "." + std::to_string(LOWORD(info->dwFileVersionLS));
}

void AddFiles(const std::wstring& bits, Facts& facts) {
    for (const wchar_t* name : {L"msxml6.dll", L"oleaut32.dll", L"wininet.dll", L"vbscript.dll", L"cscript.exe"}) {
        facts.emplace_back(lejis_client::Utf8(bits + L" " + name), FileVersion(SystemFolder(bits) + L"\\" + name));
    }
}

std::string LocaleName() {
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
    return lejis_client::Utf8(name);
}

std::string LocaleText(LCTYPE type) {
    wchar_t text[128] = {};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text, static_cast<int>(std::size(text)));
    return lejis_client::Utf8(text);
}

}  // namespace

std::vector<std::pair<std::string, std::string>> DescribeMachine() {
    Facts facts = {{"Windows", WindowsVersion()}};
    if (!WineVersion().empty()) facts.emplace_back("Wine", WineVersion());
    AddFiles(L"x86", facts);
    if (HasBothBitnesses()) AddFiles(L"x64", facts);
    facts.emplace_back("locale of the user", LocaleName());
    facts.emplace_back("short date", LocaleText(LOCALE_SSHORTDATE));
    facts.emplace_back("decimal point", LocaleText(LOCALE_SDECIMAL));
    facts.emplace_back("code pages", std::to_string(GetACP()) + ", consoles " + std::to_string(GetOEMCP()));
    facts.emplace_back("administrator", IsAdministrator() ? "yes" : "no");
    return facts;
}

bool IsAdministrator() { return IsUserAnAdmin() != FALSE; }

}  // namespace kit
