// Texts that break things.
#pragma once

#include "engine/Case.h"

#include <string>

namespace fuzzing {

// From empty to long: numbers, dates, markup, control characters, halves of pairs, names of members.
std::wstring AnyText(Case& input);

}  // namespace fuzzing
