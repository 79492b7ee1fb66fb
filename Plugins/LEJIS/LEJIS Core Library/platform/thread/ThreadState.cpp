#include "platform/thread/ThreadState.h"

#include <windows.h>

#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace platform::thread {
namespace {

// A thread that uses the library.
struct Thread {
    std::vector<std::pair<PartMaker, std::unique_ptr<ThreadPart>>> parts;
    long objects = 0;
    bool isReleasing = false;

    // The neighbours in the list of all threads.
    Thread* previous = nullptr;
    Thread* next = nullptr;
};

// These are plain values: the system calls OnThread before constructors have run and after destructors have.
DWORD slot = TLS_OUT_OF_INDEXES;
SRWLOCK lock = SRWLOCK_INIT;
Thread* first = nullptr;

// The calling thread; null before it has used the library.
Thread* ThisThreadIfAny() noexcept {
    // ThisThread reports a missing slot; without a slot there is nothing to find.
    return slot == TLS_OUT_OF_INDEXES ? nullptr : static_cast<Thread*>(TlsGetValue(slot));
}

void Enlist(Thread& thread) noexcept {
    AcquireSRWLockExclusive(&lock);
    thread.next = first;
    if (first) first->previous = &thread;
    first = &thread;
    ReleaseSRWLockExclusive(&lock);
}

void Delist(Thread& thread) noexcept {
    AcquireSRWLockExclusive(&lock);
    (thread.previous ? thread.previous->next : first) = thread.next;
    if (thread.next) thread.next->previous = thread.previous;
    ReleaseSRWLockExclusive(&lock);
}

// The calling thread, which becomes known at its first call. Throws when memory is short.
Thread& ThisThread() {
    if (Thread* const known = ThisThreadIfAny()) return *known;
    auto made = std::make_unique<Thread>();
    if (slot == TLS_OUT_OF_INDEXES || !TlsSetValue(slot, made.get())) throw std::bad_alloc();
    Enlist(*made);
    return *made.release();
}

void EndThread() noexcept {
    Thread* const ending = ThisThreadIfAny();
    if (!ending) return;
    TlsSetValue(slot, nullptr);
    Delist(*ending);
    delete ending;
}

// The module is unloaded, and other threads live on without it.
void EndAllThreads() noexcept {
    while (first) {
        Thread* const ending = first;
        Delist(*ending);
        delete ending;
    }
    TlsFree(slot);
    slot = TLS_OUT_OF_INDEXES;
}

void NTAPI OnThread(void*, DWORD reason, void* processEnds) noexcept {
    switch (reason) {
        case DLL_PROCESS_ATTACH:
            slot = TlsAlloc();
            break;
        case DLL_THREAD_DETACH:
            EndThread();
            break;
        case DLL_PROCESS_DETACH:
            // At the end of the process the other threads are gone, and one of them may have held the lock.
            if (!processEnds) EndAllThreads();
            break;
    }
}

// The system calls the functions in this section, in a DLL and in a program alike.
extern "C" __attribute__((section(".CRT$XLF"), used)) const PIMAGE_TLS_CALLBACK platform_on_thread = OnThread;

}  // namespace

ThreadPart& PartMadeBy(PartMaker maker) {
    Thread& self = ThisThread();
    for (const auto& [known, part] : self.parts) {
        if (known == maker) return *part;
    }
    return *self.parts.emplace_back(maker, maker()).second;
}

void CountObject() noexcept {
    if (Thread* const self = ThisThreadIfAny()) {
        ++self->objects;
        return;
    }
    try {
        ++ThisThread().objects;
    } catch (...) {
        // Without memory for its state the thread does not notice its last object. DllCanUnloadNow still releases all.
    }
}

void UncountObject() noexcept {
    Thread* const self = ThisThreadIfAny();
    if (!self || self->objects == 0) return;
    if (--self->objects == 0) ReleaseParts();
}

void ReleaseParts() noexcept {
    Thread* const self = ThisThreadIfAny();
    // A released object may be the last one of the thread again.
    if (!self || std::exchange(self->isReleasing, true)) return;
    // The loop goes by position: foreign code runs meanwhile and may make this thread use another part.
    for (size_t at = 0; at < self->parts.size(); ++at) self->parts[at].second->Release();
    self->isReleasing = false;
}

}  // namespace platform::thread
