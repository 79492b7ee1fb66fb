#pragma once

#include "commandline/CommandLine.h"

namespace lejis_client {

// Sees, before anything is done, that there is a library and that it may talk to the address. Raises NotRegistered or a
// UsageError.
void RequireLibraryForUrl(const CommandLine& commandLine);

}  // namespace lejis_client
