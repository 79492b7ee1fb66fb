#pragma once

#include "model/LejisIncidentIndexCard.h"

namespace benchmarks {

// Two persons, one vehicle and one item of property, every field and address filled, nothing to warn of.
platform::Ref<lejis::LejisIncidentIndexCard> TypicalIncident();

// The same with as many persons as this.
platform::Ref<lejis::LejisIncidentIndexCard> IncidentWithPersons(int persons);

}  // namespace benchmarks
