#include "library/InstalledLibrary.h"

#include <TVLejisCore.h>

#include <initializer_list>

namespace lejis_client {
namespace {

constexpr DWORD kLongestPath = 32768;

std::wstring ServerKey(const CLSID& classId) {
    wchar_t id[40];
    StringFromGUID2(classId, id, ARRAYSIZE(id));
    return L"CLSID\\" + std::wstring(id) + L"\\InprocServer32";
}

}  // namespace

bool SystemHas(Bitness bitness) {
    if (bitness == kOwnBitness || kOwnBitness == Bitness::k64) return true;
    BOOL underWow64 = FALSE;
    IsWow64Process(GetCurrentProcess(), &underWow64);
    return underWow64;
}

std::optional<std::wstring> RegisteredFile(Bitness bitness) {
    for (const CLSID& classId : {__uuidof(LejisSubmissionWebService), __uuidof(LejisSearchWebService),
                                 __uuidof(LejisIncidentIndexCard), __uuidof(LejisContributingSystem)}) {
        if (const auto file = RegisteredFile(bitness, classId)) return file;
    }
    return {};
}

std::optional<std::wstring> RegisteredFile(Bitness bitness, const CLSID& classId) {
    const REGSAM view = bitness == Bitness::k64 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, ServerKey(classId).c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS)
        return {};
    std::wstring path(kLongestPath, L'\0');
    DWORD size = kLongestPath * sizeof(wchar_t);
    const LSTATUS result = RegGetValueW(key, nullptr, nullptr, RRF_RT_REG_SZ, nullptr, path.data(), &size);
    RegCloseKey(key);
    if (result != ERROR_SUCCESS) return {};
    return std::wstring(path.c_str());
}

}  // namespace lejis_client
