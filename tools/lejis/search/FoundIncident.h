// What a table of incidents tells about one of them.
#pragma once

#include "library/Library.h"

#include <array>

namespace lejis_client {

// Agency, incident number, date, charge and place.
using IncidentColumns = std::array<std::wstring, 5>;

IncidentColumns ColumnsOf(ILejisIncidentIndexCard* incident);

// One line each; those of whom nothing is known are left out.
std::vector<std::wstring> PersonsOf(ILejisIncidentIndexCard* incident);
std::vector<std::wstring> VehiclesOf(ILejisIncidentIndexCard* incident);

}  // namespace lejis_client
