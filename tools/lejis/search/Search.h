// The command that searches.
#pragma once

#include "commandline/CommandLine.h"

namespace lejis_client {

// Returns the exit code of the program.
int Search(const CommandLine& commandLine);

}  // namespace lejis_client
