// Ctrl-C, as long as an object of this class lives. There is no more than one at a time.
#pragma once

#include <windows.h>

namespace lejis_client {

class Interruption {
public:
    // `tell` says so when the program has to be ended in the midst of something: the user presses Ctrl-C once more, or
    // the program has not ended by itself within so many milliseconds.
    Interruption(void (*tell)(), DWORD patience);
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    // Signaled when the user has had enough; to be waited for.
    HANDLE Event() const;
    bool HasHappened() const;
};

}  // namespace lejis_client
