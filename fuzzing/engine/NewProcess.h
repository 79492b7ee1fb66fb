#pragma once

#include "engine/Campaign.h"

namespace fuzzing {

// Runs the cases of the options in a new process, with a look at the heap after each; true when it finds nothing.
bool RunEachInNewProcess(const Options& options);

}  // namespace fuzzing
