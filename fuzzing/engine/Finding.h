// What a target raises when the library does what it must not.
#pragma once

#include <string>

namespace fuzzing {

struct Finding {
    std::string what;
};

}  // namespace fuzzing
