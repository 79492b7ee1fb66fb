#pragma once

#include "library/Library.h"

#include <string>
#include <vector>

namespace lejis_client {

// A table for spreadsheets: one row a person, with the incident's columns before; an incident without persons has one
// row. The first row names the columns. Values with commas, quotes or line breaks stand in quotes, as RFC 4180 has it.
std::wstring FoundCsv(const std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>& cards);

}  // namespace lejis_client
