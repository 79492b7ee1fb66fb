// Checks, submits or withdraws incidents.
#pragma once

#include "incidents/IncidentSettings.h"

namespace lejis_client {

// Returns the program's exit code. With `json` the results are for a program. Raises a FileError where a list or the
// ledger cannot be read.
int RunOnIncidents(const IncidentSettings& settings, bool json);

}  // namespace lejis_client
