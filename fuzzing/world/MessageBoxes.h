#pragma once

#include <windows.h>

namespace fuzzing {

// While it lives, message boxes of this thread are not made, as on a desktop that nobody is at: nobody is asked.
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
