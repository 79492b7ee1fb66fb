// The timer of deferred work.
#pragma once

#include <functional>
#include <memory>

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

// Starts the host suite's timer; where it is not registered, or does not work, one of the thread's message loop.
// `elapsed` is called on each tick and may destroy the timer; what it raises ends the tick and goes no further.
std::unique_ptr<SuiteTimer> StartSuiteTimer(long milliseconds, std::function<void()> elapsed);

}  // namespace platform::host
