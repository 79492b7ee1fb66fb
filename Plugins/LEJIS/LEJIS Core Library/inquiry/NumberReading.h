#pragma once

#include "foundation/NullableNumber.h"

#include <string_view>

namespace lejis {

// Sets the holder to the number that a numeric text begins with, and empties it for any other text.
void ReadNumber(std::wstring_view text, NullableInteger& holder);

}  // namespace lejis
