// The host suite's own timer, TalvexSuite.SuiteTimer.
#pragma once

#include "platform/host/SuiteTimer.h"

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>

namespace platform::host {

class TimerSink;

class RegisteredTimer final : public SuiteTimer {
public:
    // Connects to the timer's event and starts the timer. Raises when either fails.
    RegisteredTimer(Microsoft::WRL::ComPtr<IDispatch> timer, long milliseconds, std::function<void()> elapsed);
    ~RegisteredTimer() override;

    void Stop() noexcept override;

private:
    void Start(long milliseconds);
    void Disconnect() noexcept;

    Microsoft::WRL::ComPtr<IDispatch> timer_;
    Microsoft::WRL::ComPtr<TimerSink> sink_;
    Microsoft::WRL::ComPtr<IConnectionPoint> events_;
    DWORD cookie_ = 0;
};

}  // namespace platform::host
