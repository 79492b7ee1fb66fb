// Does the library write requests and answers to files, and where?
#pragma once

#include "doctor/Finding.h"

namespace lejis_client {

Finding CheckDumps();

}  // namespace lejis_client
