#pragma once

namespace fuzzing {

enum ExitCode : int {
    kNoFinding = 0,
    kFound = 1,
    kCannotRun = 2,
    kCrashed = 3,
    kHung = 4,
    kDevoured = 5,
    kWrongUsage = 64
};

}  // namespace fuzzing
