// Is the library there, for which programs, and in which version?
#pragma once

#include "doctor/Finding.h"

namespace lejis_client {

Findings CheckLibrary();

}  // namespace lejis_client
