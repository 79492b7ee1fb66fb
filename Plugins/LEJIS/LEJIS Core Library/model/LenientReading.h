// Fields of cards whose bad content is passed over: the field keeps the value that it has.
#pragma once

#include "foundation/NullableInteger.h"

#include <string>

namespace lejis {

// "true" and "false" in any letter case, or a number, 0 being false.
void ReadFlag(const std::wstring& text, bool& flag);

// A numeric text, rounded by the holder; out of its range it becomes 0.
void ReadMeasure(const std::wstring& text, NullableInteger& holder);

}  // namespace lejis
