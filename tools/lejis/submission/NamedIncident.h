// An incident of which only the identifiers are known.
#pragma once

#include "library/Library.h"

namespace lejis_client {

struct IncidentName {
    std::optional<std::wstring> ori;
    std::optional<std::wstring> number;
    std::optional<DATE> submitted;
    std::optional<std::wstring> organization;

    // Whether there is any part of it.
    bool IsGiven() const { return ori || number || submitted || organization; }
};

// All but the organization has to be there.
Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> NamedIncident(const IncidentName& name);

}  // namespace lejis_client
