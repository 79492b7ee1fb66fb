// What people are told of the commands and options, made from their tables.
#pragma once

#include "commandline/Command.h"

#include <string>

namespace lejis_client {

std::wstring GeneralHelp();
std::wstring HelpOf(const Command& command);

}  // namespace lejis_client
