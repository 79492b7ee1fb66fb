#pragma once

#include "commandline/CommandLine.h"

namespace lejis_client {

// Reads the program's arguments and the environment. Raises a UsageError.
CommandLine ParseCommandLine(const std::vector<std::wstring>& arguments);

// For a command line that makes no sense too.
bool AsksForJson(const std::vector<std::wstring>& arguments);

}  // namespace lejis_client
