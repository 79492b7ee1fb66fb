#pragma once

namespace lejis_client {

// The library is not registered for programs of this bitness, or its file is gone.
struct NotRegistered {};

}  // namespace lejis_client
