// The proxy between this user's programs and LEJIS.
#pragma once

#include "doctor/Diagnosis.h"

namespace lejis_client {

// Names the proxy; whether it works shows when a service is reached through it.
void CheckProxy(Diagnosis& diagnosis);

}  // namespace lejis_client
