// Addresses of services in the web.
#pragma once

#include <optional>
#include <string>

namespace lejis_client {

struct WebAddress {
    // Lower case, as in "http".
    std::wstring scheme;
    // The host without the port; a number of IPv6 has no brackets.
    std::wstring host;
    // The scheme's own port when the address names no port.
    unsigned short port = 0;
    // From the question mark on; may be empty.
    std::wstring query;
};

// Nothing when this is no address of HTTP or HTTPS with a host.
std::optional<WebAddress> ParseWebAddress(const std::wstring& address);

// Whether a host is this machine, by its name alone: nothing is looked up.
bool IsThisMachine(const std::wstring& host);

}  // namespace lejis_client
