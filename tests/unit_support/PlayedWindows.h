#pragma once

#include "platform/Wine.h"

namespace support {

// While it lives, the library does what it does on Windows.
class PlayedWindows {
public:
    PlayedWindows() { platform::wine::Pretend(false); }
    ~PlayedWindows() { platform::wine::Pretend(std::nullopt); }
    PlayedWindows(const PlayedWindows&) = delete;
    PlayedWindows& operator=(const PlayedWindows&) = delete;
};

}  // namespace support
