#pragma once

#include <string>

namespace lejis_client {

// The time in ISO 8601, with milliseconds: 2026-11-22T06:43:12.345Z.
std::string UtcNow();

}  // namespace lejis_client
