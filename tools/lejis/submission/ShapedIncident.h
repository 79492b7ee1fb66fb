// An incident as the library would send it, and what it says about that. Nothing is sent.
#pragma once

#include "library/Library.h"

#include <string>
#include <vector>

namespace lejis_client {

struct ShapedIncident {
    // A copy within the limits of LEJIS.
    Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> card;
    // What the copy lacks or has otherwise.
    std::vector<std::wstring> warnings;
    // Why LEJIS would not get it.
    std::vector<std::wstring> errors;
};

ShapedIncident Shape(ILejisIncidentIndexCard* incident);

}  // namespace lejis_client
