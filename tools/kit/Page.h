// The report as people read it.
#pragma once

#include "Report.h"

#include <string>

namespace kit {

// HTML that needs nothing beside it.
std::string PageOf(const Json& report);

}  // namespace kit
