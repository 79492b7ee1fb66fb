#pragma once

#include <string>
#include <vector>

namespace lejis_client {

// The lines of a text file that are not blank, in UTF-8, or in UTF-16 with a byte order mark, as PowerShell writes
// it. Raises a FileError, also for any other encoding.
std::vector<std::wstring> ReadNameList(const std::wstring& path);

}  // namespace lejis_client
