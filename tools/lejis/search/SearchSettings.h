// What a search on the command line needs.
#pragma once

#include "commandline/CommandLine.h"

namespace lejis_client {

// What is wrong with the options of a search, without a full stop; empty when nothing is.
std::wstring SearchComplaint(const CommandLine& commandLine);

// How many seconds to wait for the answer.
long SecondsToWait(const CommandLine& commandLine);

}  // namespace lejis_client
