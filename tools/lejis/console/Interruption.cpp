#include "console/Interruption.h"

#include "console/Console.h"
#include "console/ExitCode.h"

namespace lejis_client {
namespace {

void (*tellOfEnd)() = nullptr;
DWORD patienceInMilliseconds = 0;

// The handler runs in a thread of its own and may still do so when the object has gone; the system closes the events.
HANDLE InterruptionEvent() {
    static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return event;
}

HANDLE WorkEndedEvent() {
    static const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return event;
}

bool IsSet(HANDLE event) { return WaitForSingleObject(event, 0) == WAIT_OBJECT_0; }

// The thread that works may be in the midst of a call that takes its time, as the one for a schema does.
bool EndsByItself() { return WaitForSingleObject(WorkEndedEvent(), patienceInMilliseconds) == WAIT_OBJECT_0; }

bool IsInterruption(DWORD kind) { return kind == CTRL_C_EVENT || kind == CTRL_BREAK_EVENT; }

// The handlers run in threads of their own, so they write to the standard error alone: the other output belongs to the
// main thread, which may be in the midst of a result.
BOOL WINAPI EndAtOnce(DWORD kind) {
    if (!IsInterruption(kind)) return FALSE;
    Console::Errors().Write(L"Interrupted.\n");
    TerminateProcess(GetCurrentProcess(), kExitInterrupted);
    return TRUE;
}

BOOL WINAPI Interrupt(DWORD kind) {
    if (!IsInterruption(kind)) return FALSE;
    const bool isSecond = IsSet(InterruptionEvent());
    SetEvent(InterruptionEvent());
    if (!isSecond && (patienceInMilliseconds == INFINITE || EndsByItself())) return TRUE;
    tellOfEnd();
    TerminateProcess(GetCurrentProcess(), kExitInterrupted);
    return TRUE;
}

}  // namespace

void EndOnInterruption() { SetConsoleCtrlHandler(EndAtOnce, TRUE); }

Interruption::Interruption(void (*tell)(), DWORD patience) {
    tellOfEnd = tell;
    patienceInMilliseconds = patience;
    InterruptionEvent();
    ResetEvent(WorkEndedEvent());
    SetConsoleCtrlHandler(Interrupt, TRUE);
}

Interruption::~Interruption() {
    // A handler cannot be taken away while it runs.
    SetEvent(WorkEndedEvent());
    SetConsoleCtrlHandler(Interrupt, FALSE);
}

HANDLE Interruption::Event() const { return InterruptionEvent(); }

bool Interruption::HasHappened() const { return IsSet(InterruptionEvent()); }

}  // namespace lejis_client
