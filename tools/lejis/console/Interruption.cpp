#include "console/Interruption.h"

#include "commandline/ExitCode.h"

namespace lejis_client {
namespace {

// Long enough for the program to end by itself, short enough to be no wait for the user.
constexpr DWORD kPatience = 1000;

void (*tellOfEnd)() = nullptr;

// The handler runs in a thread of its own and may still do so when the object has gone; the system closes the events.
HANDLE InterruptionEvent() {
    static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return event;
}

HANDLE HeededEvent() {
    static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return event;
}

BOOL WINAPI Interrupt(DWORD kind) {
    if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT) return FALSE;
    SetEvent(InterruptionEvent());
    // The thread of the search may be in the midst of a call that takes its time, as the one for a schema does.
    if (WaitForSingleObject(HeededEvent(), kPatience) == WAIT_OBJECT_0) return TRUE;
    tellOfEnd();
    TerminateProcess(GetCurrentProcess(), kExitInterrupted);
    return TRUE;
}

}  // namespace

Interruption::Interruption(void (*tell)()) {
    tellOfEnd = tell;
    InterruptionEvent();
    ResetEvent(HeededEvent());
    SetConsoleCtrlHandler(Interrupt, TRUE);
}

Interruption::~Interruption() {
    // A handler cannot be taken away while it runs.
    SetEvent(HeededEvent());
    SetConsoleCtrlHandler(Interrupt, FALSE);
}

HANDLE Interruption::Event() const { return InterruptionEvent(); }

bool Interruption::HasHappened() const { return WaitForSingleObject(InterruptionEvent(), 0) == WAIT_OBJECT_0; }

}  // namespace lejis_client
