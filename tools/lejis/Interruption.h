// Ctrl-C, as long as an object of this class lives. There is no more than one at a time.
#pragma once

#include <windows.h>

namespace lejis_client {

class Interruption {
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    // Signaled when the user has had enough; to be waited for.
    HANDLE Event() const;
    bool HasHappened() const;
};

}  // namespace lejis_client
