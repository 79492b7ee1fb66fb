#pragma once

#include "search/SearchOutcome.h"

namespace lejis_client {

// Whether repeating the failed search can succeed.
bool CanTryAgain(const SearchOutcome& outcome);

}  // namespace lejis_client
