// The proxy between this user's programs and LEJIS.
#pragma once

#include "doctor/Finding.h"

namespace lejis_client {

// Names the proxy; whether it works shows when a service is reached through it.
Finding CheckProxy();

}  // namespace lejis_client
