#pragma once

#include <ole2.h>
#include <windows.h>

#include <string>

namespace lejis_client {

// A date of the platform as ISO 8601 has it: 2024-03-09T14:30:00.
std::wstring IsoTime(DATE date);

}  // namespace lejis_client
