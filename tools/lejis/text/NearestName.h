// The name that was probably meant.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace lejis_client {

// The place of the name that differs least from the one that was written, letter case aside; nothing when all of them
// differ in more than a third of their characters.
std::optional<std::size_t> NearestName(std::wstring_view written, std::span<const std::wstring_view> names);

}  // namespace lejis_client
