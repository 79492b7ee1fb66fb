// Looks at everything between this machine and LEJIS, and says what to do about what is wrong. It changes and sends
// nothing.
#pragma once

#include "doctor/DoctorSettings.h"

namespace lejis_client {

// Returns the exit code.
int Diagnose(const DoctorSettings& settings, bool json);

}  // namespace lejis_client
