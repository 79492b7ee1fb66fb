// The kinds of hostile input, each a class of its own in the file of its name.
#pragma once

#include "engine/Target.h"

namespace fuzzing {

std::unique_ptr<Target> CreateReaders();
std::unique_ptr<Target> CreateValues();
std::unique_ptr<Target> CreateAutomation();
std::unique_ptr<Target> CreateSequences();
std::unique_ptr<Target> CreateAnswers();
// Faults planted on purpose, to see that each is found.
std::unique_ptr<Target> CreatePlanted();

}  // namespace fuzzing
