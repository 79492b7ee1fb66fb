// One kind of hostile input.
#pragma once

#include "engine/Case.h"

#include <memory>

namespace fuzzing {

class Target {
public:
    Target() = default;
    virtual ~Target() = default;
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    // Raises a Finding. Leaves nothing behind.
    virtual void Run(Case& input) = 0;
};

}  // namespace fuzzing
