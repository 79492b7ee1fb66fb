// Fields of cards whose bad content is passed over: the field keeps the value that it has.
#pragma once

#include "foundation/NullableNumber.h"

#include <string_view>

namespace lejis {

// "true" and "false" in any letter case, or a number, 0 being false.
void ReadFlag(std::wstring_view text, bool& flag);

// A numeric text, rounded by the holder; out of its range it becomes 0.
void ReadMeasure(std::wstring_view text, NullableInteger& holder);

}  // namespace lejis
