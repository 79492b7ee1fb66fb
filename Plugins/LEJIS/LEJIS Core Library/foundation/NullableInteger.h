#pragma once

#include "foundation/NullableNumber.h"

#include <TVLejisCore.h>

namespace lejis {

// Null, or a 16-bit integer.
class NullableInteger final : public NullableNumber<::NullableInteger, INullableInteger, short> {};

}  // namespace lejis
