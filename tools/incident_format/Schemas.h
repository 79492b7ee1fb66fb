// The schemas of incident files, one for each namespace.
#pragma once

#include <map>
#include <string>

namespace incident_format {

// Their texts by their file names.
std::map<std::wstring, std::wstring> WriteSchemas();

}  // namespace incident_format
