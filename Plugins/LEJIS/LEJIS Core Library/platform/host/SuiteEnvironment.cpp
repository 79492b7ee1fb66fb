#include "platform/host/SuiteEnvironment.h"

#include "platform/com/LateBound.h"
#include "platform/ComError.h"
#include "platform/Conversions.h"
#include "platform/host/HostComponent.h"
#include "platform/thread/ThreadState.h"

#include <windows.h>

#include <string>

using Microsoft::WRL::ComPtr;

namespace platform::host {
namespace {

struct Environment final : HostComponent {
    Environment() : HostComponent(L"TalvexSuite.SuiteEnvironment") {}
};

std::wstring BuiltInFolder() {
    wchar_t base[MAX_PATH];
    const DWORD length = GetEnvironmentVariableW(L"LOCALAPPDATA", base, ARRAYSIZE(base));
    if (length == 0 || length >= ARRAYSIZE(base)) Check(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND));
    std::wstring folder = base;
    for (const wchar_t* name : {L"\\TalvexSuite", L"\\Diagnostics"}) {
        folder += name;
        // A folder that cannot be made is reported by the write into it.
        CreateDirectoryW(folder.c_str(), nullptr);
    }
    return folder;
}

}  // namespace

std::wstring DiagnosticsFolder() {
    const ComPtr<IDispatch> host = thread::ThisThreads<Environment>().Get();
    if (!host) return BuiltInFolder();
    const _variant_t folders = GetMember(host.Get(), L"Folders");
    if (V_VT(&folders) != VT_DISPATCH || !V_DISPATCH(&folders)) throw ObjectRequired();
    return ToText(GetMember(V_DISPATCH(&folders), L"Diagnostics"));
}

}  // namespace platform::host
