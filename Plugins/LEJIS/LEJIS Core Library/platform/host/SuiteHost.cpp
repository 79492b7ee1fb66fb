#include "platform/host/SuiteHost.h"

#include "platform/com/LateBound.h"
#include "platform/ComError.h"
#include "platform/Conversions.h"
#include "platform/thread/ThreadState.h"

#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace platform::host {
namespace {

// A component of the host suite, found by ProgID. Each thread makes its own at first use and keeps it: an object of one
// apartment must not be called from another.
class HostComponent : public thread::ThreadPart {
public:
    explicit HostComponent(const wchar_t* progId) : progId_(progId) {}

    // The component; null where the suite is not registered. Throws when it is registered and cannot be made.
    ComPtr<IDispatch> Get();

    void Release() noexcept override;

private:
    const wchar_t* progId_;
    // Release alone releases it: a ComPtr would call COM when the thread ends.
    IDispatch* component_ = nullptr;
    bool lookedFor_ = false;
};

ComPtr<IDispatch> HostComponent::Get() {
    if (!lookedFor_) {
        component_ = CreateRegistered(progId_).Detach();
        lookedFor_ = true;
    }
    return component_;
}

void HostComponent::Release() noexcept {
    lookedFor_ = false;
    // The component's end may call back into the library.
    if (IDispatch* const component = std::exchange(component_, nullptr)) component->Release();
}

// The host's small code that stands for an invalid argument.
constexpr long kInvalidArgument = 5;

// Where the built-in error numbers begin, in the range that the platform leaves to components.
constexpr HRESULT kBuiltInErrors = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_ITF, 0x0200);

struct Services final : HostComponent {
    Services() : HostComponent(L"TalvexSuite.SuiteServices") {}
};

HRESULT ErrorNumber(long kind) {
    const HRESULT builtIn = kBuiltInErrors + kind;
    try {
        const auto host = thread::ThisThreads<Services>().Get();
        if (!host) return builtIn;
        const auto number = static_cast<HRESULT>(static_cast<long>(CallMember(host.Get(), L"ErrorNumber", {kind})));
        return FAILED(number) ? number : builtIn;
    } catch (...) {
        // A host that cannot name the error must not hide it: the description matters more than its number.
        return builtIn;
    }
}

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
        // When the folder cannot be made, the write into it reports that.
        CreateDirectoryW(folder.c_str(), nullptr);
    }
    return folder;
}

constexpr DWORD kLongestSleep = 10;

enum class Pumped { kNothing, kMessages, kQuit };

Pumped DispatchWaitingMessages() {
    MSG message;
    Pumped pumped = Pumped::kNothing;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // This message is meant for the client's own message loop.
            PostQuitMessage(static_cast<int>(message.wParam));
            return Pumped::kQuit;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
        pumped = Pumped::kMessages;
    }
    return pumped;
}

}  // namespace

void YieldToHost() {
    if (const auto host = thread::ThisThreads<Services>().Get()) {
        CallMember(host.Get(), L"Yield");
    } else {
        PumpMessages();
    }
}

ComError InvalidArgument(std::wstring description) {
    return ComError(ErrorNumber(kInvalidArgument), std::move(description));
}

std::wstring DiagnosticsFolder() {
    const ComPtr<IDispatch> host = thread::ThisThreads<Environment>().Get();
    if (!host) return BuiltInFolder();
    const _variant_t folders = GetMember(host.Get(), L"Folders");
    if (V_VT(&folders) != VT_DISPATCH || !V_DISPATCH(&folders)) throw ObjectRequired();
    return ToText(GetMember(V_DISPATCH(&folders), L"Diagnostics"));
}

void PumpMessages() {
    switch (DispatchWaitingMessages()) {
        case Pumped::kMessages:
            return;
        case Pumped::kQuit:
            // The message just posted again would end a wait for messages at once.
            Sleep(kLongestSleep);
            return;
        case Pumped::kNothing:
            MsgWaitForMultipleObjectsEx(0, nullptr, kLongestSleep, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
}

}  // namespace platform::host
