// Prints what would be sent for an incident file.
#pragma once

namespace lejis_client {

struct CommandLine;

// Returns the exit code. Raises a UsageError when the pattern of the command line stands for several files.
int Show(const CommandLine& commandLine);

}  // namespace lejis_client
