// What the results depend on: the versions of Windows' own parts, and the user's settings.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kit {

// Names and texts, in the order in which they are told.
std::vector<std::pair<std::string, std::string>> DescribeMachine();

// May write to the machine's part of the registry.
bool IsAdministrator();

}  // namespace kit
