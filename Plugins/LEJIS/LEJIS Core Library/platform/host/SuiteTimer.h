// The timer of deferred work: the host suite's own timer, or the built-in one.
#pragma once

#include <functional>
#include <memory>

namespace platform::host {

// Ticks on the thread that started it, from that thread's message loop. Destroying the timer stops it.
class SuiteTimer {
public:
    SuiteTimer() = default;
    SuiteTimer(const SuiteTimer&) = delete;
    SuiteTimer& operator=(const SuiteTimer&) = delete;
    virtual ~SuiteTimer() = default;

    // A tick may still be on its way.
    virtual void Stop() noexcept = 0;
};

// Starts the host suite's timer or, where that is not registered or does not work, a timer of the thread's message
// loop. Each tick calls `elapsed`, which may destroy the timer. An exception from `elapsed` ends the tick and goes no
// further.
std::unique_ptr<SuiteTimer> StartSuiteTimer(long milliseconds, std::function<void()> elapsed);

}  // namespace platform::host
