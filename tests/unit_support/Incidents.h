// Incidents to submit.
#pragma once

#include "model/LejisIncidentIndexCard.h"

#include <wrl/client.h>

namespace support {

// One that the validator passes and the formatter leaves alone.
platform::Ref<lejis::LejisIncidentIndexCard> CleanIncident();

// The same with persons, a vehicle and property, a charge and a location.
platform::Ref<lejis::LejisIncidentIndexCard> FullIncident();

}  // namespace support
