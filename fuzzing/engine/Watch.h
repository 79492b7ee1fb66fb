// Watches the case that runs: a crash, a hang or a hunger for memory saves it and ends the process.
#pragma once

#include "engine/Case.h"

#include <string>

namespace fuzzing {

// Where findings go and what names them; set once before the first case.
struct WatchSettings {
    std::string target;
    // The finding's file without what tells cases apart.
    std::string filePrefix;
    unsigned secondsForCase = 20;
    // Called before the process is ended from outside of its ordinary ways.
    void (*beforeEnd)() = nullptr;
};

void StartWatch(WatchSettings settings);

// While it lives, this is the case that runs.
class Watched {
public:
    Watched(const Case& input, uint64_t index);
    ~Watched();
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
};

// Saves a case and says so, together with what was found.
void Report(const Case& input, uint64_t index, const char* what) noexcept;

}  // namespace fuzzing
