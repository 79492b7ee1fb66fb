// Time is counted in milliseconds and told in seconds.
#pragma once

#include <windows.h>

namespace lejis_client {

inline constexpr ULONGLONG kSecond = 1000;

inline double Seconds(ULONGLONG milliseconds) {
    return static_cast<double>(milliseconds) / static_cast<double>(kSecond);
}

}  // namespace lejis_client
