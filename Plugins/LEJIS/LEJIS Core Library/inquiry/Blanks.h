#pragma once

#include "platform/Text.h"

#include <initializer_list>

namespace lejis {

// Whether one of the texts holds more than blanks.
bool AnyNotBlank(std::initializer_list<platform::TextArgument> texts);

}  // namespace lejis
