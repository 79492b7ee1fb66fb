// Checks, submits or withdraws the incidents that the command line names.
#pragma once

#include "commandline/CommandLine.h"

namespace lejis_client {

// Returns the program's exit code. Raises a UsageError or, where a list or the ledger cannot be read, a FileError.
int RunOnIncidents(const CommandLine& commandLine);

}  // namespace lejis_client
