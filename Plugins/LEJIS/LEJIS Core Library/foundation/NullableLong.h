#pragma once

#include "foundation/NullableNumber.h"

#include <TVLejisCore.h>

namespace lejis {

// Null, or a 32-bit integer.
class NullableLong final : public NullableNumber<::NullableLong, INullableLong, long> {};

}  // namespace lejis
