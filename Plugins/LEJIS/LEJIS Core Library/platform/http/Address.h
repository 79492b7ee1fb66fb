// Addresses of services.
#pragma once

#include <string_view>

namespace platform {

// Whether this is an address of HTTP or HTTPS with a host, which a request can be sent to. MSXML takes others too, and
// then waits for ever, reads a file, or fails in a way that does not tell the address.
bool IsHttpAddress(std::wstring_view url);

}  // namespace platform
