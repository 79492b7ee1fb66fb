// Doubles that are not numbers to count with.
#pragma once

#include <limits>

namespace support {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

}  // namespace support
