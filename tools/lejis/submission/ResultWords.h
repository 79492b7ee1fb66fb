#pragma once

#include "commandline/Command.h"
#include "submission/Outcome.h"

#include <string>

namespace lejis_client {

// How the command calls a result: "submitted", "not sent".
std::wstring WordOf(const Command& command, Result result);

}  // namespace lejis_client
