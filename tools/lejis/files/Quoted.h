#pragma once

#include <string>
#include <string_view>

namespace lejis_client {

// A value in a sentence: in apostrophes, on one line and not too long.
std::wstring Quoted(std::wstring_view value);

}  // namespace lejis_client
