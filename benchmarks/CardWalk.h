#pragma once

#include <TVLejisCore.h>

#include <functional>

namespace benchmarks {

// Takes every text, holder's value and flag of incident cards and of what belongs to them, as a client does: For Each
// over the collections, early-bound getters. `take` owns each text; flags and numbers are taken and dropped.
void WalkCards(ICollection* incidents, const std::function<void(BSTR)>& take);

}  // namespace benchmarks
