// Which timer deferred work gets.
#pragma once

#include "platform/host/SuiteTimer.h"

#include <functional>
#include <memory>

namespace platform::host {

// Starts the host suite's timer; where it is not registered, or does not work, one of the thread's message loop.
// `elapsed` is called on each tick and may destroy the timer; what it raises ends the tick and goes no further.
std::unique_ptr<SuiteTimer> StartSuiteTimer(long milliseconds, std::function<void()> elapsed);

}  // namespace platform::host
