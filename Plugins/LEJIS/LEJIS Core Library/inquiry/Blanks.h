#pragma once

#include <initializer_list>
#include <string>

namespace lejis {

// Whether one of the texts holds more than blanks.
bool AnyNotBlank(std::initializer_list<const std::wstring*> texts);

}  // namespace lejis
