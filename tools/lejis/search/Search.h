// The command that searches.
#pragma once

#include "search/SearchSettings.h"

namespace lejis_client {

// Returns the exit code of the program.
int Search(const SearchSettings& settings, bool json);

}  // namespace lejis_client
