// Prints what would be sent for an incident file.
#pragma once

#include "files/FileList.h"

namespace lejis_client {

// Returns the exit code.
int Show(const NamedFile& file, bool json);

}  // namespace lejis_client
