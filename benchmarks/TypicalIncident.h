#pragma once

#include "model/LejisIncidentIndexCard.h"

namespace benchmarks {

// Two persons, one vehicle and one item of property, every field and address filled, nothing to warn of.
Microsoft::WRL::ComPtr<lejis::LejisIncidentIndexCard> TypicalIncident();

}  // namespace benchmarks
