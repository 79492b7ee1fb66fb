// How schemas call and define what values look like.
#pragma once

#include "files/IncidentFormat.h"

#include <set>
#include <string>
#include <string_view>

namespace incident_format {

// The type of a value in the schema with this prefix.
std::wstring TypeName(lejis_client::Content content, std::wstring_view prefix);

// The definitions of the types that this schema uses.
std::wstring TypeDefinitions(const std::set<lejis_client::Content>& used, std::wstring_view prefix);

}  // namespace incident_format
