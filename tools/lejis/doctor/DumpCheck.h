// Does the library write requests and answers to files, and where, and are such files left?
#pragma once

#include "doctor/Diagnosis.h"

namespace lejis_client {

void CheckDumps(Diagnosis& diagnosis);

}  // namespace lejis_client
