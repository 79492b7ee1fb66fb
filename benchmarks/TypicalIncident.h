#pragma once

#include "model/LejisIncidentIndexCard.h"

namespace benchmarks {

// Two persons, one vehicle and one item of property, every field and address filled, nothing to warn of.
Microsoft::WRL::ComPtr<lejis::LejisIncidentIndexCard> TypicalIncident();

// The same with as many persons as this.
Microsoft::WRL::ComPtr<lejis::LejisIncidentIndexCard> IncidentWithPersons(int persons);

}  // namespace benchmarks
