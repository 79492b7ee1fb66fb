#pragma once

#include <windows.h>

namespace fuzzing {

// Suppresses the message boxes of this thread while it lives, because nobody is there to close them.
class NoMessageBoxes {
public:
    NoMessageBoxes();
    ~NoMessageBoxes();
    NoMessageBoxes(const NoMessageBoxes&) = delete;
    NoMessageBoxes& operator=(const NoMessageBoxes&) = delete;

private:
    HHOOK hook_;
};

}  // namespace fuzzing
