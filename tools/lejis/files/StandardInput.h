#pragma once

#include <string>

namespace lejis_client {

// All that stands on standard input. It is read once, by the first who asks. Raises a FileError.
const std::string& StandardInput();

}  // namespace lejis_client
