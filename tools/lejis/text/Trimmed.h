#pragma once

#include <string_view>

namespace lejis_client {

inline constexpr std::wstring_view kWhiteSpace = L" \t\r\n";

// The text without the white space at its ends.
std::wstring_view Trimmed(std::wstring_view text);

}  // namespace lejis_client
