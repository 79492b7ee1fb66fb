// What the library asks of the host suite: error numbers, time for the host's own work, and the folder for dumps.
#pragma once

#include "platform/ComError.h"

#include <string>

namespace platform::host {

// Lets the host process pending work. The host's component raises an error to end the wait that called it. Without the
// host's component, this is PumpMessages.
void YieldToHost();

// The error that every argument check of the library raises; its number is the host's number for an invalid argument.
ComError InvalidArgument(std::wstring description);

// The folder for debug dumps. This function creates the built-in folder, below the user's local application data.
std::wstring DiagnosticsFolder();

// Dispatches the messages that wait for this thread. When no message waits, sleeps until one arrives, for some
// milliseconds at most.
void PumpMessages();

}  // namespace platform::host
