// Looks at everything on the road to LEJIS, and says what to do about what is wrong. It changes and sends nothing.
#pragma once

#include "commandline/CommandLine.h"

namespace lejis_client {

// Returns the exit code. Raises a UsageError.
int Diagnose(const CommandLine& commandLine);

}  // namespace lejis_client
