// The variables of the environment that stand in for options.
#pragma once

#include "commandline/CommandLine.h"
#include "commandline/GivenOptions.h"

namespace lejis_client {

// Takes from the environment what the command line leaves out. Returns every variable that there may be, whether or not
// the command has its option. Raises a UsageError.
std::vector<Variable> TakeEnvironment(CommandLine& commandLine, GivenOptions& given);

// In the order of the options.
std::vector<std::wstring_view> VariableNames();

}  // namespace lejis_client
