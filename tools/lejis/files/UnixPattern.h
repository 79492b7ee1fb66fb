// File patterns as Wine's users write them.
#pragma once

#include <string>

namespace lejis_client {

// The pattern as Windows functions take it. Wine finds a file by its Unix path from everywhere, but looks for a Unix
// pattern on the drive of the current folder.
std::wstring WindowsPattern(const std::wstring& pattern);

}  // namespace lejis_client
