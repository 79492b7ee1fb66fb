// What each thread that uses the library has of its own.
//
// The state is bound to its thread by TlsAlloc. A thread_local object with a destructor would not do: this compiler's
// run-time library gives its memory back before the destructor runs, and keeps the module loaded until the thread ends.
#pragma once

#include "platform/thread/ThreadPart.h"

#include <memory>

namespace platform::thread {

// This thread's part by that maker, made at first use. The reference holds until the thread ends.
ThreadPart& PartMadeBy(PartMaker maker);

template <typename Part>
std::unique_ptr<ThreadPart> MakePart() {
    return std::make_unique<Part>();
}

template <typename Part>
Part& ThisThreads() {
    return static_cast<Part&>(PartMadeBy(MakePart<Part>));
}

// The objects that this thread has made and that live. When the last one goes, the thread's parts let go of what they
// hold: the client may leave COM next. An object that ends in another thread than its own is left out of that.
void CountObject() noexcept;
void UncountObject() noexcept;

// Lets go of what this thread's parts hold.
void ReleaseParts() noexcept;

}  // namespace platform::thread
