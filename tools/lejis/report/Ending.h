// How the work on the incidents came to its end.
#pragma once

#include <windows.h>

#include <cstddef>

namespace lejis_client {

struct Ending {
    // How many were not begun.
    std::size_t left = 0;
    bool isInterrupted = false;
    // How many failures of the network in a row ended it; 0 where they did not.
    long failuresInARow = 0;
    ULONGLONG milliseconds = 0;
};

}  // namespace lejis_client
