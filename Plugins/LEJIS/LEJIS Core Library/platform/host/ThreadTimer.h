// The built-in timer: it needs no window, only a thread that pumps messages.
#pragma once

#include "platform/host/SuiteTimer.h"

#include <windows.h>

namespace platform::host {

class ThreadTimer final : public SuiteTimer {
public:
    explicit ThreadTimer(std::function<void()> elapsed);
    ~ThreadTimer() override;

    void SetInterval(long milliseconds) override;
    void SetEnabled(bool enabled) override;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR id, DWORD) noexcept;

    void Start();
    void Stop() noexcept;

    std::function<void()> elapsed_;
    UINT interval_ = USER_TIMER_MINIMUM;
    UINT_PTR id_ = 0;
};

}  // namespace platform::host
