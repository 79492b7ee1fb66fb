// The page for people who write incident files.
#pragma once

#include <string>

namespace incident_format {

std::wstring WritePage();

}  // namespace incident_format
