// What the process holds of the system.
#pragma once

#include <cstddef>

namespace endurance {

struct Memory {
    std::size_t privateBytes;
    unsigned long handles;
};

Memory MemoryInUse();

}  // namespace endurance
