// What the process holds of the system.
#pragma once

#include <cstddef>

namespace endurance {

struct Memory {
    std::size_t privateBytes;
    unsigned long handles;
};

Memory MemoryInUse();

// Committed pages that belong to this process alone.
std::size_t PrivateBytes();

}  // namespace endurance
