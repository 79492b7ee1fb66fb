// What the library's message of a failed submission or withdrawal tells about the incident.
#pragma once

#include "library/LibraryError.h"
#include "submission/Outcome.h"
#include "submission/Road.h"

namespace lejis_client {

// The road is what was found before the service was called.
Outcome OutcomeOf(const LibraryError& error, Road road);

// What the library says of a server that is not there. It is told of a closed road, for which the service is not
// called.
LibraryError ServiceIsDown();

}  // namespace lejis_client
