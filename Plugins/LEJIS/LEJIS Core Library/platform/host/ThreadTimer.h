// The built-in timer: it needs no window, only a thread that pumps messages.
#pragma once

#include "platform/host/SuiteTimer.h"

#include <windows.h>

#include <functional>

namespace platform::host {

class ThreadTimer final : public SuiteTimer {
public:
    ThreadTimer(long milliseconds, std::function<void()> elapsed);
    ~ThreadTimer() override;

    void Stop() noexcept override;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR id, DWORD) noexcept;

    std::function<void()> elapsed_;
    UINT_PTR id_ = 0;
};

}  // namespace platform::host
