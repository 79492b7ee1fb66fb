#pragma once

#include "search/FoundIncident.h"
#include "text/Json.h"

namespace lejis_client {

// The list of incidents that were found.
Json FoundJson(const std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>& cards);

}  // namespace lejis_client
