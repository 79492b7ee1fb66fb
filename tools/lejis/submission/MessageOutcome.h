// What the library's message of a failed submission or withdrawal tells about the incident.
#pragma once

#include "library/LibraryError.h"
#include "submission/Outcome.h"
#include "submission/Reachability.h"

namespace lejis_client {

// The reachability is what the probe found before the service was called.
Outcome OutcomeOf(const LibraryError& error, Reachability reachability);

// What the library says of a server that is not there. The outcome of an unreachable server bears it, for which the
// service is not called.
LibraryError ServiceIsDown();

}  // namespace lejis_client
