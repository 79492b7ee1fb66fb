#pragma once

#include <memory>

namespace platform::thread {

// What one subject of the library keeps for one thread. The thread makes its part at first use (see ThreadState.h).
class ThreadPart {
public:
    ThreadPart() = default;
    ThreadPart(const ThreadPart&) = delete;
    ThreadPart& operator=(const ThreadPart&) = delete;

    // The thread or the module ends. Only memory may be given back here: the loader's lock is held and the thread has
    // left COM, so an object that is still held is lost.
    virtual ~ThreadPart() = default;

    // Lets go of every object that the part holds, while COM is still there. The part may be used again afterwards.
    virtual void Release() noexcept = 0;
};

using PartMaker = std::unique_ptr<ThreadPart> (*)();

}  // namespace platform::thread
