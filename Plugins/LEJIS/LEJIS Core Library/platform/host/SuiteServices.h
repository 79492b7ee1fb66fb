// What the library asks of the host suite while it works: error numbers and time for the host's own work.
#pragma once

#include "platform/ComError.h"

#include <string>

namespace platform::host {

// Lets the host process pending work. The host's component raises to end the wait that called it; the built-in one
// dispatches the thread's messages and otherwise sleeps until one comes, some milliseconds at most.
void YieldToHost();

// The error that every argument check of the library raises; its number is the host's for an invalid argument.
ComError InvalidArgument(std::wstring description);

}  // namespace platform::host
