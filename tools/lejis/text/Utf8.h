#pragma once

#include <string>
#include <string_view>

namespace lejis_client {

// Half a character becomes U+FFFD.
std::string Utf8(std::wstring_view text);
// The other way; what is no UTF-8 becomes U+FFFD.
std::wstring Utf16(std::string_view text);

}  // namespace lejis_client
