// The wait for the answer to a search.
#pragma once

#include "console/Interruption.h"
#include "search/SearchConnection.h"

namespace lejis_client {

// Shows on a console that something is going on.
void ShowSearching(ULONGLONG milliseconds);

// Works off the thread's messages until there is an outcome, the user interrupts, or the time is up.
void AwaitOutcome(const SearchConnection& connection, const Interruption& interruption, long seconds);

}  // namespace lejis_client
