#pragma once

#include <string_view>

namespace platform {

// Whether this is an address of HTTP or HTTPS with a host, to which a request can be sent. MSXML takes other addresses
// too, and then waits for ever, reads a file, or fails without a word about the address.
bool IsHttpAddress(std::wstring_view url);

}  // namespace platform
