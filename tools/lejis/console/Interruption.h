// Ctrl-C, as long as an object of this class lives. There is no more than one at a time.
#pragma once

#include <windows.h>

namespace lejis_client {

// From here on Ctrl-C ends the program at once, with the exit code for that, wherever no Interruption lives. Without it
// the system ends it with a code of its own.
void EndOnInterruption();

class Interruption {
public:
    // Calls `tell` before it ends the program in the middle of its work: when the user presses Ctrl-C once more, or
    // when the program has not ended by itself within `patience` milliseconds.
    Interruption(void (*tell)(), DWORD patience);
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    // Signaled when the user has had enough; to be waited for.
    HANDLE Event() const;
    bool HasHappened() const;
};

}  // namespace lejis_client
