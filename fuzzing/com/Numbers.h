// Numbers at the edges of their types.
#pragma once

#include "engine/Case.h"

namespace fuzzing {

int64_t AnyInteger(Case& input);
// Infinite, subnormal and no numbers among them, and days at the edges of the calendar.
double AnyDouble(Case& input);

}  // namespace fuzzing
