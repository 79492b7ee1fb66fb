#include "platform/thread/ThreadList.h"

#include <windows.h>

#include <new>

namespace platform::thread {
namespace {

// Plain values alone: the system calls OnThread before constructors have run and after destructors have.
DWORD slot = TLS_OUT_OF_INDEXES;
SRWLOCK lock = SRWLOCK_INIT;
Thread* first = nullptr;

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

// The system calls what stands in this section, in a DLL and in a program alike.
extern "C" __attribute__((section(".CRT$XLF"), used)) const PIMAGE_TLS_CALLBACK platform_on_thread = OnThread;

}  // namespace

Thread* ThisThreadIfAny() noexcept {
    // Without a slot, which ThisThread reports, there is nothing to find.
    return slot == TLS_OUT_OF_INDEXES ? nullptr : static_cast<Thread*>(TlsGetValue(slot));
}

Thread& ThisThread() {
    if (Thread* const known = ThisThreadIfAny()) return *known;
    auto made = std::make_unique<Thread>();
    if (slot == TLS_OUT_OF_INDEXES || !TlsSetValue(slot, made.get())) throw std::bad_alloc();
    Enlist(*made);
    return *made.release();
}

}  // namespace platform::thread
