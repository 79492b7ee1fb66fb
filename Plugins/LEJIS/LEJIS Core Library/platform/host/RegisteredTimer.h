// The host suite's own timer, TalvexSuite.SuiteTimer.
#pragma once

#include "platform/host/SuiteTimer.h"

#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

namespace platform::host {

class TimerSink;

class RegisteredTimer final : public SuiteTimer {
public:
    // Connects to the timer's events. Raises when it has none.
    RegisteredTimer(Microsoft::WRL::ComPtr<IDispatch> timer, std::function<void()> elapsed);
    ~RegisteredTimer() override;

    void SetInterval(long milliseconds) override;
    void SetEnabled(bool enabled) override;

private:
    Microsoft::WRL::ComPtr<IDispatch> timer_;
    Microsoft::WRL::ComPtr<TimerSink> sink_;
    Microsoft::WRL::ComPtr<IConnectionPoint> events_;
    DWORD cookie_ = 0;
};

}  // namespace platform::host
