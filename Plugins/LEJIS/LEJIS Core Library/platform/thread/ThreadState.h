// What each thread that uses the library has of its own.
//
// The state is bound to its thread by TlsAlloc. A thread_local object with a destructor would not do: this compiler's
// run-time library gives its memory back before the destructor runs, and keeps the module loaded until the thread ends.
#pragma once

#include <memory>

namespace platform::thread {

// What one subject of the library keeps for one thread. The thread makes its part at first use.
class ThreadPart {
public:
    ThreadPart() = default;
    ThreadPart(const ThreadPart&) = delete;
    ThreadPart& operator=(const ThreadPart&) = delete;

    // The thread or the module ends. Destructors may free memory alone: the loader's lock is held and the thread has
    // left COM, so an object that is still held is lost.
    virtual ~ThreadPart() = default;

    // Releases every object that the part holds, while COM is still there. The part may be used again afterwards.
    virtual void Release() noexcept = 0;
};

using PartMaker = std::unique_ptr<ThreadPart> (*)();

// This thread's part from that maker, made at first use. The reference is valid until the thread ends.
ThreadPart& PartMadeBy(PartMaker maker);

template <typename Part>
std::unique_ptr<ThreadPart> MakePart() {
    return std::make_unique<Part>();
}

template <typename Part>
Part& ThisThreads() {
    return static_cast<Part&>(PartMadeBy(MakePart<Part>));
}

// Count the living objects that this thread has made. When the last one ends, the thread's parts release what they
// hold, because the client may leave COM next. An object that ends in another thread than its own does not count there.
void CountObject() noexcept;
void UncountObject() noexcept;

// Releases what this thread's parts hold.
void ReleaseParts() noexcept;

}  // namespace platform::thread
