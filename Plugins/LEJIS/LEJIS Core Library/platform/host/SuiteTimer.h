// The timer of deferred work.
#pragma once

namespace platform::host {

// Ticks on the thread that started it, from its message loop. Destroying it stops it.
class SuiteTimer {
public:
    SuiteTimer() = default;
    SuiteTimer(const SuiteTimer&) = delete;
    SuiteTimer& operator=(const SuiteTimer&) = delete;
    virtual ~SuiteTimer() = default;

    // A tick may still be on its way.
    virtual void Stop() noexcept = 0;
};

}  // namespace platform::host
