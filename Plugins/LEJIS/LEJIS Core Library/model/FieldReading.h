#pragma once

#include "foundation/NullableNumber.h"

#include <string_view>

namespace lejis {

// The fields of cards pass over bad content: the field keeps its value.

// Takes "true" and "false" in any letter case, or a number, 0 being false.
void ReadFlag(std::wstring_view text, bool& flag);

// Takes a numeric text. The holder rounds the number; a number out of its range becomes 0.
void ReadMeasure(std::wstring_view text, NullableInteger& holder);

// A field of a search does not keep its value when the content is bad.

// Sets the holder to the number that a numeric text begins with, and empties it for any other text.
void ReadNumber(std::wstring_view text, NullableInteger& holder);

}  // namespace lejis
