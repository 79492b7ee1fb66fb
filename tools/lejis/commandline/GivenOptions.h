#pragma once

#include "commandline/Option.h"

#include <set>

namespace lejis_client {

// Which options have a value, from the command line or, later, from the environment.
using GivenOptions = std::set<const Option*>;

}  // namespace lejis_client
