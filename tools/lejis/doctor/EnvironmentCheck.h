// The variables of the environment that stand in for options.
#pragma once

#include "doctor/Diagnosis.h"
#include "doctor/DoctorSettings.h"

namespace lejis_client {

// A finding for each that is set, and one for all that are not.
void CheckEnvironment(const std::vector<Variable>& variables, Diagnosis& diagnosis);

}  // namespace lejis_client
