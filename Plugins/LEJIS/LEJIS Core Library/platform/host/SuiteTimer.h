// The timer of deferred work: the host suite's where it is registered, else one of the thread's message loop.
#pragma once

#include <functional>
#include <memory>

namespace platform::host {

// Ticks on the thread that made it, from its message loop. Destroying it stops it.
class SuiteTimer {
public:
    SuiteTimer() = default;
    SuiteTimer(const SuiteTimer&) = delete;
    SuiteTimer& operator=(const SuiteTimer&) = delete;
    virtual ~SuiteTimer() = default;

    virtual void SetInterval(long milliseconds) = 0;
    virtual void SetEnabled(bool enabled) = 0;
};

// `elapsed` is called on each tick and may destroy the timer; what it raises ends the tick and goes no further.
std::unique_ptr<SuiteTimer> CreateSuiteTimer(std::function<void()> elapsed);

}  // namespace platform::host
