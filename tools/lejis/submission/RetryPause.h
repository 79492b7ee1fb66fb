#pragma once

#include <windows.h>

namespace lejis_client {

// How many milliseconds to wait after an attempt, the first or a later one, has failed: about 1, 2, 4 ... seconds and
// no more than a minute, by chance a half more or less, so that not all come again at the same moment.
ULONGLONG RetryPause(long attempts);

}  // namespace lejis_client
