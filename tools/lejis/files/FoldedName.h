#pragma once

#include <string>
#include <string_view>

namespace lejis_client {

// A file name in upper case: Windows takes names that differ in case alone for the same.
std::wstring FoldedName(std::wstring_view name);

}  // namespace lejis_client
