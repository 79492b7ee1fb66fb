#pragma once

namespace platform::host {

// Dispatches the messages that wait for this thread; when there are none, sleeps until one comes, some milliseconds at
// most.
void PumpMessages();

}  // namespace platform::host
