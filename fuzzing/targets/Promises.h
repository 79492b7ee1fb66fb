// What the library promises whatever else goes on. Each raises a Finding when the promise is broken.
#pragma once

#include "engine/Case.h"
#include "world/World.h"

namespace fuzzing {

// A search that cannot be sent has its own event, and leaves the search under way to its own.
void FailedSearchLeavesTheOtherAlone(Case& input, World& world);

// What an envelope has read stays, whatever its client does with the document.
void EnvelopeKeepsItsTexts(Case& input);

// A future runs the work that its own work gives it, and tells the observer of each run that succeeds.
void FutureRunsRepeatedWork(Case& input, World& world);

}  // namespace fuzzing
