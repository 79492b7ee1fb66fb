#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lejis_client {

// Half a character becomes U+FFFD.
std::string Utf8(std::wstring_view text);
// The other way; whatever is not UTF-8 becomes U+FFFD.
std::wstring Utf16(std::string_view text);
// Nothing when any of it is not UTF-8.
std::optional<std::wstring> ValidUtf16(std::string_view text);

}  // namespace lejis_client
