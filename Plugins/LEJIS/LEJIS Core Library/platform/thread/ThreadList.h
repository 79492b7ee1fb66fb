// The threads that use the library, and their ends.
#pragma once

#include "platform/thread/ThreadPart.h"

#include <memory>
#include <utility>
#include <vector>

namespace platform::thread {

struct Thread {
    std::vector<std::pair<PartMaker, std::unique_ptr<ThreadPart>>> parts;
    long objects = 0;
    bool isReleasing = false;

    // The neighbours in the list of all threads.
    Thread* previous = nullptr;
    Thread* next = nullptr;
};

// The calling thread; null before it has used the library.
Thread* ThisThreadIfAny() noexcept;

// The calling thread, made known at its first call. Raises when memory is short.
Thread& ThisThread();

}  // namespace platform::thread
