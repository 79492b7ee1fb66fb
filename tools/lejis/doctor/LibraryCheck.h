// Is the library there, for which programs, in which version, for which LEJIS host, and does it work?
#pragma once

#include "doctor/Diagnosis.h"

namespace lejis_client {

// Returns the LEJIS host of the library in use, where it is known.
std::optional<std::wstring> CheckLibrary(Diagnosis& diagnosis);

}  // namespace lejis_client
