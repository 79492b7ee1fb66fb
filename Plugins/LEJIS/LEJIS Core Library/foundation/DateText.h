// Dates and times as LEJIS writes them.
#pragma once

#include "foundation/NullableDate.h"

#include <string>

namespace lejis {

// "yyyy-mm-dd", for example 2007-03-09; empty for an empty holder.
std::wstring FormatNullableDate(const NullableDate& holder);

// "hh:nn:ss" on the 24-hour clock, for example 14:05:00; empty for an empty holder.
std::wstring FormatNullableTime(const NullableDate& holder);

}  // namespace lejis
