#pragma once

#include "foundation/NullableInteger.h"

#include <string>

namespace lejis {

// Sets the holder to the number that a numeric text begins with, and empties it for any other text.
void ReadNumber(const std::wstring& text, NullableInteger& holder);

}  // namespace lejis
