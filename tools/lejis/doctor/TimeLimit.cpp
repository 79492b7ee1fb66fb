#include "doctor/TimeLimit.h"

#include "text/Layout.h"

#include <objbase.h>
#include <windows.h>

#include <new>

namespace lejis_client {
namespace {

constexpr DWORD kSecond = 1000;

using Work = std::function<void()>;

DWORD WINAPI RunInApartment(void* argument) {
    const std::unique_ptr<Work> work(static_cast<Work*>(argument));
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    (*work)();
    CoUninitialize();
    return 0;
}

}  // namespace

// The thread itself is waited for: the compiler's own condition variables have been seen to miss a wake-up under Wine.
bool TimeLimit::RunInThread(Work work) {
    auto argument = std::make_unique<Work>(std::move(work));
    const HANDLE thread = CreateThread(nullptr, 0, RunInApartment, argument.get(), 0, nullptr);
    if (!thread) throw std::bad_alloc();
    static_cast<void>(argument.release());
    const bool isDone = WaitForSingleObject(thread, static_cast<DWORD>(seconds_) * kSecond) == WAIT_OBJECT_0;
    CloseHandle(thread);
    wasExceeded_ |= !isDone;
    return isDone;
}

std::wstring TimeLimit::Text() const { return Counted(static_cast<std::size_t>(seconds_), L"second"); }

}  // namespace lejis_client
