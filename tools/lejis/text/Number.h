// Whole numbers as the user writes them.
#pragma once

#include <optional>
#include <string>

namespace lejis_client {

// Digits and nothing else; nothing when the number lies outside the bounds.
std::optional<long> ParseNumber(const std::wstring& text, long least, long most);

}  // namespace lejis_client
