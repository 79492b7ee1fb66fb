#pragma once

#include "search/SearchOutcome.h"

namespace lejis_client {

// Whether the same search can end otherwise. Of a search that failed.
bool CanTryAgain(const SearchOutcome& outcome);

}  // namespace lejis_client
