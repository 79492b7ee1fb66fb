// Whether a program takes TCP connections.
#pragma once

#include <string>

namespace lejis_client {

// Connects, and closes the connection at once. It waits for ten seconds at most for each of the host's addresses.
bool TakesConnection(const std::wstring& host, unsigned short port);

}  // namespace lejis_client
