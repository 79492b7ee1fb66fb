// How the work on the incidents came to its end.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

namespace lejis_client {

struct Ending {
    // How many were not begun.
    std::size_t left = 0;
    bool isInterrupted = false;
    // How many incidents in a row the network or the server failed, where that ended it; 0 elsewhere.
    std::size_t failuresInARow = 0;
    // What else ended it, as a sentence: a ledger that cannot be written, a lack of memory.
    std::wstring fault;
    ULONGLONG milliseconds = 0;
};

}  // namespace lejis_client
