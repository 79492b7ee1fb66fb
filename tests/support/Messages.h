// The message loop of a test.
#pragma once

#include <functional>

namespace support {

// Dispatches messages until the condition holds; false when it does not within five seconds.
bool PumpUntil(const std::function<bool()>& condition);

// Dispatches messages for this long.
void PumpFor(unsigned milliseconds);

}  // namespace support
