// The LEJIS host of a library that was made for trying out.
#pragma once

#include <string>

namespace lejis_client {

bool IsPlaceholderHost(const std::wstring& lejisHost);

// Why nothing should be sent to this address by the library, which must have been used before; empty when nothing
// speaks against it.
std::wstring PlaceholderComplaint(const std::wstring& url);

}  // namespace lejis_client
