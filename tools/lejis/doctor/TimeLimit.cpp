#include "doctor/TimeLimit.h"

#include "library/Apartment.h"
#include "text/Duration.h"
#include "text/Layout.h"

#include <new>

namespace lejis_client {
namespace {

using Work = std::function<void()>;

DWORD WINAPI RunInApartment(void* argument) {
    const std::unique_ptr<Work> work(static_cast<Work*>(argument));
    const Apartment apartment;
    (*work)();
    return 0;
}

}  // namespace

// The thread itself is waited for: the compiler's own condition variables have been seen to miss a wake-up under Wine.
bool TimeLimit::RunInThread(Work work) {
    auto argument = std::make_unique<Work>(std::move(work));
    const HANDLE thread = CreateThread(nullptr, 0, RunInApartment, argument.get(), 0, nullptr);
    if (!thread) throw std::bad_alloc();
    static_cast<void>(argument.release());
    const auto limit = static_cast<DWORD>(static_cast<ULONGLONG>(seconds_) * kSecond);
    const bool isDone = WaitForSingleObject(thread, limit) == WAIT_OBJECT_0;
    CloseHandle(thread);
    wasExceeded_ |= !isDone;
    return isDone;
}

std::wstring TimeLimit::Text() const { return Counted(static_cast<std::size_t>(seconds_), L"second"); }

}  // namespace lejis_client
