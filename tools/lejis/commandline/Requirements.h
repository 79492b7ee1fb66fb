#pragma once

#include "commandline/CommandLine.h"
#include "commandline/GivenOptions.h"

namespace lejis_client {

// Sees that a command has all that it needs and nothing that contradicts it, and hands the operands to where they
// belong. Raises a UsageError.
void CheckRequirements(CommandLine& commandLine, const GivenOptions& given);

}  // namespace lejis_client
