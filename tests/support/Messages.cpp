#include "support/Messages.h"

#include <windows.h>

namespace support {
namespace {

constexpr unsigned kTimeLimit = 5000;
constexpr DWORD kLook = 5;

void Dispatch() {
    MsgWaitForMultipleObjectsEx(0, nullptr, kLook, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

}  // namespace

bool PumpUntil(const std::function<bool()>& condition) {
    const ULONGLONG end = GetTickCount64() + kTimeLimit;
    while (!condition()) {
        if (GetTickCount64() > end) return false;
        Dispatch();
    }
    return true;
}

void PumpFor(unsigned milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    while (GetTickCount64() < end) Dispatch();
}

}  // namespace support
