#pragma once

#include <string_view>

namespace lejis_client {

// Whether a file name matches a pattern, as Windows has it: '?' also stands for no character before a dot or at the
// end, and "*.*" for every name. Case makes no difference.
bool MatchesWildcard(std::wstring_view name, std::wstring_view pattern);

}  // namespace lejis_client
