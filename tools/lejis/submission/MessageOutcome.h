// What the library's message of a failed submission or withdrawal tells about the incident.
#pragma once

#include "library/LibraryError.h"
#include "submission/Outcome.h"

namespace lejis_client {

// Whether anything could be sent when the library was asked decides what "service is down" means.
Outcome OutcomeOf(const LibraryError& error, bool mayHaveSent);

}  // namespace lejis_client
