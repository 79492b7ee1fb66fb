// The statuses of exchanges, and what the failed ones mean.
#pragma once

#include <string>

namespace platform {
class Exchange;
}

namespace lejis {

// The HTTP statuses that the services treat by themselves.
inline constexpr long kHttpOk = 200;
inline constexpr long kHttpForbidden = 403;

}  // namespace lejis

namespace lejis::LejisUtils {

// Whether trying again may help after this HTTP status or WinINet error number.
bool IsTransientStatus(long status);

// The message of a failed exchange for a records clerk.
std::wstring GetNetworkErrorMessage(const platform::Exchange& exchange);

}  // namespace lejis::LejisUtils
