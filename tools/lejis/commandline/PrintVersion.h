#pragma once

namespace lejis_client {

// The versions of the program and of the library, which may be missing, with the LEJIS host of the library. Returns the
// exit code.
int PrintVersion(bool json);

}  // namespace lejis_client
